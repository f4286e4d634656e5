// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

// Puts the panel into a window and restores two tasks: the exit code tells whether it worked.
#include <QApplication>
#include <QVBoxLayout>

#include "RecordSchedulerWidget.h"

namespace {

using namespace Zentor;

struct LookAndFeel final : App::ILookAndFeelManager {
    std::string GetLanguage() const override { return "en_GB"; }
};

struct Answers final : App::ISettingsManager {
    bool IsConfirmed(const QString& /*confirmationId*/) const override { return false; }
    void SetConfirmed(const QString& /*confirmationId*/, bool /*confirmed*/) override { }
};

struct Settings final : PX::SchedulerSettings {
    bool IsLimitedCaptureEnabled() const override { return false; }
    std::chrono::microseconds GetLimitedCaptureDuration() const override
    {
        return std::chrono::minutes(10);
    }
    bool IsScheduledCaptureEnabled() const override { return true; }
    std::vector<PX::RecordTime> GetSchedule() const override
    {
        return std::vector<PX::RecordTime>(2);
    }
};

struct FinishAction final : PX::CaptureFinishActionSettings {
    PX::PowerAction GetCaptureFinishAction() const override { return PX::DoNothing; }
};

struct Watcher final : PX::ISettingsWatcher {
    void OnCaptureFinishActionChanged(int /*index*/) override { }
    void OnLimitedCaptureStateChanged(bool /*enabled*/) override { }
    void OnLimitedCaptureDurationChanged(const std::chrono::microseconds& /*duration*/) override { }
    void OnScheduleChanged(const std::vector<PX::RecordTime>& schedule) override
    {
        taskCount = schedule.size();
    }
    void OnScheduleStateChanged(bool /*enabled*/) override { }

    std::size_t taskCount = 0;
};

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QWidget window;
    const auto watcher = std::make_shared<Watcher>();
    auto* panel = new PX::Scheduler::UI::RecordSchedulerWidget(
        std::make_shared<LookAndFeel>(), std::make_shared<Answers>(), &window);
    (new QVBoxLayout(&window))->addWidget(panel);
    panel->SetSchedulerSettings(std::make_shared<Settings>());
    panel->SetCaptureFinishActionSettings(std::make_shared<FinishAction>());
    panel->SetSettingsWatcher(std::static_pointer_cast<PX::ISettingsWatcher>(watcher));
    panel->RestoreSettings();
    window.show();
    return watcher->taskCount == 2 ? 0 : 1;
}
