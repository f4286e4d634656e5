// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "SoundServer.h"

#include <QElapsedTimer>
#include <QtTest>

namespace Zentor::Tests {
namespace {

template <typename Condition> bool Becomes(Condition condition)
{
    QElapsedTimer timer;
    timer.start();
    constexpr int millisecondsBetweenLooks = 50;
    while (!condition()) {
        if (timer.elapsed() > Patience) {
            return false;
        }
        QTest::qSleep(millisecondsBetweenLooks);
    }
    return true;
}

} // namespace

SoundServer::SoundServer(Surroundings& surroundings)
    : m_surroundings(surroundings)
{
    const QString bus = surroundings.Path("bus");
    surroundings.Set("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + bus);
    surroundings.Set("PIPEWIRE_RUNTIME_DIR", surroundings.Path({}));
    surroundings.Start("dbus-daemon", {"--session", "--nofork", "--address=unix:path=" + bus});
    // A socket is there a moment before it is listened to, and who comes then gives up for good.
    m_isRunning = Becomes([&] {
        return surroundings
            .Run("dbus-send",
                 {"--session", "--print-reply", "--dest=org.freedesktop.DBus", "/",
                  "org.freedesktop.DBus.GetId"})
            .contains("string");
    });
    surroundings.Start("pipewire", {});
    m_isRunning = m_isRunning && Becomes([&] {
                      return surroundings.Run("pw-cli", {"info", "0"}).contains("id: 0");
                  });
    surroundings.Start("wireplumber", {});
    surroundings.Start("pipewire-pulse", {});
    m_isRunning = m_isRunning
        && Becomes([&] { return surroundings.Run("pactl", {"info"}).contains("Server Name"); });
}

bool SoundServer::WaitFor(const QString& device) const
{
    return Becomes([&] {
        return m_surroundings.Run("pactl", {"list", "short", "sources"}).contains(device.toUtf8());
    });
}

void SoundServer::AddOutput(const QString& name)
{
    m_surroundings.Run("pactl", {"load-module", "module-null-sink", "sink_name=" + name});
    m_isRunning = m_isRunning && WaitFor(name + ".monitor");
}

QString SoundServer::AddMicrophone(const QString& name)
{
    const QByteArray number =
        m_surroundings.Run("pactl",
                           {"load-module", "module-null-sink", "sink_name=" + name,
                            "media.class=Audio/Source/Virtual"});
    m_isRunning = m_isRunning && WaitFor(name);
    return QString::fromUtf8(number.trimmed());
}

void SoundServer::Remove(const QString& number)
{
    m_surroundings.Run("pactl", {"unload-module", number});
}

void SoundServer::PlayTone(const QString& output)
{
    m_surroundings.Start(
        "gst-launch-1.0",
        {"-q", "audiotestsrc", "is-live=true", "volume=0.5", "!", "pulsesink", "device=" + output});
    m_isRunning = m_isRunning && Becomes([&] {
                      return !m_surroundings.Run("pactl", {"list", "short", "sink-inputs"})
                                  .trimmed()
                                  .isEmpty();
                  });
}

} // namespace Zentor::Tests
