// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "System/LoginManager.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <glog/logging.h>

#include "CoreInt/Printable.h"
#include "LoginInterface.h"
#include "System/LoginService.h"

namespace Zentor::Schedule {
namespace {

/// How long a user may take to enter a password.
constexpr int PasswordMilliseconds = 600'000;
constexpr int UsualMilliseconds = -1;

QDBusPendingCall Call(const QString& method, const QVariantList& arguments, int timeoutMilliseconds)
{
    auto message = QDBusMessage::createMethodCall(LoginService::Name, LoginService::Path,
                                                  LoginService::Interface, method);
    message.setArguments(arguments);
    return QDBusConnection::systemBus().asyncCall(message, timeoutMilliseconds);
}

/// What logind calls \a action. It has no method for one that is none of the machine's, and says
/// so.
QString MethodOf(PX::PowerAction action)
{
    switch (action) {
    case PX::Sleep:
        return QStringLiteral("Suspend");
    case PX::Hibernate:
        return QStringLiteral("Hibernate");
    case PX::Restart:
        return QStringLiteral("Reboot");
    case PX::ShutDown:
        return QStringLiteral("PowerOff");
    default:
        return QStringLiteral("DoNothing");
    }
}

} // namespace

LoginManager::LoginManager(QObject* parent)
    : QObject(parent)
    , m_manager(std::make_unique<OrgFreedesktopLogin1ManagerInterface>(
          LoginService::Name, LoginService::Path, QDBusConnection::systemBus()))
{
    connect(m_manager.get(), &OrgFreedesktopLogin1ManagerInterface::PrepareForSleep, this,
            &LoginManager::AboutToSleep);
    connect(m_manager.get(), &OrgFreedesktopLogin1ManagerInterface::PrepareForShutdown, this,
            &LoginManager::AboutToShutDown);
}

LoginManager::~LoginManager() = default;

void LoginManager::Ask(PX::PowerAction action)
{
    const auto call = Call(QStringLiteral("Can") + MethodOf(action), {}, UsualMilliseconds);
    auto* watcher = new QDBusPendingCallWatcher(call, this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, action, watcher] {
        watcher->deleteLater();
        const QDBusPendingReply<QString> reply = *watcher;
        const QString answer = reply.isValid() ? reply.value() : reply.error().name();
        LOG(INFO) << "Zentor::Schedule::LoginManager::Ask: action=" << action
                  << " answer=" << Util::Printable(answer);
        Q_EMIT Answered(action,
                        answer == QLatin1String("yes") || answer == QLatin1String("challenge"));
    });
}

void LoginManager::Perform(PX::PowerAction action)
{
    constexpr bool isInteractive = true;
    const auto call = Call(MethodOf(action), {isInteractive}, PasswordMilliseconds);
    auto* watcher = new QDBusPendingCallWatcher(call, this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, action, watcher] {
        watcher->deleteLater();
        if (watcher->isError()) {
            const QString reason = watcher->error().message();
            LOG(WARNING) << "Zentor::Schedule::LoginManager::Perform: action=" << action
                         << " error=" << Util::Printable(reason);
            Q_EMIT Refused(action, reason);
        }
    });
}

} // namespace Zentor::Schedule
