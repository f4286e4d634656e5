// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "StatusNotifierTray.h"

#include <QDBusServiceWatcher>

#include "StatusNotifierWatcher.h"

namespace Zentor::Desktop {
namespace {

QString Service()
{
    return QStringLiteral("org.kde.StatusNotifierWatcher");
}

QString Path()
{
    return QStringLiteral("/StatusNotifierWatcher");
}

} // namespace

StatusNotifierTray::StatusNotifierTray()
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        m_isKnown = true;
        return;
    }
    using Watcher = OrgKdeStatusNotifierWatcherInterface;
    m_watcher = std::make_unique<Watcher>(Service(), Path(), bus);
    connect(m_watcher.get(), &Watcher::StatusNotifierHostRegistered, this,
            &StatusNotifierTray::Ask);
    connect(m_watcher.get(), &Watcher::StatusNotifierHostUnregistered, this,
            &StatusNotifierTray::Ask);
    const auto* service =
        new QDBusServiceWatcher(Service(), bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(service, &QDBusServiceWatcher::serviceOwnerChanged, this, &StatusNotifierTray::Ask);
    Ask();
}

StatusNotifierTray::~StatusNotifierTray() = default;

void StatusNotifierTray::Ask()
{
    auto call = QDBusMessage::createMethodCall(Service(), Path(),
                                               QStringLiteral("org.freedesktop.DBus.Properties"),
                                               QStringLiteral("Get"));
    call << Service() << QStringLiteral("IsStatusNotifierHostRegistered");
    // Nothing is to be started for the question.
    call.setAutoStartService(false);
    auto* answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        TakeOver(reply.isValid() && reply.value().variant().toBool());
        answer->deleteLater();
    });
}

void StatusNotifierTray::TakeOver(bool isThere)
{
    if (isThere == m_isThere && m_isKnown) {
        return;
    }
    m_isThere = isThere;
    m_isKnown = true;
    Q_EMIT Changed();
}

} // namespace Zentor::Desktop
