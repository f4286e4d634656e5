// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "LevelSession.h"

#include <algorithm>
#include <cmath>

#include <poll.h>
#include <unistd.h>

#include "Protocol.h"
#include "SoundDevices.h"

namespace Zentor::Capture {
namespace {

constexpr int MillisecondsBetweenLines = 100;
constexpr int MillisecondsBetweenLooks = 2000;

/// Whether nobody reads any more what is written to \a descriptor.
bool IsReaderGone(int descriptor)
{
    pollfd state{descriptor, 0, 0};
    return poll(&state, 1, 0) > 0 && (state.revents & POLLERR) != 0;
}

double RoundedToTenth(double decibels)
{
    constexpr double tenths = 10;
    return std::round(decibels * tenths) / tenths;
}

} // namespace

LevelSession::LevelSession(const QStringList& devices)
    : m_channel(STDIN_FILENO, STDOUT_FILENO)
{
    for (const auto& device : devices) {
        m_meters.push_back(std::make_unique<LevelMeter>(device));
    }
    connect(&m_channel, &LineChannel::Ended, this, &LevelSession::Ended);
    connect(&m_signals, &StopSignals::Received, this, &LevelSession::Ended);
    connect(&m_sendTimer, &QTimer::timeout, this, &LevelSession::Send);
    connect(&m_openTimer, &QTimer::timeout, this, &LevelSession::OpenDevices);
    m_sendTimer.start(MillisecondsBetweenLines);
    m_openTimer.start(MillisecondsBetweenLooks);
    OpenDevices();
}

void LevelSession::OpenDevices()
{
    const auto isOpen = [](const auto& meter) { return meter->Input().IsOpen(); };
    if (std::all_of(m_meters.begin(), m_meters.end(), isOpen)) {
        return;
    }
    const QStringList present = CurrentSoundDevices().value_or(QStringList());
    for (const auto& meter : m_meters) {
        if (!isOpen(meter) && present.contains(meter->Input().Device())) {
            meter->Input().Open();
        }
    }
}

void LevelSession::Send()
{
    if (IsReaderGone(STDOUT_FILENO)) {
        Q_EMIT Ended();
        return;
    }
    QJsonObject peaks;
    for (const auto& meter : m_meters) {
        if (meter->Input().IsOpen()) {
            peaks.insert(meter->Input().Device(), RoundedToTenth(meter->TakePeak()));
        }
    }
    m_channel.Send({{QStringLiteral("event"), Event::Levels}, {QStringLiteral("peaks"), peaks}});
}

} // namespace Zentor::Capture
