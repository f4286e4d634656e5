// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>

namespace Zentor::Desktop {

/// Shows \a path in the desktop's file manager, selected in its folder where that can be, else the
/// folder alone. Nothing is waited for.
void ShowInFolder(const QString& path, QObject* context);

} // namespace Zentor::Desktop
