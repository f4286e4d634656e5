#include "CountPendingTasks.h"

#include <algorithm>

namespace Zentor::Desktop {

int CountPendingTasks(const PX::UserSettings& settings, Time::IClock::time_point now)
{
    if (!settings.scheduledCaptureEnabled) {
        return 0;
    }
    const auto count =
        std::count_if(settings.schedule.begin(), settings.schedule.end(),
                      [now](const auto& task) { return task.start + task.duration > now; });
    return static_cast<int>(count);
}

} // namespace Zentor::Desktop
