// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QDateTime>

namespace Zentor::Tests {

/// The wall clock of the process, standing still at a chosen moment; without one it is the real
/// clock. Timers go on by real time.
///
/// Works in an executable that FakeClock.cpp is compiled into: Qt reads the clock through a
/// function of the C library that is defined there anew.
class FakeClock {
public:
    explicit FakeClock(const QDateTime& now) { Set(now); }
    ~FakeClock();
    FakeClock(const FakeClock&) = delete;
    FakeClock& operator=(const FakeClock&) = delete;

    void Set(const QDateTime& now);
    void Advance(qint64 milliseconds);
};

/// Puts the process into another time zone, and back when it goes out of scope.
class ZoneChange {
public:
    explicit ZoneChange(const QByteArray& zone);
    ~ZoneChange();
    ZoneChange(const ZoneChange&) = delete;
    ZoneChange& operator=(const ZoneChange&) = delete;

private:
    QByteArray m_zoneBefore;
};

} // namespace Zentor::Tests
