// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "Moment.h"

namespace Zentor::Desktop {

/// What \a left is as a time to wait, rounded up: "2 h 5 min", in the last minute "45 s". At least
/// "1 s".
QString RemainingText(Schedule::Length left);

/// How long RemainingText() of \a left stays as it is while time passes, at least 1 ms.
std::chrono::milliseconds UntilRemainingTextChanges(Schedule::Length left);

/// \a moment in local time: only the time of day when it is on the same day as \a now, else also
/// the date. Isolated.
QString TimeText(Schedule::Moment moment, Schedule::Moment now);

} // namespace Zentor::Desktop
