// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QCheckBox>
#include <QPointer>
#include <QPushButton>

#include "Boxes.h"
#include "HostInterfaces.h"
#include "StandIns.h"
#include "WidgetTest.h"

using namespace Zentor;
using App::ConfirmationAlertBox;
using Tests::ExpectedBox;

Q_DECLARE_METATYPE(QMessageBox::StandardButton)

namespace {

constexpr auto OkCancel = QMessageBox::Ok | QMessageBox::Cancel;

QString Id()
{
    return QStringLiteral("remove_always");
}

struct Question {
    explicit Question(QMessageBox::StandardButtons buttons = OkCancel, QWidget* parent = nullptr)
        : box(new ConfirmationAlertBox(manager, Util::AlertBox::Question, {},
                                       QStringLiteral("Sure?"), buttons, parent, Qt::Dialog))
    {
        box->SetConfirmationId(Id());
        box->SetConfirmationText(QStringLiteral("Always"));
    }
    ~Question() { delete box; }
    Q_DISABLE_COPY(Question)

    std::shared_ptr<Tests::FakeSettingsManager> manager =
        std::make_shared<Tests::FakeSettingsManager>();
    QPointer<ConfirmationAlertBox> box;
};

} // namespace

class tst_ConfirmationAlertBox : public Tests::WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void showsTheCheckBox()
    {
        const Question question;
        QCOMPARE(question.box->checkBox()->text(), QStringLiteral("Always"));
        QVERIFY(!question.box->checkBox()->isChecked());
        question.box->SetConfirmationText(QStringLiteral("Always delete"));
        QCOMPARE(question.box->checkBox()->text(), QStringLiteral("Always delete"));
        QCOMPARE(question.box->findChildren<QCheckBox*>().count(), 1);
    }

    void remembersOnlyAnAcceptedTick_data()
    {
        QTest::addColumn<bool>("ticked");
        QTest::addColumn<QString>("way");
        QTest::addColumn<bool>("stored");
        for (const bool ticked : {false, true}) {
            const QByteArray suffix = ticked ? ", ticked" : "";
            for (const char* way : {"ok", "cancel", "escape", "close", "delete"}) {
                QTest::newRow(way + suffix)
                    << ticked << QString::fromLatin1(way) << (ticked && qstrcmp(way, "ok") == 0);
            }
        }
    }

    void remembersOnlyAnAcceptedTick()
    {
        QFETCH(bool, ticked);
        QFETCH(QString, way);
        QFETCH(bool, stored);
        const Question question;
        const ExpectedBox expected([&](QMessageBox& box) {
            if (ticked) {
                QTest::mouseClick(box.checkBox(), Qt::LeftButton, {}, QPoint(5, 5));
            }
            QCOMPARE(box.checkBox()->isChecked(), ticked);
            if (way == QLatin1String("ok")) {
                box.button(QMessageBox::Ok)->click();
            } else if (way == QLatin1String("cancel")) {
                box.button(QMessageBox::Cancel)->click();
            } else if (way == QLatin1String("escape")) {
                Tests::PressEscape(box);
            } else if (way == QLatin1String("close")) {
                box.close();
            } else {
                delete &box;
            }
        });
        const auto answer = question.box->Exec();
        QVERIFY(expected.Came());
        QCOMPARE(answer, way == QLatin1String("ok") ? QMessageBox::Ok : QMessageBox::Cancel);
        QCOMPARE(question.manager->confirmed.value(Id()), stored);
        QCOMPARE(question.manager->confirmed.count(), stored ? 1 : 0);
    }

    void rememberedAnswerIsGivenWithoutTheBox_data()
    {
        QTest::addColumn<int>("buttons");
        QTest::addColumn<QMessageBox::StandardButton>("answer");
        QTest::newRow("ok, cancel") << int(OkCancel) << QMessageBox::Ok;
        QTest::newRow("yes, no") << int(QMessageBox::Yes | QMessageBox::No) << QMessageBox::Yes;
        QTest::newRow("discard, save")
            << int(QMessageBox::Discard | QMessageBox::Save) << QMessageBox::Save;
    }

    void rememberedAnswerIsGivenWithoutTheBox()
    {
        QFETCH(int, buttons);
        QFETCH(QMessageBox::StandardButton, answer);
        const Question question{QMessageBox::StandardButtons(buttons)};
        question.manager->confirmed[Id()] = true;
        // Fails when a box comes: nobody answers it.
        bool came = false;
        const ExpectedBox unexpected([&](QMessageBox& box) {
            came = true;
            box.reject();
        });
        QCOMPARE(question.box->Exec(), answer);
        QVERIFY(!came);
    }

    void nothingAcceptsNothingIsRemembered()
    {
        const Question question{QMessageBox::No | QMessageBox::Cancel};
        question.manager->confirmed[Id()] = true;
        const ExpectedBox expected(QMessageBox::No);
        QCOMPARE(question.box->Exec(), QMessageBox::No);
        QVERIFY(expected.Came());
    }

    void withoutANameNothingIsRemembered()
    {
        const Question question;
        question.box->SetConfirmationId({});
        question.manager->confirmed[QString()] = true;
        const ExpectedBox expected([](QMessageBox& box) {
            box.checkBox()->setChecked(true);
            box.button(QMessageBox::Ok)->click();
        });
        QCOMPARE(question.box->Exec(), QMessageBox::Ok);
        QVERIFY(expected.Came());
        QCOMPARE(question.manager->confirmed.count(), 1);
    }

    void withoutACheckBoxNothingIsRemembered()
    {
        const auto manager = std::make_shared<Tests::FakeSettingsManager>();
        ConfirmationAlertBox box(manager, Util::AlertBox::Question, {}, QStringLiteral("?"),
                                 OkCancel, nullptr, Qt::Dialog);
        box.SetConfirmationId(Id());
        const ExpectedBox expected(QMessageBox::Ok);
        QCOMPARE(box.Exec(), QMessageBox::Ok);
        QVERIFY(expected.Came());
        QVERIFY(manager->confirmed.isEmpty());
    }

    void windowDeletedWhileOpen()
    {
        auto* window = new QWidget;
        window->show();
        const Question question(OkCancel, window);
        const ExpectedBox expected([window](QMessageBox& box) {
            box.checkBox()->setChecked(true);
            delete window;
        });
        QCOMPARE(question.box->Exec(), QMessageBox::Cancel);
        QVERIFY(expected.Came());
        QVERIFY(question.box.isNull());
        QVERIFY(question.manager->confirmed.isEmpty());
    }

    void keyboardReachesTheCheckBox()
    {
        const Question question;
        const ExpectedBox expected([](QMessageBox& box) {
            QCOMPARE(box.focusWidget(), box.button(QMessageBox::Cancel));
            for (int i = 0; i < 5 && !box.checkBox()->hasFocus(); ++i) {
                QTest::keyClick(&box, Qt::Key_Tab);
            }
            QVERIFY(box.checkBox()->hasFocus());
            QTest::keyClick(box.checkBox(), Qt::Key_Space);
            QVERIFY(box.checkBox()->isChecked());
            box.button(QMessageBox::Ok)->click();
        });
        QCOMPARE(question.box->Exec(), QMessageBox::Ok);
        QVERIFY(expected.Came());
        QVERIFY(question.manager->confirmed.value(Id()));
    }
};

SCHEDULER_TEST_MAIN(tst_ConfirmationAlertBox)
#include "tst_ConfirmationAlertBox.moc"
