// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QTimeZone>

#include "ClockChanges.h"
#include "FakeClock.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

using namespace PX::Scheduler::UI;

class tst_ClockChanges : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void findsTheMomentOfAReading_data()
    {
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<QDate>("date");
        QTest::addColumn<QTime>("time");
        QTest::addColumn<QString>("shown");
        const auto row = [](const char* zone, QDate date, QTime time, const char* shown) {
            QTest::addRow("%s %s", zone, qPrintable(time.toString()))
                << QByteArray(zone) << date << time << QString(shown);
        };
        const QDate spring(2027, 3, 28);
        row("Europe/Berlin", spring, QTime(1, 59, 59), "2027-03-28T01:59:59");
        row("Europe/Berlin", spring, QTime(2, 0), "2027-03-28T03:00:00");
        row("Europe/Berlin", spring, QTime(2, 30), "2027-03-28T03:30:00");
        row("Europe/Berlin", spring, QTime(3, 0), "2027-03-28T03:00:00");
        row("Australia/Lord_Howe", QDate(2027, 10, 3), QTime(2, 10), "2027-10-03T02:40:00");
        row("America/Santiago", QDate(2027, 9, 5), QTime(0, 0), "2027-09-05T01:00:00");
        row("America/Santiago", QDate(2027, 9, 5), QTime(0, 30), "2027-09-05T01:30:00");
        row("Antarctica/Troll", spring, QTime(1, 30), "2027-03-28T03:30:00");
        // The clocks are put forward at the end of the day: no later reading is on that day.
        row("America/Nuuk", QDate(2027, 3, 27), QTime(23, 30), "2027-03-27T22:59:59");
        row("UTC", spring, QTime(2, 30), "2027-03-28T02:30:00");
    }

    void findsTheMomentOfAReading()
    {
        QFETCH(QByteArray, zone);
        QFETCH(QDate, date);
        QFETCH(QTime, time);
        const ZoneChange change(zone);
        const QDateTime moment = MomentOf(date, time);
        QVERIFY(moment.isValid());
        QTEST(moment.toString(Qt::ISODate), "shown");
    }

    void staysOnTheDayInEveryZone()
    {
        const QVector<QTime> times{QTime(0, 0),  QTime(0, 30), QTime(1, 30), QTime(2, 0),
                                   QTime(2, 30), QTime(12, 0), QTime(23, 0), QTime(23, 59, 59)};
        QStringList wrong;
        const auto zones = QTimeZone::availableTimeZoneIds();
        for (const QByteArray& zone : zones) {
            const ZoneChange change(zone);
            for (QDate date(2026, 11, 21); date < QDate(2027, 11, 21); date = date.addDays(1)) {
                for (const QTime& time : times) {
                    const QDateTime moment = MomentOf(date, time);
                    if (!moment.isValid() || moment.date() != date
                        || (QDateTime(date, time).isValid() && moment.time() != time)) {
                        wrong << zone + ' ' + date.toString(Qt::ISODate) + ' ' + time.toString();
                    }
                }
            }
        }
        QVERIFY(zones.size() > 300);
        QCOMPARE(wrong.join('\n'), QString());
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_ClockChanges)

#include "tst_ClockChanges.moc"
