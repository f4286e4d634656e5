// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <vector>

#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusUnixFileDescriptor>
#include <QObject>
#include <QString>

namespace Zentor::Schedule {

/// Keeps the machine awake while something is recorded: it does not go to sleep, its screen does
/// not go dark, and it is not shut down before the file is closed.
///
/// By systemd-logind and the desktop's screen saver, each of which may be missing, or appear later.
/// Nothing here waits for them.
class Inhibitors final : public QObject {
    Q_OBJECT

public:
    explicit Inhibitors(QObject* parent = nullptr);
    ~Inhibitors() override;

    void SetHeld(bool isHeld);

Q_SIGNALS:
    /// Something is not kept from happening, as the system does not allow it or cannot: \a what, a
    /// sentence for the user. Sent once for each.
    void Unavailable(const QString& what);

private:
    /// Something that logind is asked for.
    struct Lock {
        QString what;
        QString mode;
        /// What the user is told when it is refused; empty once they have been.
        QString problem;
        /// Whether logind has not answered yet.
        bool isAsked = false;
        /// It is held as long as this is open.
        QDBusUnixFileDescriptor descriptor;
    };

    void AskLogin();
    void Ask(Lock& lock);
    void AskScreenSaver();
    void TakeScreenSaverAnswer(const QDBusPendingReply<quint32>& reply);
    void TakeNewScreenSaver(const QString& newOwner);
    void ReleaseScreenSaver();
    void Report(QString* problem);

    bool m_isHeld = false;
    std::vector<Lock> m_locks;
    bool m_isScreenSaverAsked = false;
    /// Whether another one has appeared since it was asked.
    bool m_isScreenSaverNew = false;
    std::optional<quint32> m_screenSaverCookie;
    QString m_screenSaverProblem;
    QDBusServiceWatcher m_loginWatcher;
    QDBusServiceWatcher m_screenSaverWatcher;
};

} // namespace Zentor::Schedule
