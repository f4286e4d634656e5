// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QToolButton>

#include "AppWindow.h"
#include "Boxes.h"
#include "PageRow.h"
#include "PanelParts.h"
#include "Resources.h"
#include "SchedulePage.h"
#include "Theme.h"
#include "WidgetTest.h"

Q_DECLARE_METATYPE(QMessageBox::StandardButton)

namespace Zentor::Tests {
namespace {

/// More than the list shows without scrolling.
constexpr int ManyTasks = 40;

Desktop::SchedulePage& PageOf(const AppWindow& app)
{
    return *app.window->findChild<Desktop::SchedulePage*>();
}

PX::RecordTime TaskCalled(const AppWindow& app, const QString& title)
{
    for (const PX::RecordTime& task : app.store->Settings().schedule) {
        if (task.title == title) {
            return task;
        }
    }
    return Record(title, At("00:00"), std::chrono::minutes(1));
}

void Remove(const AppWindow& app, const QString& title)
{
    PageOf(app).RemoveTask(TaskCalled(app, title));
}

QToolButton* DeleteButtonFor(const AppWindow& app, const QString& title)
{
    const auto buttons = Desktop::PanelParts(*app.Find("recordSchedulerWidget")).DeleteButtons();
    for (QToolButton* button : buttons) {
        if (button->accessibleName() == QStringLiteral("Delete ") + title) {
            return button;
        }
    }
    return nullptr;
}

int RowCount(const AppWindow& app)
{
    return int(Desktop::PanelParts(*app.Find("recordSchedulerWidget")).DeleteButtons().size());
}

/// Where on the screen the row of a task is.
int TopOf(const AppWindow& app, const QString& title)
{
    return DeleteButtonFor(app, title)->mapToGlobal(QPoint(0, 0)).y();
}

QScrollBar* ListBar(const AppWindow& app)
{
    return app.Find<QScrollArea>(Desktop::PanelPart::List)->verticalScrollBar();
}

} // namespace

class tst_PanelTaskRemover : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Desktop::RegisterResources();
        Desktop::ApplyTheme(Desktop::Theme::Light);
    }

    void removesATask_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("left");
        QTest::newRow("first") << 3 << "Task 1"
                               << "Task 2,Task 3";
        QTest::newRow("middle") << 3 << "Task 2"
                                << "Task 1,Task 3";
        QTest::newRow("last") << 3 << "Task 3"
                              << "Task 1,Task 2";
        QTest::newRow("only") << 1 << "Task 1"
                              << "";
    }

    void removesATask()
    {
        QFETCH(int, count);
        QFETCH(QString, title);
        QFETCH(QString, left);
        const AppWindow app(count);
        QVERIFY(app.Show());
        app.Focus("pageList");
        const QSignalSpy announced(&PageOf(app), &Desktop::Page::Announced);
        Remove(app, title);
        QVERIFY(!IsBoxOpen());
        QCOMPARE(app.Titles(), left);
        QCOMPARE(RowCount(app), count - 1);
        QCOMPARE(app.Find(Desktop::PanelPart::PlaceholderRow) != nullptr, count == 1);
        QCOMPARE(app.Focused(), QStringLiteral("pageList"));
        QTest::qWait(0);
        QCOMPARE(app.Focused(), QStringLiteral("pageList"));
        QCOMPARE(announced.count(), 0);
        QCOMPARE(app.StatusText(), QString());
    }

    void doesNotRememberTheAnswer()
    {
        const AppWindow app(3);
        QVERIFY(app.Show());
        Remove(app, "Task 1");
        QVERIFY(app.store->Settings().confirmations.isEmpty());
        const ExpectedBox box(QMessageBox::Cancel);
        DeleteButtonFor(app, "Task 2")->click();
        QVERIFY(box.Came());
        QCOMPARE(app.Titles(), QStringLiteral("Task 2,Task 3"));
    }

    void announcesWhatTheUserDeletesAfterwards()
    {
        const AppWindow app(3);
        QVERIFY(app.Show());
        Remove(app, "Task 1");
        const QSignalSpy announced(&PageOf(app), &Desktop::Page::Announced);
        const ExpectedBox box(QMessageBox::Ok);
        DeleteButtonFor(app, "Task 2")->click();
        QVERIFY(box.Came());
        QCOMPARE(announced.count(), 1);
        QVERIFY(announced.first().first().toString().contains(QLatin1String("Task 2")));
    }

    void leavesOtherTasksAlone()
    {
        const AppWindow app(2);
        QVERIFY(app.Show());
        Remove(app, "Task 3");
        PX::RecordTime later = TaskCalled(app, "Task 1");
        later.start += std::chrono::minutes(1);
        PageOf(app).RemoveTask(later);
        QCOMPARE(app.Titles(), QStringLiteral("Task 1,Task 2"));
    }

    void worksOnAnotherPageAndInAHiddenWindow()
    {
        const AppWindow app(3);
        QVERIFY(app.Show());
        app.PageList()->setCurrentRow(PageRow::Files);
        app.Focus("resultsFolderEdit");
        Remove(app, "Task 1");
        QCOMPARE(app.Focused(), QStringLiteral("resultsFolderEdit"));
        app.window->hide();
        Remove(app, "Task 2");
        QCOMPARE(app.Titles(), QStringLiteral("Task 3"));
        QCOMPARE(RowCount(app), 1);
    }

    void keepsAnOpenForm()
    {
        const AppWindow app(2);
        QVERIFY(app.Show());
        app.Press(Qt::Key_Insert);
        app.Type("Standup");
        const QString focused = app.Focused();
        Remove(app, "Task 1");
        Remove(app, "Task 2");
        QTest::qWait(0);
        QVERIFY(app.IsFormOpen());
        QCOMPARE(app.Find<QLineEdit>(Desktop::PanelPart::NameField)->text(),
                 QStringLiteral("Standup"));
        QCOMPARE(app.Focused(), focused);
        app.Type(" 2");
        app.Press(Qt::Key_Return);
        QCOMPARE(app.Titles(), QStringLiteral("Standup 2"));
    }

    void forgetsAProblemThatLeavesWithTheTask()
    {
        const AppWindow app(2);
        QVERIFY(app.Show());
        app.Press(Qt::Key_Insert);
        app.Type("Task 1");
        const auto* create = app.Button(Desktop::PanelPart::CreateButton);
        QVERIFY(!create->isEnabled());
        Remove(app, "Task 2");
        QVERIFY(!create->isEnabled());
        Remove(app, "Task 1");
        QVERIFY(create->isEnabled());
        QTRY_COMPARE_WITH_TIMEOUT(app.StatusText(), QString(), Patience);
    }

    void waitsForAnAnswer_data()
    {
        QTest::addColumn<QString>("asked");
        QTest::addColumn<QMessageBox::StandardButton>("answer");
        QTest::addColumn<QString>("left");
        QTest::newRow("another kept") << "Task 2" << QMessageBox::Cancel << "Task 2,Task 3";
        QTest::newRow("another deleted") << "Task 2" << QMessageBox::Ok << "Task 3";
        QTest::newRow("same kept") << "Task 1" << QMessageBox::Cancel << "Task 2,Task 3";
        QTest::newRow("same deleted") << "Task 1" << QMessageBox::Ok << "Task 2,Task 3";
    }

    void waitsForAnAnswer()
    {
        QFETCH(QString, asked);
        QFETCH(QMessageBox::StandardButton, answer);
        QFETCH(QString, left);
        const AppWindow app(3);
        QVERIFY(app.Show());
        const ExpectedBox box([&](QMessageBox& opened) {
            Remove(app, "Task 1");
            QCOMPARE(app.Titles(), QStringLiteral("Task 1,Task 2,Task 3"));
            QVERIFY(opened.isVisible());
            opened.button(answer)->click();
        });
        DeleteButtonFor(app, asked)->click();
        QVERIFY(box.Came());
        QTRY_COMPARE_WITH_TIMEOUT(app.Titles(), left, Patience);
        QVERIFY(!IsBoxOpen());
        QTest::qWait(0);
        QCOMPARE(RowCount(app), left.count(',') + 1);
    }

    void waitsForAnAnswerWhileTheSettingsGoOn()
    {
        const AppWindow app(4);
        QVERIFY(app.Show());
        const QSignalSpy announced(&PageOf(app), &Desktop::Page::Announced);
        const ExpectedBox box([&](QMessageBox& opened) {
            for (const auto* title : {"Task 2", "Task 3"}) {
                Remove(app, title);
                app.store->Change([&](PX::UserSettings& settings) {
                    settings.schedule.erase(settings.schedule.begin() + 1);
                });
            }
            QCOMPARE(app.Titles(), QStringLiteral("Task 1,Task 4"));
            QCOMPARE(RowCount(app), 4);
            opened.button(QMessageBox::Cancel)->click();
        });
        DeleteButtonFor(app, "Task 1")->click();
        QVERIFY(box.Came());
        QTRY_COMPARE_WITH_TIMEOUT(RowCount(app), 2, Patience);
        QCOMPARE(app.Titles(), QStringLiteral("Task 1,Task 4"));
        QVERIFY(DeleteButtonFor(app, "Task 4") != nullptr);
        QCOMPARE(announced.count(), 0);
    }

    void waitsForTheQuestionAboutTheForm()
    {
        const AppWindow app(2);
        QVERIFY(app.Show());
        app.Press(Qt::Key_Insert);
        app.Type("Standup");
        const ExpectedBox box([&](QMessageBox& opened) {
            Remove(app, "Task 1");
            Remove(app, "Task 2");
            QCOMPARE(app.Titles(), QStringLiteral("Task 1,Task 2"));
            opened.button(QMessageBox::Cancel)->click();
        });
        app.Press(Qt::Key_Escape);
        QVERIFY(box.Came());
        QTRY_COMPARE_WITH_TIMEOUT(app.Titles(), QString(), Patience);
        QVERIFY(app.IsFormOpen());
    }

    void waitsForABoxThatIsKept()
    {
        const AppWindow app(2);
        QVERIFY(app.Show());
        QMessageBox box(app.window.get());
        box.open();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        Remove(app, "Task 1");
        QCOMPARE(RowCount(app), 2);
        box.hide();
        QTRY_COMPARE_WITH_TIMEOUT(RowCount(app), 1, Patience);
    }

    void keepsTheScrollPlace()
    {
        const AppWindow app(ManyTasks - 20);
        QVERIFY(app.Show());
        QTRY_VERIFY_WITH_TIMEOUT(ListBar(app)->maximum() > 100, Patience);
        ListBar(app)->setValue(100);
        const int top = TopOf(app, "Task 6");
        Remove(app, "Task 1");
        QTRY_COMPARE_WITH_TIMEOUT(ListBar(app)->value(), 60, Patience);
        QTest::qWait(0);
        QCOMPARE(TopOf(app, "Task 6"), top);
        Remove(app, "Task 20");
        QTest::qWait(0);
        QCOMPARE(TopOf(app, "Task 6"), top);
    }

    void movesTheFocusOutOfTheRow_data()
    {
        QTest::addColumn<QString>("focused");
        QTest::addColumn<QString>("removed");
        QTest::addColumn<QString>("next");
        QTest::newRow("first") << "Task 1"
                               << "Task 1"
                               << "Delete Task 2";
        QTest::newRow("middle") << "Task 2"
                                << "Task 2"
                                << "Delete Task 3";
        QTest::newRow("last") << "Task 3"
                              << "Task 3"
                              << "scheduledCaptureSettingsAddRecordButton";
        QTest::newRow("another") << "Task 3"
                                 << "Task 1"
                                 << "Delete Task 3";
    }

    void movesTheFocusOutOfTheRow()
    {
        QFETCH(QString, focused);
        QFETCH(QString, removed);
        QFETCH(QString, next);
        const AppWindow app(3);
        QVERIFY(app.Show());
        DeleteButtonFor(app, focused)->setFocus(Qt::TabFocusReason);
        Remove(app, removed);
        QCOMPARE(app.Focused(), next);
        QTest::qWait(0);
        QCOMPARE(app.Focused(), next);
    }

    void movesTheFocusToTheButtonOfAnEmptyList()
    {
        const AppWindow app(1);
        QVERIFY(app.Show());
        DeleteButtonFor(app, "Task 1")->setFocus(Qt::TabFocusReason);
        Remove(app, "Task 1");
        QCOMPARE(app.Focused(), Desktop::PanelPart::AddButton);
    }

    void survivesANewLanguage()
    {
        const AppWindow app(3);
        QVERIFY(app.Show());
        QEvent languageChange(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&PageOf(app), &languageChange);
        const QSignalSpy announced(&PageOf(app), &Desktop::Page::Announced);
        Remove(app, "Task 1");
        QCOMPARE(app.Titles(), QStringLiteral("Task 2,Task 3"));
        QCOMPARE(announced.count(), 0);
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_PanelTaskRemover)

#include "tst_PanelTaskRemover.moc"
