// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "HostInterfaces.h"

namespace Zentor::Util {

QFrame* createSpacer(QWidget* parent, const QString& objectName)
{
    auto* spacer = new QFrame(parent);
    spacer->setObjectName(objectName);
    return spacer;
}

} // namespace Zentor::Util
