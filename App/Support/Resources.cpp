// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "Resources.h"

#include <QtGlobal>

// Q_INIT_RESOURCE has to stand outside every namespace.
static void InitializeResources()
{
    Q_INIT_RESOURCE(px_scheduler);
    Q_INIT_RESOURCE(icons);
    Q_INIT_RESOURCE(px_scheduler_translations);
}

namespace Zentor::Desktop {

void RegisterResources()
{
    InitializeResources();
}

} // namespace Zentor::Desktop
