#pragma once

#include "PXUserSettings/UserSettings.h"

namespace Zentor::Desktop {

/// How many tasks of \a settings have not ended at \a now; none when the schedule is off.
int CountPendingTasks(const PX::UserSettings& settings, Time::IClock::time_point now);

} // namespace Zentor::Desktop
