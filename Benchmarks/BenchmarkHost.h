// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

/// \file
/// A panel for the benchmarks, with a host that stores nothing.
#pragma once

#include <memory>
#include <vector>

#include "RecordSchedulerWidget.h"
#include "Samples.h"

namespace Zentor::Benchmarks {

using PX::Scheduler::UI::RecordSchedulerWidget;

struct LookAndFeel final : App::ILookAndFeelManager {
    std::string GetLanguage() const override { return "en_GB"; }
};

struct Answers final : App::ISettingsManager {
    bool IsConfirmed(const QString& /*confirmationId*/) const override { return true; }
    void SetConfirmed(const QString& /*confirmationId*/, bool /*confirmed*/) override { }
};

/// One task of a minute after the other, in the scheduled mode.
struct Settings final : PX::SchedulerSettings {
    explicit Settings(int taskCount)
    {
        for (int i = 0; i < taskCount; ++i) {
            schedule.push_back(Tests::Record("Lecture " + QString::number(i),
                                             Tests::At("00:00") + std::chrono::minutes(i),
                                             std::chrono::minutes(1)));
        }
    }

    bool IsLimitedCaptureEnabled() const override { return false; }
    std::chrono::microseconds GetLimitedCaptureDuration() const override
    {
        return std::chrono::hours(1);
    }
    bool IsScheduledCaptureEnabled() const override { return true; }
    std::vector<PX::RecordTime> GetSchedule() const override { return schedule; }

    std::vector<PX::RecordTime> schedule;
};

struct FinishAction final : PX::CaptureFinishActionSettings {
    PX::PowerAction GetCaptureFinishAction() const override { return PX::DoNothing; }
};

struct Watcher final : PX::ISettingsWatcher {
    void OnCaptureFinishActionChanged(int /*index*/) override { }
    void OnLimitedCaptureStateChanged(bool /*enabled*/) override { }
    void OnLimitedCaptureDurationChanged(const std::chrono::microseconds& /*duration*/) override { }
    void OnScheduleChanged(const std::vector<PX::RecordTime>& /*schedule*/) override { }
    void OnScheduleStateChanged(bool /*enabled*/) override { }
};

inline std::unique_ptr<RecordSchedulerWidget> CreatePanel(int taskCount)
{
    auto panel = std::make_unique<RecordSchedulerWidget>(std::make_shared<LookAndFeel>(),
                                                         std::make_shared<Answers>(), nullptr);
    panel->SetSchedulerSettings(std::make_shared<Settings>(taskCount));
    panel->SetCaptureFinishActionSettings(std::make_shared<FinishAction>());
    panel->SetSettingsWatcher(std::make_shared<Watcher>());
    return panel;
}

} // namespace Zentor::Benchmarks
