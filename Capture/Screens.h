// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <QRect>
#include <QString>

struct xcb_connection_t;

namespace Zentor::Capture {

/// A screen of the X display, in its pixels.
struct Screen {
    QString name;
    QRect geometry;
};

/// What the X display in DISPLAY shows at the moment.
struct Display {
    /// In the order of QGuiApplication::screens(): the primary one first.
    std::vector<Screen> screens;
    /// All of what can be recorded.
    QRect geometry;
};

/// A connection to the X display in DISPLAY that does not end the process with the display. While
/// it lasts, the server does not start anew because others leave it.
class DisplayConnection {
public:
    DisplayConnection();

    /// All of what can be recorded; null when the display is gone.
    QRect Geometry() const;
    /// Nothing when there is no display.
    std::optional<Display> Describe() const;

private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const;
    };

    int m_number = 0;
    std::unique_ptr<xcb_connection_t, Disconnect> m_connection;
};

std::optional<Display> CurrentDisplay();

/// The part of \a area that is within \a screen, with width and height rounded down to even
/// numbers: encoders halve the colours both ways. Empty when nothing is left.
QRect RecordableArea(const QRect& area, const QRect& screen);

} // namespace Zentor::Capture
