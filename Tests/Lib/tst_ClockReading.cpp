// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <limits>

#include "ClockReading.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

using namespace PX::Scheduler::UI;
using std::chrono::microseconds;

class tst_ClockReading : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void convertsToADuration_data()
    {
        QTest::addColumn<QTime>("time");
        QTest::addColumn<qint64>("expected");
        QTest::newRow("invalid") << QTime() << qint64(0);
        QTest::newRow("zero") << QTime(0, 0) << qint64(0);
        QTest::newRow("a millisecond") << QTime(0, 0, 0, 1) << qint64(1000);
        QTest::newRow("minimum") << QTime(0, 0, 5) << qint64(5000000);
        QTest::newRow("longest shown") << QTime(23, 59, 59) << qint64(86399000000);
        QTest::newRow("longest") << QTime(23, 59, 59, 999) << qint64(86399999000);
    }

    void convertsToADuration()
    {
        QFETCH(QTime, time);
        QTEST(qint64(DurationOf(time).count()), "expected");
    }

    void convertsToAClockReading_data()
    {
        QTest::addColumn<qint64>("duration");
        QTest::addColumn<QTime>("expected");
        const qint64 day = 86400000000;
        QTest::newRow("zero") << qint64(0) << QTime(0, 0);
        QTest::newRow("cut to zero") << qint64(999) << QTime(0, 0);
        QTest::newRow("cut up to zero") << qint64(-999) << QTime(0, 0);
        QTest::newRow("negative") << qint64(-1000) << QTime();
        QTest::newRow("minimum") << qint64(5000000) << QTime(0, 0, 5);
        QTest::newRow("longest") << day - 1 << QTime(23, 59, 59, 999);
        QTest::newRow("a day") << day << QTime();
        QTest::newRow("narrowed to five seconds") << (qint64(1) << 32) * 1000 + 5000000 << QTime();
        QTest::newRow("largest") << std::numeric_limits<qint64>::max() << QTime();
        QTest::newRow("smallest") << std::numeric_limits<qint64>::min() << QTime();
    }

    void convertsToAClockReading()
    {
        QFETCH(qint64, duration);
        QTEST(ClockReadingOf(microseconds(duration)), "expected");
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_ClockReading)

#include "tst_ClockReading.moc"
