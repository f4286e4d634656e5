// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusMessage>
#include <QStringList>
#include <QVariantMap>

namespace Zentor::Desktop {

class Instance;

/// Interface "org.freedesktop.Application" of an instance.
class ApplicationAdaptor final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit ApplicationAdaptor(Instance* instance);
    ~ApplicationAdaptor() override;

public Q_SLOTS:
    void Activate(const QVariantMap& platformData);
    /// The program opens no files; its window is shown.
    void Open(const QStringList& uris, const QVariantMap& platformData);
    /// Answers with an error when \a name is none of those that Instance sends a signal for.
    void ActivateAction(const QString& name, const QVariantList& parameters,
                        const QVariantMap& platformData, const QDBusMessage& message);

private:
    Instance* m_instance;
};

} // namespace Zentor::Desktop
