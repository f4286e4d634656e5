// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "FakeNotifications.h"

#include <algorithm>

namespace Zentor::Tests {
namespace {

const QString Service = QStringLiteral("org.freedesktop.Notifications");
const QString Path = QStringLiteral("/org/freedesktop/Notifications");
const QString ConnectionName = QStringLiteral("fake-notifications");

// Why a notification went away.
constexpr uint Dismissed = 2;
constexpr uint ClosedByCall = 3;

} // namespace

// A connection of its own: what a process calls on its own one does not go over the bus.
FakeNotifications::FakeNotifications(const QStringList& capabilities)
    : m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, ConnectionName))
    , m_capabilities(capabilities)
    , m_isRegistered(
          m_bus.registerObject(Path, this,
                               QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals)
          && m_bus.registerService(Service))
{
}

FakeNotifications::~FakeNotifications()
{
    m_bus.unregisterService(Service);
    m_bus.unregisterObject(Path);
    QDBusConnection::disconnectFromBus(ConnectionName);
}

void FakeNotifications::HoldAnswers(bool isHeld)
{
    m_isHoldingAnswers = isHeld;
    if (!isHeld) {
        for (const auto& [message, id] : m_heldCalls) {
            m_bus.send(message.createReply(id));
        }
        m_heldCalls.clear();
    }
}

QStringList FakeNotifications::Summaries() const
{
    QStringList summaries;
    for (const auto& notification : m_shown) {
        summaries << notification.summary;
    }
    return summaries;
}

void FakeNotifications::Invoke(uint id, const QString& action, const QString& token)
{
    if (!token.isEmpty()) {
        Q_EMIT ActivationToken(id, token);
    }
    Q_EMIT ActionInvoked(id, action);
    Dismiss(id);
}

void FakeNotifications::Dismiss(uint id)
{
    Remove(id);
    Q_EMIT NotificationClosed(id, Dismissed);
}

uint FakeNotifications::Notify(const QString& application, uint replaced, const QString& icon,
                               const QString& summary, const QString& body,
                               const QStringList& actions, const QVariantMap& hints,
                               int timeoutMilliseconds)
{
    ++m_asked;
    if (m_isRefusing) {
        sendErrorReply(QDBusError::LimitsExceeded, QStringLiteral("too many"));
        return 0;
    }
    const uint id = replaced != 0 ? replaced : ++m_lastId;
    const Notification shown{id,   application, icon,  summary,
                             body, actions,     hints, timeoutMilliseconds};
    const auto found = std::find_if(m_shown.begin(), m_shown.end(),
                                    [id](const auto& other) { return other.id == id; });
    if (found != m_shown.end()) {
        *found = shown;
    } else {
        m_shown.push_back(shown);
    }
    if (m_isHoldingAnswers) {
        setDelayedReply(true);
        m_heldCalls.emplace_back(message(), id);
    }
    return id;
}

void FakeNotifications::CloseNotification(uint id)
{
    Remove(id);
    Q_EMIT NotificationClosed(id, ClosedByCall);
}

void FakeNotifications::Remove(uint id)
{
    m_shown.erase(std::remove_if(m_shown.begin(), m_shown.end(),
                                 [id](const auto& other) { return other.id == id; }),
                  m_shown.end());
}

} // namespace Zentor::Tests
