// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "FakeTray.h"

namespace Zentor::Tests {
namespace {

QString Service()
{
    return QStringLiteral("org.kde.StatusNotifierWatcher");
}

QString Path()
{
    return QStringLiteral("/StatusNotifierWatcher");
}

} // namespace

FakeTray::FakeTray(bool hasHost)
    : m_hasHost(hasHost)
    , m_isRegistered(m_bus.registerObject(Path(), this,
                                          QDBusConnection::ExportAllProperties
                                              | QDBusConnection::ExportAllSignals)
                     && m_bus.registerService(Service()))
{
}

FakeTray::~FakeTray()
{
    m_bus.unregisterService(Service());
    m_bus.unregisterObject(Path());
}

void FakeTray::SetHasHost(bool hasHost)
{
    m_hasHost = hasHost;
    if (hasHost) {
        Q_EMIT StatusNotifierHostRegistered();
    } else {
        Q_EMIT StatusNotifierHostUnregistered();
    }
}

} // namespace Zentor::Tests
