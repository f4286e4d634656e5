// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "AreaOutline.h"

#include <QApplication>
#include <QPointer>
#include <QScreen>
#include <QTimer>
#include <QWidget>
#include <QWindow>

#include "ScreenPixels.h"

namespace Zentor::Desktop {
namespace {

constexpr int OutlineMilliseconds = 1500;
constexpr int FrameWidth = 4;

/// The part of a frame that is on one screen: a window of the shape of the frame.
class OutlineFrame final : public QWidget {
public:
    OutlineFrame(const QRect& area, QScreen& screen)
        : QWidget(nullptr,
                  Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint
                      | Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus)
    {
        setObjectName(QStringLiteral("areaOutline"));
        setAttribute(Qt::WA_ShowWithoutActivating);
        setAttribute(Qt::WA_QuitOnClose, false);
        // A plain widget paints the ground of the style sheet only when told so.
        setAttribute(Qt::WA_StyledBackground);
        const QRect inner = FromPixels(area, screen);
        const QRect outer = inner.adjusted(-FrameWidth, -FrameWidth, FrameWidth, FrameWidth)
                                .intersected(screen.geometry());
        // Where the area reaches the edge of the screen, the frame lies within it.
        const QRect hole =
            inner.intersected(outer.adjusted(FrameWidth, FrameWidth, -FrameWidth, -FrameWidth));
        setGeometry(outer);
        setMask((QRegion(outer) - hole).translated(-outer.topLeft()));
    }
};

} // namespace

void ShowAreaOutline(const QRect& area, QObject* owner)
{
    static QPointer<QObject> shown;
    delete shown;
    shown = new QObject(owner);
    const auto screens = QGuiApplication::screens();
    for (QScreen* screen : screens) {
        if (PixelsOf(*screen).intersects(area)) {
            auto* frame = new OutlineFrame(area, *screen);
            QObject::connect(shown, &QObject::destroyed, frame, [frame] { delete frame; });
            frame->show();
        }
    }
    QTimer::singleShot(OutlineMilliseconds, shown, &QObject::deleteLater);
}

} // namespace Zentor::Desktop
