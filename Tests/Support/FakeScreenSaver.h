// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QObject>
#include <QStringList>

namespace Zentor::Tests {

/// A desktop's screen saver on the session bus, as long as it lives.
class FakeScreenSaver final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.ScreenSaver")

public:
    FakeScreenSaver();
    ~FakeScreenSaver() override;

    /// Whether it could take its place on the bus.
    bool IsRegistered() const { return m_isRegistered; }

    /// Has calls of Inhibit() fail.
    void Refuse() { m_isRefusing = true; }
    /// Has calls of Inhibit() wait until it is called with false.
    void HoldAnswers(bool isHeld);

    /// How often Inhibit() has been called.
    int Asked() const { return m_asked; }
    /// How many inhibit it now.
    int Held() const { return static_cast<int>(m_cookies.size()); }

public Q_SLOTS:
    uint Inhibit(const QString& application, const QString& reason);
    void UnInhibit(uint cookie);

private:
    uint NewCookie();

    QDBusConnection m_bus;
    bool m_isRefusing = false;
    bool m_isHoldingAnswers = false;
    std::vector<QDBusMessage> m_heldCalls;
    int m_asked = 0;
    uint m_lastCookie = 0;
    QList<uint> m_cookies;
    bool m_isRegistered;
};

} // namespace Zentor::Tests
