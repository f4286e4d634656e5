// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QCalendarWidget>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QLayout>
#include <QLineEdit>
#include <QScrollArea>

#include "AppWindow.h"
#include "Boxes.h"
#include "PanelParts.h"
#include "Resources.h"
#include "Theme.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

const QString& AddButton = Desktop::PanelPart::AddButton;
const QString& NameEdit = Desktop::PanelPart::NameField;
const QString& CreateButton = Desktop::PanelPart::CreateButton;

void NoteAnd(QMessageBox& box, QString& name, QMessageBox::StandardButton answer)
{
    name = box.objectName();
    box.button(answer)->click();
}

} // namespace
} // namespace Zentor::Tests

Q_DECLARE_METATYPE(QMessageBox::StandardButton)

namespace Zentor::Tests {

class tst_PanelFormKeys : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Desktop::RegisterResources();
        Desktop::ApplyTheme(Desktop::Theme::Light);
    }

    void opensTheFormWithTheNameSelected_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Insert") << int(Qt::Key_Insert);
        QTest::newRow("Space") << int(Qt::Key_Space);
        QTest::newRow("Return") << int(Qt::Key_Return);
        QTest::newRow("Enter") << int(Qt::Key_Enter);
    }

    void opensTheFormWithTheNameSelected()
    {
        QFETCH(int, key);
        const AppWindow app(1);
        QVERIFY(app.Show());
        app.Focus(AddButton);
        app.Press(static_cast<Qt::Key>(key));
        QVERIFY(app.IsFormOpen());
        QCOMPARE(app.Focused(), NameEdit);
        QVERIFY(!app.Find<QLineEdit>(NameEdit)->selectedText().isEmpty());
        QCOMPARE(app.Find<QLineEdit>(NameEdit)->selectedText(),
                 app.Find<QLineEdit>(NameEdit)->text());
    }

    void doesNotStartAgainWhenTheFormIsOpen()
    {
        const AppWindow app(1);
        QVERIFY(app.Show());
        app.Press(Qt::Key_Insert);
        app.Type("Standup");
        app.Press(Qt::Key_Insert);
        QCOMPARE(app.Find<QLineEdit>(NameEdit)->text(), QStringLiteral("Standup"));
    }

    void createsTheTaskWithEnter_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<int>("key");
        const std::pair<const char*, QString> fields[] = {
            {"name", NameEdit},
            {"date", Desktop::PanelPart::DateField},
            {"start", Desktop::PanelPart::StartField},
            {"duration", Desktop::PanelPart::DurationField},
            {"area", Desktop::PanelPart::SelectedAreaButton},
            {"action", Desktop::PanelPart::ActionBox},
            {"button", CreateButton}};
        for (const auto& [row, field] : fields) {
            QTest::addRow("%s, Return", row) << field << int(Qt::Key_Return);
            QTest::addRow("%s, Enter", row) << field << int(Qt::Key_Enter);
        }
    }

    void createsTheTaskWithEnter()
    {
        QFETCH(QString, field);
        QFETCH(int, key);
        const AppWindow app(1);
        QVERIFY(app.Show());
        app.Press(Qt::Key_Insert);
        app.Type("Standup");
        app.Focus(qPrintable(field));
        QCOMPARE(app.Focused(), field);
        app.Press(static_cast<Qt::Key>(key));
        QVERIFY(!app.IsFormOpen());
        QCOMPARE(app.Titles(), QStringLiteral("Standup,Task 1"));
        QCOMPARE(app.Focused(), AddButton);
    }

    void createsWhatWasTypedIntoATimeEditor()
    {
        const AppWindow app(1);
        QVERIFY(app.Show());
        app.Press(Qt::Key_Insert);
        app.Type("Standup");
        app.Focus(Desktop::PanelPart::DurationField);
        app.Type("000230");
        app.Press(Qt::Key_Return);
        QCOMPARE(app.Titles(), QStringLiteral("Standup,Task 1"));
        QCOMPARE(app.store->Settings().schedule.front().duration,
                 std::chrono::microseconds(std::chrono::seconds(150)));
    }

    void createsNothingWhileTheTaskIsInvalid()
    {
        const AppWindow app(1);
        QVERIFY(app.Show());
        app.Press(Qt::Key_Insert);
        app.Type("Task 1");
        app.Press(Qt::Key_Return);
        QVERIFY(app.IsFormOpen());
        QCOMPARE(app.Titles(), QStringLiteral("Task 1"));
        QCOMPARE(app.Focused(), NameEdit);
    }

    void createsOnceWhenEnterIsHeldDown()
    {
        const AppWindow app(1);
        QVERIFY(app.Show());
        app.Press(Qt::Key_Insert);
        app.Type("Standup");
        for (int repeat = 0; repeat < 5; ++repeat) {
            QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, {}, repeat > 0);
            QCoreApplication::sendEvent(app.window->focusWidget(), &press);
        }
        QVERIFY(!app.IsFormOpen());
        QCOMPARE(app.Titles(), QStringLiteral("Standup,Task 1"));
    }

    void goesBackWithEscape_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QMessageBox::StandardButton>("answer");
        QTest::addColumn<bool>("isOpen");
        QTest::addColumn<QString>("titles");
        for (const QString& field :
             {NameEdit, Desktop::PanelPart::DateField, Desktop::PanelPart::StartField,
              Desktop::PanelPart::DurationField, Desktop::PanelPart::ActionBox}) {
            QTest::addRow("%s, add", qPrintable(field))
                << field << QMessageBox::Yes << false << "New,Task 1";
            QTest::addRow("%s, drop", qPrintable(field))
                << field << QMessageBox::No << false << "Task 1";
            QTest::addRow("%s, stay", qPrintable(field))
                << field << QMessageBox::Cancel << true << "Task 1";
        }
    }

    void goesBackWithEscape()
    {
        QFETCH(QString, field);
        QFETCH(QMessageBox::StandardButton, answer);
        QFETCH(bool, isOpen);
        QFETCH(QString, titles);
        const AppWindow app(1);
        QVERIFY(app.Show());
        app.Press(Qt::Key_Insert);
        app.Type("New");
        app.Focus(qPrintable(field));
        QString asked;
        const ExpectedBox box([&](QMessageBox& open) { NoteAnd(open, asked, answer); });
        app.Press(Qt::Key_Escape);
        QVERIFY(box.Came());
        QCOMPARE(asked, QStringLiteral("RecordSchedulerWidget_UnsavedRecordAlertBox"));
        QCOMPARE(app.IsFormOpen(), isOpen);
        QCOMPARE(app.Titles(), titles);
        QCOMPARE(app.Focused(), isOpen ? field : AddButton);
    }

    void leavesEnterAndEscapeToPopups_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Return") << int(Qt::Key_Return);
        QTest::newRow("Escape") << int(Qt::Key_Escape);
    }

    void leavesEnterAndEscapeToPopups()
    {
        QFETCH(int, key);
        // The offscreen platform says so of itself; a popup wants the keyboard for itself.
        AllowWarning(QStringLiteral("^This plugin does not support grabbing the keyboard$"));
        const AppWindow app(1);
        QVERIFY(app.Show());
        app.Press(Qt::Key_Insert);
        auto* box = app.Find<QComboBox>(Desktop::PanelPart::ActionBox);
        box->setFocus();
        box->showPopup();
        QVERIFY(QApplication::activePopupWidget() != nullptr);
        app.Press(static_cast<Qt::Key>(key));
        QTRY_VERIFY_WITH_TIMEOUT(QApplication::activePopupWidget() == nullptr, Patience);
        QVERIFY(app.IsFormOpen());
        QVERIFY(!IsBoxOpen());

        auto* date = app.Find<QDateTimeEdit>(Desktop::PanelPart::DateField);
        date->setFocus();
        QTest::mouseClick(date, Qt::LeftButton, Qt::NoModifier,
                          QPoint(date->width() - 8, date->height() / 2));
        QTRY_VERIFY_WITH_TIMEOUT(QApplication::activePopupWidget() != nullptr, Patience);
        app.Press(static_cast<Qt::Key>(key));
        QTRY_VERIFY_WITH_TIMEOUT(QApplication::activePopupWidget() == nullptr, Patience);
        QVERIFY(app.IsFormOpen());
        QCOMPARE(app.Titles(), QStringLiteral("Task 1"));
    }

    void opensTheCalendar_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<bool>("isOpen");
        QTest::newRow("F4") << int(Qt::Key_F4) << int(Qt::NoModifier) << true;
        QTest::newRow("Alt+Down") << int(Qt::Key_Down) << int(Qt::AltModifier) << true;
        QTest::newRow("Alt+F4") << int(Qt::Key_F4) << int(Qt::AltModifier) << false;
        QTest::newRow("Down changes the date") << int(Qt::Key_Down) << int(Qt::NoModifier) << false;
    }

    void opensTheCalendar()
    {
        QFETCH(int, key);
        QFETCH(int, modifiers);
        QFETCH(bool, isOpen);
        AllowWarning(QStringLiteral("grabbing"));
        const AppWindow app(1);
        QVERIFY(app.Show());
        app.Press(Qt::Key_Insert);
        auto* date = app.Find<QDateTimeEdit>(Desktop::PanelPart::DateField);
        date->setDate(date->date().addYears(5));
        const QDate before = date->date();
        app.Focus(Desktop::PanelPart::DateField);
        app.Press(Qt::Key(key), Qt::KeyboardModifiers(modifiers));
        QCOMPARE(QApplication::activePopupWidget() != nullptr, isOpen);
        QCOMPARE(date->date() != before, key == Qt::Key_Down && !isOpen);
        if (isOpen) {
            app.Press(Qt::Key_Escape);
            QVERIFY(QApplication::activePopupWidget() == nullptr);
            QVERIFY(date->hasFocus());
            QVERIFY(app.IsFormOpen());
        }
    }

    void choosesADayByKeyboard_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("days");
        QTest::newRow("Return") << int(Qt::Key_Return) << 8;
        QTest::newRow("Enter") << int(Qt::Key_Enter) << 8;
        QTest::newRow("Escape") << int(Qt::Key_Escape) << 0;
    }

    void choosesADayByKeyboard()
    {
        QFETCH(int, key);
        QFETCH(int, days);
        AllowWarning(QStringLiteral("grabbing"));
        const AppWindow app(1);
        QVERIFY(app.Show());
        app.Press(Qt::Key_Insert);
        auto* date = app.Find<QDateTimeEdit>(Desktop::PanelPart::DateField);
        date->setDate(QDate(2031, 3, 12));
        app.Focus(Desktop::PanelPart::DateField);
        app.Press(Qt::Key_F4);
        QVERIFY(date->calendarWidget()->isVisible());
        app.Press(Qt::Key_Right);
        app.Press(Qt::Key_Down);
        QCOMPARE(date->calendarWidget()->selectedDate(), QDate(2031, 3, 20));
        app.Press(static_cast<Qt::Key>(key));
        QTRY_VERIFY_WITH_TIMEOUT(!date->calendarWidget()->isVisible(), Patience);
        QCOMPARE(date->date(), QDate(2031, 3, 12).addDays(days));
        QVERIFY(date->hasFocus());
        QVERIFY(app.IsFormOpen());
        QVERIFY(!IsBoxOpen());
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_PanelFormKeys)

#include "tst_PanelFormKeys.moc"
