#include "PanelMouse.h"

#include <QDateTimeEdit>
#include <QMouseEvent>
#include <QPushButton>

#include "CalendarArrow.h"

namespace Zentor::Desktop {

PanelMouse::PanelMouse(QWidget* panel)
    : QObject(panel)
    , m_parts(*panel)
{
    m_parts.dateField->installEventFilter(this);
    m_parts.addButton->installEventFilter(this);
}

PanelMouse::~PanelMouse() = default;

bool PanelMouse::eventFilter(QObject* watched, QEvent* event)
{
    const bool isSecondPress = event->type() == QEvent::MouseButtonDblClick;
    if (watched == m_parts.addButton) {
        return isSecondPress;
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

} // namespace Zentor::Desktop
