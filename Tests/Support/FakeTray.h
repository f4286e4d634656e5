// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusConnection>
#include <QObject>

namespace Zentor::Tests {

/// A desktop's registry of trays on the session bus, as long as it lives.
class FakeTray final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ HasHost)

public:
    /// \a hasHost says whether there is a tray at first.
    explicit FakeTray(bool hasHost);
    ~FakeTray() override;

    /// Whether it could take its place on the bus.
    bool IsRegistered() const { return m_isRegistered; }

    bool HasHost() const { return m_hasHost; }

    /// The tray comes or goes.
    void SetHasHost(bool hasHost);

Q_SIGNALS:
    void StatusNotifierHostRegistered();
    void StatusNotifierHostUnregistered();

private:
    QDBusConnection m_bus = QDBusConnection::sessionBus();
    bool m_hasHost;
    bool m_isRegistered;
};

} // namespace Zentor::Tests
