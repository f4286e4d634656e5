// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "Caption.h"

#include <utility>

#include <QAbstractButton>
#include <QLabel>
#include <QMouseEvent>

namespace Zentor {

QString AccessibleNameFrom(const QLabel& caption)
{
    QString name = caption.text();
    const QChar mark = QLatin1Char('&');
    for (auto at = name.indexOf(mark); at >= 0; at = name.indexOf(mark, at + 1)) {
        // A doubled mark stands for the character itself: one stays.
        name.remove(at, 1);
    }
    return name;
}

CaptionClicks::CaptionClicks(QWidget* caption, QAbstractButton* button)
    : QObject(caption)
    , m_caption(caption)
    , m_button(button)
{
    caption->installEventFilter(this);
}

bool CaptionClicks::eventFilter(QObject* watched, QEvent* event)
{
    const auto type = event->type();
    if (type != QEvent::MouseButtonPress && type != QEvent::MouseButtonDblClick
        && type != QEvent::MouseButtonRelease) {
        return QObject::eventFilter(watched, event);
    }
    const auto* mouse = static_cast<QMouseEvent*>(event);
    if (mouse->button() != Qt::LeftButton) {
        return QObject::eventFilter(watched, event);
    }
    if (type != QEvent::MouseButtonRelease) {
        m_isPressed = true;
    } else if (std::exchange(m_isPressed, false) && m_caption->rect().contains(mouse->pos())) {
        ClickButton();
    }
    return true;
}

void CaptionClicks::ClickButton()
{
    if (m_button == nullptr) {
        return;
    }
    if ((m_button->focusPolicy() & Qt::ClickFocus) != 0) {
        m_button->setFocus(Qt::MouseFocusReason);
    }
    // A click may run a modal dialog, in which the caption, the button and this object can be
    // deleted. Nothing is touched after it.
    m_button->click();
}

} // namespace Zentor
