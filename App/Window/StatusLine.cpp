// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "StatusLine.h"

#include <QPainter>
#include <QStyleOption>

namespace Zentor::Desktop {

StatusLine::StatusLine(QWidget* parent)
    : QStatusBar(parent)
{
    connect(this, &QStatusBar::messageChanged, this, [this] {
        UpdateToolTip();
        // All of it: in RTL layouts the base class leaves an edge as it is.
        update();
    });
}

QRect StatusLine::MessageRect() const
{
    constexpr int margin = 6;
    return rect().adjusted(margin, 0, -margin, 0);
}

QString StatusLine::ShortenedMessage() const
{
    return fontMetrics().elidedText(currentMessage(), Qt::ElideRight, MessageRect().width());
}

void StatusLine::UpdateToolTip()
{
    const bool isWhole = ShortenedMessage() == currentMessage();
    setToolTip(isWhole ? QString() : currentMessage().toHtmlEscaped());
}

void StatusLine::resizeEvent(QResizeEvent* event)
{
    QStatusBar::resizeEvent(event);
    UpdateToolTip();
}

void StatusLine::paintEvent(QPaintEvent* event)
{
    if (currentMessage().isEmpty()) {
        QStatusBar::paintEvent(event);
        return;
    }
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_PanelStatusBar, &option, &painter, this);
    const auto alignment = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft);
    // The last letter of a message that just fits may lean out into the margin.
    style()->drawItemText(&painter, MessageRect(),
                          static_cast<int>(alignment | Qt::AlignVCenter) | Qt::TextDontClip,
                          palette(), isEnabled(), ShortenedMessage(), foregroundRole());
}

} // namespace Zentor::Desktop
