// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "IniSettings.h"

#include <QStandardPaths>

using namespace Zentor;
using std::chrono::microseconds;

namespace {

// Each value has one name for reading and writing.
const QString LimitEnabled = QStringLiteral("limit/enabled");
const QString LimitDuration = QStringLiteral("limit/microseconds");
const QString ScheduleEnabled = QStringLiteral("schedule/enabled");
const QString Tasks = QStringLiteral("tasks");
const QString Title = QStringLiteral("title");
const QString Start = QStringLiteral("start");
const QString Duration = QStringLiteral("duration");
const QString Screen = QStringLiteral("screen");
const QString FinishAction = QStringLiteral("finishAction");
const QString Folder = QStringLiteral("folder");

/// What else stands in the file, written by hand or by another version, is no action.
PX::PowerAction ActionOf(const QVariant& value)
{
    const int index = value.toInt();
    return index >= PX::DoNothing && index <= PX::ShutDown ? static_cast<PX::PowerAction>(index)
                                                           : PX::DoNothing;
}

QString ConfirmationKey(const QString& confirmationId)
{
    return QStringLiteral("confirmations/") + confirmationId;
}

} // namespace

IniSettings::IniSettings(const QString& filePath)
    : m_file(filePath, QSettings::IniFormat)
{
}

bool IniSettings::IsLimitedCaptureEnabled() const
{
    return m_file.value(LimitEnabled, false).toBool();
}

microseconds IniSettings::GetLimitedCaptureDuration() const
{
    const microseconds hour = std::chrono::hours(1);
    const auto stored = m_file.value(LimitDuration, static_cast<qint64>(hour.count()));
    return microseconds(stored.toLongLong());
}

bool IniSettings::IsScheduledCaptureEnabled() const
{
    return m_file.value(ScheduleEnabled, false).toBool();
}

std::vector<PX::RecordTime> IniSettings::GetSchedule() const
{
    std::vector<PX::RecordTime> schedule;
    const int count = m_file.beginReadArray(Tasks);
    for (int i = 0; i < count; ++i) {
        m_file.setArrayIndex(i);
        PX::RecordTime task;
        task.title = m_file.value(Title).toString();
        task.start = Time::IClock::time_point(microseconds(m_file.value(Start).toLongLong()));
        task.duration = microseconds(m_file.value(Duration).toLongLong());
        task.screenIndex = m_file.value(Screen, -1).toInt();
        task.finishAction = ActionOf(m_file.value(FinishAction));
        schedule.push_back(task);
    }
    m_file.endArray();
    return schedule;
}

PX::PowerAction IniSettings::GetCaptureFinishAction() const
{
    return ActionOf(m_file.value(FinishAction));
}

QString IniSettings::GetResultsFolderPath() const
{
    return m_file.value(Folder, QStandardPaths::writableLocation(QStandardPaths::MoviesLocation))
        .toString();
}

bool IniSettings::IsConfirmed(const QString& confirmationId) const
{
    return m_file.value(ConfirmationKey(confirmationId), false).toBool();
}

void IniSettings::OnCaptureFinishActionChanged(int index)
{
    m_file.setValue(FinishAction, index);
}

void IniSettings::OnLimitedCaptureStateChanged(bool enabled)
{
    m_file.setValue(LimitEnabled, enabled);
}

void IniSettings::OnLimitedCaptureDurationChanged(const microseconds& duration)
{
    m_file.setValue(LimitDuration, static_cast<qint64>(duration.count()));
}

void IniSettings::OnScheduleChanged(const std::vector<PX::RecordTime>& schedule)
{
    // An array that gets shorter would keep its rest.
    m_file.remove(Tasks);
    m_file.beginWriteArray(Tasks, static_cast<int>(schedule.size()));
    int index = 0;
    for (const auto& task : schedule) {
        m_file.setArrayIndex(index++);
        m_file.setValue(Title, task.title);
        m_file.setValue(Start, static_cast<qint64>(task.start.time_since_epoch().count()));
        m_file.setValue(Duration, static_cast<qint64>(task.duration.count()));
        m_file.setValue(Screen, task.screenIndex);
        m_file.setValue(FinishAction, static_cast<int>(task.finishAction));
    }
    m_file.endArray();
}

void IniSettings::OnScheduleStateChanged(bool enabled)
{
    m_file.setValue(ScheduleEnabled, enabled);
}

void IniSettings::SetConfirmed(const QString& confirmationId, bool confirmed)
{
    m_file.setValue(ConfirmationKey(confirmationId), confirmed);
}
