// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <utility>

#include <qpa/qplatformscreen.h>
#include <qpa/qwindowsysteminterface.h>

namespace Zentor::Tests {

/// A screen that exists for Qt only. All of them make one desktop: windows can move from one to
/// another. Needs Qt5::GuiPrivate.
class FakeScreen final : public QPlatformScreen {
public:
    FakeScreen(QString name, const QRect& geometry)
        : m_name(std::move(name))
        , m_geometry(geometry)
    {
        Desktop() << this;
    }
    ~FakeScreen() override { LeaveDesktop(); }
    FakeScreen(const FakeScreen&) = delete;
    FakeScreen& operator=(const FakeScreen&) = delete;

    QRect geometry() const override { return m_geometry; }
    int depth() const override { return 32; }
    QImage::Format format() const override { return QImage::Format_RGB32; }
    QString name() const override { return m_name; }
    QList<QPlatformScreen*> virtualSiblings() const override { return Desktop(); }

    void LeaveDesktop() { Desktop().removeOne(this); }
    void Rename(const QString& name) { m_name = name; }

private:
    static QList<QPlatformScreen*>& Desktop()
    {
        static QList<QPlatformScreen*> screens;
        return screens;
    }

    QString m_name;
    QRect m_geometry;
};

/// Adds a screen to the right of the real one. Owned by Qt until it is unplugged.
inline FakeScreen* Plug(const QString& name, bool isPrimary = false, QSize size = {1280, 720})
{
    auto* screen = new FakeScreen(name, QRect(QPoint(2000, 0), size));
    QWindowSystemInterface::handleScreenAdded(screen, isPrimary);
    return screen;
}

/// Like a window system does, takes the screen from the desktop before Qt is told.
inline void Unplug(FakeScreen* screen)
{
    screen->LeaveDesktop();
    QWindowSystemInterface::handleScreenRemoved(screen);
}

} // namespace Zentor::Tests
