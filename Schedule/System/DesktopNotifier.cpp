// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "System/DesktopNotifier.h"

#include <algorithm>
#include <utility>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusPendingCallWatcher>

#include <glog/logging.h>

#include "CoreInt/Printable.h"
#include "NotificationsInterface.h"

namespace Zentor::Schedule {
namespace {

using Server = OrgFreedesktopNotificationsInterface;

QString ServiceName()
{
    return QStringLiteral("org.freedesktop.Notifications");
}

int MillisecondsOf(std::chrono::milliseconds timeout)
{
    constexpr std::chrono::milliseconds usual{-1};
    constexpr std::chrono::milliseconds longest{std::numeric_limits<int>::max()};
    return static_cast<int>(std::clamp(timeout, usual, longest).count());
}

} // namespace

DesktopNotifier::DesktopNotifier(const QString& desktopEntry, QObject* parent)
    : QObject(parent)
    , m_desktopEntry(desktopEntry)
    , m_server(std::make_unique<Server>(ServiceName(),
                                        QStringLiteral("/org/freedesktop/Notifications"),
                                        QDBusConnection::sessionBus()))
    , m_watcher(ServiceName(), QDBusConnection::sessionBus())
{
    Connect();
}

DesktopNotifier::~DesktopNotifier() = default;

void DesktopNotifier::Connect()
{
    connect(&m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            &DesktopNotifier::TakeNewServer);
    // The signals are about the notifications of all programs.
    connect(m_server.get(), &Server::ActionInvoked, this, &DesktopNotifier::Invoke);
    connect(m_server.get(), &Server::NotificationClosed, this, [this](uint id) {
        if (const auto found = Find(id); found != m_entries.end()) {
            found->second.isOnScreen = false;
        }
    });
    connect(m_server.get(), &Server::ActivationToken, this, [this](uint id, const QString& token) {
        if (const auto found = Find(id); found != m_entries.end()) {
            found->second.activationToken = token;
        }
    });
}

void DesktopNotifier::Show(const QString& key, const DesktopNotification& notification)
{
    auto& entry = m_entries[key];
    entry.next = notification;
    entry.isCloseWanted = false;
    Advance(key);
}

void DesktopNotifier::Close(const QString& key)
{
    const auto found = m_entries.find(key);
    if (found != m_entries.end()) {
        found->second.next.reset();
        found->second.isCloseWanted = true;
        Advance(key);
    }
}

void DesktopNotifier::Advance(const QString& key)
{
    auto& entry = m_entries[key];
    if (entry.isSending) {
        return;
    }
    if (entry.next && !m_capabilities) {
        AskCapabilities();
    } else if (entry.next) {
        entry.isSending = true;
        Send(key, *std::exchange(entry.next, std::nullopt));
    } else if (std::exchange(entry.isCloseWanted, false)
               && std::exchange(entry.isOnScreen, false)) {
        m_server->CloseNotification(entry.id);
    }
}

void DesktopNotifier::AskCapabilities()
{
    if (std::exchange(m_isAsking, true)) {
        return;
    }
    auto* watcher = new QDBusPendingCallWatcher(m_server->GetCapabilities(), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        m_isAsking = false;
        const QDBusPendingReply<QStringList> reply = *watcher;
        if (reply.isValid()) {
            m_capabilities = reply.value();
        }
        for (auto& [key, entry] : m_entries) {
            if (m_capabilities) {
                Advance(key);
            } else {
                entry.next.reset();
            }
        }
        if (!m_capabilities) {
            TellUnavailable();
        }
    });
}

void DesktopNotifier::Send(const QString& key, const DesktopNotification& notification)
{
    const auto& entry = m_entries[key];
    const QVariantMap hints{
        {QStringLiteral("urgency"), QVariant::fromValue(static_cast<uchar>(notification.urgency))},
        {QStringLiteral("desktop-entry"), m_desktopEntry}};
    const uint replaced = entry.isOnScreen ? entry.id : 0;
    const auto call = m_server->Notify(
        QCoreApplication::applicationName(), replaced, m_desktopEntry, notification.summary,
        BodyOf(notification), ActionsOf(notification), hints, MillisecondsOf(notification.timeout));
    auto* watcher = new QDBusPendingCallWatcher(call, this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, key, watcher] {
        watcher->deleteLater();
        TakeAnswer(key, *watcher);
    });
}

void DesktopNotifier::TakeAnswer(const QString& key, const QDBusPendingReply<uint>& reply)
{
    auto& entry = m_entries[key];
    entry.isSending = false;
    entry.isOnScreen = reply.isValid();
    if (reply.isValid()) {
        entry.id = reply.value();
    } else {
        LOG(WARNING) << "Zentor::Schedule::DesktopNotifier::TakeAnswer: error="
                     << Util::Printable(reply.error().message());
        TellUnavailable();
    }
    Advance(key);
}

void DesktopNotifier::TakeNewServer()
{
    // It knows nothing of what the one before has shown.
    m_capabilities.reset();
    for (auto& [key, entry] : m_entries) {
        entry.id = 0;
        entry.isOnScreen = false;
    }
}

void DesktopNotifier::TellUnavailable()
{
    if (!std::exchange(m_isUnavailableTold, true)) {
        Q_EMIT Unavailable();
    }
}

void DesktopNotifier::Invoke(uint id, const QString& action)
{
    if (const auto found = Find(id); found != m_entries.end()) {
        const QString key = found->first;
        Q_EMIT ActionInvoked(key, action, std::exchange(found->second.activationToken, QString()));
    }
}

std::map<QString, DesktopNotifier::Entry>::iterator DesktopNotifier::Find(uint id)
{
    return std::find_if(m_entries.begin(), m_entries.end(),
                        [id](const auto& entry) { return id != 0 && entry.second.id == id; });
}

QStringList DesktopNotifier::ActionsOf(const DesktopNotification& notification) const
{
    QStringList actions;
    if (m_capabilities->contains(QStringLiteral("actions"))) {
        for (const auto& action : notification.actions) {
            actions << action.key << action.label;
        }
    }
    return actions;
}

QString DesktopNotifier::BodyOf(const DesktopNotification& notification) const
{
    return m_capabilities->contains(QStringLiteral("body-markup"))
        ? notification.body.toHtmlEscaped()
        : notification.body;
}

} // namespace Zentor::Schedule
