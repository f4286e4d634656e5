// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "System/MachineClock.h"

#include <ctime>

namespace Zentor::Schedule {
namespace {

Length ReadingOf(clockid_t clock)
{
    timespec reading{};
    clock_gettime(clock, &reading);
    return std::chrono::seconds(reading.tv_sec)
        + std::chrono::duration_cast<Length>(std::chrono::nanoseconds(reading.tv_nsec));
}

} // namespace

Instant MachineClock::Now() const
{
    return {Moment(ReadingOf(CLOCK_REALTIME)), ReadingOf(CLOCK_BOOTTIME)};
}

} // namespace Zentor::Schedule
