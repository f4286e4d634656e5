// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

/// \file
/// Clock readings at time zone transitions, such as the start of daylight saving time (DST).
#pragma once

#include <QDateTime>

namespace Zentor::PX::Scheduler::UI {

/// The moment at which the local clocks show \a time on \a date; always valid.
///
/// A skipped reading stands for the moment it would be without the transition, so at the start of
/// DST 02:30 becomes 03:30; at the end of a day, for the last moment of that day.
QDateTime MomentOf(const QDate& date, const QTime& time);

} // namespace Zentor::PX::Scheduler::UI
