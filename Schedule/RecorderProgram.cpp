// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RecorderProgram.h"

#include <QCoreApplication>
#include <QDir>

namespace Zentor::Schedule {

QString RecorderProgram()
{
    return QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("px-recorder"));
}

} // namespace Zentor::Schedule
