// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

namespace Zentor::Desktop {

class ScreenshotTour;

/// Writes down the steps of \a tour: every state of the window worth a picture. The settings have
/// at least two tasks, and the schedule mode on.
void WriteTourScript(ScreenshotTour& tour);

} // namespace Zentor::Desktop
