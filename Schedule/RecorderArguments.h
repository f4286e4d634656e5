// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

#include "RecordingSettings.h"

namespace Zentor::Schedule {

/// The arguments with which px-recorder records what is set for recordings by hand into \a file,
/// for \a seconds. Without an area, the selected area is all of screen 0.
QStringList RecorderArguments(const RecordingSettings& settings, const QString& file, int seconds);

} // namespace Zentor::Schedule
