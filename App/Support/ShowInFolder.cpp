// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "ShowInFolder.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

namespace Zentor::Desktop {
namespace {

void OpenFolderOf(const QString& path)
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(path).path()));
}

} // namespace

void ShowInFolder(const QString& path, QObject* context)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected() || !QFileInfo::exists(path)) {
        OpenFolderOf(path);
        return;
    }
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"),
        QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    call << QStringList{QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded)} << QString();
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), context);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, context, [watcher, path] {
        watcher->deleteLater();
        if (QDBusPendingReply<>(*watcher).isError()) {
            OpenFolderOf(path);
        }
    });
}

} // namespace Zentor::Desktop
