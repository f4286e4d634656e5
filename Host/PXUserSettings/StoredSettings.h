// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

/// \file
/// The settings objects that the panel reads, and the watcher that it reports to, on a
/// SettingsStore. Each takes a share of the store, which must not be null. The store may be opened
/// before or after; until then they tell the defaults.
#pragma once

#include <memory>

#include "SettingsStore.h"

namespace Zentor::PX {

/// How recording is timed, as it is stored now.
class ZENTOR_HOST_API StoredSchedulerSettings final : public SchedulerSettings {
public:
    /// Tells what is in \a store.
    explicit StoredSchedulerSettings(std::shared_ptr<SettingsStore> store);

    /// UserSettings::limitedCaptureEnabled.
    bool IsLimitedCaptureEnabled() const override;
    /// UserSettings::limitedCaptureDuration.
    std::chrono::microseconds GetLimitedCaptureDuration() const override;
    /// UserSettings::scheduledCaptureEnabled.
    bool IsScheduledCaptureEnabled() const override;
    /// UserSettings::schedule.
    std::vector<RecordTime> GetSchedule() const override;

private:
    std::shared_ptr<SettingsStore> m_store;
};

/// The action for the end of a capture, as it is stored now.
class ZENTOR_HOST_API StoredCaptureFinishActionSettings final : public CaptureFinishActionSettings {
public:
    /// Tells what is in \a store.
    explicit StoredCaptureFinishActionSettings(std::shared_ptr<SettingsStore> store);

    /// UserSettings::captureFinishAction.
    PowerAction GetCaptureFinishAction() const override;

private:
    std::shared_ptr<SettingsStore> m_store;
};

/// Where recordings are kept, as it is stored now.
class ZENTOR_HOST_API StoredPathsSettings final : public PathsSettings {
public:
    /// Tells what is in \a store.
    explicit StoredPathsSettings(std::shared_ptr<SettingsStore> store);

    /// UserSettings::resultsFolderPath.
    QString GetResultsFolderPath() const override;

private:
    std::shared_ptr<SettingsStore> m_store;
};

/// Stores every change that the user makes in the panel.
class ZENTOR_HOST_API StoringSettingsWatcher final : public ISettingsWatcher {
public:
    /// Stores in \a store, by one SettingsStore::Change() for each call.
    explicit StoringSettingsWatcher(std::shared_ptr<SettingsStore> store);

    /// Stores \a index as a PowerAction. One that is none is ignored: a box without entries reports
    /// -1.
    void OnCaptureFinishActionChanged(int index) override;
    /// Stores \a enabled.
    void OnLimitedCaptureStateChanged(bool enabled) override;
    /// Stores \a duration as it is.
    void OnLimitedCaptureDurationChanged(const std::chrono::microseconds& duration) override;
    /// Stores \a schedule in the place of the one before.
    void OnScheduleChanged(const std::vector<RecordTime>& schedule) override;
    /// Stores \a enabled.
    void OnScheduleStateChanged(bool enabled) override;

private:
    std::shared_ptr<SettingsStore> m_store;
};

} // namespace Zentor::PX
