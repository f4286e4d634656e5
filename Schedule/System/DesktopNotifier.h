// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QString>
#include <QStringList>

class OrgFreedesktopNotificationsInterface;

namespace Zentor::Schedule {

/// What a desktop shows to its user, in whichever window they are.
struct DesktopNotification {
    /// The values are those of the desktop.
    enum class Urgency : uchar { Low, Normal, Critical };

    struct Action {
        /// "default" is what a click on the notification does.
        QString key;
        /// Text of the button.
        QString label;
    };

    /// One line.
    QString summary;
    /// Plain text.
    QString body;
    /// Left out where the desktop cannot show any.
    std::vector<Action> actions;
    Urgency urgency = Urgency::Normal;
    /// When it goes away by itself: 0 for never; negative for when the desktop thinks fit.
    std::chrono::milliseconds timeout{-1};
};

/// Shows notifications of the desktop. Nothing here waits for it, and it may be missing, or appear
/// later.
class DesktopNotifier final : public QObject {
    Q_OBJECT

public:
    /// \a desktopEntry names the application to the desktop: what its desktop file is called,
    /// without the ending. Its icon is called the same.
    explicit DesktopNotifier(const QString& desktopEntry, QObject* parent = nullptr);
    ~DesktopNotifier() override;

    /// Shows \a notification, in the place of the one that has \a key, if that is still shown.
    void Show(const QString& key, const DesktopNotification& notification);

    /// Takes the notification that has \a key from the screen.
    void Close(const QString& key);

Q_SIGNALS:
    /// The user has chosen \a action of the notification that has \a key. \a activationToken allows
    /// a window to come to the front; empty where the desktop does not send one.
    void ActionInvoked(const QString& key, const QString& action, const QString& activationToken);

    /// The desktop shows no notifications: nothing comes of those that were to be shown. Sent once;
    /// later ones are tried all the same.
    void Unavailable();

private:
    /// Of a key.
    struct Entry {
        /// As the desktop calls it; 0 before it has answered. Kept when it is closed: some desktops
        /// tell of an action after that.
        uint id = 0;
        bool isOnScreen = false;
        /// The desktop has not answered yet.
        bool isSending = false;
        bool isCloseWanted = false;
        /// What takes its place after the answer.
        std::optional<DesktopNotification> next;
        QString activationToken;
    };

    void Connect();
    void AskCapabilities();
    void Advance(const QString& key);
    void Send(const QString& key, const DesktopNotification& notification);
    void TakeAnswer(const QString& key, const QDBusPendingReply<uint>& reply);
    void TakeNewServer();
    void TellUnavailable();
    void Invoke(uint id, const QString& action);
    std::map<QString, Entry>::iterator Find(uint id);
    QStringList ActionsOf(const DesktopNotification& notification) const;
    QString BodyOf(const DesktopNotification& notification) const;

    const QString m_desktopEntry;
    const std::unique_ptr<OrgFreedesktopNotificationsInterface> m_server;
    QDBusServiceWatcher m_watcher;
    /// Nothing before the desktop has answered.
    std::optional<QStringList> m_capabilities;
    bool m_isAsking = false;
    std::map<QString, Entry> m_entries;
    bool m_isUnavailableTold = false;
};

} // namespace Zentor::Schedule
