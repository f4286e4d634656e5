// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "CountPendingTasks.h"

#include <algorithm>

namespace Zentor::Schedule {

int CountPendingTasks(const PX::UserSettings& settings, Moment now)
{
    if (!settings.scheduledCaptureEnabled) {
        return 0;
    }
    const auto count =
        std::count_if(settings.schedule.begin(), settings.schedule.end(),
                      [now](const auto& task) { return task.start + task.duration > now; });
    return static_cast<int>(count);
}

} // namespace Zentor::Schedule
