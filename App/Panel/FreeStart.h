// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "HostData.h"

namespace Zentor::Desktop {

/// The first moment at or after \a start at which a recording of \a duration overlaps no task of
/// \a schedule, which is ordered by start.
Time::IClock::time_point FirstFreeStart(const std::vector<PX::RecordTime>& schedule,
                                        Time::IClock::time_point start,
                                        std::chrono::microseconds duration);

} // namespace Zentor::Desktop
