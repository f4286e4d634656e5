// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "FakePortal.h"

namespace Zentor::Tests {
namespace {

QString Service()
{
    return QStringLiteral("org.freedesktop.portal.Desktop");
}

QString Path()
{
    return QStringLiteral("/org/freedesktop/portal/desktop");
}

} // namespace

FakePortal::FakePortal(unsigned preference)
    : m_preference(preference)
    , m_isRegistered(
          m_bus.registerObject(Path(), this,
                               QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals)
          && m_bus.registerService(Service()))
{
}

FakePortal::~FakePortal()
{
    m_bus.unregisterService(Service());
    m_bus.unregisterObject(Path());
}

void FakePortal::Prefer(unsigned preference)
{
    m_preference = preference;
    Q_EMIT SettingChanged(QStringLiteral("org.freedesktop.appearance"),
                          QStringLiteral("color-scheme"), QDBusVariant(preference));
}

QDBusVariant FakePortal::Read(const QString& group, const QString& key)
{
    if (group != QLatin1String("org.freedesktop.appearance")
        || key != QLatin1String("color-scheme")) {
        return QDBusVariant(QString());
    }
    // Portals wrap what they are asked for twice, but not what they announce.
    return QDBusVariant(QVariant::fromValue(QDBusVariant(m_preference)));
}

} // namespace Zentor::Tests
