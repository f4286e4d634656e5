// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QSettings>

#include "HostInterfaces.h"

/// All that the panel wants to know and to have stored, in an INI file. QSettings gathers changes
/// and writes them from the event loop and at the end.
class IniSettings final : public Zentor::PX::SchedulerSettings,
                          public Zentor::PX::CaptureFinishActionSettings,
                          public Zentor::PX::PathsSettings,
                          public Zentor::PX::ISettingsWatcher,
                          public Zentor::App::ISettingsManager {
public:
    explicit IniSettings(const QString& filePath);

    bool IsLimitedCaptureEnabled() const override;
    std::chrono::microseconds GetLimitedCaptureDuration() const override;
    bool IsScheduledCaptureEnabled() const override;
    std::vector<Zentor::PX::RecordTime> GetSchedule() const override;
    Zentor::PX::PowerAction GetCaptureFinishAction() const override;
    QString GetResultsFolderPath() const override;
    bool IsConfirmed(const QString& confirmationId) const override;

    void OnCaptureFinishActionChanged(int index) override;
    void OnLimitedCaptureStateChanged(bool enabled) override;
    void OnLimitedCaptureDurationChanged(const std::chrono::microseconds& duration) override;
    void OnScheduleChanged(const std::vector<Zentor::PX::RecordTime>& schedule) override;
    void OnScheduleStateChanged(bool enabled) override;
    void SetConfirmed(const QString& confirmationId, bool confirmed) override;

private:
    /// Mutable, as reading an array moves its place in the file.
    mutable QSettings m_file;
};
