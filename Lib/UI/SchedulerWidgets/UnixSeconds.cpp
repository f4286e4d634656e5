// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "UnixSeconds.h"

namespace Zentor::PX::Scheduler::UI {

std::uint32_t UnixSecondsOf(const QDateTime& moment)
{
    constexpr std::int64_t millisecondsPerSecond = 1000;
    if (!moment.isValid()) {
        return NoUnixSeconds;
    }
    const std::int64_t seconds = moment.toMSecsSinceEpoch() / millisecondsPerSecond;
    const bool isInRange = seconds >= 0 && seconds < std::int64_t{NoUnixSeconds};
    return isInRange ? static_cast<std::uint32_t>(seconds) : NoUnixSeconds;
}

} // namespace Zentor::PX::Scheduler::UI
