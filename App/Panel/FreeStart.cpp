// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "FreeStart.h"

namespace Zentor::Desktop {

Time::IClock::time_point FirstFreeStart(const std::vector<PX::RecordTime>& schedule,
                                        Time::IClock::time_point start,
                                        std::chrono::microseconds duration)
{
    for (const PX::RecordTime& task : schedule) {
        const auto end = task.start + task.duration;
        if (task.start < start + duration && start < end) {
            start = end;
        }
    }
    return start;
}

} // namespace Zentor::Desktop
