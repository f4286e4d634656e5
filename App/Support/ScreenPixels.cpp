// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "ScreenPixels.h"

#include <algorithm>

#include <QGuiApplication>
#include <QScreen>

#include "SizeText.h"

namespace Zentor::Desktop {

QRect PixelsOf(const QScreen& screen)
{
    const QRect place = screen.geometry();
    return {place.topLeft(), place.size() * screen.devicePixelRatio()};
}

QRect PixelsOfAllScreens()
{
    QRect all;
    const auto screens = QGuiApplication::screens();
    for (const QScreen* screen : screens) {
        all |= PixelsOf(*screen);
    }
    return all;
}

QPoint ToPixels(const QPoint& point, const QScreen& screen)
{
    const QPoint corner = screen.geometry().topLeft();
    return corner + (point - corner) * screen.devicePixelRatio();
}

QRect FromPixels(const QRect& pixels, const QScreen& screen)
{
    const QPoint corner = screen.geometry().topLeft();
    const qreal ratio = screen.devicePixelRatio();
    return {corner + (pixels.topLeft() - corner) / ratio, pixels.size() / ratio};
}

bool IsOnAScreen(const QRect& area)
{
    const auto screens = QGuiApplication::screens();
    return std::any_of(screens.begin(), screens.end(),
                       [&](const QScreen* screen) { return PixelsOf(*screen).intersects(area); });
}

QString PixelsText(const QSize& size)
{
    constexpr char16_t multiplicationSign = 0x00d7;
    // Without separators of thousands, as sizes of screens are written.
    return Isolated(QStringLiteral("%1 %2 %3")
                        .arg(size.width())
                        .arg(QChar(multiplicationSign))
                        .arg(size.height()));
}

QString PixelsText(const QRect& area)
{
    return Isolated(
        QStringLiteral("%1 (%2, %3)").arg(PixelsText(area.size())).arg(area.x()).arg(area.y()));
}

} // namespace Zentor::Desktop
