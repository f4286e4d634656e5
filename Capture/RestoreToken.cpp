// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RestoreToken.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>

namespace Zentor::Capture {
namespace {

QString Folder()
{
    const QString state = qEnvironmentVariable("XDG_STATE_HOME");
    const QString base =
        QDir::isAbsolutePath(state) ? state : QDir::homePath() + QStringLiteral("/.local/state");
    return base + QStringLiteral("/px-recorder");
}

QString FileName()
{
    return Folder() + QStringLiteral("/restore-token");
}

} // namespace

QString RestoreToken::Load()
{
    QFile file(FileName());
    constexpr qint64 longest = 4096;
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.read(longest)).trimmed()
                                          : QString();
}

bool RestoreToken::Store(const QString& token)
{
    if (token.isEmpty()) {
        return !QFile::exists(FileName()) || QFile::remove(FileName());
    }
    constexpr QFileDevice::Permissions ofOwner = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
    QDir().mkpath(Folder());
    QFile::setPermissions(Folder(), ofOwner | QFileDevice::ExeOwner);
    QSaveFile file(FileName());
    return file.open(QIODevice::WriteOnly) && file.setPermissions(ofOwner)
        && file.write(token.toUtf8()) >= 0 && file.commit();
}

} // namespace Zentor::Capture
