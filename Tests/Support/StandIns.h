// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QStringList>

#include "HostInterfaces.h"

namespace Zentor::Tests {

/// Writes down every call as text, such as "LimitedState true" or "Schedule A,B".
class RecordingWatcher final : public PX::ISettingsWatcher {
public:
    void OnCaptureFinishActionChanged(int index) override;
    void OnLimitedCaptureStateChanged(bool enabled) override;
    void OnLimitedCaptureDurationChanged(const std::chrono::microseconds& duration) override;
    void OnScheduleChanged(const std::vector<PX::RecordTime>& schedule) override;
    void OnScheduleStateChanged(bool enabled) override;

    /// The calls since the last take.
    QStringList TakeCalls();

private:
    QStringList m_calls;
};

struct FakeSchedulerSettings final : PX::SchedulerSettings {
    bool IsLimitedCaptureEnabled() const override { return limited; }
    std::chrono::microseconds GetLimitedCaptureDuration() const override { return duration; }
    bool IsScheduledCaptureEnabled() const override { return scheduled; }
    std::vector<PX::RecordTime> GetSchedule() const override { return schedule; }

    bool limited = false;
    std::chrono::microseconds duration{std::chrono::seconds(5)};
    bool scheduled = false;
    std::vector<PX::RecordTime> schedule;
};

struct FakeFinishActionSettings final : PX::CaptureFinishActionSettings {
    PX::PowerAction GetCaptureFinishAction() const override { return action; }

    PX::PowerAction action = PX::DoNothing;
};

struct FakePathsSettings final : PX::PathsSettings {
    QString GetResultsFolderPath() const override { return folder; }

    QString folder;
};

struct FakeSettingsManager final : App::ISettingsManager {
    bool IsConfirmed(const QString& confirmationId) const override
    {
        return confirmed.value(confirmationId);
    }
    void SetConfirmed(const QString& confirmationId, bool isConfirmed) override
    {
        confirmed[confirmationId] = isConfirmed;
    }

    QHash<QString, bool> confirmed;
};

struct FakeLookAndFeelManager final : App::ILookAndFeelManager {
    std::string GetLanguage() const override { return language; }

    std::string language = "en_GB";
};

} // namespace Zentor::Tests
