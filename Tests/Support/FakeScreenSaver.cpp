// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "FakeScreenSaver.h"

namespace Zentor::Tests {
namespace {

const QString Service = QStringLiteral("org.freedesktop.ScreenSaver");
const QString Path = QStringLiteral("/org/freedesktop/ScreenSaver");
const QString ConnectionName = QStringLiteral("fake-screen-saver");

} // namespace

// A connection of its own: what a process calls on its own one does not go over the bus.
FakeScreenSaver::FakeScreenSaver()
    : m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, ConnectionName))
    , m_isRegistered(m_bus.registerObject(Path, this, QDBusConnection::ExportAllSlots)
                     && m_bus.registerService(Service))
{
}

FakeScreenSaver::~FakeScreenSaver()
{
    m_bus.unregisterService(Service);
    m_bus.unregisterObject(Path);
    QDBusConnection::disconnectFromBus(ConnectionName);
}

void FakeScreenSaver::HoldAnswers(bool isHeld)
{
    m_isHoldingAnswers = isHeld;
    if (!isHeld) {
        for (const auto& call : m_heldCalls) {
            m_bus.send(call.createReply(NewCookie()));
        }
        m_heldCalls.clear();
    }
}

uint FakeScreenSaver::Inhibit(const QString& /*application*/, const QString& /*reason*/)
{
    ++m_asked;
    if (m_isRefusing) {
        sendErrorReply(QDBusError::AccessDenied, QStringLiteral("not today"));
        return 0;
    }
    if (m_isHoldingAnswers) {
        setDelayedReply(true);
        m_heldCalls.push_back(message());
        return 0;
    }
    return NewCookie();
}

void FakeScreenSaver::UnInhibit(uint cookie)
{
    m_cookies.removeAll(cookie);
}

uint FakeScreenSaver::NewCookie()
{
    m_cookies << ++m_lastCookie;
    return m_lastCookie;
}

} // namespace Zentor::Tests
