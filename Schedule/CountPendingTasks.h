// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "Moment.h"
#include "PXUserSettings/UserSettings.h"

namespace Zentor::Schedule {

/// How many tasks of \a settings have not ended at \a now; none when the schedule is off.
int CountPendingTasks(const PX::UserSettings& settings, Moment now);

} // namespace Zentor::Schedule
