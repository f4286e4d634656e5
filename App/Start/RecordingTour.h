// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace Zentor::Schedule {
class RecordingsList;
}

namespace Zentor::Desktop {

class MainWindow;
class ScreenshotTour;

/// Adds recordings to \a list as they might have been made, with files in \a folder that have
/// their size only.
void AddSampleRecordings(Schedule::RecordingsList& list, const QString& folder);

/// Writes down the rest of \a tour through \a window: what was recorded, and the footer in each of
/// its states.
void WriteRecordingTour(ScreenshotTour& tour, MainWindow& window);

} // namespace Zentor::Desktop
