/// \file
/// Clock readings on the days on which the local clocks are changed.
#pragma once

#include <QDateTime>

namespace Zentor::PX::Scheduler::UI {

/// The moment at which the local clocks show \a time on \a date; always valid.
///
/// A reading that the clocks skip stands for the moment it would be had they not been put forward,
/// so 02:30 becomes 03:30; at the end of a day, for the last moment of that day.
QDateTime MomentOf(const QDate& date, const QTime& time);

} // namespace Zentor::PX::Scheduler::UI
