// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QObject>
#include <QRect>

namespace Zentor::Desktop {

class AreaOverlay;

/// Has the user choose an area of the screens, under an overlay over all of them.
///
/// The mouse draws it. The arrow keys move it by ten pixels and resize it together with Shift; with
/// Ctrl, by two pixels. Enter and a double click take it; Escape cancels, and so does a screen that
/// comes or goes. Its width and height are even, as recordings need them to be, and it does not
/// leave the rectangle around the screens.
class AreaPicker final : public QObject {
    Q_OBJECT

public:
    /// Width and height of the smallest area in pixels.
    static constexpr int Smallest = 16;

    /// Shows the overlay, with \a area to begin with, in pixels of the X display; with a null one
    /// half of the main screen.
    AreaPicker(const QRect& area, QObject* parent);
    ~AreaPicker() override;

    /// In pixels.
    const QRect& Area() const { return m_area; }
    /// Whether the mouse is drawing another area.
    bool IsDrawing() const { return m_isDrawing; }

    /// Starts another area at \a point, in pixels, with the next call of DrawTo().
    void BeginDrawing(const QPoint& point);
    void DrawTo(const QPoint& point);
    void EndDrawing();
    /// Returns whether \a key does something here.
    bool Obey(int key, Qt::KeyboardModifiers modifiers);
    void Take();
    void Cancel();

Q_SIGNALS:
    /// The user has taken \a area. The overlay is gone.
    void Taken(const QRect& area);
    /// The user wants no other area. The overlay is gone.
    void Cancelled();

private:
    void ShowOverlays();
    /// Returns whether they were shown.
    bool HideOverlays();
    void SetArea(const QRect& area);

    const QRect m_bounds;
    QRect m_area;
    QPoint m_start;
    bool m_isDrawing = false;
    /// The one that has the keyboard is the last. Empty when the choice is over.
    QList<AreaOverlay*> m_overlays;
};

} // namespace Zentor::Desktop
