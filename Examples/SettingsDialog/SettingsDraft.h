// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include "HostInterfaces.h"
#include "PXUserSettings/SettingsStore.h"

/// The settings as they are in the dialog. The panel reports each change at once; here the changes
/// wait for OK. A dialog that is cancelled just drops its draft.
///
/// It is all that the panel reads its settings from, and the watcher that it reports to.
class SettingsDraft final : public Zentor::PX::SchedulerSettings,
                            public Zentor::PX::CaptureFinishActionSettings,
                            public Zentor::PX::PathsSettings,
                            public Zentor::PX::ISettingsWatcher {
public:
    /// Begins with what is stored in \a store.
    explicit SettingsDraft(std::shared_ptr<Zentor::PX::SettingsStore> store);

    /// Stores what has changed.
    void Commit() const;

    void SetResultsFolderPath(const QString& path);

    bool IsLimitedCaptureEnabled() const override;
    std::chrono::microseconds GetLimitedCaptureDuration() const override;
    bool IsScheduledCaptureEnabled() const override;
    std::vector<Zentor::PX::RecordTime> GetSchedule() const override;
    Zentor::PX::PowerAction GetCaptureFinishAction() const override;
    QString GetResultsFolderPath() const override;

    void OnCaptureFinishActionChanged(int index) override;
    void OnLimitedCaptureStateChanged(bool enabled) override;
    void OnLimitedCaptureDurationChanged(const std::chrono::microseconds& duration) override;
    void OnScheduleChanged(const std::vector<Zentor::PX::RecordTime>& schedule) override;
    void OnScheduleStateChanged(bool enabled) override;

private:
    std::shared_ptr<Zentor::PX::SettingsStore> m_store;
    Zentor::PX::UserSettings m_settings;
};
