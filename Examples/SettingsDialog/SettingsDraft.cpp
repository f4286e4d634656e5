// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "SettingsDraft.h"

#include <utility>

using namespace Zentor;

SettingsDraft::SettingsDraft(std::shared_ptr<PX::SettingsStore> store)
    : m_store(std::move(store))
    , m_settings(m_store->Settings())
{
}

void SettingsDraft::Commit() const
{
    m_store->Change([this](PX::UserSettings& stored) {
        // Not the whole of it: answers to be remembered may have been stored meanwhile.
        stored.limitedCaptureEnabled = m_settings.limitedCaptureEnabled;
        stored.limitedCaptureDuration = m_settings.limitedCaptureDuration;
        stored.scheduledCaptureEnabled = m_settings.scheduledCaptureEnabled;
        stored.schedule = m_settings.schedule;
        stored.captureFinishAction = m_settings.captureFinishAction;
        stored.resultsFolderPath = m_settings.resultsFolderPath;
    });
}

void SettingsDraft::SetResultsFolderPath(const QString& path)
{
    m_settings.resultsFolderPath = path;
}

bool SettingsDraft::IsLimitedCaptureEnabled() const
{
    return m_settings.limitedCaptureEnabled;
}

std::chrono::microseconds SettingsDraft::GetLimitedCaptureDuration() const
{
    return m_settings.limitedCaptureDuration;
}

bool SettingsDraft::IsScheduledCaptureEnabled() const
{
    return m_settings.scheduledCaptureEnabled;
}

std::vector<PX::RecordTime> SettingsDraft::GetSchedule() const
{
    return m_settings.schedule;
}

PX::PowerAction SettingsDraft::GetCaptureFinishAction() const
{
    return m_settings.captureFinishAction;
}

QString SettingsDraft::GetResultsFolderPath() const
{
    return m_settings.resultsFolderPath;
}

void SettingsDraft::OnCaptureFinishActionChanged(int index)
{
    // A combo box without entries reports -1.
    if (index >= PX::DoNothing && index <= PX::ShutDown) {
        m_settings.captureFinishAction = static_cast<PX::PowerAction>(index);
    }
}

void SettingsDraft::OnLimitedCaptureStateChanged(bool enabled)
{
    m_settings.limitedCaptureEnabled = enabled;
}

void SettingsDraft::OnLimitedCaptureDurationChanged(const std::chrono::microseconds& duration)
{
    m_settings.limitedCaptureDuration = duration;
}

void SettingsDraft::OnScheduleChanged(const std::vector<PX::RecordTime>& schedule)
{
    m_settings.schedule = schedule;
}

void SettingsDraft::OnScheduleStateChanged(bool enabled)
{
    m_settings.scheduledCaptureEnabled = enabled;
}
