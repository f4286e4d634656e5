// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "ApplicationAdaptor.h"

#include <QDBusConnection>

#include "Instance.h"

namespace Zentor::Desktop {

ApplicationAdaptor::ApplicationAdaptor(Instance* instance)
    : QDBusAbstractAdaptor(instance)
    , m_instance(instance)
{
}

ApplicationAdaptor::~ApplicationAdaptor() = default;

void ApplicationAdaptor::Activate(const QVariantMap& platformData)
{
    Q_EMIT m_instance->Activated(platformData);
}

void ApplicationAdaptor::Open(const QStringList& /*uris*/, const QVariantMap& platformData)
{
    Activate(platformData);
}

void ApplicationAdaptor::ActivateAction(const QString& name, const QVariantList& /*parameters*/,
                                        const QVariantMap& /*platformData*/,
                                        const QDBusMessage& message)
{
    if (m_instance->Do(name)) {
        return;
    }
    message.setDelayedReply(true);
    QDBusConnection::sessionBus().send(message.createErrorReply(
        QDBusError::InvalidArgs, QStringLiteral("There is no action \"%1\"").arg(name)));
}

} // namespace Zentor::Desktop
