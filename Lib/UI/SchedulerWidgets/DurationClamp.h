/// \file
/// What the fields in which a duration is entered have in common.
///
/// A duration is shown as a clock reading: 01:30:00 in the editor is an hour and a half.
#pragma once

#include <chrono>

#include <QTime>

class QTimeEdit;

namespace Zentor::PX::Scheduler::UI {

/// The shortest duration that a duration field keeps: five seconds.
inline const QTime MinimumDuration(0, 0, 5, 0);

/// Raises the time of \a editor to MinimumDuration when it is shorter; otherwise changes nothing.
///
/// The editor sends no signal for the correction. Cursor and selection stay where they are, so it
/// may be called at every keystroke: the keys still to come go where the user expects them.
void ClampDuration(QTimeEdit& editor);

/// The duration that the clock reading \a time stands for; zero when \a time is invalid.
std::chrono::microseconds DurationOf(const QTime& time);

/// The clock reading of \a duration, cut to whole milliseconds toward zero.
/// Invalid when it is not between zero and 23:59:59.999.
QTime ClockReadingOf(std::chrono::microseconds duration);

} // namespace Zentor::PX::Scheduler::UI
