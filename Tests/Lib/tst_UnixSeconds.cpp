// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <limits>

#include "UnixSeconds.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

using namespace PX::Scheduler::UI;

class tst_UnixSeconds : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void countsFrom1970_data()
    {
        QTest::addColumn<qint64>("milliseconds");
        QTest::addColumn<quint32>("expected");
        const qint64 last = 4294967294;
        QTest::newRow("1970") << qint64(0) << quint32(0);
        QTest::newRow("cut to zero") << qint64(999) << quint32(0);
        QTest::newRow("a second") << qint64(1000) << quint32(1);
        QTest::newRow("cut up to zero") << qint64(-999) << quint32(0);
        QTest::newRow("a second before 1970") << qint64(-1000) << NoUnixSeconds;
        QTest::newRow("the year 1969") << qint64(-86400000) << NoUnixSeconds;
        QTest::newRow("last signed") << qint64(2147483647000) << quint32(2147483647);
        QTest::newRow("first unsigned") << qint64(2147483648000) << quint32(2147483648);
        QTest::newRow("last") << last * 1000 + 999 << quint32(last);
        QTest::newRow("after the last") << last * 1000 + 1000 << NoUnixSeconds;
        QTest::newRow("a second later") << last * 1000 + 2000 << NoUnixSeconds;
        QTest::newRow("2^32 more than zero") << qint64(4294967296000) << NoUnixSeconds;
        QTest::newRow("largest") << std::numeric_limits<qint64>::max() << NoUnixSeconds;
        QTest::newRow("smallest") << std::numeric_limits<qint64>::min() << NoUnixSeconds;
    }

    void countsFrom1970()
    {
        QFETCH(qint64, milliseconds);
        QFETCH(quint32, expected);
        QCOMPARE(UnixSecondsOf(QDateTime::fromMSecsSinceEpoch(milliseconds, Qt::UTC)), expected);
    }

    void countsInUtc_data()
    {
        QTest::addColumn<QDateTime>("moment");
        QTest::addColumn<quint32>("expected");
        const QDate day(2026, 7, 1);
        const quint32 noon = 1782907200;
        QTest::newRow("UTC") << QDateTime(day, QTime(12, 0), Qt::UTC) << noon;
        QTest::newRow("local") << QDateTime(day, QTime(12, 0), Qt::UTC).toLocalTime() << noon;
        QTest::newRow("two hours ahead")
            << QDateTime(day, QTime(14, 0), Qt::OffsetFromUTC, 7200) << noon;
        QTest::newRow("invalid") << QDateTime() << NoUnixSeconds;
        QTest::newRow("no date") << QDateTime(QDate(), QTime(12, 0)) << NoUnixSeconds;
    }

    void countsInUtc()
    {
        QFETCH(QDateTime, moment);
        QTEST(UnixSecondsOf(moment), "expected");
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_UnixSeconds)

#include "tst_UnixSeconds.moc"
