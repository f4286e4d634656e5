// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "PanelFormTimer.h"

#include <QCoreApplication>
#include <QPushButton>
#include <QTimer>
#include <QTimerEvent>

#include "PanelParts.h"

namespace Zentor::Desktop {

PanelFormTimer::PanelFormTimer(QWidget* panel)
    : QObject(panel)
    , m_form(PanelParts(*panel).form)
    , m_timer(m_form->findChild<QTimer*>(QString(), Qt::FindDirectChildrenOnly))
{
    if (m_timer != nullptr) {
        m_form->installEventFilter(this);
        // The panel opens the form when it is clicked. A form on screen would tell what is wrong
        // with its last input.
        connect(PanelParts(*panel).addButton, &QAbstractButton::pressed, this,
                &PanelFormTimer::Fire);
        m_timer->stop();
    }
}

PanelFormTimer::~PanelFormTimer() = default;

void PanelFormTimer::Fire()
{
    m_timer->start();
    QTimerEvent event(m_timer->timerId());
    QCoreApplication::sendEvent(m_timer, &event);
    if (!m_form->isVisible()) {
        m_timer->stop();
    }
}

bool PanelFormTimer::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show) {
        m_timer->start();
    } else if (event->type() == QEvent::Hide) {
        m_timer->stop();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace Zentor::Desktop
