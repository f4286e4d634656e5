// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "System/WallClockTimer.h"

#include <cerrno>

#include <sys/timex.h>

#include <QSignalSpy>

#include "System/MachineClock.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

using namespace std::chrono_literals;

using Schedule::Length;
using Schedule::Moment;
using Schedule::WallClockTimer;

Moment Now()
{
    return Schedule::MachineClock().Now().wall;
}

/// Sets the wall clock forward by a nanosecond. Whether that is allowed.
bool StepClock()
{
    timex step{};
    step.modes = ADJ_SETOFFSET | ADJ_NANO;
    step.time.tv_usec = 1;
    return clock_adjtime(CLOCK_REALTIME, &step) >= 0;
}

} // namespace

class tst_WallClockTimer : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void reachesTheDeadline();
    void reachesAPastDeadlineFromTheEventLoop_data();
    void reachesAPastDeadlineFromTheEventLoop();
    void replacesTheDeadline();
    void staysSilentWhenDisarmed();
    void tellsThatTheClockWasSet_data();
    void tellsThatTheClockWasSet();
    void reachesADeadlineThatTheClockWasSetBeyond();
    void tellsOfAStepBeforeItIsArmed();
};

void tst_WallClockTimer::reachesTheDeadline()
{
    WallClockTimer timer;
    const QSignalSpy reached(&timer, &WallClockTimer::Reached);
    const Moment deadline = Now() + 50ms;
    timer.Arm(deadline);
    QTRY_COMPARE_WITH_TIMEOUT(reached.count(), 1, Patience);
    QVERIFY(Now() >= deadline);
    // It is over then: what comes next is a timer of its own.
    timer.Arm(Now() + 20ms);
    QTRY_COMPARE_WITH_TIMEOUT(reached.count(), 2, Patience);
}

void tst_WallClockTimer::reachesAPastDeadlineFromTheEventLoop_data()
{
    QTest::addColumn<qint64>("microseconds");
    QTest::newRow("a second ago") << qint64((Now() - 1s).time_since_epoch().count());
    QTest::newRow("1970") << qint64(0);
    QTest::newRow("before 1970") << qint64(-1);
    QTest::newRow("the earliest") << qint64(Moment::min().time_since_epoch().count());
}

void tst_WallClockTimer::reachesAPastDeadlineFromTheEventLoop()
{
    QFETCH(qint64, microseconds);
    WallClockTimer timer;
    const QSignalSpy reached(&timer, &WallClockTimer::Reached);
    timer.Arm(Moment(Length(microseconds)));
    QCOMPARE(reached.count(), 0);
    QTRY_COMPARE_WITH_TIMEOUT(reached.count(), 1, Patience);
}

void tst_WallClockTimer::replacesTheDeadline()
{
    WallClockTimer timer;
    const QSignalSpy reached(&timer, &WallClockTimer::Reached);
    timer.Arm(Now() - 1s);
    timer.Arm(Moment::max());
    WallClockTimer other;
    const QSignalSpy otherReached(&other, &WallClockTimer::Reached);
    other.Arm(Now() + 20ms);
    QTRY_COMPARE_WITH_TIMEOUT(otherReached.count(), 1, Patience);
    QCOMPARE(reached.count(), 0);
    timer.Arm(Now());
    QTRY_COMPARE_WITH_TIMEOUT(reached.count(), 1, Patience);
}

void tst_WallClockTimer::staysSilentWhenDisarmed()
{
    WallClockTimer timer;
    const QSignalSpy reached(&timer, &WallClockTimer::Reached);
    timer.Arm(Now() + 1ms);
    timer.Disarm();
    WallClockTimer other;
    const QSignalSpy otherReached(&other, &WallClockTimer::Reached);
    other.Arm(Now() + 20ms);
    QTRY_COMPARE_WITH_TIMEOUT(otherReached.count(), 1, Patience);
    QCOMPARE(reached.count(), 0);
}

void tst_WallClockTimer::tellsThatTheClockWasSet_data()
{
    QTest::addColumn<bool>("isArmed");
    QTest::newRow("with a deadline") << true;
    QTest::newRow("without") << false;
}

void tst_WallClockTimer::tellsThatTheClockWasSet()
{
    QFETCH(bool, isArmed);
    WallClockTimer timer;
    const QSignalSpy reached(&timer, &WallClockTimer::Reached);
    const QSignalSpy clockSet(&timer, &WallClockTimer::ClockSet);
    if (isArmed) {
        timer.Arm(Now() + 1h);
    }
    if (!StepClock()) {
        QSKIP("the clock cannot be set here");
    }
    // Not exactly: other programs may set it, too.
    QTRY_VERIFY_WITH_TIMEOUT(clockSet.count() >= 1, Patience);
    QCOMPARE(reached.count(), 0);
    const auto before = clockSet.count();
    QVERIFY(StepClock());
    QTRY_VERIFY_WITH_TIMEOUT(clockSet.count() > before, Patience);
}

void tst_WallClockTimer::reachesADeadlineThatTheClockWasSetBeyond()
{
    WallClockTimer timer;
    const QSignalSpy reached(&timer, &WallClockTimer::Reached);
    const QSignalSpy clockSet(&timer, &WallClockTimer::ClockSet);
    timer.Arm(Now() - 1s);
    if (!StepClock()) {
        QSKIP("the clock cannot be set here");
    }
    QTRY_COMPARE_WITH_TIMEOUT(reached.count(), 1, Patience);
    QVERIFY(clockSet.count() >= 1);
}

void tst_WallClockTimer::tellsOfAStepBeforeItIsArmed()
{
    WallClockTimer timer;
    const QSignalSpy reached(&timer, &WallClockTimer::Reached);
    const QSignalSpy clockSet(&timer, &WallClockTimer::ClockSet);
    if (!StepClock()) {
        QSKIP("the clock cannot be set here");
    }
    timer.Arm(Now() + 1h);
    QCOMPARE(clockSet.count(), 0);
    QTRY_VERIFY_WITH_TIMEOUT(clockSet.count() >= 1, Patience);
    QCOMPARE(reached.count(), 0);
}

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_WallClockTimer)

#include "tst_WallClockTimer.moc"
