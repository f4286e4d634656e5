// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "DesktopScreens.h"

#include <QGuiApplication>
#include <QScreen>

#include "RecordingSettings.h"
#include "ScreenPixels.h"

namespace Zentor::Desktop {

DesktopScreens::DesktopScreens(std::shared_ptr<PX::SettingsStore> store)
    : m_store(std::move(store))
{
    connect(qGuiApp, &QGuiApplication::screenAdded, this, [this](const QScreen* screen) {
        Follow(screen);
        Q_EMIT Changed();
    });
    // Qt still lists the screen when it says so.
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &DesktopScreens::Changed,
            Qt::QueuedConnection);
    // It is the first of the list.
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &DesktopScreens::Changed);
    const auto screens = QGuiApplication::screens();
    for (const QScreen* screen : screens) {
        Follow(screen);
    }
}

DesktopScreens::~DesktopScreens() = default;

void DesktopScreens::Follow(const QScreen* screen)
{
    connect(screen, &QScreen::geometryChanged, this, &DesktopScreens::Changed);
}

QRect DesktopScreens::PictureOf(int screenIndex) const
{
    const auto screens = QGuiApplication::screens();
    const QRect area = Schedule::RecordingSettingsIn(*m_store).area;
    if (screenIndex >= 0 || !area.isValid()) {
        const QScreen* screen = screens.value(std::max(screenIndex, 0));
        return screen != nullptr ? PixelsOf(*screen) : QRect();
    }
    return area & PixelsOfAllScreens();
}

bool DesktopScreens::IsThere(int screenIndex) const
{
    return !PictureOf(screenIndex).isEmpty();
}

QSize DesktopScreens::SizeOf(int screenIndex) const
{
    return PictureOf(screenIndex).size();
}

} // namespace Zentor::Desktop
