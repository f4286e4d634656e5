// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QAbstractButton>
#include <QAccessible>
#include <QPointer>
#include <QPushButton>

#include "Boxes.h"
#include "HostInterfaces.h"
#include "MarkingTranslator.h"
#include "WidgetTest.h"

using namespace Zentor;
using Tests::ExpectedBox;
using Util::AlertBox;

Q_DECLARE_METATYPE(QMessageBox::StandardButton)
Q_DECLARE_METATYPE(QMessageBox::Icon)
Q_DECLARE_METATYPE(Zentor::Util::AlertBox::Level)

namespace {

constexpr auto OkCancel = QMessageBox::Ok | QMessageBox::Cancel;
constexpr auto BoxFlags = Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint;

struct OkCancelBox : AlertBox {
    explicit OkCancelBox(QWidget* parent = nullptr)
        : AlertBox(Information, {}, QStringLiteral("Sure?"), OkCancel, parent, BoxFlags)
    {
    }
};

/// Counts the buttons that are put into button boxes.
class ButtonCount final : public QObject {
public:
    ButtonCount() { qApp->installEventFilter(this); }

    int Get() const { return m_count; }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const bool isAdded =
            event->type() == QEvent::ChildAdded && watched->inherits("QDialogButtonBox");
        m_count += isAdded && static_cast<QChildEvent*>(event)->child()->isWidgetType() ? 1 : 0;
        return false;
    }

private:
    int m_count = 0;
};

} // namespace

class tst_AlertBox : public Tests::WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    /// A box is also built for a question that has a remembered answer.
    void isBuiltWithItsOwnButtonsOnly()
    {
        const ButtonCount buttons;
        const AlertBox box(AlertBox::Question, QString(), QStringLiteral("Sure?"),
                           QMessageBox::Ok | QMessageBox::Cancel, nullptr, Qt::Dialog);
        QCOMPARE(buttons.Get(), 2);
    }

    void levels_data()
    {
        QTest::addColumn<AlertBox::Level>("level");
        QTest::addColumn<int>("number");
        QTest::addColumn<QMessageBox::Icon>("icon");
        QTest::newRow("0") << AlertBox::Information << 0 << QMessageBox::Information;
        QTest::newRow("1") << AlertBox::Warning << 1 << QMessageBox::Warning;
        QTest::newRow("2") << AlertBox::Question << 2 << QMessageBox::Question;
    }

    void levels()
    {
        QFETCH(AlertBox::Level, level);
        const AlertBox box(level, QStringLiteral("Title"), QStringLiteral("Text"), OkCancel,
                           nullptr, BoxFlags);
        QTEST(int(level), "number");
        QTEST(box.icon(), "icon");
        QCOMPARE(box.windowTitle(), QStringLiteral("Title"));
        QCOMPARE(box.text(), QStringLiteral("Text"));
        QCOMPARE(box.standardButtons(), OkCancel);
        QVERIFY(box.windowFlags().testFlag(Qt::MSWindowsFixedSizeDialogHint));
    }

    void answersWithTheButton_data()
    {
        QTest::addColumn<QMessageBox::StandardButton>("button");
        QTest::newRow("yes") << QMessageBox::Yes;
        QTest::newRow("no") << QMessageBox::No;
        QTest::newRow("cancel") << QMessageBox::Cancel;
    }

    void answersWithTheButton()
    {
        QFETCH(QMessageBox::StandardButton, button);
        QWidget window;
        AlertBox box(AlertBox::Question, {}, QStringLiteral("Add?"),
                     QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, &window, BoxFlags);
        const ExpectedBox expected(button);
        QCOMPARE(box.Exec(), button);
        QVERIFY(expected.Came());
        QVERIFY(!box.isVisible());
    }

    void answersWithNoStandardButton()
    {
        AlertBox box(AlertBox::Question, {}, QStringLiteral("Add?"), QMessageBox::Cancel, nullptr,
                     BoxFlags);
        auto* other = box.addButton(QStringLiteral("Other"), QMessageBox::ActionRole);
        const ExpectedBox expected([other](QMessageBox&) { other->click(); });
        QCOMPARE(box.Exec(), QMessageBox::NoButton);
        QVERIFY(expected.Came());
    }

    void leavingAnswersCancel_data()
    {
        QTest::addColumn<int>("buttons");
        QTest::newRow("ok, cancel") << int(OkCancel);
        QTest::newRow("ok") << int(QMessageBox::Ok);
        QTest::newRow("yes, no") << int(QMessageBox::Yes | QMessageBox::No);
        QTest::newRow("yes") << int(QMessageBox::Yes);
        QTest::newRow("none") << int(QMessageBox::NoButton);
    }

    void leavingAnswersCancel()
    {
        QFETCH(int, buttons);
        const ExpectedBox::Action ways[] = {
            Tests::PressEscape,
            [](QMessageBox& box) { box.close(); },
            [](QMessageBox& box) { box.reject(); },
        };
        for (const auto& way : ways) {
            AlertBox box(AlertBox::Question, {}, QStringLiteral("?"),
                         QMessageBox::StandardButtons(buttons), nullptr, BoxFlags);
            const ExpectedBox expected(way);
            QCOMPARE(box.Exec(), QMessageBox::Cancel);
            QVERIFY(expected.Came());
        }
    }

    void quittingAnswersCancel()
    {
        OkCancelBox box;
        const ExpectedBox expected([](QMessageBox&) { QCoreApplication::quit(); });
        auto answer = QMessageBox::NoButton;
        QTimer::singleShot(0, &box, [&] { answer = box.Exec(); });
        QCoreApplication::exec();
        QVERIFY(expected.Came());
        QCOMPARE(answer, QMessageBox::Cancel);
    }

    void escapeReachesTheBoxFromItsButtons()
    {
        OkCancelBox box;
        const ExpectedBox expected([](QMessageBox& open) {
            auto* ok = open.button(QMessageBox::Ok);
            ok->setFocus();
            QTest::keyClick(ok, Qt::Key_Escape);
        });
        QCOMPARE(box.Exec(), QMessageBox::Cancel);
        QVERIFY(expected.Came());
    }

    void canBeAskedAgain()
    {
        OkCancelBox box;
        const ExpectedBox first(QMessageBox::Ok);
        QCOMPARE(box.Exec(), QMessageBox::Ok);
        const ExpectedBox second(Tests::PressEscape);
        QCOMPARE(box.Exec(), QMessageBox::Cancel);
        QVERIFY(first.Came() && second.Came());
    }

    void cancelIsTheDefault()
    {
        OkCancelBox box;
        const ExpectedBox expected([](QMessageBox& open) {
            QVERIFY(qobject_cast<QPushButton*>(open.button(QMessageBox::Cancel))->isDefault());
            QTest::keyClick(&open, Qt::Key_Return);
        });
        QCOMPARE(box.Exec(), QMessageBox::Cancel);
        QVERIFY(expected.Came());
    }

    void chosenDefaultStays()
    {
        OkCancelBox box;
        box.setDefaultButton(QMessageBox::Ok);
        const ExpectedBox expected(
            [](QMessageBox& open) { QTest::keyClick(&open, Qt::Key_Return); });
        QCOMPARE(box.Exec(), QMessageBox::Ok);
        QVERIFY(expected.Came());
    }

    void deletedWhileOpen_data()
    {
        QTest::addColumn<bool>("withWindow");
        QTest::newRow("the box") << false;
        QTest::newRow("its window") << true;
    }

    void deletedWhileOpen()
    {
        QFETCH(bool, withWindow);
        auto* window = new QWidget;
        window->show();
        auto* box = new OkCancelBox(window);
        const QPointer<AlertBox> guard(box);
        const ExpectedBox expected([=](QMessageBox&) {
            if (withWindow) {
                delete window;
            } else {
                delete box;
            }
        });
        QCOMPARE(box->Exec(), QMessageBox::Cancel);
        QVERIFY(expected.Came());
        QVERIFY(guard.isNull());
        if (!withWindow) {
            delete window;
        }
    }

    void languageChange_data()
    {
        QTest::addColumn<bool>("whileOpen");
        QTest::newRow("closed") << false;
        QTest::newRow("open") << true;
    }

    void languageChange()
    {
        QFETCH(bool, whileOpen);
        AlertBox box(AlertBox::Question, {}, QStringLiteral("?"), OkCancel, nullptr, BoxFlags);
        auto* ok = box.button(QMessageBox::Ok);
        auto* cancel = box.button(QMessageBox::Cancel);
        ok->setText(QStringLiteral("Delete"));
        auto* later = box.addButton(QMessageBox::Save);
        later->setText(QStringLiteral("Keep"));
        auto* untouched = box.addButton(QMessageBox::Discard);
        const QString english = cancel->text();
        const QString englishDiscard = untouched->text();

        const auto changeLanguage = [&] {
            {
                Tests::MarkingTranslator translator("QPlatformTheme");
                QCoreApplication::installTranslator(&translator);
                QCoreApplication::sendPostedEvents();
                QCOMPARE(ok->text(), QStringLiteral("Delete"));
                QCOMPARE(later->text(), QStringLiteral("Keep"));
                QCOMPARE(cancel->text(), QStringLiteral("~Cancel"));
                QVERIFY(untouched->text().startsWith(QLatin1Char('~')));
                cancel->setText(QStringLiteral("Back"));
            }
            QCoreApplication::sendPostedEvents();
            QCOMPARE(ok->text(), QStringLiteral("Delete"));
            QCOMPARE(cancel->text(), QStringLiteral("Back"));
            QCOMPARE(untouched->text(), englishDiscard);
        };
        QVERIFY(english != QLatin1String("~Cancel"));
        if (!whileOpen) {
            changeLanguage();
            return;
        }
        const ExpectedBox expected([&](QMessageBox& open) {
            changeLanguage();
            open.reject();
        });
        QCOMPARE(box.Exec(), QMessageBox::Cancel);
        QVERIFY(expected.Came());
    }

    void isAnAlertToAScreenReader()
    {
        OkCancelBox box;
        auto* interface = QAccessible::queryAccessibleInterface(&box);
        QCOMPARE(interface->role(), QAccessible::AlertMessage);
    }
};

SCHEDULER_TEST_MAIN(tst_AlertBox)
#include "tst_AlertBox.moc"
