// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <limits>

#include <QDateTime>

namespace Zentor::PX::Scheduler::UI {

/// The result of UnixSecondsOf() for what it cannot express.
constexpr auto NoUnixSeconds = std::numeric_limits<std::uint32_t>::max();

/// Seconds since 1970 in UTC, cut to whole ones toward 1970.
///
/// NoUnixSeconds when \a moment is invalid, a second or more before 1970, or later than what fits
/// below it (2106-02-07 06:28:14 UTC).
std::uint32_t UnixSecondsOf(const QDateTime& moment);

} // namespace Zentor::PX::Scheduler::UI
