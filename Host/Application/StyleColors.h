// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>

namespace Zentor::App {

/// The least contrast of text, and of shapes that tell something, with what they lie on, as
/// accessibility guidelines (WCAG 2, level AA) have it.
inline constexpr double TextContrast = 4.5;
inline constexpr double ShapeContrast = 3.0;

/// The contrast ratio of two opaque colours: from 1 to 21.
double Contrast(const QColor& one, const QColor& other);

/// \a ground with a \a share of \a color in it: 0 is all ground, 1 all colour.
QColor Mixed(const QColor& ground, const QColor& color, double share);

/// The colour nearest to \a color, on its way to black or white, that has at least \a contrast with
/// \a ground. \a contrast is 4.5 at most: for more, there may be none.
QColor Readable(const QColor& color, const QColor& ground, double contrast);

} // namespace Zentor::App
