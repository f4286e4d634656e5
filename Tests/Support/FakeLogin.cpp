// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "FakeLogin.h"

#include <array>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace Zentor::Tests {
namespace {

const QString Service = QStringLiteral("org.freedesktop.login1");
const QString Path = QStringLiteral("/org/freedesktop/login1");
const QString ConnectionName = QStringLiteral("fake-login");

} // namespace

// A connection of its own: what a process calls on its own one does not go over the bus.
FakeLogin::FakeLogin()
    : m_bus(QDBusConnection::connectToBus(QDBusConnection::SystemBus, ConnectionName))
    , m_isRegistered(
          m_bus.registerObject(Path, this,
                               QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals)
          && m_bus.registerService(Service))
{
}

FakeLogin::~FakeLogin()
{
    m_bus.unregisterService(Service);
    m_bus.unregisterObject(Path);
    for (const auto& lock : m_locks) {
        close(lock.descriptor);
    }
    QDBusConnection::disconnectFromBus(ConnectionName);
}

void FakeLogin::UseSessionBus()
{
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", qgetenv("DBUS_SESSION_BUS_ADDRESS"));
}

void FakeLogin::HoldAnswers(bool isHeld)
{
    m_isHoldingAnswers = isHeld;
    if (!isHeld) {
        for (const auto& [message, text] : m_heldCalls) {
            m_bus.send(message.createReply(QVariant::fromValue(NewLock(text))));
        }
        m_heldCalls.clear();
    }
}

QStringList FakeLogin::Held() const
{
    QStringList held;
    for (const auto& lock : m_locks) {
        pollfd state{lock.descriptor, POLLIN, 0};
        poll(&state, 1, 0);
        if ((state.revents & POLLHUP) == 0) {
            held << lock.text;
        }
    }
    return held;
}

QDBusUnixFileDescriptor FakeLogin::Inhibit(const QString& what, const QString& who,
                                           const QString& /*why*/, const QString& mode)
{
    m_calls << QStringLiteral("Inhibit(%1)").arg(what);
    if (IsRefused(QStringLiteral("Inhibit"))) {
        return {};
    }
    const QString text = QStringLiteral("%1 by %2, %3").arg(what, who, mode);
    if (m_isHoldingAnswers) {
        setDelayedReply(true);
        m_heldCalls.emplace_back(message(), text);
        return {};
    }
    return NewLock(text);
}

QString FakeLogin::AnswerTo(const QString& method)
{
    m_calls << method;
    IsRefused(method);
    const auto found = m_answers.find(method);
    return found == m_answers.end() ? QStringLiteral("yes") : found->second;
}

void FakeLogin::Perform(const QString& method, bool isInteractive)
{
    m_calls << QStringLiteral("%1(%2)").arg(method, QVariant(isInteractive).toString());
    IsRefused(method);
}

bool FakeLogin::IsRefused(const QString& method)
{
    const auto found = m_refusals.find(method);
    if (found == m_refusals.end()) {
        return false;
    }
    sendErrorReply(QDBusError::AccessDenied, found->second);
    return true;
}

QDBusUnixFileDescriptor FakeLogin::NewLock(const QString& text)
{
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) {
        return {};
    }
    m_locks.push_back({text, ends[0]});
    QDBusUnixFileDescriptor given(ends[1]);
    close(ends[1]);
    return given;
}

} // namespace Zentor::Tests
