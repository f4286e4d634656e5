// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "System/WallClockTimer.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <system_error>

#include <sys/timerfd.h>
#include <unistd.h>

#include <QSocketNotifier>

#include <glog/logging.h>

namespace Zentor::Schedule {
namespace {

using std::chrono::seconds;

/// The year 2200. Only an armed timer is told that the clock was set.
constexpr Moment Never{seconds(7'258'118'400)};
/// A timer set to 0 would be disarmed.
constexpr Moment Earliest{Length(1)};

int CreateTimer()
{
    const int descriptor = timerfd_create(CLOCK_REALTIME, TFD_NONBLOCK | TFD_CLOEXEC);
    if (descriptor < 0) {
        throw std::system_error(errno, std::generic_category(), "timerfd_create");
    }
    return descriptor;
}

} // namespace

WallClockTimer::WallClockTimer(QObject* parent)
    : QObject(parent)
    , m_descriptor(CreateTimer())
    , m_notifier(new QSocketNotifier(m_descriptor, QSocketNotifier::Read, this))
    , m_deadline(Never)
{
    connect(m_notifier, &QSocketNotifier::activated, this, &WallClockTimer::Read);
    SetTime(Never);
}

WallClockTimer::~WallClockTimer()
{
    delete m_notifier;
    close(m_descriptor);
}

void WallClockTimer::Arm(Moment deadline)
{
    m_deadline = std::clamp(deadline, Earliest, Never);
    SetTime(m_deadline);
}

void WallClockTimer::Disarm()
{
    Arm(Never);
}

void WallClockTimer::SetTime(Moment moment)
{
    const Length sinceEpoch = moment.time_since_epoch();
    const auto whole = std::chrono::duration_cast<seconds>(sinceEpoch);
    const auto rest = std::chrono::duration_cast<std::chrono::nanoseconds>(sinceEpoch - whole);
    itimerspec setting{};
    setting.it_value = {static_cast<time_t>(whole.count()), static_cast<long>(rest.count())};
    constexpr int flags = TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET;
    if (timerfd_settime(m_descriptor, flags, &setting, nullptr) == 0) {
        return;
    }
    if (errno == ECANCELED) {
        // The clock was set and nobody has read so: the timer is armed, but will not say it again.
        QMetaObject::invokeMethod(this, &WallClockTimer::ClockSet, Qt::QueuedConnection);
    } else {
        LOG(ERROR) << "Zentor::Schedule::WallClockTimer::SetTime: error=" << std::strerror(errno);
    }
}

void WallClockTimer::Read()
{
    std::uint64_t expirations = 0;
    const auto count = read(m_descriptor, &expirations, sizeof expirations);
    if (count < 0 && errno == ECANCELED) {
        // An expiration that had not been read yet is lost with it; a past deadline expires anew.
        SetTime(m_deadline);
        Q_EMIT ClockSet();
    } else if (count > 0 && m_deadline != Never) {
        Disarm();
        Q_EMIT Reached();
    }
}

} // namespace Zentor::Schedule
