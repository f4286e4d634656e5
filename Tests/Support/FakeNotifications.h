// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

namespace Zentor::Tests {

/// A desktop that shows notifications, on the session bus as long as it lives.
class FakeNotifications final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    struct Notification {
        uint id = 0;
        QString application;
        QString icon;
        QString summary;
        QString body;
        /// Key and label in turn.
        QStringList actions;
        QVariantMap hints;
        int timeoutMilliseconds = 0;
    };

    explicit FakeNotifications(const QStringList& capabilities = {QStringLiteral("body"),
                                                                  QStringLiteral("body-markup"),
                                                                  QStringLiteral("actions")});
    ~FakeNotifications() override;

    /// Whether it could take its place on the bus.
    bool IsRegistered() const { return m_isRegistered; }

    /// Has calls of Notify() fail.
    void Refuse(bool isRefusing) { m_isRefusing = isRefusing; }
    /// Has calls of Notify() wait until it is called with false.
    void HoldAnswers(bool isHeld);

    /// How often Notify() has been called.
    int Asked() const { return m_asked; }
    /// What is on the screen, in the order in which it came there.
    const std::vector<Notification>& Shown() const { return m_shown; }
    /// The summaries of that.
    QStringList Summaries() const;

    /// The user chooses \a action; without \a token as from a desktop that sends none.
    void Invoke(uint id, const QString& action, const QString& token = {});
    /// The notification goes away, as the user or the time wants it to.
    void Dismiss(uint id);

public Q_SLOTS:
    QStringList GetCapabilities() { return m_capabilities; }
    // Its arguments are those of the bus.
    uint Notify(const QString& application, uint replaced, const QString& icon,
                const QString& summary, const QString& body, const QStringList& actions,
                const QVariantMap& hints, int timeoutMilliseconds);
    void CloseNotification(uint id);

Q_SIGNALS:
    void NotificationClosed(uint id, uint reason);
    void ActionInvoked(uint id, const QString& action);
    void ActivationToken(uint id, const QString& token);

private:
    void Remove(uint id);

    QDBusConnection m_bus;
    const QStringList m_capabilities;
    bool m_isRefusing = false;
    bool m_isHoldingAnswers = false;
    std::vector<std::pair<QDBusMessage, uint>> m_heldCalls;
    int m_asked = 0;
    uint m_lastId = 0;
    std::vector<Notification> m_shown;
    bool m_isRegistered;
};

} // namespace Zentor::Tests
