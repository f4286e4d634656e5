// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "System/Inhibitors.h"

#include <utility>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <glog/logging.h>

#include "CoreInt/Printable.h"
#include "System/LoginService.h"

namespace Zentor::Schedule {
namespace {

QString ScreenSaver()
{
    return QStringLiteral("org.freedesktop.ScreenSaver");
}

QDBusPendingCall CallScreenSaver(const QString& method, const QVariantList& arguments)
{
    auto message = QDBusMessage::createMethodCall(
        ScreenSaver(), QStringLiteral("/org/freedesktop/ScreenSaver"), ScreenSaver(), method);
    message.setArguments(arguments);
    return QDBusConnection::sessionBus().asyncCall(message);
}

void LogRefusal(const QString& what, const QDBusError& error)
{
    LOG(WARNING) << "Zentor::Schedule::Inhibitors: refused=" << what.toStdString()
                 << " error=" << Util::Printable(error.message());
}

} // namespace

Inhibitors::Inhibitors(QObject* parent)
    : QObject(parent)
    , m_locks{{QStringLiteral("sleep:idle"),
               QStringLiteral("block"),
               tr("The computer cannot be kept from going to sleep while it records."),
               false,
               {}},
              {QStringLiteral("shutdown"),
               QStringLiteral("delay"),
               tr("The computer cannot be kept from being shut down before the file is closed."),
               false,
               {}}}
    , m_screenSaverProblem(tr("The screen cannot be kept from going dark while it is recorded."))
    , m_loginWatcher(LoginService::Name, QDBusConnection::systemBus(),
                     QDBusServiceWatcher::WatchForRegistration)
    , m_screenSaverWatcher(ScreenSaver(), QDBusConnection::sessionBus(),
                           QDBusServiceWatcher::WatchForOwnerChange)
{
    connect(&m_loginWatcher, &QDBusServiceWatcher::serviceRegistered, this, &Inhibitors::AskLogin);
    connect(&m_screenSaverWatcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString& /*name*/, const QString& /*oldOwner*/, const QString& newOwner) {
                TakeNewScreenSaver(newOwner);
            });
}

Inhibitors::~Inhibitors()
{
    SetHeld(false);
}

void Inhibitors::SetHeld(bool isHeld)
{
    if (isHeld == m_isHeld) {
        return;
    }
    m_isHeld = isHeld;
    if (isHeld) {
        AskLogin();
        AskScreenSaver();
        return;
    }
    for (auto& lock : m_locks) {
        lock.descriptor = QDBusUnixFileDescriptor();
    }
    ReleaseScreenSaver();
}

void Inhibitors::AskLogin()
{
    for (auto& lock : m_locks) {
        // logind remembers across its own restart what is held.
        if (m_isHeld && !lock.isAsked && !lock.descriptor.isValid()) {
            Ask(lock);
        }
    }
}

void Inhibitors::Ask(Lock& lock)
{
    auto message = QDBusMessage::createMethodCall(
        LoginService::Name, LoginService::Path, LoginService::Interface, QStringLiteral("Inhibit"));
    message.setArguments(
        {lock.what, QCoreApplication::applicationName(), tr("A recording is running."), lock.mode});
    lock.isAsked = true;
    const auto call = QDBusConnection::systemBus().asyncCall(message);
    auto* watcher = new QDBusPendingCallWatcher(call, this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, &lock, watcher] {
        watcher->deleteLater();
        lock.isAsked = false;
        const QDBusPendingReply<QDBusUnixFileDescriptor> reply = *watcher;
        if (reply.isError()) {
            LogRefusal(lock.what, reply.error());
            Report(&lock.problem);
        } else if (m_isHeld) {
            lock.descriptor = reply.value();
        }
    });
}

void Inhibitors::AskScreenSaver()
{
    if (m_isScreenSaverAsked || m_screenSaverCookie) {
        return;
    }
    m_isScreenSaverAsked = true;
    m_isScreenSaverNew = false;
    const auto call =
        CallScreenSaver(QStringLiteral("Inhibit"),
                        {QCoreApplication::applicationName(), tr("A recording is running.")});
    auto* watcher = new QDBusPendingCallWatcher(call, this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        TakeScreenSaverAnswer(*watcher);
    });
}

void Inhibitors::TakeScreenSaverAnswer(const QDBusPendingReply<quint32>& reply)
{
    m_isScreenSaverAsked = false;
    if (reply.isValid()) {
        m_screenSaverCookie = reply.value();
        if (!m_isHeld) {
            ReleaseScreenSaver();
        }
    } else if (!m_isScreenSaverNew) {
        LogRefusal(ScreenSaver(), reply.error());
        Report(&m_screenSaverProblem);
    } else if (m_isHeld) {
        // The one that was asked went away over it.
        AskScreenSaver();
    }
}

void Inhibitors::TakeNewScreenSaver(const QString& newOwner)
{
    // It knows nothing of what the one before was asked for. A call that has not been answered by
    // now has reached the new one: answers come before the news that their sender is gone.
    m_screenSaverCookie.reset();
    m_isScreenSaverNew = !newOwner.isEmpty();
    if (m_isHeld && m_isScreenSaverNew) {
        AskScreenSaver();
    }
}

void Inhibitors::ReleaseScreenSaver()
{
    if (m_screenSaverCookie) {
        CallScreenSaver(QStringLiteral("UnInhibit"), {*m_screenSaverCookie});
        m_screenSaverCookie.reset();
    }
}

void Inhibitors::Report(QString* problem)
{
    const QString once = std::exchange(*problem, QString());
    if (!once.isEmpty()) {
        Q_EMIT Unavailable(once);
    }
}

} // namespace Zentor::Schedule
