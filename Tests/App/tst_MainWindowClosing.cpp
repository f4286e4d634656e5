// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>

#include "AppWindow.h"
#include "Boxes.h"
#include "PageRow.h"
#include "PanelParts.h"
#include "Resources.h"
#include "Theme.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

using Desktop::MainWindow;
using Desktop::PendingWork;

/// What closing the window and ending the program do while there is something to record.
class tst_MainWindowClosing : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Desktop::RegisterResources();
        Desktop::ApplyTheme(Desktop::Theme::Light);
    }

    void init()
    {
        WidgetTest::init();
        m_work = {};
        m_hasTray = true;
        m_app = std::make_unique<AppWindow>();
        Window().AskBeforeClosing([this] { return m_work; }, [this] { return m_hasTray; });
        QVERIFY(m_app->Show());
    }

    void cleanup()
    {
        m_app.reset();
        WidgetTest::cleanup();
    }

    void closesWithNothingToRecord()
    {
        const QSignalSpy closed(&Window(), &MainWindow::Closed);
        const QSignalSpy hidden(&Window(), &MainWindow::HiddenInTray);
        QVERIFY(Window().close());
        QVERIFY(!Window().isVisible());
        QCOMPARE(closed.count(), 1);
        QCOMPARE(hidden.count(), 0);
    }

    void hidesAndSaysSoOnce()
    {
        m_work.taskCount = 1;
        const QSignalSpy closed(&Window(), &MainWindow::Closed);
        const QSignalSpy hidden(&Window(), &MainWindow::HiddenInTray);
        for (int round = 0; round < 2; ++round) {
            QVERIFY(!Window().close());
            QVERIFY(!Window().isVisible());
            QCOMPARE(hidden.count(), 1);
            Window().Raise();
            QVERIFY(Window().isVisible());
        }
        QVERIFY(Desktop::BackgroundSettingsIn(*m_app->store).toldAboutTray);
        QCOMPARE(closed.count(), 0);
    }

    void savesWhenItHides()
    {
        m_work.isRecording = true;
        m_app->PageList()->setCurrentRow(PageRow::Files);
        m_app->Find<QLineEdit>("resultsFolderEdit")->setText(m_app->folder.filePath("other"));
        QVERIFY(!Window().close());
        QCOMPARE(m_app->store->Settings().resultsFolderPath, m_app->folder.filePath("other"));
    }

    /// It is not in the way: the form stays as it is.
    void hidesWithAnUnfinishedTask()
    {
        m_work.isRecording = true;
        BeginTask();
        QVERIFY(!Window().close());
        QVERIFY(!Window().isVisible());
        Window().Raise();
        QTRY_VERIFY_WITH_TIMEOUT(m_app->IsFormOpen(), Patience);
        QCOMPARE(NameEdit()->text(), QStringLiteral("Unfinished"));
    }

    void minimizesWithoutATray()
    {
        m_work.isRecording = true;
        m_hasTray = false;
        const QSignalSpy hidden(&Window(), &MainWindow::HiddenInTray);
        QVERIFY(!Window().close());
        QVERIFY(Window().isVisible());
        QVERIFY(Window().isMinimized());
        QCOMPARE(hidden.count(), 0);
    }

    void asksBeforeTasksAreMissed_data()
    {
        QTest::addColumn<bool>("isRecording");
        QTest::addColumn<int>("taskCount");
        QTest::addColumn<bool>("isQuit");
        QTest::addColumn<int>("answer");
        const std::tuple<const char*, bool, int> works[] = {
            {"recording", true, 0}, {"two tasks", false, 2}, {"both", true, 1}};
        for (const auto& [work, isRecording, taskCount] : works) {
            for (const bool isQuit : {false, true}) {
                for (const auto answer : {QMessageBox::Ok, QMessageBox::Cancel}) {
                    QTest::addRow("%s, %s, %s", work, isQuit ? "quit" : "closed, not kept",
                                  answer == QMessageBox::Ok ? "accepted" : "refused")
                        << isRecording << taskCount << isQuit << int(answer);
                }
            }
        }
    }

    void asksBeforeTasksAreMissed()
    {
        QFETCH(bool, isRecording);
        QFETCH(int, taskCount);
        QFETCH(bool, isQuit);
        QFETCH(int, answer);
        m_work = {isRecording, taskCount};
        Desktop::ChangeBackgroundSettings(*m_app->store,
                                          [&](auto& settings) { settings.keepRunning = isQuit; });
        const QSignalSpy closed(&Window(), &MainWindow::Closed);
        const ExpectedBox box([&](QMessageBox& opened) {
            QCOMPARE(opened.text().contains(QLatin1String("recording")), isRecording);
            QCOMPARE(opened.text().contains(QString::number(taskCount)), taskCount > 0);
            QCOMPARE(opened.defaultButton(), opened.button(QMessageBox::Cancel));
            opened.button(static_cast<QMessageBox::StandardButton>(answer))->click();
        });
        if (isQuit) {
            m_app->Press(Qt::Key_Q, Qt::ControlModifier);
        } else {
            Window().close();
        }
        QVERIFY(box.Came());
        QCOMPARE(closed.count(), answer == QMessageBox::Ok ? 1 : 0);
        QCOMPARE(Window().isVisible(), answer != QMessageBox::Ok);
        // The refusal of one question is none of the next closing's.
        if (isQuit && answer == QMessageBox::Cancel) {
            QVERIFY(!Window().close());
            QVERIFY(!Window().isVisible());
        }
    }

    void quitsWithoutAQuestionWhenNothingIsLost()
    {
        const QSignalSpy closed(&Window(), &MainWindow::Closed);
        m_app->Press(Qt::Key_Q, Qt::ControlModifier);
        QCOMPARE(closed.count(), 1);
    }

    void asksInAHiddenWindow()
    {
        m_work.taskCount = 2;
        QVERIFY(!Window().close());
        const QSignalSpy closed(&Window(), &MainWindow::Closed);
        {
            const ExpectedBox box(QMessageBox::Cancel);
            Window().Quit();
            QVERIFY(box.Came());
        }
        QCOMPARE(closed.count(), 0);
        QVERIFY(!Window().isVisible());
        const ExpectedBox box(QMessageBox::Ok);
        Window().Quit();
        QVERIFY(box.Came());
        QCOMPARE(closed.count(), 1);
    }

    void keepsAnUnfinishedTaskForTheNextStart()
    {
        m_work.isRecording = true;
        BeginTask();
        QVERIFY(!Window().close());
        m_work = {};
        const QSignalSpy closed(&Window(), &MainWindow::Closed);
        Window().Quit();
        QCOMPARE(closed.count(), 1);
        m_app->Reopen();
        QVERIFY(m_app->Show());
        QTRY_VERIFY_WITH_TIMEOUT(m_app->IsFormOpen(), Patience);
        QCOMPARE(NameEdit()->text(), QStringLiteral("Unfinished"));
    }

    void asksOneQuestionAtATime()
    {
        m_work.taskCount = 2;
        const QSignalSpy closed(&Window(), &MainWindow::Closed);
        const ExpectedBox box([this](QMessageBox& opened) {
            Window().Quit();
            QCOMPARE(QApplication::activeModalWidget(), &opened);
            opened.button(QMessageBox::Cancel)->click();
        });
        Window().Quit();
        QVERIFY(box.Came());
        QCOMPARE(closed.count(), 0);
    }

    void survivesItsEndWhileItAsks()
    {
        m_work.taskCount = 2;
        const ExpectedBox box([this](QMessageBox&) { m_app->window.reset(); });
        // As a user does it, who leaves no caller behind in the window.
        QTimer::singleShot(0, &Window(), &MainWindow::Quit);
        QTRY_VERIFY_WITH_TIMEOUT(box.Came(), Patience);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

private:
    MainWindow& Window() const { return *m_app->window; }
    QLineEdit* NameEdit() const { return m_app->Find<QLineEdit>(Desktop::PanelPart::NameField); }

    void BeginTask() const
    {
        m_app->Button(Desktop::PanelPart::ScheduledModeButton)->click();
        m_app->Button(Desktop::PanelPart::AddButton)->click();
        NameEdit()->setText(QStringLiteral("Unfinished"));
    }

    PendingWork m_work;
    bool m_hasTray = true;
    std::unique_ptr<AppWindow> m_app;
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_MainWindowClosing)

#include "tst_MainWindowClosing.moc"
