#include "PanelMouse.h"

#include <QDateTimeEdit>
#include <QMouseEvent>
#include <QPushButton>

#include "CalendarArrow.h"
#include "RecordSchedulerWidget.h"

namespace Zentor::Desktop {

PanelMouse::PanelMouse(PX::Scheduler::UI::RecordSchedulerWidget* panel)
    : QObject(panel)
    , m_date(panel->findChild<QDateTimeEdit*>(QStringLiteral("scheduledCaptureSettingsDate")))
    , m_addButton(
          panel->findChild<QPushButton*>(QStringLiteral("scheduledCaptureSettingsAddRecordButton")))
{
    m_date->installEventFilter(this);
    m_addButton->installEventFilter(this);
}

PanelMouse::~PanelMouse() = default;

bool PanelMouse::eventFilter(QObject* watched, QEvent* event)
{
    const bool isSecondPress = event->type() == QEvent::MouseButtonDblClick;
    if (watched == m_addButton) {
        return isSecondPress;
    }
    if (event->type() != QEvent::MouseButtonPress && !isSecondPress) {
        return false;
    }
    // A field with a calendar takes its frame for the arrow that a field without one has there.
    if (CalendarArrowOf(*m_date).contains(static_cast<QMouseEvent*>(event)->pos())) {
        return false;
    }
    m_date->setFocus(Qt::MouseFocusReason);
    return true;
}

} // namespace Zentor::Desktop
