// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QRandomGenerator>

#include "HostInterfaces.h"
#include "Samples.h"
#include "WidgetTest.h"

using namespace Zentor;
using namespace Zentor::Tests;
using namespace std::chrono_literals;

namespace {

constexpr auto Longest = std::chrono::microseconds::max();

QStringList Titles(const PX::SchedulerHelper& schedule)
{
    QStringList titles;
    const auto records = schedule.GetPreparedSchedule();
    for (const auto& record : records) {
        titles << record.title;
    }
    return titles;
}

/// A schedule that does everything the plain way.
class PlainSchedule {
public:
    int Add(const PX::RecordTime& record)
    {
        if (HasTitle(record.title) || Overlaps(record)) {
            return -1;
        }
        m_records.push_back(record);
        std::sort(m_records.begin(), m_records.end(),
                  [](const auto& left, const auto& right) { return Key(left) < Key(right); });
        const auto isIt = [&](const auto& other) { return other.title == record.title; };
        return static_cast<int>(std::find_if(m_records.begin(), m_records.end(), isIt)
                                - m_records.begin());
    }

    void Remove(const QString& title)
    {
        const auto isIt = [&](const auto& record) { return record.title == title; };
        m_records.erase(std::remove_if(m_records.begin(), m_records.end(), isIt), m_records.end());
    }

    bool HasTitle(const QString& title) const
    {
        return std::any_of(m_records.begin(), m_records.end(),
                           [&](const auto& record) { return record.title == title; });
    }

    bool Overlaps(const PX::RecordTime& record) const
    {
        return std::any_of(m_records.begin(), m_records.end(), [&](const auto& other) {
            return record.start < other.start + other.duration
                && other.start < record.start + record.duration;
        });
    }

    QStringList Titles() const
    {
        QStringList titles;
        for (const auto& record : m_records) {
            titles << record.title;
        }
        return titles;
    }

private:
    static std::tuple<Time::IClock::time_point, std::chrono::microseconds, QString>
    Key(const PX::RecordTime& record)
    {
        return {record.start, record.duration, record.title};
    }

    std::vector<PX::RecordTime> m_records;
};

} // namespace

class tst_SchedulerHelper : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void startsEmpty()
    {
        const PX::SchedulerHelper schedule;
        QCOMPARE(schedule.GetRecordCount(), std::uint64_t(0));
        QVERIFY(schedule.GetPreparedSchedule().empty());
        QVERIFY(!schedule.DoesTitleAlreadyExists({}));
        QVERIFY(!schedule.DoesCaptureTimeIntersected(Record("", "12:00", 1h)));
    }

    void keepsEveryField()
    {
        PX::SchedulerHelper schedule;
        PX::RecordTime record = Record("A", "12:00", 90min);
        record.screenIndex = 2;
        record.finishAction = PX::Hibernate;
        QCOMPARE(schedule.AddRecord(record), 0);

        const auto stored = schedule.GetPreparedSchedule().at(0);
        QCOMPARE(stored.title, record.title);
        QVERIFY(stored.start == record.start);
        QVERIFY(stored.duration == record.duration);
        QCOMPARE(stored.screenIndex, 2);
        QCOMPARE(stored.finishAction, PX::Hibernate);
    }

    void ordersByStartAndTellsThePosition()
    {
        PX::SchedulerHelper schedule;
        QCOMPARE(schedule.AddRecord(Record("noon", "12:00")), 0);
        QCOMPARE(schedule.AddRecord(Record("evening", "18:00")), 1);
        QCOMPARE(schedule.AddRecord(Record("morning", "06:00")), 0);
        QCOMPARE(schedule.AddRecord(Record("afternoon", "15:00")), 2);
        QCOMPARE(Titles(schedule).join(QLatin1Char(' ')),
                 QStringLiteral("morning noon afternoon evening"));
        QCOMPARE(schedule.GetRecordCount(), std::uint64_t(4));
    }

    void ordersTasksWithoutLengthByTitle()
    {
        PX::SchedulerHelper schedule;
        QCOMPARE(schedule.AddRecord(Record("hour", "12:00", 1h)), 0);
        QCOMPARE(schedule.AddRecord(Record("b", "12:00", 0s)), 0);
        QCOMPARE(schedule.AddRecord(Record("c", "12:00", 0s)), 1);
        QCOMPARE(schedule.AddRecord(Record("a", "12:00", 0s)), 0);
        QCOMPARE(Titles(schedule).join(QLatin1Char(' ')), QStringLiteral("a b c hour"));
    }

    void refusesTitles_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("empty") << QString() << false;
        QTest::newRow("blank") << QStringLiteral(" \t") << false;
        QTest::newRow("taken") << QStringLiteral("Taken") << false;
        QTest::newRow("other case") << QStringLiteral("taken") << true;
        QTest::newRow("longer") << QStringLiteral("Taken 2") << true;
    }

    void refusesTitles()
    {
        QFETCH(QString, title);
        PX::SchedulerHelper schedule;
        QCOMPARE(schedule.AddRecord(Record("Taken", "08:00")), 0);
        const int index = schedule.AddRecord(Record(title, At("12:00"), 1min));
        QTEST(index >= 0, "accepted");
        QCOMPARE(schedule.GetRecordCount(), std::uint64_t(index >= 0 ? 2 : 1));
    }

    void looksTitlesUpExactly()
    {
        PX::SchedulerHelper schedule;
        schedule.AddRecord(Record("Task 1", "12:00"));
        QVERIFY(schedule.DoesTitleAlreadyExists(QStringLiteral("Task 1")));
        QVERIFY(!schedule.DoesTitleAlreadyExists(QStringLiteral("task 1")));
        QVERIFY(!schedule.DoesTitleAlreadyExists(QStringLiteral("Task 1 ")));
        QVERIFY(!schedule.DoesTitleAlreadyExists(QStringLiteral("Task")));
        QVERIFY(!schedule.DoesTitleAlreadyExists({}));
    }

    void overlap_data()
    {
        QTest::addColumn<QString>("start");
        QTest::addColumn<qint64>("seconds");
        QTest::addColumn<bool>("overlaps");
        const auto row = [](const char* name, const char* start, std::chrono::seconds duration,
                            bool overlaps) {
            QTest::newRow(name) << QString::fromLatin1(start) << qint64(duration.count())
                                << overlaps;
        };
        // Beside tasks from 10:00 to 11:00, at 11:30 without length, and from 12:00 to 13:00.
        row("same span", "10:00", 1h, true);
        row("equal starts, shorter", "10:00", 1s, true);
        row("equal starts, longer", "12:00", 2h, true);
        row("equal starts, no length", "10:00", 0s, false);
        row("equal ends", "10:30", 30min, true);
        row("touches the start", "09:30", 30min, false);
        row("one second into the start", "09:30", 30min + 1s, true);
        row("touches the end", "11:00", 30min, false);
        row("one second before the end", "10:59:59", 30min, true);
        row("contained", "10:15", 30min, true);
        row("containing", "09:00", 3h, true);
        row("containing all", "09:00", 12h, true);
        row("between", "11:00", 30min, false);
        row("fills a gap up to the next", "11:30", 30min, false);
        row("containing one without length", "11:15", 30min, true);
        row("without length, at the same moment", "11:30", 0s, false);
        row("without length, inside", "10:30", 0s, true);
        row("without length, at an end", "11:00", 0s, false);
        row("before all", "00:00", 10h, false);
        row("after all", "13:00", 24h, false);
    }

    void overlap()
    {
        QFETCH(QString, start);
        QFETCH(qint64, seconds);
        QFETCH(bool, overlaps);
        PX::SchedulerHelper schedule;
        QCOMPARE(schedule.AddRecord(Record("A", "10:00", 1h)), 0);
        QCOMPARE(schedule.AddRecord(Record("B", "11:30", 0s)), 1);
        QCOMPARE(schedule.AddRecord(Record("C", "12:00", 1h)), 2);

        const auto startPoint = At(start.toLatin1().constData());
        const auto duration = std::chrono::seconds(seconds);
        QCOMPARE(schedule.DoesCaptureTimeIntersected(Record({}, startPoint, duration)), overlaps);
        QCOMPARE(schedule.AddRecord(Record(QStringLiteral("D"), startPoint, duration)) < 0,
                 overlaps);
        QCOMPARE(schedule.GetRecordCount(), std::uint64_t(overlaps ? 3 : 4));
    }

    void overlapsAcrossMidnight()
    {
        PX::SchedulerHelper schedule;
        const auto midnight = At("00:00") + 24h;
        QCOMPARE(schedule.AddRecord(Record("late", "23:30", 1h)), 0);
        QVERIFY(schedule.DoesCaptureTimeIntersected(Record({}, midnight, 1s)));
        QVERIFY(schedule.DoesCaptureTimeIntersected(Record({}, midnight + 30min - 1s, 1h)));
        QVERIFY(!schedule.DoesCaptureTimeIntersected(Record({}, midnight + 30min, 1h)));
        // The same clock reading of another day.
        QVERIFY(!schedule.DoesCaptureTimeIntersected(Record({}, At("00:10"), 1min)));
    }

    void spansAtTheEndsOfTime()
    {
        using TimePoint = Time::IClock::time_point;
        PX::SchedulerHelper schedule;
        QCOMPARE(schedule.AddRecord(Record("endless", "12:00", Longest)), 0);
        QVERIFY(schedule.DoesCaptureTimeIntersected(Record({}, TimePoint::max() - 1s, Longest)));
        QVERIFY(!schedule.DoesCaptureTimeIntersected(Record({}, TimePoint::min(), 1h)));
        QVERIFY(schedule.DoesCaptureTimeIntersected(Record({}, At("11:00"), Longest)));
        QCOMPARE(schedule.AddRecord(Record(QStringLiteral("first"), TimePoint::min(), 1h)), 0);
    }

    void refusesNegativeDurations()
    {
        PX::SchedulerHelper schedule;
        QVERIFY(schedule.AddRecord(Record("A", "12:00", -1us)) < 0);
        QVERIFY(schedule.AddRecord(Record("A", "12:00", std::chrono::microseconds::min())) < 0);
        QCOMPARE(schedule.GetRecordCount(), std::uint64_t(0));
    }

    void refusalChangesNothing()
    {
        PX::SchedulerHelper schedule;
        schedule.AddRecord(Record("A", "12:00", 1h));
        QVERIFY(schedule.AddRecord(Record("B", "12:30", 1h)) < 0);
        QVERIFY(!schedule.DoesTitleAlreadyExists(QStringLiteral("B")));
        QVERIFY(!schedule.DoesCaptureTimeIntersected(Record("", "13:00", 1h)));
    }

    void removesByTitle()
    {
        PX::SchedulerHelper schedule;
        schedule.AddRecord(Record("A", "10:00", 1h));
        schedule.AddRecord(Record("B", "11:00", 1h));
        schedule.AddRecord(Record("C", "12:00", 1h));

        schedule.RemoveRecord(QStringLiteral("X"));
        schedule.RemoveRecord({});
        QCOMPARE(schedule.GetRecordCount(), std::uint64_t(3));

        schedule.RemoveRecord(QStringLiteral("B"));
        QCOMPARE(Titles(schedule).join(QLatin1Char(' ')), QStringLiteral("A C"));
        QVERIFY(!schedule.DoesTitleAlreadyExists(QStringLiteral("B")));
        QCOMPARE(schedule.AddRecord(Record("B", "11:00", 1h)), 1);
    }

    void clears()
    {
        PX::SchedulerHelper schedule;
        schedule.ClearSchedule();
        schedule.AddRecord(Record("A", "10:00", 1h));
        schedule.ClearSchedule();
        QCOMPARE(schedule.GetRecordCount(), std::uint64_t(0));
        QVERIFY(!schedule.DoesTitleAlreadyExists(QStringLiteral("A")));
        QCOMPARE(schedule.AddRecord(Record("A", "10:00", 1h)), 0);
    }

    void agreesWithAPlainSchedule()
    {
        constexpr quint32 seed = 20300301;
        QRandomGenerator random(seed);
        PX::SchedulerHelper schedule;
        PlainSchedule plain;
        for (int step = 0; step < 20000; ++step) {
            const auto title = QString::number(random.bounded(60));
            // Few moments, so that spans touch, coincide and have no length.
            const auto record =
                Record(title, At("00:00") + std::chrono::seconds(random.bounded(90)),
                       std::chrono::seconds(random.bounded(5)));
            QCOMPARE(schedule.DoesCaptureTimeIntersected(record), plain.Overlaps(record));
            QCOMPARE(schedule.DoesTitleAlreadyExists(title), plain.HasTitle(title));
            if (random.bounded(3) == 0) {
                schedule.RemoveRecord(title);
                plain.Remove(title);
            } else {
                QCOMPARE(schedule.AddRecord(record), plain.Add(record));
            }
            QCOMPARE(Titles(schedule), plain.Titles());
        }
    }
};

SCHEDULER_TEST_MAIN(tst_SchedulerHelper)
#include "tst_SchedulerHelper.moc"
