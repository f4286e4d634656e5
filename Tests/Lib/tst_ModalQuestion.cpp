// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QAbstractButton>
#include <QPointer>

#include "Boxes.h"
#include "ModalQuestion.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

using PX::Scheduler::UI::AskModally;
using Util::AlertBox;

/// A widget in a window that has a question to ask, and the box of the last one.
class Asker final : public QWidget {
public:
    explicit Asker(QWidget* parent)
        : QWidget(parent)
    {
    }

    QMessageBox::StandardButton Ask()
    {
        auto asked = std::make_unique<AlertBox>(
            AlertBox::Question, QString(), QStringLiteral("Sure?"),
            QMessageBox::Ok | QMessageBox::No | QMessageBox::Cancel, window(), Qt::Dialog);
        box = asked.get();
        return AskModally(std::move(asked), this);
    }

    QPointer<AlertBox> box;
};

/// An asker that may go at any time, and what is left of it.
struct Scene {
    std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
    const QPointer<Asker> asker = new Asker(window.get());
};

} // namespace
} // namespace Zentor::Tests

Q_DECLARE_METATYPE(QMessageBox::StandardButton)

namespace Zentor::Tests {

class tst_ModalQuestion : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void returnsTheAnswer_data()
    {
        QTest::addColumn<QMessageBox::StandardButton>("answer");
        QTest::newRow("OK") << QMessageBox::Ok;
        QTest::newRow("No") << QMessageBox::No;
        QTest::newRow("Cancel") << QMessageBox::Cancel;
    }

    void returnsTheAnswer()
    {
        QFETCH(QMessageBox::StandardButton, answer);
        const Scene scene;
        const ExpectedBox box(answer);
        QCOMPARE(scene.asker->Ask(), answer);
        QVERIFY(box.Came());
        QVERIFY(scene.asker->box.isNull());
    }

    void isRefusedByEscape()
    {
        const Scene scene;
        const ExpectedBox box(PressEscape);
        QCOMPARE(scene.asker->Ask(), QMessageBox::Cancel);
        QVERIFY(box.Came());
    }

    void isAskedAgainOnceItIsAnswered()
    {
        const Scene scene;
        for (const auto answer : {QMessageBox::Cancel, QMessageBox::Ok, QMessageBox::No}) {
            const ExpectedBox box(answer);
            QCOMPARE(scene.asker->Ask(), answer);
            QVERIFY(box.Came());
        }
    }

    void isAskedAgainWhileItIsOpen_data()
    {
        QTest::addColumn<QMessageBox::StandardButton>("first");
        QTest::addColumn<QMessageBox::StandardButton>("second");
        QTest::newRow("OK, No") << QMessageBox::Ok << QMessageBox::No;
        QTest::newRow("No, OK") << QMessageBox::No << QMessageBox::Ok;
        QTest::newRow("Cancel, OK") << QMessageBox::Cancel << QMessageBox::Ok;
        QTest::newRow("OK, Cancel") << QMessageBox::Ok << QMessageBox::Cancel;
    }

    /// Each box has an answer of its own.
    void isAskedAgainWhileItIsOpen()
    {
        QFETCH(QMessageBox::StandardButton, first);
        QFETCH(QMessageBox::StandardButton, second);
        const Scene scene;
        auto again = QMessageBox::NoButton;
        const ExpectedBox box([&](QMessageBox& open) {
            const ExpectedBox other(second);
            again = scene.asker->Ask();
            QVERIFY(other.Came());
            QCOMPARE(QApplication::activeModalWidget(), &open);
            open.button(first)->click();
        });
        QCOMPARE(scene.asker->Ask(), first);
        QVERIFY(box.Came());
        QCOMPARE(again, second);
    }

    /// The first box is answered by program while the second one is on top of it.
    void keepsItsAnswerWhileAnotherBoxIsOpen()
    {
        const Scene scene;
        auto again = QMessageBox::NoButton;
        const ExpectedBox box([&](QMessageBox& open) {
            const ExpectedBox other([&](QMessageBox& top) {
                open.button(QMessageBox::Ok)->click();
                top.button(QMessageBox::No)->click();
            });
            again = scene.asker->Ask();
            QVERIFY(other.Came());
        });
        QCOMPARE(scene.asker->Ask(), QMessageBox::Ok);
        QVERIFY(box.Came());
        QCOMPARE(again, QMessageBox::No);
    }

    void isRefusedWithAllItsBoxesWhenItsAskerGoes_data()
    {
        QTest::addColumn<QString>("victim");
        QTest::newRow("asker") << "asker";
        QTest::newRow("window") << "window";
    }

    void isRefusedWithAllItsBoxesWhenItsAskerGoes()
    {
        QFETCH(QString, victim);
        Scene scene;
        auto again = QMessageBox::NoButton;
        const ExpectedBox box([&](QMessageBox& /*open*/) {
            const ExpectedBox other([&](QMessageBox& /*top*/) {
                if (victim == QLatin1String("asker")) {
                    delete scene.asker;
                } else {
                    scene.window.reset();
                }
            });
            again = scene.asker->Ask();
            QVERIFY(other.Came());
        });
        QCOMPARE(scene.asker->Ask(), QMessageBox::Cancel);
        QVERIFY(box.Came());
        QCOMPARE(again, QMessageBox::Cancel);
        QVERIFY(!IsBoxOpen());
    }

    void isRefusedWhenItsAskerGoes_data()
    {
        QTest::addColumn<QString>("victim");
        QTest::addColumn<bool>("isAccepted");
        for (const char* victim : {"asker", "window"}) {
            QTest::addRow("%s", victim) << victim << false;
            QTest::addRow("%s, after the answer", victim) << victim << true;
        }
    }

    void isRefusedWhenItsAskerGoes()
    {
        QFETCH(QString, victim);
        QFETCH(bool, isAccepted);
        Scene scene;
        QPointer<QMessageBox> asked;
        bool wasClosed = false;
        const ExpectedBox box([&](QMessageBox& open) {
            asked = &open;
            if (isAccepted) {
                open.button(QMessageBox::Ok)->click();
            }
            if (victim == QLatin1String("asker")) {
                delete scene.asker;
            } else {
                scene.window.reset();
            }
            wasClosed = asked.isNull() || asked->isHidden();
        });
        QCOMPARE(scene.asker->Ask(), QMessageBox::Cancel);
        QVERIFY(box.Came());
        QVERIFY(wasClosed);
        QVERIFY(scene.asker.isNull());
        QVERIFY(asked.isNull());
        QVERIFY(!IsBoxOpen());
    }

    void isRefusedWhenItsBoxGoes()
    {
        const Scene scene;
        {
            const ExpectedBox box([](QMessageBox& open) { delete &open; });
            QCOMPARE(scene.asker->Ask(), QMessageBox::Cancel);
            QVERIFY(box.Came());
        }
        const ExpectedBox next(QMessageBox::Ok);
        QCOMPARE(scene.asker->Ask(), QMessageBox::Ok);
        QVERIFY(next.Came());
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_ModalQuestion)

#include "tst_ModalQuestion.moc"
