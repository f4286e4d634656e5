// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "AreaPicker.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include <QApplication>
#include <QScreen>

#include "AreaOverlay.h"
#include "ScreenPixels.h"

namespace Zentor::Desktop {
namespace {

constexpr int Step = 10;
constexpr int FineStep = 2;

constexpr int Even(int length)
{
    return length - length % 2;
}

/// \a area with even sides that are not too short, moved into \a bounds and no larger than these.
QRect Fitted(const QRect& area, const QRect& bounds)
{
    const QSize size(qBound(AreaPicker::Smallest, Even(area.width()), Even(bounds.width())),
                     qBound(AreaPicker::Smallest, Even(area.height()), Even(bounds.height())));
    const QPoint corner(qBound(bounds.left(), area.left(), bounds.right() + 1 - size.width()),
                        qBound(bounds.top(), area.top(), bounds.bottom() + 1 - size.height()));
    return {corner, size};
}

/// A quarter of the main screen, in its middle.
QRect FirstArea()
{
    const QRect screen = PixelsOf(*QGuiApplication::primaryScreen());
    QRect area(QPoint(), screen.size() / 2);
    area.moveCenter(screen.center());
    return area;
}

/// Where \a key points to, as far as one step.
QPoint DirectionOf(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Right:
        return {1, 0};
    case Qt::Key_Up:
        return {0, -1};
    case Qt::Key_Down:
        return {0, 1};
    default:
        return {};
    }
}

} // namespace

AreaPicker::AreaPicker(const QRect& area, QObject* parent)
    : QObject(parent)
    , m_bounds(PixelsOfAllScreens())
    , m_area(Fitted(area.isNull() ? FirstArea() : area, m_bounds))
{
    ShowOverlays();
    // There may be a screen without overlay now, or an overlay without screen.
    connect(qApp, &QGuiApplication::screenAdded, this, &AreaPicker::Cancel);
    connect(qApp, &QGuiApplication::screenRemoved, this, &AreaPicker::Cancel);
}

AreaPicker::~AreaPicker()
{
    HideOverlays();
}

void AreaPicker::ShowOverlays()
{
    const QScreen* underMouse = QGuiApplication::screenAt(QCursor::pos());
    const QScreen* first = underMouse == nullptr ? QGuiApplication::primaryScreen() : underMouse;
    const auto screens = QGuiApplication::screens();
    for (QScreen* screen : screens) {
        m_overlays << new AreaOverlay(*this, *screen);
        // The one with the keyboard comes last, in front.
        if (screen == first) {
            std::swap(m_overlays.first(), m_overlays.last());
        }
    }
    std::reverse(m_overlays.begin(), m_overlays.end());
    for (AreaOverlay* overlay : qAsConst(m_overlays)) {
        overlay->showFullScreen();
        overlay->raise();
    }
    m_overlays.constLast()->activateWindow();
    m_overlays.constLast()->setFocus(Qt::OtherFocusReason);
}

bool AreaPicker::HideOverlays()
{
    const bool wasShown = !m_overlays.isEmpty();
    for (AreaOverlay* overlay : qAsConst(m_overlays)) {
        overlay->hide();
        // Later: it may be the one whose event this is.
        overlay->deleteLater();
    }
    m_overlays.clear();
    return wasShown;
}

void AreaPicker::SetArea(const QRect& area)
{
    const QRect fitted = Fitted(area, m_bounds);
    if (fitted == m_area) {
        return;
    }
    m_area = fitted;
    for (AreaOverlay* overlay : qAsConst(m_overlays)) {
        overlay->ShowArea();
    }
}

void AreaPicker::BeginDrawing(const QPoint& point)
{
    m_start = point;
}

void AreaPicker::DrawTo(const QPoint& point)
{
    // A click alone, or a hand that trembles, leaves the area as it is.
    if (m_isDrawing || (point - m_start).manhattanLength() >= QApplication::startDragDistance()) {
        m_isDrawing = true;
        const QPoint corner(std::min(m_start.x(), point.x()), std::min(m_start.y(), point.y()));
        const QPoint way = point - m_start;
        SetArea(QRect(corner, QSize(std::abs(way.x()) + 1, std::abs(way.y()) + 1)));
    }
}

void AreaPicker::EndDrawing()
{
    if (m_isDrawing) {
        m_isDrawing = false;
        m_overlays.constLast()->ShowArea();
    }
}

bool AreaPicker::Obey(int key, Qt::KeyboardModifiers modifiers)
{
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        Take();
        return true;
    }
    if (key == Qt::Key_Escape) {
        Cancel();
        return true;
    }
    const QPoint direction = DirectionOf(key);
    const QPoint way = direction * (modifiers.testFlag(Qt::ControlModifier) ? FineStep : Step);
    if (modifiers.testFlag(Qt::ShiftModifier)) {
        const QRect grown(m_area.topLeft(), m_area.bottomRight() + way);
        // What is at the edge already stays where it is.
        SetArea(grown.intersected(m_bounds));
    } else {
        SetArea(m_area.translated(way));
    }
    return !direction.isNull();
}

void AreaPicker::Take()
{
    if (HideOverlays()) {
        Q_EMIT Taken(m_area);
    }
}

void AreaPicker::Cancel()
{
    if (HideOverlays()) {
        Q_EMIT Cancelled();
    }
}

} // namespace Zentor::Desktop
