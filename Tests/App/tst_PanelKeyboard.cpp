#include <QCalendarWidget>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QLayout>
#include <QLineEdit>
#include <QScrollArea>

#include "AppWindow.h"
#include "Boxes.h"
#include "Resources.h"
#include "Theme.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

constexpr const char* addButton = "scheduledCaptureSettingsAddRecordButton";
constexpr const char* nameEdit = "scheduledCaptureSettingsNameLineEdit";
constexpr const char* createButton = "scheduledCaptureSettingsCreateButton";
constexpr const char* scheduleButton = "scheduledCaptureRadioButton";

void NoteAnd(QMessageBox& box, QString& name, QMessageBox::StandardButton answer)
{
    name = box.objectName();
    box.button(answer)->click();
}

} // namespace
} // namespace Zentor::Tests

Q_DECLARE_METATYPE(QMessageBox::StandardButton)

namespace Zentor::Tests {

class tst_PanelKeyboard : public WidgetTest {
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
        app.Focus(addButton);
        app.Press(static_cast<Qt::Key>(key));
        QVERIFY(app.IsFormOpen());
        QCOMPARE(app.Focused(), QLatin1String(nameEdit));
        QVERIFY(!app.Find<QLineEdit>(nameEdit)->selectedText().isEmpty());
        QCOMPARE(app.Find<QLineEdit>(nameEdit)->selectedText(),
                 app.Find<QLineEdit>(nameEdit)->text());
    }

    void opensTheFormFromAnywhereWhereTheListIsShown()
    {
        const AppWindow app(1);
        QVERIFY(app.Show());
        app.Focus("pageList");
        app.Press(Qt::Key_Insert);
        QVERIFY(app.IsFormOpen());
        QCOMPARE(app.Focused(), QLatin1String(nameEdit));
    }

    void opensNoFormWhereNoListIsShown_data()
    {
        QTest::addColumn<QString>("mode");
        QTest::addColumn<int>("page");
        QTest::newRow("nothing") << "disableScheduledCaptureRadioButton" << 0;
        QTest::newRow("limited") << "limitedCaptureDurationRadioButton" << 0;
        QTest::newRow("other page") << scheduleButton << 1;
    }

    void opensNoFormWhereNoListIsShown()
    {
        QFETCH(QString, mode);
        QFETCH(int, page);
        const AppWindow app;
        QVERIFY(app.Show());
        app.Button(qPrintable(mode))->click();
        app.PageList()->setCurrentRow(page);
        app.Press(Qt::Key_Insert);
        app.PageList()->setCurrentRow(0);
        QVERIFY(!app.IsFormOpen());
    }

    void doesNotStartAgainWhenTheFormIsOpen()
    {
        const AppWindow app(1);
        QVERIFY(app.Show());
        app.Press(Qt::Key_Insert);
        app.Type("Standup");
        app.Press(Qt::Key_Insert);
        QCOMPARE(app.Find<QLineEdit>(nameEdit)->text(), QStringLiteral("Standup"));
    }

    void createsTheTaskWithEnter_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<int>("key");
        const std::pair<const char*, const char*> fields[] = {
            {"name", nameEdit},
            {"date", "scheduledCaptureSettingsDate"},
            {"start", "scheduledCaptureSettingsStartTime"},
            {"duration", "scheduledCaptureSettingsDuration"},
            {"area", "scheduledCaptureSettingsSelectedAreaButton"},
            {"action", "scheduledCaptureSettingsActionOnFinishBox"},
            {"button", createButton}};
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
        QCOMPARE(app.Focused(), QLatin1String(addButton));
    }

    void createsWhatWasTypedIntoATimeEditor()
    {
        const AppWindow app(1);
        QVERIFY(app.Show());
        app.Press(Qt::Key_Insert);
        app.Type("Standup");
        app.Focus("scheduledCaptureSettingsDuration");
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
        QCOMPARE(app.Focused(), QLatin1String(nameEdit));
    }

    void pressesTheFocusedButtonWithEnter()
    {
        const AppWindow app(1);
        QVERIFY(app.Show());
        app.Press(Qt::Key_Insert);
        app.Focus("scheduledCaptureSettingsBackButton");
        const ExpectedBox box(QMessageBox::No);
        app.Press(Qt::Key_Return);
        QVERIFY(box.Came());
        QVERIFY(!app.IsFormOpen());
        QCOMPARE(app.Titles(), QStringLiteral("Task 1"));
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
        for (const char* field :
             {nameEdit, "scheduledCaptureSettingsDate", "scheduledCaptureSettingsStartTime",
              "scheduledCaptureSettingsDuration", "scheduledCaptureSettingsActionOnFinishBox"}) {
            QTest::addRow("%s, add", field) << field << QMessageBox::Yes << false << "New,Task 1";
            QTest::addRow("%s, drop", field) << field << QMessageBox::No << false << "Task 1";
            QTest::addRow("%s, stay", field) << field << QMessageBox::Cancel << true << "Task 1";
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
        QCOMPARE(app.Focused(), isOpen ? field : QLatin1String(addButton));
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
        auto* box = app.Find<QComboBox>("scheduledCaptureSettingsActionOnFinishBox");
        box->setFocus();
        box->showPopup();
        QVERIFY(QApplication::activePopupWidget() != nullptr);
        app.Press(static_cast<Qt::Key>(key));
        QTRY_VERIFY(QApplication::activePopupWidget() == nullptr);
        QVERIFY(app.IsFormOpen());
        QVERIFY(!IsBoxOpen());

        auto* date = app.Find<QDateTimeEdit>("scheduledCaptureSettingsDate");
        date->setFocus();
        QTest::mouseClick(date, Qt::LeftButton, Qt::NoModifier,
                          QPoint(date->width() - 8, date->height() / 2));
        QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
        app.Press(static_cast<Qt::Key>(key));
        QTRY_VERIFY(QApplication::activePopupWidget() == nullptr);
        QVERIFY(app.IsFormOpen());
        QCOMPARE(app.Titles(), QStringLiteral("Task 1"));
    }

    void deletesTheFocusedTask_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("row");
        QTest::addColumn<QMessageBox::StandardButton>("answer");
        QTest::addColumn<QString>("titles");
        QTest::addColumn<QString>("focused");
        const auto add = QString::fromLatin1(addButton);
        for (const auto& [name, key] :
             {std::pair("Delete", Qt::Key_Delete), std::pair("Space", Qt::Key_Space),
              std::pair("Return", Qt::Key_Return)}) {
            QTest::addRow("%s, first", name) << int(key) << 1 << QMessageBox::Ok << "Task 2,Task 3"
                                             << "Delete Task 2";
            QTest::addRow("%s, middle", name) << int(key) << 2 << QMessageBox::Ok << "Task 1,Task 3"
                                              << "Delete Task 3";
            QTest::addRow("%s, last", name)
                << int(key) << 3 << QMessageBox::Ok << "Task 1,Task 2" << add;
            QTest::addRow("%s, refused", name)
                << int(key) << 2 << QMessageBox::Cancel << "Task 1,Task 2,Task 3"
                << "Delete Task 2";
        }
    }

    void deletesTheFocusedTask()
    {
        QFETCH(int, key);
        QFETCH(int, row);
        QFETCH(QMessageBox::StandardButton, answer);
        QFETCH(QString, titles);
        QFETCH(QString, focused);
        const AppWindow app(3);
        QVERIFY(app.Show());
        Rows(app).at(row - 1)->setFocus(Qt::TabFocusReason);
        {
            const ExpectedBox box(answer);
            app.Press(static_cast<Qt::Key>(key));
            QVERIFY(box.Came());
        }
        QCOMPARE(app.Titles(), titles);
        QCOMPARE(app.Focused(), focused);
    }

    void deletesOneAfterTheOther()
    {
        const AppWindow app(3);
        QVERIFY(app.Show());
        Rows(app).constFirst()->setFocus(Qt::TabFocusReason);
        for (const char* left : {"Task 2,Task 3", "Task 3", ""}) {
            const ExpectedBox box(QMessageBox::Ok);
            app.Press(Qt::Key_Delete);
            QVERIFY(box.Came());
            QCOMPARE(app.Titles(), QLatin1String(left));
            app.window->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(app.window.get()));
        }
        QCOMPARE(app.Focused(), QLatin1String(addButton));
    }

    void leavesTheFocusInTheListWhenTheMouseDeletes()
    {
        const AppWindow app(2);
        QVERIFY(app.Show());
        app.Focus("pageList");
        const ExpectedBox box(QMessageBox::Ok);
        QTest::mouseClick(Rows(app).constFirst(), Qt::LeftButton);
        QVERIFY(box.Came());
        QCOMPARE(app.Titles(), QStringLiteral("Task 2"));
        QCOMPARE(app.Focused(), QStringLiteral("recordTableScrollArea"));
    }

    void deletesNothingWithoutAFocusedTask()
    {
        const AppWindow app(1);
        QVERIFY(app.Show());
        for (const char* name : {scheduleButton, "recordTableScrollArea", addButton}) {
            app.Focus(name);
            app.Press(Qt::Key_Delete);
            QCOMPARE(app.Titles(), QStringLiteral("Task 1"));
        }
    }

    void survivesItsPanelWhileItAsks()
    {
        AppWindow app(1);
        QVERIFY(app.Show());
        Rows(app).constFirst()->setFocus(Qt::TabFocusReason);
        const ExpectedBox box([&](QMessageBox&) { delete app.Find("recordSchedulerWidget"); });
        app.Press(Qt::Key_Delete);
        QVERIFY(box.Came());
        QCOMPARE(app.Titles(), QStringLiteral("Task 1"));
        // A window without its panel is of no further use.
        app.window.reset();
    }

    void movesAmongTasksByArrows()
    {
        const AppWindow app(3);
        QVERIFY(app.Show());
        Rows(app).constFirst()->setFocus(Qt::TabFocusReason);
        QStringList stops;
        for (const Qt::Key key :
             {Qt::Key_Up, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Up}) {
            app.Press(key);
            stops << app.Focused().right(1);
        }
        QCOMPARE(stops.join(QLatin1Char(' ')), QStringLiteral("1 2 3 3 2"));
    }

    void scrollsTheFocusedTaskIntoView()
    {
        const AppWindow app(20);
        QVERIFY(app.Show());
        app.window->resize(640, 480);
        QCoreApplication::sendPostedEvents();
        const auto rows = Rows(app);
        rows.constFirst()->setFocus(Qt::TabFocusReason);
        for (QAbstractButton* button : rows) {
            QVERIFY(button->hasFocus());
            QCOMPARE(button->visibleRegion(), QRegion(button->rect()));
            app.Press(Qt::Key_Down);
        }
        app.Focus(addButton);
        app.Press(Qt::Key_Backtab, Qt::ShiftModifier);
        QVERIFY(rows.constLast()->hasFocus());
        QCOMPARE(rows.constLast()->visibleRegion(), QRegion(rows.constLast()->rect()));
    }

    void showsTheNewTask()
    {
        const AppWindow app(20);
        QVERIFY(app.Show());
        auto* area = app.Find<QScrollArea>("recordTableScrollArea");
        area->ensureWidgetVisible(Rows(app).constLast());
        app.Press(Qt::Key_Insert);
        app.Type("Standup");
        app.Press(Qt::Key_Return);
        QCOMPARE(Rows(app).size(), 21);
        QAbstractButton* button = Rows(app).constFirst();
        QCOMPARE(button->accessibleName(), QStringLiteral("Delete Standup"));
        QTRY_COMPARE(button->visibleRegion(), QRegion(button->rect()));
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
        auto* date = app.Find<QDateTimeEdit>("scheduledCaptureSettingsDate");
        date->setDate(date->date().addYears(5));
        const QDate before = date->date();
        app.Focus("scheduledCaptureSettingsDate");
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

    void choosesModesByArrows()
    {
        const AppWindow app;
        QVERIFY(app.Show());
        app.Focus("disableScheduledCaptureRadioButton");
        QStringList stops;
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_Up}) {
            app.Press(key);
            stops << app.Focused();
            QVERIFY(app.Button(qPrintable(app.Focused()))->isChecked());
        }
        QCOMPARE(stops,
                 (QStringList{QStringLiteral("limitedCaptureDurationRadioButton"),
                              QLatin1String(scheduleButton),
                              QStringLiteral("limitedCaptureDurationRadioButton"),
                              QStringLiteral("disableScheduledCaptureRadioButton")}));
    }

    void stopsAtTheModeInUse()
    {
        const AppWindow app(1);
        QVERIFY(app.Show());
        app.Focus("pageList");
        app.Press(Qt::Key_Tab);
        QCOMPARE(app.Focused(), QLatin1String(scheduleButton));
    }

    void staysOnTheModeThatStays()
    {
        const AppWindow app(1);
        QVERIFY(app.Show());
        app.Focus(scheduleButton);
        {
            const ExpectedBox box(QMessageBox::Cancel);
            app.Press(Qt::Key_Up);
            QVERIFY(box.Came());
        }
        QVERIFY(app.Button(scheduleButton)->isChecked());
        QTRY_COMPARE(app.Focused(), QLatin1String(scheduleButton));
        {
            const ExpectedBox box(QMessageBox::Cancel);
            QTest::mouseClick(app.Button("disableScheduledCaptureRadioButton"), Qt::LeftButton);
            QVERIFY(box.Came());
        }
        QTRY_COMPARE(app.Focused(), QLatin1String(scheduleButton));
    }

    void tabsInReadingOrder_data()
    {
        QTest::addColumn<int>("page");
        QTest::addColumn<QString>("mode");
        QTest::addColumn<bool>("withForm");
        QTest::addColumn<QString>("stops");
        QTest::newRow("nothing") << 0 << "disableScheduledCaptureRadioButton" << false
                                 << "pageList disableScheduledCaptureRadioButton "
                                    "startRecordingButton";
        QTest::newRow("limited") << 0 << "limitedCaptureDurationRadioButton" << false
                                 << "pageList limitedCaptureDurationRadioButton "
                                    "limitedCaptureDurationSettingsCaptureDuration "
                                    "limitedCaptureDurationSettingsActionOnFinishBox "
                                    "startRecordingButton";
        QTest::newRow("empty schedule")
            << 0 << scheduleButton << false
            << "pageList scheduledCaptureRadioButton recordTableScrollArea "
               "scheduledCaptureSettingsAddRecordButton startRecordingButton";
        QTest::newRow("form") << 0 << scheduleButton << true
                              << "pageList scheduledCaptureRadioButton "
                                 "scheduledCaptureSettingsNameLineEdit "
                                 "scheduledCaptureSettingsDate scheduledCaptureSettingsStartTime "
                                 "scheduledCaptureSettingsDuration "
                                 "scheduledCaptureSettingsSelectedAreaInfoButton "
                                 "scheduledCaptureSettingsFullScreenAreaButton "
                                 "scheduledCaptureSettingsActionOnFinishBox "
                                 "scheduledCaptureSettingsBackButton "
                                 "scheduledCaptureSettingsCreateButton startRecordingButton";
        QTest::newRow("files") << 1 << "disableScheduledCaptureRadioButton" << false
                               << "pageList resultsFolderEdit browseButton startRecordingButton";
    }

    void tabsInReadingOrder()
    {
        QFETCH(int, page);
        QFETCH(QString, mode);
        QFETCH(bool, withForm);
        QFETCH(QString, stops);
        const AppWindow app;
        QVERIFY(app.Show());
        app.Button(qPrintable(mode))->click();
        app.PageList()->setCurrentRow(page);
        if (withForm) {
            app.Button(addButton)->click();
        }
        QCOMPARE(TabStops(app).join(QLatin1Char(' ')), stops);
    }

    void tabsThroughNewTasksInTheirOrder()
    {
        const AppWindow app(2);
        QVERIFY(app.Show());
        app.Press(Qt::Key_Insert);
        app.Type("Standup");
        app.Press(Qt::Key_Return);
        const QStringList expected{QStringLiteral("pageList"),
                                   QLatin1String(scheduleButton),
                                   QStringLiteral("recordTableScrollArea"),
                                   QStringLiteral("Delete Standup"),
                                   QStringLiteral("Delete Task 1"),
                                   QStringLiteral("Delete Task 2"),
                                   QLatin1String(addButton),
                                   QStringLiteral("startRecordingButton")};
        QTRY_COMPARE(TabStops(app), expected);
    }

private:
    static QList<QAbstractButton*> Rows(const AppWindow& app)
    {
        QList<QAbstractButton*> buttons;
        const auto* layout = app.Find("recordTableFrame")->layout();
        for (int index = 0; index < layout->count(); ++index) {
            if (const QWidget* row = layout->itemAt(index)->widget()) {
                buttons << row->findChild<QAbstractButton*>(QStringLiteral("deleteToolButton"));
            }
        }
        return buttons;
    }

    /// What Tab stops at, from the list of pages once around.
    static QStringList TabStops(const AppWindow& app)
    {
        constexpr int atMost = 50;
        app.Focus("pageList");
        QStringList stops;
        do {
            // A time editor has a stop for each of its sections.
            if (stops.isEmpty() || stops.constLast() != app.Focused()) {
                stops << app.Focused();
            }
            app.Press(Qt::Key_Tab);
        } while (app.Focused() != stops.constFirst() && stops.size() < atMost);
        return stops;
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_PanelKeyboard)

#include "tst_PanelKeyboard.moc"
