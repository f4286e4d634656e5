// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "HostInterfaces.h"
#include "WidgetTest.h"

using namespace Zentor;

class tst_SystemClock : public Tests::WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void fromTimeT_data()
    {
        QTest::addColumn<qint64>("seconds");
        QTest::addColumn<qint64>("microseconds");
        QTest::newRow("epoch") << qint64(0) << qint64(0);
        QTest::newRow("one second") << qint64(1) << qint64(1000000);
        QTest::newRow("before the epoch") << qint64(-1) << qint64(-1000000);
        QTest::newRow("most of 32 bits") << qint64(0xffffffff) << qint64(4294967295000000);
        constexpr qint64 last = std::numeric_limits<qint64>::max() / 1000000;
        QTest::newRow("last second") << last << last * 1000000;
        QTest::newRow("after the last second") << last + 1 << last * 1000000;
        QTest::newRow("end of time") << std::numeric_limits<qint64>::max() << last * 1000000;
        QTest::newRow("start of time") << std::numeric_limits<qint64>::min() << -last * 1000000;
    }

    void fromTimeT()
    {
        QFETCH(qint64, seconds);
        const auto point = Time::SystemClock().FromTimeT(seconds);
        QTEST(qint64(point.time_since_epoch().count()), "microseconds");
    }

    void nowIsTheSystemsTime()
    {
        const qint64 before = QDateTime::currentMSecsSinceEpoch();
        const auto now = Time::SystemClock().Now().time_since_epoch();
        const qint64 after = QDateTime::currentMSecsSinceEpoch();
        const auto milliseconds =
            std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
        QVERIFY(before <= milliseconds && milliseconds <= after);
    }
};

SCHEDULER_TEST_MAIN(tst_SystemClock)
#include "tst_SystemClock.moc"
