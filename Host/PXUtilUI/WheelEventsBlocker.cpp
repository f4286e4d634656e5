// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QEvent>
#include <QWidget>

#include "HostInterfaces.h"

namespace Zentor::PX::UI {

WheelEventsBlocker::WheelEventsBlocker(QWidget* watched)
    : QObject(watched)
{
    watched->installEventFilter(this);
}

bool WheelEventsBlocker::eventFilter(QObject* watched, QEvent* event)
{
    return event->type() == QEvent::Wheel || QObject::eventFilter(watched, event);
}

} // namespace Zentor::PX::UI
