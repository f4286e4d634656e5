// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "MakePrivateFolder.h"

#include <sys/stat.h>

#include <QFile>
#include <QFileInfo>

namespace Zentor::Util {

bool MakePrivateFolder(const QString& path)
{
    if (QFileInfo::exists(path)) {
        return QFileInfo(path).isDir();
    }
    // Another program may be quicker.
    return MakePrivateFolder(QFileInfo(path).path())
        && (::mkdir(QFile::encodeName(path).constData(), S_IRWXU) == 0 || QFileInfo(path).isDir());
}

} // namespace Zentor::Util
