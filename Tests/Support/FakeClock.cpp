// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "FakeClock.h"

#include <ctime>
#include <sys/time.h>

namespace Zentor::Tests {
namespace {

constexpr qint64 RealTime = -1;
qint64 s_millisecondsSinceEpoch = RealTime;

void SetZone(const QByteArray& zone)
{
    qputenv("TZ", zone);
    tzset();
}

} // namespace

FakeClock::~FakeClock()
{
    s_millisecondsSinceEpoch = RealTime;
}

void FakeClock::Set(const QDateTime& now)
{
    Q_ASSERT(now.isValid());
    s_millisecondsSinceEpoch = now.toMSecsSinceEpoch();
}

void FakeClock::Advance(qint64 milliseconds)
{
    s_millisecondsSinceEpoch += milliseconds;
}

ZoneChange::ZoneChange(const QByteArray& zone)
    : m_zoneBefore(qgetenv("TZ"))
{
    SetZone(zone);
}

ZoneChange::~ZoneChange()
{
    SetZone(m_zoneBefore);
}

} // namespace Zentor::Tests

// Shared libraries find this definition before the one of the C library.
extern "C" Q_DECL_EXPORT int gettimeofday(timeval* now, void* /*zone*/) noexcept
{
    using namespace Zentor::Tests;
    if (s_millisecondsSinceEpoch == RealTime) {
        timespec real{};
        clock_gettime(CLOCK_REALTIME, &real);
        now->tv_sec = real.tv_sec;
        now->tv_usec = real.tv_nsec / 1000;
    } else {
        now->tv_sec = s_millisecondsSinceEpoch / 1000;
        now->tv_usec = s_millisecondsSinceEpoch % 1000 * 1000;
    }
    return 0;
}
