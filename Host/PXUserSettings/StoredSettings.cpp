// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "StoredSettings.h"

namespace Zentor::PX {

StoredSchedulerSettings::StoredSchedulerSettings(std::shared_ptr<SettingsStore> store)
    : m_store(std::move(store))
{
}

bool StoredSchedulerSettings::IsLimitedCaptureEnabled() const
{
    return m_store->Settings().limitedCaptureEnabled;
}

std::chrono::microseconds StoredSchedulerSettings::GetLimitedCaptureDuration() const
{
    return m_store->Settings().limitedCaptureDuration;
}

bool StoredSchedulerSettings::IsScheduledCaptureEnabled() const
{
    return m_store->Settings().scheduledCaptureEnabled;
}

std::vector<RecordTime> StoredSchedulerSettings::GetSchedule() const
{
    return m_store->Settings().schedule;
}

StoredCaptureFinishActionSettings::StoredCaptureFinishActionSettings(
    std::shared_ptr<SettingsStore> store)
    : m_store(std::move(store))
{
}

PowerAction StoredCaptureFinishActionSettings::GetCaptureFinishAction() const
{
    return m_store->Settings().captureFinishAction;
}

StoredPathsSettings::StoredPathsSettings(std::shared_ptr<SettingsStore> store)
    : m_store(std::move(store))
{
}

QString StoredPathsSettings::GetResultsFolderPath() const
{
    return m_store->Settings().resultsFolderPath;
}

StoringSettingsWatcher::StoringSettingsWatcher(std::shared_ptr<SettingsStore> store)
    : m_store(std::move(store))
{
}

void StoringSettingsWatcher::OnCaptureFinishActionChanged(int index)
{
    if (index < DoNothing || index > ShutDown) {
        return;
    }
    m_store->Change([index](UserSettings& settings) {
        settings.captureFinishAction = static_cast<PowerAction>(index);
    });
}

void StoringSettingsWatcher::OnLimitedCaptureStateChanged(bool enabled)
{
    m_store->Change(
        [enabled](UserSettings& settings) { settings.limitedCaptureEnabled = enabled; });
}

void StoringSettingsWatcher::OnLimitedCaptureDurationChanged(
    const std::chrono::microseconds& duration)
{
    m_store->Change(
        [&duration](UserSettings& settings) { settings.limitedCaptureDuration = duration; });
}

void StoringSettingsWatcher::OnScheduleChanged(const std::vector<RecordTime>& schedule)
{
    m_store->Change([&schedule](UserSettings& settings) { settings.schedule = schedule; });
}

void StoringSettingsWatcher::OnScheduleStateChanged(bool enabled)
{
    m_store->Change(
        [enabled](UserSettings& settings) { settings.scheduledCaptureEnabled = enabled; });
}

} // namespace Zentor::PX
