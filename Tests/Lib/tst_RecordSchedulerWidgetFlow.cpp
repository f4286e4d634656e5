// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QLabel>
#include <QScrollArea>
#include <QTemporaryDir>
#include <QToolButton>
#include <QVBoxLayout>

#include "Boxes.h"
#include "FakeClock.h"
#include "MarkingTranslator.h"
#include "Panel.h"
#include "PanelParts.h"
#include "PXUserSettings/StoredSettings.h"
#include "UserInput.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

/// One run of an application that keeps its settings in a file.
class Session {
public:
    explicit Session(const QString& settingsFile)
        : store(std::make_shared<PX::SettingsStore>(settingsFile))
    {
        QString error;
        if (!store->Open(&error)) {
            qWarning("%s", qPrintable(error));
        }
        (new QVBoxLayout(Window()))->addWidget(panel.widget);
        panel.widget->SetSchedulerSettings(std::make_shared<PX::StoredSchedulerSettings>(store));
        panel.widget->SetCaptureFinishActionSettings(
            std::make_shared<PX::StoredCaptureFinishActionSettings>(store));
        panel.widget->SetPathSettings(std::make_shared<PX::StoredPathsSettings>(store));
        panel.widget->SetSettingsWatcher(std::make_shared<PX::StoringSettingsWatcher>(store));
        panel.widget->RestoreSettings();
        Window()->resize(600, 500);
        Window()->show();
    }

    QWidget* Window() const { return panel.window.get(); }

    /// Gives the window the keyboard, which no window manager does offscreen, once it can take it.
    bool Activate() const
    {
        const bool isExposed = QTest::qWaitForWindowExposed(Window());
        Window()->activateWindow();
        return isExposed && QTest::qWaitForWindowActive(Window());
    }

    /// Opens the form with the mouse and fills it with the keyboard.
    void EnterTask(const char* name, const char* start, const char* duration) const
    {
        UserInput::Click(panel.Add());
        EnterName(name);
        TabTo(panel.StartTime());
        UserInput::Type(Window(), start);
        TabTo(panel.FormDuration());
        UserInput::Type(Window(), duration);
    }

    /// Presses Tab until \a widget has the keyboard.
    void TabTo(const QWidget* widget) const
    {
        for (int i = 0; i < 20 && !widget->hasFocus(); ++i) {
            UserInput::Press(Window(), Qt::Key_Tab);
        }
    }

    void EnterName(const char* name) const
    {
        UserInput::Click(panel.Name());
        UserInput::Press(Window(), Qt::Key_A, Qt::ControlModifier);
        UserInput::Type(Window(), name);
    }

    void AddTask(const char* name, const char* start, const char* duration) const
    {
        EnterTask(name, start, duration);
        UserInput::Click(panel.Create());
    }

    void DeleteTask(int row) const { UserInput::Click(DeleteButtons().at(row)); }

    /// The rows that are on screen, as in "Alpha 01.03.2030 10:00:00 00:30:00".
    QStringList Rows() const
    {
        QStringList rows;
        for (const auto* button : DeleteButtons()) {
            QStringList texts;
            const auto labels = button->parentWidget()->findChildren<ZLabel*>();
            for (const auto* label : labels) {
                texts << (label->visibleRegion().isEmpty() ? "unseen" : label->originalText());
            }
            rows << texts.join(' ');
        }
        return rows;
    }

    /// What is stored, told like Rows().
    QStringList Stored() const
    {
        QStringList rows;
        for (const auto& record : store->Settings().schedule) {
            const auto start =
                QDateTime::fromMSecsSinceEpoch(record.start.time_since_epoch().count() / 1000);
            const auto duration = QTime(0, 0).addMSecs(int(record.duration.count() / 1000));
            rows << QStringList({record.title, start.toString("dd.MM.yyyy hh:mm:ss"),
                                 duration.toString("hh:mm:ss")})
                        .join(' ');
        }
        return rows;
    }

    Panel panel;
    const std::shared_ptr<PX::SettingsStore> store;

private:
    /// In the order of the rows.
    QList<QToolButton*> DeleteButtons() const
    {
        QList<QToolButton*> buttons;
        const auto* rows = panel.Table()->findChild<QScrollArea*>()->widget()->layout();
        for (int i = 0; i < rows->count(); ++i) {
            const auto* row = rows->itemAt(i)->widget();
            if (row != nullptr && row->objectName() == Desktop::PanelPart::Row) {
                buttons << row->findChild<QToolButton*>();
            }
        }
        return buttons;
    }
};

/// Answers the next box with the mouse.
ExpectedBox::Action ByMouse(QMessageBox::StandardButton button)
{
    return [button](QMessageBox& box) { UserInput::Click(box.button(button)); };
}

bool IsInvalid(const QWidget* field)
{
    return field->property("SubStyle").toString() == QLatin1String("Invalid");
}

const QStringList ThreeTasks{"Alpha 01.03.2030 10:00:00 00:30:00",
                             "Gamma 01.03.2030 11:00:00 01:00:00",
                             "Beta 01.03.2030 12:00:00 00:00:05"};
const QStringList TwoTasks{ThreeTasks.at(0), ThreeTasks.at(2)};

} // namespace

/// Whole stories, told with mouse and keyboard alone.
class tst_RecordSchedulerWidgetFlow : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qApp->setStyleSheet(
            QStringLiteral("#recordTableScrollArea { qproperty-widgetResizable: true; }"
                           "Zentor--PX--Scheduler--UI--ScheduleRecordTableWidget {"
                           " min-width: 500px; qproperty-minHeight: 200; }"));
        QGuiApplication::setQuitOnLastWindowClosed(false);
    }

    void keepsAScheduleFromDayToDay()
    {
        const FakeClock clock(QDateTime(QDate(2030, 3, 1), QTime(9, 0)));
        const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("settings.json"));
        Run(file, &tst_RecordSchedulerWidgetFlow::AddThreeTasks);
        Run(file, &tst_RecordSchedulerWidgetFlow::TryADuplicate);
        Run(file, &tst_RecordSchedulerWidgetFlow::TryAnOverlap);
        Run(file, &tst_RecordSchedulerWidgetFlow::DeleteTheSecond);
        Run(file, &tst_RecordSchedulerWidgetFlow::RefuseToLeave);
        Run(file, &tst_RecordSchedulerWidgetFlow::Leave);
        Run(file, &tst_RecordSchedulerWidgetFlow::FindNothingScheduled);
    }

private:
    using Story = void (tst_RecordSchedulerWidgetFlow::*)(const Session& session);

    /// Starts the application, lets \a story happen and closes the window.
    void Run(const QString& file, Story story)
    {
        if (QTest::currentTestFailed()) {
            return;
        }
        const Session session(file);
        QVERIFY(session.Activate());
        QCOMPARE(session.Rows(), session.Stored());
        (this->*story)(session);
        QCOMPARE(session.Rows(), session.Stored());
        QCOMPARE(session.panel.Scheduled()->isChecked(),
                 session.store->Settings().scheduledCaptureEnabled);
        QCOMPARE(session.panel.Limited()->isChecked(),
                 session.store->Settings().limitedCaptureEnabled);
        QVERIFY(session.Window()->close());
    }

    void AddThreeTasks(const Session& session)
    {
        QCOMPARE(session.panel.Mode(), QString("none"));
        UserInput::Click(session.panel.Scheduled());
        session.AddTask("Alpha", "100000", "003000");
        session.AddTask("Beta", "120000", "000005");
        session.AddTask("Gamma", "110000", "010000");
        QCOMPARE(session.Rows(), ThreeTasks);
    }

    void TryADuplicate(const Session& session)
    {
        QCOMPARE(session.panel.Mode(), QString("scheduled+stack"));
        QCOMPARE(session.Rows(), ThreeTasks);
        LanguageSwitch language;
        session.EnterTask("Alpha", "150000", "000100");
        QVERIFY(IsInvalid(session.panel.Name()));
        language.Toggle();
        UserInput::Click(session.panel.Create());
        QVERIFY(session.panel.IsFormOpen());
        QCOMPARE(session.panel.Create()->text(), QString("~Create"));
        session.EnterName("Alpha 2");
        QVERIFY(!IsInvalid(session.panel.Name()));
        session.EnterName("Alpha");
        QVERIFY(session.panel.Name()->toolTip().startsWith('~'));

        const ExpectedBox box(ByMouse(QMessageBox::No));
        UserInput::Click(session.panel.Back());
        QVERIFY(box.Came());
        QVERIFY(!session.panel.IsFormOpen());
        QCOMPARE(session.Rows(), ThreeTasks);
    }

    void TryAnOverlap(const Session& session)
    {
        session.EnterTask("Delta", "101500", "000100");
        QVERIFY(IsInvalid(session.panel.StartTime()));
        QVERIFY(!session.panel.Create()->isEnabled());
        {
            const ExpectedBox box(ByMouse(QMessageBox::Yes));
            UserInput::Click(session.panel.Back());
            QVERIFY(box.Came());
        }
        QVERIFY(session.panel.IsFormOpen());
        QCOMPARE(session.Rows().size(), 3);
        const ExpectedBox box(ByMouse(QMessageBox::No));
        UserInput::Click(session.panel.Back());
        QVERIFY(box.Came());
        QCOMPARE(session.Rows(), ThreeTasks);
    }

    void DeleteTheSecond(const Session& session)
    {
        {
            const ExpectedBox box(PressEscape);
            session.DeleteTask(1);
            QVERIFY(box.Came());
        }
        QCOMPARE(session.Rows(), ThreeTasks);
        const ExpectedBox box(ByMouse(QMessageBox::Ok));
        session.DeleteTask(1);
        QVERIFY(box.Came());
        QCoreApplication::sendPostedEvents();
        QCOMPARE(session.Rows(), TwoTasks);
    }

    void RefuseToLeave(const Session& session)
    {
        const ExpectedBox box(ByMouse(QMessageBox::Cancel));
        UserInput::Click(session.panel.Limited());
        QVERIFY(box.Came());
        QCOMPARE(session.panel.Mode(), QString("scheduled+stack"));
        QCOMPARE(session.Rows(), TwoTasks);
    }

    void Leave(const Session& session)
    {
        const ExpectedBox box(ByMouse(QMessageBox::Ok));
        UserInput::Click(session.panel.Limited());
        QVERIFY(box.Came());
        QCOMPARE(session.panel.Mode(), QString("limited+values"));
        QVERIFY(session.Activate());
        session.TabTo(session.panel.Duration());
        UserInput::Type(session.Window(), QStringLiteral("013000"));
        QVERIFY(session.store->Settings().limitedCaptureDuration == std::chrono::minutes(90));
    }

    void FindNothingScheduled(const Session& session)
    {
        QCOMPARE(session.panel.Mode(), QString("limited+values"));
        QCOMPARE(session.panel.Duration()->time(), QTime(1, 30));
        UserInput::Click(session.panel.Scheduled());
        QCOMPARE(session.Rows(), QStringList());
        UserInput::Click(session.panel.None());
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_RecordSchedulerWidgetFlow)

#include "tst_RecordSchedulerWidgetFlow.moc"
