// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "UserSettings.h"

#include <QDir>
#include <QStandardPaths>

namespace Zentor::PX {

QString DefaultResultsFolderPath()
{
    const QString videos = QStandardPaths::writableLocation(QStandardPaths::MoviesLocation);
    return videos.isEmpty() ? QDir::homePath() : videos;
}

} // namespace Zentor::PX
