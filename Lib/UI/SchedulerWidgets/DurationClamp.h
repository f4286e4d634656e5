/// \file
/// What the fields in which a duration is entered have in common.
///
/// A duration is shown as a clock reading: 01:30:00 in the editor is an hour and a half.
#pragma once

#include <chrono>

#include <QTime>

#include "HostData.h"

class QTimeEdit;

namespace Zentor::PX::Scheduler::UI {

/// ShortestCaptureDuration as a clock reading: the shortest one that a duration field keeps.
inline const QTime MinimumDuration = QTime(0, 0).addSecs(ShortestCaptureDuration.count());

/// Raises the time of \a editor to MinimumDuration when it is shorter; otherwise changes nothing.
///
/// The editor sends no signal for the correction. Cursor and selection stay where they are, so it
/// may be called at every keystroke: the keys still to come go where the user expects them.
void ClampDuration(QTimeEdit& editor);

/// The duration that the clock reading \a time stands for; zero when \a time is invalid.
std::chrono::microseconds DurationOf(const QTime& time);

/// The clock reading of \a duration, cut to whole milliseconds toward zero.
/// Invalid when it is negative, or not below CaptureDurationLimit.
QTime ClockReadingOf(std::chrono::microseconds duration);

} // namespace Zentor::PX::Scheduler::UI
