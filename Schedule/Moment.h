// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>

#include "HostData.h"

namespace Zentor::Schedule {

/// A moment of the wall clock, in microseconds since 1970.
using Moment = Time::IClock::time_point;

using Length = std::chrono::microseconds;

/// The present, by two clocks.
struct Instant {
    /// What schedules are made in. It can be set, in both directions.
    Moment wall;
    /// Since the machine was started, suspended or not. Nobody sets it: lengths are measured in it.
    Length sinceBoot{0};
};

} // namespace Zentor::Schedule
