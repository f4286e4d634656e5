// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "AreaOverlay.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>

#include "AreaPicker.h"
#include "Controls.h"
#include "QtNames.h"
#include "ScreenPixels.h"

namespace Zentor::Desktop {
namespace {

constexpr QColor Veil(0, 0, 0, 120);
constexpr int FrameWidth = 2;
/// Around a text, and between the area and its figures.
constexpr int Padding = 8;

const QScreen& ScreenAt(const QPoint& point, const QScreen& otherwise)
{
    const QScreen* screen = QGuiApplication::screenAt(point);
    return screen == nullptr ? otherwise : *screen;
}

} // namespace

AreaOverlay::AreaOverlay(AreaPicker& picker, QScreen& screen)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint)
    , m_picker(picker)
    , m_screen(screen)
    , m_picture(screen.grabWindow(0))
{
    setObjectName(QStringLiteral("areaOverlay"));
    setAccessibleName(tr("Area of the screen"));
    setAttribute(Qt::WA_NoSystemBackground);
    setAttribute(Qt::WA_QuitOnClose, false);
    // Where the screen cannot be copied, it shines through.
    setAttribute(Qt::WA_TranslucentBackground, m_picture.isNull());
    setCursor(Qt::CrossCursor);
    setGeometry(screen.geometry());
    // The window goes to its own screen, also where it is placed by the desktop.
    winId();
    windowHandle()->setScreen(&screen);
    setAccessibleDescription(Figures());
}

QRect AreaOverlay::AreaHere() const
{
    return FromPixels(m_picker.Area(), m_screen).translated(-m_screen.geometry().topLeft());
}

QString AreaOverlay::Figures() const
{
    return PixelsText(m_picker.Area());
}

void AreaOverlay::ShowArea()
{
    update();
    setAccessibleDescription(Figures());
    if (isActiveWindow() && !m_picker.IsDrawing()) {
        AlertScreenReaders(this);
    }
}

void AreaOverlay::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    if (m_picture.isNull()) {
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.fillRect(rect(), Qt::transparent);
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    } else {
        painter.drawPixmap(rect(), m_picture);
    }
    const QRect area = AreaHere();
    painter.setClipRegion(QRegion(rect()) - area);
    painter.fillRect(rect(), Veil);
    painter.setClipping(false);
    painter.setPen(QPen(m_frameColor, FrameWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(area.adjusted(-1, -1, 1, 1));
    PaintFigures(painter);
    PaintHelp(painter);
}

void AreaOverlay::PaintText(QPainter& painter, const QString& text, QRect place) const
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_groundColor);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawRoundedRect(place, Padding, Padding);
    painter.setPen(m_textColor);
    painter.drawText(place.adjusted(Padding, Padding, -Padding, -Padding),
                     Qt::AlignCenter | Qt::TextWordWrap, text);
}

void AreaOverlay::PaintFigures(QPainter& painter) const
{
    const QRect area = AreaHere();
    if (!area.intersects(rect())) {
        return;
    }
    const QSize around(2 * Padding, 2 * Padding);
    QRect place(QPoint(), fontMetrics().size(Qt::TextSingleLine, Figures()) + around);
    place.moveTopLeft(area.bottomLeft() + QPoint(0, Padding));
    if (place.bottom() > rect().bottom()) {
        place.moveBottomLeft(QPoint(area.left(), area.top() - Padding));
    }
    if (place.top() < 0) {
        place.moveTopLeft(area.topLeft() + QPoint(Padding, Padding));
    }
    place.moveLeft(qBound(0, place.left(), qMax(0, width() - place.width())));
    PaintText(painter, Figures(), place);
}

void AreaOverlay::PaintHelp(QPainter& painter) const
{
    const QString text =
        tr("Draw the area with the mouse, or move it with the arrow keys and resize it with Shift "
           "and the arrow keys. Enter takes it, Escape cancels.");
    constexpr int mostWidth = 560;
    const int room = qMin(mostWidth, width() - 4 * Padding);
    QRect place = fontMetrics().boundingRect(QRect(0, 0, room, height()), Qt::TextWordWrap, text);
    place.adjust(-Padding, -Padding, Padding, Padding);
    place.moveCenter(rect().center());
    const QRect atTop(QPoint(place.left(), 3 * Padding), place.size());
    const QRect atBottom = atTop.translated(0, height() - atTop.height() - 6 * Padding);
    // Where it hides least of the area.
    PaintText(painter, text, atTop.intersects(AreaHere()) ? atBottom : atTop);
}

QPoint AreaOverlay::PixelUnder(const QMouseEvent& event) const
{
    const QPoint point = GlobalPosition(event);
    return ToPixels(point, ScreenAt(point, m_screen));
}

void AreaOverlay::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        m_picker.BeginDrawing(PixelUnder(*event));
    }
}

void AreaOverlay::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons().testFlag(Qt::LeftButton)) {
        m_picker.DrawTo(PixelUnder(*event));
    }
}

void AreaOverlay::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        m_picker.EndDrawing();
    }
}

void AreaOverlay::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        m_picker.Take();
    }
}

void AreaOverlay::keyPressEvent(QKeyEvent* event)
{
    if (!m_picker.Obey(event->key(), event->modifiers())) {
        QWidget::keyPressEvent(event);
    }
}

void AreaOverlay::closeEvent(QCloseEvent* event)
{
    event->ignore();
    m_picker.Cancel();
}

} // namespace Zentor::Desktop
