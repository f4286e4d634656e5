#pragma once

#include <optional>
#include <vector>

#include <QRect>
#include <QString>

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

/// Nothing when there is no display. Never ends the process, whatever the server does.
std::optional<Display> CurrentDisplay();

/// The part of \a area that is within \a screen, with width and height rounded down to even
/// numbers: encoders halve the colours both ways. Empty when nothing is left.
QRect RecordableArea(const QRect& area, const QRect& screen);

} // namespace Zentor::Capture
