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
const QString& ScheduleButton = Desktop::PanelPart::ScheduledModeButton;

} // namespace
} // namespace Zentor::Tests

Q_DECLARE_METATYPE(QMessageBox::StandardButton)

namespace Zentor::Tests {

class tst_PanelListKeys : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Desktop::RegisterResources();
        Desktop::ApplyTheme(Desktop::Theme::Light);
    }

    void opensTheFormFromAnywhereWhereTheListIsShown()
    {
        const AppWindow app(1);
        QVERIFY(app.Show());
        app.Focus("pageList");
        app.Press(Qt::Key_Insert);
        QVERIFY(app.IsFormOpen());
        QCOMPARE(app.Focused(), NameEdit);
    }

    void opensNoFormWhereNoListIsShown_data()
    {
        QTest::addColumn<QString>("mode");
        QTest::addColumn<int>("page");
        QTest::newRow("nothing") << Desktop::PanelPart::OffModeButton << 0;
        QTest::newRow("limited") << Desktop::PanelPart::LimitedModeButton << 0;
        QTest::newRow("other page") << ScheduleButton << 1;
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

    void pressesTheFocusedButtonWithEnter()
    {
        const AppWindow app(1);
        QVERIFY(app.Show());
        app.Press(Qt::Key_Insert);
        app.Focus(Desktop::PanelPart::BackButton);
        const ExpectedBox box(QMessageBox::No);
        app.Press(Qt::Key_Return);
        QVERIFY(box.Came());
        QVERIFY(!app.IsFormOpen());
        QCOMPARE(app.Titles(), QStringLiteral("Task 1"));
    }

    void deletesTheFocusedTask_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("row");
        QTest::addColumn<QMessageBox::StandardButton>("answer");
        QTest::addColumn<QString>("titles");
        QTest::addColumn<QString>("focused");
        const auto& add = AddButton;
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
        QCOMPARE(app.Focused(), AddButton);
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
        QCOMPARE(app.Focused(), Desktop::PanelPart::List);
    }

    void deletesNothingWithoutAFocusedTask()
    {
        const AppWindow app(1);
        QVERIFY(app.Show());
        for (const QString& name : {ScheduleButton, Desktop::PanelPart::List, AddButton}) {
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
        app.Focus(AddButton);
        app.Press(Qt::Key_Backtab, Qt::ShiftModifier);
        QVERIFY(rows.constLast()->hasFocus());
        QCOMPARE(rows.constLast()->visibleRegion(), QRegion(rows.constLast()->rect()));
    }

    void showsTheNewTask()
    {
        const AppWindow app(20);
        QVERIFY(app.Show());
        auto* area = app.Find<QScrollArea>(Desktop::PanelPart::List);
        area->ensureWidgetVisible(Rows(app).constLast());
        app.Press(Qt::Key_Insert);
        app.Type("Standup");
        app.Press(Qt::Key_Return);
        QCOMPARE(Rows(app).size(), 21);
        QAbstractButton* button = Rows(app).constFirst();
        QCOMPARE(button->accessibleName(), QStringLiteral("Delete Standup"));
        QTRY_COMPARE_WITH_TIMEOUT(button->visibleRegion(), QRegion(button->rect()), Patience);
    }

    void tabsThroughNewTasksInTheirOrder()
    {
        const AppWindow app(2);
        QVERIFY(app.Show());
        app.Press(Qt::Key_Insert);
        app.Type("Standup");
        app.Press(Qt::Key_Return);
        const QStringList expected{QStringLiteral("pageList"),
                                   ScheduleButton,
                                   Desktop::PanelPart::List,
                                   QStringLiteral("Delete Standup"),
                                   QStringLiteral("Delete Task 1"),
                                   QStringLiteral("Delete Task 2"),
                                   AddButton,
                                   QStringLiteral("startRecordingButton")};
        QTRY_COMPARE_WITH_TIMEOUT(app.TabStops(), expected, Patience);
    }

private:
    static QList<QAbstractButton*> Rows(const AppWindow& app)
    {
        QList<QAbstractButton*> buttons;
        const auto* layout = app.Find(Desktop::PanelPart::Rows)->layout();
        for (int index = 0; index < layout->count(); ++index) {
            if (const QWidget* row = layout->itemAt(index)->widget()) {
                buttons << row->findChild<QAbstractButton*>(Desktop::PanelPart::RowDeleteButton);
            }
        }
        return buttons;
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_PanelListKeys)

#include "tst_PanelListKeys.moc"
