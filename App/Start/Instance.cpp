#include "Instance.h"

#include <QCryptographicHash>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDir>
#include <QFileInfo>

#include <glog/logging.h>

#include "ApplicationAdaptor.h"

namespace Zentor::Desktop {
namespace {

/// The name of the desktop entry.
QString DesktopName()
{
    return QStringLiteral("org.zentor.PxScheduler");
}

QString ObjectPath()
{
    return QStringLiteral("/org/zentor/PxScheduler");
}

QString Interface()
{
    return QStringLiteral("org.freedesktop.Application");
}

/// The path of \a file without symbolic links, also while it does not exist.
QString RealPath(const QString& file)
{
    QFileInfo info(QFileInfo(file).absoluteFilePath());
    constexpr int mostLinks = 40;
    for (int links = 0; info.isSymLink() && !info.exists() && links < mostLinks; ++links) {
        info.setFile(info.symLinkTarget());
    }
    if (info.exists()) {
        return info.canonicalFilePath();
    }
    return info.isRoot() ? info.filePath() : QDir(RealPath(info.path())).filePath(info.fileName());
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
    for (const QString& name : {m_name, DesktopName()}) {
        bus.unregisterService(name);
    }
    bus.unregisterObject(ObjectPath());
}

QString Instance::BusName(const QString& settingsFile)
{
    const QByteArray hash = QCryptographicHash::hash(QFile::encodeName(RealPath(settingsFile)),
                                                     QCryptographicHash::Sha256);
    // No part of a bus name starts with a digit.
    return QStringLiteral("%1.File%2").arg(DesktopName(), QString::fromLatin1(hash.toHex()));
}

bool Instance::IsFirst(const QVariantMap& platformData)
{
    // One that is just ending gives way.
    return TakeName()
        || (!ActivateFirst(platformData) && (TakeName() || !ActivateFirst(platformData)));
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
    if (m_isDefault && !bus.registerService(DesktopName())) {
        LOG(INFO) << "Zentor::Desktop::Instance: name taken; name=" << DesktopName().toStdString();
    }
    return true;
}

bool Instance::ActivateFirst(const QVariantMap& platformData) const
{
    auto call = QDBusMessage::createMethodCall(m_name, ObjectPath(), Interface(),
                                               QStringLiteral("Activate"));
    call << platformData;
    const QDBusMessage answer = QDBusConnection::sessionBus().call(call);
    const bool isAnswered = answer.type() == QDBusMessage::ReplyMessage;
    if (!isAnswered) {
        LOG(INFO) << "Zentor::Desktop::Instance: no answer; name=" << m_name.toStdString()
                  << "; error=" << answer.errorMessage().toStdString();
    }
    return isAnswered;
}

} // namespace Zentor::Desktop
