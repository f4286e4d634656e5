// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>

namespace Zentor::Tests {

/// A desktop's settings portal on the session bus, as long as it lives.
class FakePortal final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    /// \a preference is the answer at first: 0 for none, 1 for dark, 2 for light.
    explicit FakePortal(unsigned preference);
    ~FakePortal() override;

    /// Whether it could take its place on the bus.
    bool IsRegistered() const { return m_isRegistered; }

    /// The user of the desktop changes the preference.
    void Prefer(unsigned preference);

public Q_SLOTS:
    QDBusVariant Read(const QString& group, const QString& key);

Q_SIGNALS:
    void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    QDBusConnection m_bus = QDBusConnection::sessionBus();
    unsigned m_preference;
    bool m_isRegistered;
};

} // namespace Zentor::Tests
