// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <map>
#include <vector>

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <QObject>
#include <QStringList>

namespace Zentor::Tests {

/// The systemd-logind of a machine, on the bus at DBUS_SYSTEM_BUS_ADDRESS as long as it lives. It
/// turns nothing off.
class FakeLogin final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Manager")

public:
    FakeLogin();
    ~FakeLogin() override;

    /// Makes the session bus of a test the system bus, too. Call it before either is used.
    static void UseSessionBus();

    /// Whether it could take its place on the bus.
    bool IsRegistered() const { return m_isRegistered; }

    /// Has \a method ("CanSuspend") answer \a text; otherwise it is "yes".
    void Answer(const QString& method, const QString& text) { m_answers[method] = text; }
    /// Has \a method ("Suspend", "CanSuspend", "Inhibit") fail with \a text.
    void Refuse(const QString& method, const QString& text) { m_refusals[method] = text; }
    /// Has calls of Inhibit() wait until it is called with false.
    void HoldAnswers(bool isHeld);

    /// "PowerOff(true)" and the like, in the order in which they came.
    const QStringList& Calls() const { return m_calls; }
    /// What is inhibited now: "sleep:idle by px-scheduler, block" and the like.
    QStringList Held() const;

    void SendPrepareForSleep(bool isAbout) { Q_EMIT PrepareForSleep(isAbout); }
    void SendPrepareForShutdown(bool isAbout) { Q_EMIT PrepareForShutdown(isAbout); }

public Q_SLOTS:
    QString CanPowerOff() { return AnswerTo(QStringLiteral("CanPowerOff")); }
    QString CanReboot() { return AnswerTo(QStringLiteral("CanReboot")); }
    QString CanSuspend() { return AnswerTo(QStringLiteral("CanSuspend")); }
    QString CanHibernate() { return AnswerTo(QStringLiteral("CanHibernate")); }
    void PowerOff(bool isInteractive) { Perform(QStringLiteral("PowerOff"), isInteractive); }
    void Reboot(bool isInteractive) { Perform(QStringLiteral("Reboot"), isInteractive); }
    void Suspend(bool isInteractive) { Perform(QStringLiteral("Suspend"), isInteractive); }
    void Hibernate(bool isInteractive) { Perform(QStringLiteral("Hibernate"), isInteractive); }
    QDBusUnixFileDescriptor Inhibit(const QString& what, const QString& who, const QString& why,
                                    const QString& mode);

Q_SIGNALS:
    void PrepareForSleep(bool isAbout);
    void PrepareForShutdown(bool isAbout);

private:
    struct Lock {
        QString text;
        /// The end of a pipe that shows whether the other one is still open.
        int descriptor;
    };

    QString AnswerTo(const QString& method);
    void Perform(const QString& method, bool isInteractive);
    bool IsRefused(const QString& method);
    QDBusUnixFileDescriptor NewLock(const QString& text);

    QDBusConnection m_bus;
    std::map<QString, QString> m_answers;
    std::map<QString, QString> m_refusals;
    QStringList m_calls;
    std::vector<Lock> m_locks;
    bool m_isHoldingAnswers = false;
    std::vector<std::pair<QDBusMessage, QString>> m_heldCalls;
    bool m_isRegistered;
};

} // namespace Zentor::Tests
