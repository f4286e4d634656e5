// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

/// \file
/// Between the pixels of the X display, in which areas are stored and recorded, and the
/// device-independent coordinates of Qt, in which the mouse and windows are. Both count from the
/// same corner of a screen, whose place is the same in both.
#pragma once

#include <QPoint>
#include <QRect>
#include <QString>

class QScreen;

namespace Zentor::Desktop {

/// The place of \a screen in pixels.
QRect PixelsOf(const QScreen& screen);

/// The smallest rectangle around all screens, in pixels.
QRect PixelsOfAllScreens();

/// The pixel at \a point, which is on \a screen or beyond its edge.
QPoint ToPixels(const QPoint& point, const QScreen& screen);

/// Where \a pixels are, by the measure of \a screen.
QRect FromPixels(const QRect& pixels, const QScreen& screen);

/// Whether something of \a area, in pixels, is on a screen.
bool IsOnAScreen(const QRect& area);

/// A size for people, as in "1280 × 720".
QString PixelsText(const QSize& size);

/// A size and a place for people, as in "1280 × 720 (0, 40)", isolated.
QString PixelsText(const QRect& area);

} // namespace Zentor::Desktop
