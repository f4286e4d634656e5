// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RecordedTime.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

using Capture::RecordedTime;

class tst_RecordedTime : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void isEmptyBeforeTheBegin()
    {
        const RecordedTime time;
        QVERIFY(time.Spans().empty());
        QCOMPARE(time.MomentOf(0), GST_CLOCK_TIME_NONE);
        QCOMPARE(time.PositionAt(100), GstClockTime(0));
    }

    void countsFromTheBegin()
    {
        RecordedTime time;
        time.Begin(1000);
        QCOMPARE(time.MomentOf(0), GstClockTime(1000));
        QCOMPARE(time.MomentOf(50), GstClockTime(1050));
        QCOMPARE(time.PositionAt(999), GstClockTime(0));
        QCOMPARE(time.PositionAt(1050), GstClockTime(50));
    }

    void leavesPausesOut()
    {
        RecordedTime time;
        time.Begin(1000);
        time.Pause(1100);
        QCOMPARE(time.MomentOf(100), GST_CLOCK_TIME_NONE);
        QCOMPARE(time.PositionAt(5000), GstClockTime(100));
        time.Resume(1500);
        QCOMPARE(time.MomentOf(100), GstClockTime(1500));
        QCOMPARE(time.PositionAt(1520), GstClockTime(120));
        QCOMPARE(time.Spans().size(), std::size_t(2));
    }

    void doesNotCountAPauseTwice()
    {
        RecordedTime time;
        time.Begin(1000);
        time.Pause(1100);
        time.Pause(1200);
        time.Resume(1300);
        time.Resume(1400);
        QCOMPARE(time.PositionAt(1310), GstClockTime(110));
    }

    /// The recording was to begin later than it was paused.
    void canBePausedBeforeItBegins()
    {
        RecordedTime time;
        time.Begin(1000);
        time.Pause(900);
        time.Resume(1200);
        QCOMPARE(time.PositionAt(1250), GstClockTime(50));
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_RecordedTime)
#include "tst_RecordedTime.moc"
