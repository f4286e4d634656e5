// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "DefaultSettingsFile.h"

#include <QDir>
#include <QStandardPaths>

namespace Zentor::Desktop {

QString DefaultSettingsFile()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation))
        .filePath(QStringLiteral("settings.json"));
}

} // namespace Zentor::Desktop
