// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QAbstractButton>

#include "Caption.h"
#include "HostInterfaces.h"

namespace Zentor::Util {

void bindWidgets(QWidget* label, QAbstractButton* button)
{
    new CaptionClicks(label, button);
    if (auto* caption = qobject_cast<QLabel*>(label)) {
        caption->setBuddy(button);
        button->setAccessibleName(AccessibleNameFrom(*caption));
    }
}

} // namespace Zentor::Util
