// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "StyleColors.h"

#include <algorithm>
#include <cmath>

namespace Zentor::App {
namespace {

/// Light of a channel of sRGB.
double Linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& color)
{
    return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF())
        + 0.0722 * Linear(color.blueF());
}

} // namespace

double Contrast(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor Mixed(const QColor& ground, const QColor& color, double share)
{
    const auto mix = [share](int from, int to) {
        return static_cast<int>(std::lround(from + (to - from) * share));
    };
    return QColor(mix(ground.red(), color.red()), mix(ground.green(), color.green()),
                  mix(ground.blue(), color.blue()));
}

QColor Readable(const QColor& color, const QColor& ground, double contrast)
{
    const QColor black(Qt::black);
    const QColor white(Qt::white);
    QColor end = Contrast(black, ground) > Contrast(white, ground) ? black : white;
    constexpr int steps = 20;
    for (int step = 0; step < steps; ++step) {
        QColor candidate = Mixed(color, end, static_cast<double>(step) / steps);
        if (Contrast(candidate, ground) >= contrast) {
            return candidate;
        }
    }
    return end;
}

} // namespace Zentor::App
