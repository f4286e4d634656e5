// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "PanelFormKeys.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QDateTimeEdit>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>

#include "CalendarArrow.h"

namespace Zentor::Desktop {

PanelFormKeys::PanelFormKeys(QWidget* panel)
    : QObject(panel)
    , m_panel(panel)
    , m_parts(*panel)
    , m_calendarPopup(m_parts.dateField->calendarWidget()->window())
{
    m_calendarPopup->installEventFilter(this);
    panel->installEventFilter(this);
    m_parts.dateField->installEventFilter(this);
    // The panel reacts to the click first: the form is filled by then.
    connect(m_parts.addButton, &QAbstractButton::clicked, this, &PanelFormKeys::FocusNameField);
}

PanelFormKeys::~PanelFormKeys() = default;

void PanelFormKeys::FocusNameField()
{
    m_parts.nameField->setFocus(Qt::OtherFocusReason);
    m_parts.nameField->selectAll();
}

bool PanelFormKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_calendarPopup) {
        HandleCalendarEvent(event);
        return false;
    }
    if (event->type() != QEvent::KeyPress || QApplication::activePopupWidget() != nullptr) {
        return QObject::eventFilter(watched, event);
    }
    const auto& key = *static_cast<QKeyEvent*>(event);
    return watched == m_panel ? HandlePanelKey(key) : OpenCalendar(key);
}

/// Handles a key that the focused control has no use for. Returns whether the form has.
bool PanelFormKeys::HandlePanelKey(const QKeyEvent& event)
{
    const auto modifiers = event.modifiers() & ~Qt::KeypadModifier;
    if (!m_parts.IsFormVisible() || modifiers != Qt::NoModifier) {
        return false;
    }
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // A key that is held down closes the form and must not go on with what has the focus then.
        if (!event.isAutoRepeat()) {
            PressEnter();
        }
        return true;
    case Qt::Key_Escape:
        m_parts.backButton->click();
        return true;
    default:
        return false;
    }
}

void PanelFormKeys::PressEnter()
{
    auto* focused = qobject_cast<QPushButton*>(m_panel->window()->focusWidget());
    (focused != nullptr ? focused : m_parts.createButton)->click();
}

bool PanelFormKeys::OpenCalendar(const QKeyEvent& event)
{
    const bool isWanted = (event.key() == Qt::Key_F4 && event.modifiers() == Qt::NoModifier)
        || (event.key() == Qt::Key_Down && event.modifiers().testFlag(Qt::AltModifier));
    if (isWanted) {
        // The field opens its calendar for the mouse alone.
        QDateTimeEdit* field = m_parts.dateField;
        const QPoint arrow = CalendarArrowOf(*field).center();
        QMouseEvent press(QEvent::MouseButtonPress, arrow, field->mapToGlobal(arrow),
                          Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(field, &press);
    }
    return isWanted;
}

/// The field follows each move in the calendar at once; by itself it would keep the last one.
void PanelFormKeys::HandleCalendarEvent(QEvent* event)
{
    if (event->type() == QEvent::Show) {
        m_dateBefore = m_parts.dateField->date();
    } else if (event->type() == QEvent::KeyPress
               && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Cancel)) {
        m_parts.dateField->setDate(m_dateBefore);
    }
}

} // namespace Zentor::Desktop
