// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace Zentor::Desktop {

/// What the desktop calls the program: its desktop entry, without the ending, its icon, and its
/// name on the session bus.
inline QString DesktopEntryName()
{
    return QStringLiteral("org.zentor.PxScheduler");
}

} // namespace Zentor::Desktop
