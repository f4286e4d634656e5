// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <algorithm>

#include "HostData.h"

namespace Zentor::Time {

IClock::time_point SystemClock::Now() const
{
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return time_point(std::chrono::duration_cast<duration>(now));
}

IClock::time_point SystemClock::FromTimeT(std::int64_t seconds) const
{
    // Saturates: beyond these the count of microseconds would overflow.
    constexpr auto earliest = std::chrono::ceil<std::chrono::seconds>(duration::min());
    constexpr auto latest = std::chrono::floor<std::chrono::seconds>(duration::max());
    return time_point(std::clamp(std::chrono::seconds(seconds), earliest, latest));
}

} // namespace Zentor::Time
