// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "PanelMouse.h"

#include <QCoreApplication>
#include <QDateTimeEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

#include "CalendarArrow.h"

namespace Zentor::Desktop {

PanelMouse::PanelMouse(QWidget* panel)
    : QObject(panel)
    , m_parts(*panel)
{
    m_parts.dateField->installEventFilter(this);
    m_parts.addButton->installEventFilter(this);
    // Before the panel's own filter: the last one installed comes first.
    m_parts.list->viewport()->installEventFilter(this);
}

PanelMouse::~PanelMouse() = default;

bool PanelMouse::eventFilter(QObject* watched, QEvent* event)
{
    const bool isSecondPress = event->type() == QEvent::MouseButtonDblClick;
    if (watched == m_parts.addButton) {
        return isSecondPress;
    }
    if (watched != m_parts.dateField) {
        const bool isWheel = event->type() == QEvent::Wheel;
        if (isWheel) {
            Scroll(event);
        }
        return isWheel;
    }
    if (event->type() != QEvent::MouseButtonPress && !isSecondPress) {
        return false;
    }
    // A field with a calendar takes its frame for the arrow that a field without one has there.
    if (CalendarArrowOf(*m_parts.dateField).contains(static_cast<QMouseEvent*>(event)->pos())) {
        return false;
    }
    m_parts.dateField->setFocus(Qt::MouseFocusReason);
    return true;
}

void PanelMouse::Scroll(QEvent* wheel) const
{
    QWidget* widget = m_parts.list;
    for (; widget != nullptr; widget = widget->parentWidget()) {
        const auto* area = qobject_cast<QAbstractScrollArea*>(widget);
        QScrollBar* bar = area != nullptr ? area->verticalScrollBar() : nullptr;
        if (bar != nullptr && bar->minimum() < bar->maximum()) {
            QCoreApplication::sendEvent(bar, wheel);
            return;
        }
    }
}

} // namespace Zentor::Desktop
