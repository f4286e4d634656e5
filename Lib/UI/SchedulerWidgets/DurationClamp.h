// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

/// \file
/// The lower limit of the fields in which a duration is entered as a clock reading.
#pragma once

#include <QTime>

#include "HostData.h"

class QTimeEdit;

namespace Zentor::PX::Scheduler::UI {

/// ShortestCaptureDuration as a clock reading: the shortest one that a duration field keeps.
inline const QTime MinimumDuration = QTime(0, 0).addSecs(ShortestCaptureDuration.count());

/// Raises the time of \a editor to MinimumDuration when it is shorter; otherwise changes nothing.
///
/// The editor sends no signal for the correction. Cursor and selection stay where they are, so it
/// may be called at every keystroke: the keys still to come go where the user expects them.
void ClampDuration(QTimeEdit& editor);

} // namespace Zentor::PX::Scheduler::UI
