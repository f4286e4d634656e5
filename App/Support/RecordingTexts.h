// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

/// \file
/// What the user reads about recordings, in the language in use.
#pragma once

#include <QString>

#include "RecordingEntry.h"

namespace Zentor::Desktop {

/// How a recording ended, as in "Incomplete: the program ended unexpectedly". A reason that is not
/// known is shown as it is.
QString OutcomeText(const Schedule::RecordingEntry& entry);

/// Why a recording is not complete, as it goes on after a colon; empty for a reason that says
/// nothing new.
QString ReasonText(const QString& reason);

/// Date and time of \a moment, isolated.
QString MomentText(Schedule::Moment moment);

/// \a length in hours, minutes and whole seconds, as in "1:02:03", isolated.
QString LengthText(Schedule::Length length);

} // namespace Zentor::Desktop
