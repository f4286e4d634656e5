// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "Instance.h"

#include <utility>

#include <QCryptographicHash>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QFile>
#include <QFileInfo>

#include <glog/logging.h>

#include "ApplicationAdaptor.h"
#include "DesktopEntryName.h"
#include "PXUserSettings/PrivateFile.h"

namespace Zentor::Desktop {
namespace {

QString ObjectPath()
{
    return QStringLiteral("/org/zentor/PxScheduler");
}

/// The call that asks the instance called \a busName for \a request.
QDBusMessage CallFor(Request request, const QString& busName, const QVariantMap& platformData)
{
    const auto callOf = [&](const char* interface, const char* method) {
        return QDBusMessage::createMethodCall(busName, ObjectPath(), QLatin1String(interface),
                                              QLatin1String(method));
    };
    constexpr const char* application = "org.freedesktop.Application";
    const auto action = [&](const char* name) {
        return callOf(application, "ActivateAction")
            << QLatin1String(name) << QVariantList() << platformData;
    };
    switch (request) {
    case Request::Start:
        return action("start");
    case Request::Stop:
        return action("stop");
    case Request::Pause:
        return action("pause");
    case Request::Quit:
        return action("quit");
    case Request::Nothing:
        return callOf("org.freedesktop.DBus.Peer", "Ping");
    case Request::Show:
        break;
    }
    return callOf(application, "Activate") << platformData;
}

} // namespace

QVariantMap PlatformDataOfStart()
{
    QVariantMap data;
    const QString startupId = qEnvironmentVariable("DESKTOP_STARTUP_ID");
    if (!startupId.isEmpty()) {
        data.insert(QStringLiteral("desktop-startup-id"), startupId);
    }
    const QString token = qEnvironmentVariable("XDG_ACTIVATION_TOKEN");
    if (!token.isEmpty()) {
        data.insert(QStringLiteral("activation-token"), token);
    }
    return data;
}

Instance::Instance(const QString& settingsFile, const QString& defaultSettingsFile)
    : m_name(BusName(settingsFile))
    , m_isDefault(m_name == BusName(defaultSettingsFile))
{
    new ApplicationAdaptor(this);
    // Before the name: who finds the name finds the object.
    QDBusConnection::sessionBus().registerObject(ObjectPath(), this);
}

Instance::~Instance()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    for (const QString& name : {m_name, DesktopEntryName()}) {
        bus.unregisterService(name);
    }
    bus.unregisterObject(ObjectPath());
}

QString Instance::BusName(const QString& settingsFile)
{
    const QString realPath = Util::RealPath(QFileInfo(settingsFile).absoluteFilePath());
    const QByteArray hash =
        QCryptographicHash::hash(QFile::encodeName(realPath), QCryptographicHash::Sha256);
    // No part of a bus name starts with a digit.
    return QStringLiteral("%1.File%2").arg(DesktopEntryName(), QString::fromLatin1(hash.toHex()));
}

bool Instance::IsFirst(const QVariantMap& platformData, Request request)
{
    // One that is just ending gives way.
    return TakeName()
        || (!PassOn(request, platformData) && (TakeName() || !PassOn(request, platformData)));
}

bool Instance::Do(const QString& name)
{
    const std::pair<const char*, void (Instance::*)()> actions[] = {
        {"start", &Instance::StartRequested},
        {"stop", &Instance::StopRequested},
        {"pause", &Instance::PauseRequested},
        {"quit", &Instance::QuitRequested}};
    for (const auto& [known, wanted] : actions) {
        if (name == QLatin1String(known)) {
            Q_EMIT(this->*wanted)();
            return true;
        }
    }
    return false;
}

bool Instance::TakeName()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        return true;
    }
    if (!bus.registerService(m_name)) {
        return false;
    }
    // Another one on a default file, in another configuration folder, may have it.
    if (m_isDefault && !bus.registerService(DesktopEntryName())) {
        LOG(INFO) << "Zentor::Desktop::Instance: name taken; name="
                  << DesktopEntryName().toStdString();
    }
    return true;
}

bool Instance::PassOn(Request request, const QVariantMap& platformData) const
{
    const QDBusMessage answer =
        QDBusConnection::sessionBus().call(CallFor(request, m_name, platformData));
    const bool isAnswered = answer.type() == QDBusMessage::ReplyMessage;
    if (!isAnswered) {
        LOG(INFO) << "Zentor::Desktop::Instance: no answer; name=" << m_name.toStdString()
                  << "; error=" << answer.errorMessage().toStdString();
    }
    return isAnswered;
}

} // namespace Zentor::Desktop
