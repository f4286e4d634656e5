// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include "Moment.h"

namespace Zentor::Schedule {

/// Where a recording goes that starts at \a start: into \a folder, as
/// "<title> 2026-11-21 20-15-00.mkv" in local time; as " (2)", " (3)", … with that added when such
/// a file exists, or an ".mkv" of the same name where \a container is another one, as it is made
/// from that.
///
/// An empty \a title becomes "Recording". Characters that file systems refuse become "_", and so
/// does a dot at the beginning, which would hide the file. A title is cut to what file systems
/// take, between two letters as people see them.
QString RecordingFilePath(const QString& folder, const QString& title, Moment start,
                          const QString& container);

} // namespace Zentor::Schedule
