// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

/// \file
/// The settings objects that the panel reads, and the watcher that it reports to, on a
/// SettingsStore. Each takes a share of the store, which must not be null.
#pragma once

#include <memory>

#include "SettingsStore.h"

namespace Zentor::PX {

/// How recording is timed, as it is stored now.
class ZENTOR_HOST_API StoredSchedulerSettings final : public SchedulerSettings {
public:
    explicit StoredSchedulerSettings(std::shared_ptr<SettingsStore> store);

    bool IsLimitedCaptureEnabled() const override;
    std::chrono::microseconds GetLimitedCaptureDuration() const override;
    bool IsScheduledCaptureEnabled() const override;
    std::vector<RecordTime> GetSchedule() const override;

private:
    std::shared_ptr<SettingsStore> m_store;
};

/// The action for the end of a capture, as it is stored now.
class ZENTOR_HOST_API StoredCaptureFinishActionSettings final : public CaptureFinishActionSettings {
public:
    explicit StoredCaptureFinishActionSettings(std::shared_ptr<SettingsStore> store);

    PowerAction GetCaptureFinishAction() const override;

private:
    std::shared_ptr<SettingsStore> m_store;
};

/// Where recordings are kept, as it is stored now.
class ZENTOR_HOST_API StoredPathsSettings final : public PathsSettings {
public:
    explicit StoredPathsSettings(std::shared_ptr<SettingsStore> store);

    QString GetResultsFolderPath() const override;

private:
    std::shared_ptr<SettingsStore> m_store;
};

/// Stores every change that the user makes in the panel.
class ZENTOR_HOST_API StoringSettingsWatcher final : public ISettingsWatcher {
public:
    explicit StoringSettingsWatcher(std::shared_ptr<SettingsStore> store);

    /// An \a index that is no PowerAction is ignored: a box without entries reports -1.
    void OnCaptureFinishActionChanged(int index) override;
    void OnLimitedCaptureStateChanged(bool enabled) override;
    void OnLimitedCaptureDurationChanged(const std::chrono::microseconds& duration) override;
    void OnScheduleChanged(const std::vector<RecordTime>& schedule) override;
    void OnScheduleStateChanged(bool enabled) override;

private:
    std::shared_ptr<SettingsStore> m_store;
};

} // namespace Zentor::PX
