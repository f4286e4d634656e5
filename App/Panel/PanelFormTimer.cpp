#include "PanelFormTimer.h"

#include <QCoreApplication>
#include <QTimer>
#include <QTimerEvent>
#include <QWidget>

#include "PanelParts.h"

namespace Zentor::Desktop {

PanelFormTimer::PanelFormTimer(QWidget* panel)
    : QObject(panel)
    , m_form(PanelParts(*panel).form)
    , m_timer(m_form->findChild<QTimer*>(QString(), Qt::FindDirectChildrenOnly))
{
    if (m_timer != nullptr) {
        m_form->installEventFilter(this);
        m_timer->stop();
    }
}

PanelFormTimer::~PanelFormTimer() = default;

void PanelFormTimer::Fire()
{
    QTimerEvent event(m_timer->timerId());
    QCoreApplication::sendEvent(m_timer, &event);
}

bool PanelFormTimer::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show) {
        m_timer->start();
        Fire();
    } else if (event->type() == QEvent::Hide) {
        m_timer->stop();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace Zentor::Desktop
