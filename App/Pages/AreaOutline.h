// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QRect>

class QObject;

namespace Zentor::Desktop {

/// Shows a frame around \a area, in pixels of the X display, on the screens for a moment. It takes
/// neither the keyboard nor the mouse. A second frame takes the place of the first; it goes with
/// \a owner at the latest.
void ShowAreaOutline(const QRect& area, QObject* owner);

} // namespace Zentor::Desktop
