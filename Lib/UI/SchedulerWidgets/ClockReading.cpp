// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "ClockReading.h"

#include "HostData.h"

namespace Zentor::PX::Scheduler::UI {

std::chrono::microseconds DurationOf(const QTime& time)
{
    return std::chrono::milliseconds(time.msecsSinceStartOfDay());
}

QTime ClockReadingOf(std::chrono::microseconds duration)
{
    const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(duration);
    // QTime counts in int and would take a longer duration for what is left of it after narrowing.
    if (milliseconds < std::chrono::milliseconds::zero() || milliseconds >= CaptureDurationLimit) {
        return {};
    }
    return QTime::fromMSecsSinceStartOfDay(static_cast<int>(milliseconds.count()));
}

} // namespace Zentor::PX::Scheduler::UI
