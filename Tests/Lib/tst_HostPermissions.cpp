// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QEventLoop>
#include <QPointer>
#include <QTimer>
#include <QToolButton>

#include "Boxes.h"
#include "Panel.h"
#include "WidgetTest.h"

namespace {

std::function<void()> s_insideDiskQuery;

} // namespace

// Stands in for the host's.
std::int64_t Zentor::Util::GetAvailableDiskSpace(const ioPath& /*path*/)
{
    if (s_insideDiskQuery) {
        s_insideDiskQuery();
    }
    constexpr std::int64_t enough = 1000000001;
    return enough;
}

namespace Zentor::Tests {
namespace {

using Inside = std::function<void()>;

/// Does something inside each call.
struct ActiveWatcher final : PX::ISettingsWatcher {
    void OnCaptureFinishActionChanged(int /*index*/) override { Act("finish action"); }
    void OnLimitedCaptureStateChanged(bool /*enabled*/) override { Act("limit"); }
    void OnLimitedCaptureDurationChanged(const std::chrono::microseconds& /*duration*/) override
    {
        Act("duration");
    }
    void OnScheduleChanged(const std::vector<PX::RecordTime>& /*schedule*/) override
    {
        Act("schedule");
    }
    void OnScheduleStateChanged(bool /*enabled*/) override { Act("schedule state"); }

    void Act(const char* call)
    {
        calls << QString::fromLatin1(call);
        if (inside) {
            inside();
        }
    }

    Inside inside;
    QStringList calls;
};

/// Settings that do something inside each call.
struct ActiveSettings final : PX::SchedulerSettings, PX::CaptureFinishActionSettings {
    bool IsLimitedCaptureEnabled() const override { return Act(), false; }
    std::chrono::microseconds GetLimitedCaptureDuration() const override
    {
        return Act(), std::chrono::hours(1);
    }
    bool IsScheduledCaptureEnabled() const override { return Act(), true; }
    std::vector<PX::RecordTime> GetSchedule() const override
    {
        return Act(), std::vector{Record("A", "10:00")};
    }
    PX::PowerAction GetCaptureFinishAction() const override { return Act(), PX::Sleep; }

    void Act() const { inside(); }

    Inside inside;
};

struct ActivePaths final : PX::PathsSettings {
    QString GetResultsFolderPath() const override { return inside(), QStringLiteral("/"); }

    Inside inside;
};

void RunEventLoop()
{
    QEventLoop loop;
    QTimer::singleShot(0, &loop, &QEventLoop::quit);
    loop.exec();
}

/// Has the panel report everything that it can, and returns the titles that are left.
QString ReportAll(const Panel& panel)
{
    panel.widget->RestoreSettings();
    panel.FillForm("B", QTime(12, 0));
    panel.Create()->click();
    panel.FinishAction()->setCurrentIndex(PX::Restart);
    panel.Duration()->setTime(QTime(0, 2));
    const ExpectedBox deletion(QMessageBox::Ok);
    panel.Table()->findChild<QToolButton*>()->click();
    const QString titles = panel.Titles();
    const ExpectedBox clearing(QMessageBox::Ok);
    panel.Limited()->click();
    panel.None()->click();
    return deletion.Came() && clearing.Came() ? titles : QStringLiteral("no box");
}

QStringList AllReports()
{
    const QStringList values{"finish action", "duration"};
    const QStringList schedule{"schedule", "schedule state"};
    const QStringList limit{"limit", "limit"};
    return values + schedule + schedule + schedule + values + schedule + schedule + limit;
}

/// Sets other objects in the place of all that \a panel has.
void ReplaceObjects(const Panel& panel)
{
    panel.widget->SetSchedulerSettings(std::make_shared<FakeSchedulerSettings>());
    panel.widget->SetCaptureFinishActionSettings(std::make_shared<FakeFinishActionSettings>());
    panel.widget->SetPathSettings(std::make_shared<FakePathsSettings>());
    panel.widget->SetSettingsWatcher(std::make_shared<RecordingWatcher>());
}

} // namespace

/// What the guide allows a host inside its functions. Most of it fails under the sanitizers only.
class tst_HostPermissions : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        WidgetTest::init();
        s_insideDiskQuery = {};
    }

    void letsTheWatcherAct_data()
    {
        QTest::addColumn<QString>("action");
        for (const char* action : {"nothing", "event loop", "validate"}) {
            QTest::newRow(action) << QString::fromLatin1(action);
        }
    }

    void letsTheWatcherAct()
    {
        QFETCH(QString, action);
        Panel panel;
        panel.window->show();
        panel.settings->scheduled = true;
        panel.settings->duration = std::chrono::hours(1);
        panel.settings->schedule = {Record("A", "10:00"), Record("C", "14:00")};
        const auto watcher = std::make_shared<ActiveWatcher>();
        panel.widget->SetSettingsWatcher(watcher);
        watcher->inside = [&] {
            if (action == QLatin1String("event loop")) {
                RunEventLoop();
            } else if (action == QLatin1String("validate") && !panel.IsFormOpen()) {
                QVERIFY(panel.widget->ValidateSettings());
            }
        };
        QCOMPARE(ReportAll(panel), QString("B,C"));
        QCOMPARE(watcher->calls, AllReports());
    }

    void letsTheWatcherDeleteThePanelLater()
    {
        Panel panel;
        panel.window->show();
        panel.settings->scheduled = true;
        panel.settings->duration = std::chrono::hours(1);
        panel.settings->schedule = {Record("A", "10:00"), Record("C", "14:00")};
        const auto watcher = std::make_shared<ActiveWatcher>();
        panel.widget->SetSettingsWatcher(watcher);
        const QPointer<RecordSchedulerWidget> guarded(panel.widget);
        panel.widget->RestoreSettings();
        watcher->inside = [&] { panel.widget->deleteLater(); };
        panel.FillForm("B", QTime(12, 0));
        panel.Create()->click();
        panel.FinishAction()->setCurrentIndex(PX::Restart);
        QCOMPARE(panel.Titles(), QString("A,B,C"));
        RunEventLoop();
        QTRY_VERIFY(guarded.isNull());
    }

    void letsSettingsReplaceTheObjects()
    {
        Panel panel;
        const auto settings = std::make_shared<ActiveSettings>();
        settings->inside = [&] {
            ReplaceObjects(panel);
            panel.widget->SetSchedulerSettings(std::shared_ptr<PX::SchedulerSettings>(settings));
        };
        panel.widget->SetSchedulerSettings(std::shared_ptr<PX::SchedulerSettings>(settings));
        panel.widget->SetCaptureFinishActionSettings(
            std::shared_ptr<PX::CaptureFinishActionSettings>(settings));
        panel.widget->RestoreSettings();
        QCOMPARE(panel.Mode(), QString("scheduled+stack"));
        QCOMPARE(panel.Titles(), QString("A"));
        QCOMPARE(panel.FinishAction()->currentIndex(), int(PX::Sleep));
        QCOMPARE(panel.Duration()->time(), QTime(1, 0));
    }

    void letsTheDiskQueryAct_data()
    {
        QTest::addColumn<bool>("isPath");
        QTest::addColumn<QString>("action");
        for (const bool isPath : {true, false}) {
            for (const char* action : {"event loop", "validate", "replace", "restore", "delete"}) {
                QTest::addRow("%s, %s", isPath ? "path" : "free space", action)
                    << isPath << QString::fromLatin1(action);
            }
        }
    }

    void letsTheDiskQueryAct()
    {
        QFETCH(bool, isPath);
        QFETCH(QString, action);
        Panel panel;
        panel.RestoreScheduled({"A"});
        bool isInside = false;
        const Inside act = [&] {
            if (!std::exchange(isInside, true)) {
                Act(panel, action);
            }
        };
        const auto paths = std::make_shared<ActivePaths>();
        paths->inside = isPath ? act : [] {};
        s_insideDiskQuery = isPath ? Inside() : act;
        panel.widget->SetPathSettings(std::shared_ptr<PX::PathsSettings>(paths));
        const bool isDeleted = action == QLatin1String("delete");
        QCOMPARE(panel.widget->ValidateSettings(), !isDeleted);
        QVERIFY(isInside);
    }

private:
    static void Act(Panel& panel, const QString& action)
    {
        if (action == QLatin1String("event loop")) {
            RunEventLoop();
        } else if (action == QLatin1String("validate")) {
            QVERIFY(panel.widget->ValidateSettings());
        } else if (action == QLatin1String("replace")) {
            ReplaceObjects(panel);
        } else if (action == QLatin1String("restore")) {
            panel.widget->RestoreSettings();
        } else {
            panel.window.reset();
        }
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_HostPermissions)

#include "tst_HostPermissions.moc"
