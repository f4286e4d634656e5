// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "HostInterfaces.h"

namespace Zentor {

ZFrame::ZFrame(QWidget* parent, Qt::WindowFlags flags)
    : QFrame(parent, flags)
{
}

} // namespace Zentor
