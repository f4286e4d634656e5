// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QStyle>
#include <QVariant>

#include "HostInterfaces.h"

namespace Zentor::Util {

void ApplyWidgetStyle(QWidget* widget, const QString& style, const char* property)
{
    const QVariant current = widget->property(property);
    if (current.isValid() && current.toString() == style) {
        return;
    }
    widget->setProperty(property, style);
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
    // Frames take padding and border of the sheet on a StyleChange event.
    QEvent change(QEvent::StyleChange);
    QApplication::sendEvent(widget, &change);
    widget->update();
}

} // namespace Zentor::Util
