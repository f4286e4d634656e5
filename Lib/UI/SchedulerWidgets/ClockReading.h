// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

/// \file
/// A duration as a clock reading, which is how it is entered and shown: 01:30:00 is an hour and a
/// half.
#pragma once

#include <chrono>

#include <QTime>

namespace Zentor::PX::Scheduler::UI {

/// The duration that the clock reading \a time stands for; zero when \a time is invalid.
std::chrono::microseconds DurationOf(const QTime& time);

/// The clock reading of \a duration, cut to whole milliseconds toward zero.
/// Invalid when it is negative, or not below CaptureDurationLimit.
QTime ClockReadingOf(std::chrono::microseconds duration);

} // namespace Zentor::PX::Scheduler::UI
