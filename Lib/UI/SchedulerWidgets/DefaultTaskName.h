// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "HostData.h"

namespace Zentor::PX::Scheduler::UI {

/// The translated prefix "Task " followed by one more than the highest number that follows it in
/// any title of \a records; the number may have any size.
///
/// A number that begins with 0 and has more digits counts as octal.
/// \throws std::runtime_error when such a number has a digit 8 or 9, or when a number has digits
/// other than 0 to 9.
QString DefaultTaskName(const std::vector<RecordTime>& records);

} // namespace Zentor::PX::Scheduler::UI
