// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "StandIns.h"

namespace Zentor::Tests {
namespace {

QString Text(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

} // namespace

void RecordingWatcher::OnCaptureFinishActionChanged(int index)
{
    m_calls << QStringLiteral("FinishAction %1").arg(index);
}

void RecordingWatcher::OnLimitedCaptureStateChanged(bool enabled)
{
    m_calls << QStringLiteral("LimitedState %1").arg(Text(enabled));
}

void RecordingWatcher::OnLimitedCaptureDurationChanged(const std::chrono::microseconds& duration)
{
    m_calls << QStringLiteral("LimitedDuration %1").arg(duration.count());
}

void RecordingWatcher::OnScheduleChanged(const std::vector<PX::RecordTime>& schedule)
{
    QStringList titles;
    for (const auto& record : schedule) {
        titles << record.title;
    }
    m_calls << QStringLiteral("Schedule %1").arg(titles.join(QLatin1Char(',')));
}

void RecordingWatcher::OnScheduleStateChanged(bool enabled)
{
    m_calls << QStringLiteral("ScheduleState %1").arg(Text(enabled));
}

QStringList RecordingWatcher::TakeCalls()
{
    return std::exchange(m_calls, {});
}

} // namespace Zentor::Tests
