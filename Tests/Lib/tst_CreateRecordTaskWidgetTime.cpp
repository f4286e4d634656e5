// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QTimeZone>

#include "FakeClock.h"
#include "TaskForm.h"
#include "UnixSeconds.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

using namespace PX::Scheduler::UI;

/// 21 November 2026, 15:00, in local time.
QDateTime Afternoon()
{
    return {QDate(2026, 11, 21), QTime(15, 0)};
}

void ChangeLanguage(const TaskForm& form)
{
    QEvent event(QEvent::LanguageChange);
    QCoreApplication::sendEvent(form.widget, &event);
}

void ChooseInCalendar(const TaskForm& form, const QDate& date)
{
    form.Date()->calendarWidget()->setSelectedDate(date);
}

void Type(QDateTimeEdit* editor, QDateTimeEdit::Section section, const QString& keys)
{
    editor->setFocus();
    editor->setSelectedSection(section);
    QTest::keyClicks(editor, keys);
}

/// What must hold whenever the event loop is idle; the first thing that does not.
QString Fault(const TaskForm& form, const QDateTime& now)
{
    const QDateTime start = form.widget->GetStartDateTime();
    if (!start.isValid()) {
        return "no valid start";
    }
    if (start < now || UnixSecondsOf(start) == NoUnixSeconds) {
        return "starts in the past";
    }
    if (form.Date()->date() != start.date()) {
        return "shows another date than it starts on";
    }
    if (form.Start()->text() != start.time().toString("hh:mm:ss")
        || form.Date()->text() != start.date().toString("dd.MM.yyyy")) {
        return "shows other texts than it means";
    }
    return {};
}

/// The moments within a year from \a begin at which the local clocks are changed.
QVector<QDateTime> ClockChangesAfter(const QDateTime& begin)
{
    QVector<QDateTime> changes;
    QDateTime before = begin;
    for (int day = 0; day < 365; ++day) {
        QDateTime after = before.addSecs(24 * 60 * 60);
        const QDateTime next = after;
        if (before.offsetFromUtc() != after.offsetFromUtc()) {
            while (before.secsTo(after) > 1) {
                const QDateTime middle = before.addSecs(before.secsTo(after) / 2);
                (middle.offsetFromUtc() == before.offsetFromUtc() ? before : after) = middle;
            }
            changes << after;
        }
        before = next;
    }
    return changes;
}

} // namespace

class tst_CreateRecordTaskWidgetTime : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    // --- The start that passes ---

    void startsAtItsConstruction()
    {
        const QDateTime now = Afternoon().addMSecs(345);
        const FakeClock clock(now);
        const TaskForm form;
        QCOMPARE(form.widget->GetStartDateTime(), now);
        QCOMPARE(form.Start()->minimumDateTime(), now);
        QCOMPARE(form.Date()->date(), now.date());
        QCOMPARE(form.Date()->minimumDateTime(), QDateTime(now.date(), QTime(0, 0)));
        QCOMPARE(form.Start()->text(), QStringLiteral("15:00:00"));
        QCOMPARE(form.Date()->text(), QStringLiteral("21.11.2026"));
    }

    void movesAPassedStart_data()
    {
        QTest::addColumn<QDateTime>("now");
        QTest::addColumn<QDateTime>("start");
        const QDateTime now = Afternoon();
        const QDateTime midnight(now.date().addDays(1), QTime(0, 0));
        QTest::newRow("later") << now << now.addSecs(3600);
        QTest::newRow("now") << now << now;
        QTest::newRow("just passed") << now << now.addMSecs(-1);
        QTest::newRow("this morning") << now << QDateTime(now.date(), QTime(9, 30));
        QTest::newRow("yesterday") << now << now.addDays(-1);
        QTest::newRow("before midnight") << midnight.addSecs(-5) << midnight.addSecs(-6);
        QTest::newRow("at midnight") << midnight << midnight.addSecs(-1);
        QTest::newRow("ten seconds before midnight")
            << midnight.addSecs(-10) << midnight.addSecs(-11);
    }

    void movesAPassedStart()
    {
        QFETCH(QDateTime, now);
        QFETCH(QDateTime, start);
        FakeClock clock(start.addSecs(-20));
        const TaskForm form;
        const QDateTime earliest = form.Start()->minimumDateTime();
        form.Date()->setDate(start.date());
        form.Start()->setDateTime(start);
        clock.Set(now);
        ChangeSpies spies(form.widget);
        const bool hasPassed = start < now;
        const QDateTime expected = hasPassed ? now.addSecs(10) : start;

        form.Tick();
        QCOMPARE(form.widget->GetStartDateTime(), expected);
        QCOMPARE(form.Start()->minimumDateTime(),
                 hasPassed ? now : QDateTime(start.date(), earliest.time()));
        QCOMPARE(form.Date()->date(), expected.date());
        QCOMPARE(Fault(form, now), QString());
        const bool hasDateChanged = expected.date() != start.date();
        QCOMPARE(spies.Take(),
                 QStringLiteral("0 %1 %2 0").arg(int(hasDateChanged)).arg(int(hasPassed)));
        if (hasPassed) {
            QCOMPARE(form.Date()->minimumDateTime(), QDateTime(now.date(), QTime(0, 0)));
        }
        form.Tick();
        QCOMPARE(spies.Take(), QStringLiteral("0 0 0 0"));
    }

    void looksAtTheClockByItself()
    {
        FakeClock clock(Afternoon());
        const TaskForm form;
        clock.Advance(1);
        QTRY_COMPARE_WITH_TIMEOUT(form.widget->GetStartDateTime(), Afternoon().addMSecs(10001),
                                  2000);
    }

    void movesTheStartWhileHidden()
    {
        FakeClock clock(Afternoon());
        const TaskForm form;
        QVERIFY(form.Show());
        form.widget->hide();
        clock.Advance(60000);
        form.Tick();
        QCOMPARE(Fault(form, Afternoon().addSecs(60)), QString());
    }

    void doesNotDisturbAnOpenCalendar()
    {
        AllowWarning("^This plugin does not support grabbing the keyboard");
        const QDate today = Afternoon().date();
        FakeClock clock(QDateTime(today, QTime(23, 59, 55)));
        const TaskForm form;
        QVERIFY(form.Show());
        QWidget* popup = form.Date()->calendarWidget()->window();
        popup->show();
        QVERIFY(form.Date()->calendarWidget()->isVisible());
        clock.Advance(6000);
        form.Tick();
        const QDateTime now(today.addDays(1), QTime(0, 0, 1));
        QCOMPARE(form.widget->GetStartDateTime(), now.addSecs(10));
        QCOMPARE(form.Date()->date(), today);
        QCOMPARE(form.Date()->minimumDate(), today);
        QCOMPARE(form.Date()->calendarWidget()->selectedDate(), today);
        form.Tick();
        QCOMPARE(form.Date()->date(), today);

        popup->hide();
        form.Tick();
        QCOMPARE(Fault(form, now), QString());
        QCOMPARE(form.Date()->minimumDate(), today.addDays(1));
    }

    // --- Date and start ---

    void keepsTheReadingOnAnotherDate_data()
    {
        QTest::addColumn<QTime>("reading");
        QTest::newRow("earlier than the minimum") << QTime(9, 30);
        QTest::newRow("later than the minimum") << QTime(16, 45, 10);
        QTest::newRow("at the minimum") << QTime(15, 0);
        QTest::newRow("midnight") << QTime(0, 0);
        QTest::newRow("last of the day") << QTime(23, 59, 59);
    }

    void keepsTheReadingOnAnotherDate()
    {
        QFETCH(QTime, reading);
        const FakeClock clock(Afternoon());
        const TaskForm form;
        const QDate today = Afternoon().date();
        form.Tick();
        form.Date()->setDate(today.addDays(1));
        form.Start()->setTime(reading);
        ChangeSpies spies(form.widget);
        for (const int days : {2, 40, 3, 1, 400, 1}) {
            form.Date()->setDate(today.addDays(days));
            QCOMPARE(form.widget->GetStartDateTime(), QDateTime(today.addDays(days), reading));
            QCOMPARE(form.Start()->minimumDateTime(), Afternoon());
            QCOMPARE(spies.Take(), QStringLiteral("0 1 1 0"));
            form.Tick();
            QCOMPARE(Fault(form, Afternoon()), QString());
            QCOMPARE(spies.Take(), QStringLiteral("0 0 0 0"));
        }
        // Still free to choose any time of that day.
        form.Start()->setTime(QTime(0, 0, 1));
        QCOMPARE(form.widget->GetStartDateTime(), QDateTime(today.addDays(1), QTime(0, 0, 1)));
        form.Start()->setTime(QTime(23, 59, 58));
        QCOMPARE(form.widget->GetStartDateTime(), QDateTime(today.addDays(1), QTime(23, 59, 58)));
    }

    void reportsTheDateAfterTheStart()
    {
        const FakeClock clock(Afternoon());
        const TaskForm form;
        QStringList reports;
        connect(form.widget, &CreateRecordTaskWidget::RecordStartTimeChanged, this, [&] {
            reports << "start " + form.widget->GetStartDateTime().toString("dd hh:mm");
        });
        connect(form.widget, &CreateRecordTaskWidget::RecordDateChanged, this,
                [&] { reports << "date " + form.Date()->date().toString("dd"); });
        form.Date()->setDate(Afternoon().date().addDays(1));
        QCOMPARE(reports, QStringList({"start 22 15:00", "date 22"}));
    }

    void startsInTenSecondsOnReturnToToday()
    {
        const FakeClock clock(Afternoon());
        const TaskForm form;
        form.Date()->setDate(Afternoon().date().addDays(1));
        form.Start()->setTime(QTime(9, 30));
        form.Date()->setDate(Afternoon().date());
        QCOMPARE(form.widget->GetStartDateTime(), Afternoon());
        QCOMPARE(Fault(form, Afternoon()), QString());
    }

    void offersNoPassedDate()
    {
        const FakeClock clock(Afternoon());
        const TaskForm form;
        const QDate today = Afternoon().date();
        form.Date()->setDate(today.addDays(-1));
        QCOMPARE(form.Date()->date(), today);
        QCOMPARE(form.Date()->calendarWidget()->minimumDate(), today);
        form.Date()->setDate(QDate(7999, 12, 31));
        QCOMPARE(form.widget->GetStartDateTime().date(), QDate(7999, 12, 31));
    }

    void changesNothingWithTheLanguage_data()
    {
        QTest::addColumn<int>("days");
        QTest::addColumn<QTime>("reading");
        QTest::newRow("today") << 0 << QTime(18, 0);
        QTest::newRow("later, earlier reading") << 1 << QTime(9, 30);
        QTest::newRow("later, midnight") << 7 << QTime(0, 0);
        QTest::newRow("later, later reading") << 30 << QTime(16, 0);
    }

    void changesNothingWithTheLanguage()
    {
        QFETCH(int, days);
        QFETCH(QTime, reading);
        const FakeClock clock(Afternoon());
        const TaskForm form;
        const QDate date = Afternoon().date().addDays(days);
        form.Date()->setDate(date);
        form.Start()->setTime(reading);
        ChangeSpies spies(form.widget);
        for (int i = 0; i < 3; ++i) {
            ChangeLanguage(form);
            form.Tick();
            QCOMPARE(form.widget->GetStartDateTime(), QDateTime(date, reading));
            QCOMPARE(form.Start()->minimumDateTime(), Afternoon());
            QCOMPARE(form.Date()->date(), date);
            QCOMPARE(form.Date()->minimumDateTime(), QDateTime(Afternoon().date(), QTime(0, 0)));
        }
        QCOMPARE(spies.Take(), QStringLiteral("0 0 0 0"));
        form.Date()->setDate(date.addDays(1));
        QCOMPARE(form.widget->GetStartDateTime(), QDateTime(date.addDays(1), reading));
    }

    // --- Typing ---

    void canBeTyped_data()
    {
        QTest::addColumn<QString>("date");
        QTest::addColumn<QString>("time");
        QTest::addColumn<QDateTime>("expected");
        QTest::newRow("digits") << "22112026"
                                << "093000" << QDateTime(QDate(2026, 11, 22), QTime(9, 30));
        QTest::newRow("separators")
            << "25.12.2026"
            << "18:05:30" << QDateTime(QDate(2026, 12, 25), QTime(18, 5, 30));
        QTest::newRow("today") << "21.11.2026"
                               << "18:00:00" << QDateTime(QDate(2026, 11, 21), QTime(18, 0));
        QTest::newRow("another year") << "30112027"
                                      << "000000" << QDateTime(QDate(2027, 11, 30), QTime(0, 0));
    }

    void canBeTyped()
    {
        QFETCH(QString, date);
        QFETCH(QString, time);
        const FakeClock clock(Afternoon());
        const TaskForm form;
        QVERIFY(form.Show());
        form.Tick();
        Type(form.Date(), QDateTimeEdit::DaySection, date);
        Type(form.Start(), QDateTimeEdit::HourSection, time);
        QTEST(form.widget->GetStartDateTime(), "expected");
        QCOMPARE(Fault(form, Afternoon()), QString());
    }

    void readsFromLeftToRightInEveryLanguage()
    {
        const FakeClock clock(Afternoon());
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        const auto restore =
            qScopeGuard([] { QGuiApplication::setLayoutDirection(Qt::LeftToRight); });
        const TaskForm form;
        QVERIFY(form.Show());
        QVERIFY(form.widget->isRightToLeft());
        QVERIFY(form.Date()->calendarWidget()->isRightToLeft());
        Type(form.Date(), QDateTimeEdit::DaySection, "25.12.2026");
        Type(form.Start(), QDateTimeEdit::HourSection, "18:05:30");
        Type(form.Duration(), QDateTimeEdit::HourSection, "000130");
        QCOMPARE(form.Date()->text(), QStringLiteral("25.12.2026"));
        QCOMPARE(form.Start()->text(), QStringLiteral("18:05:30"));
        QCOMPARE(form.Duration()->text(), QStringLiteral("00:01:30"));
        QCOMPARE(form.widget->GetStartDateTime(), QDateTime(QDate(2026, 12, 25), QTime(18, 5, 30)));
        QCOMPARE(form.widget->GetDuration(), QTime(0, 1, 30));
    }

    /// The start passes every ten seconds while it is left alone, also between two digits.
    void keepsTheDigitsOfAStartThatPasses()
    {
        FakeClock clock(Afternoon());
        const TaskForm form;
        QVERIFY(form.Show());
        form.Start()->setFocus();
        form.Start()->setSelectedSection(QDateTimeEdit::HourSection);
        const QString keys = QStringLiteral("183000");
        for (const QChar key : keys) {
            QTest::keyClicks(form.Start(), QString(key));
            clock.Advance(20000);
            form.Tick();
            QVERIFY(form.widget->GetStartDateTime() >= QDateTime::currentDateTime());
        }
        QCOMPARE(form.widget->GetStartDateTime(), QDateTime(Afternoon().date(), QTime(18, 30)));
        QCOMPARE(Fault(form, QDateTime::currentDateTime()), QString());
    }

    void keepsTheDigitsOfADateWhileTheStartPasses()
    {
        FakeClock clock(Afternoon());
        const TaskForm form;
        QVERIFY(form.Show());
        form.Date()->setFocus();
        form.Date()->setSelectedSection(QDateTimeEdit::DaySection);
        const QString keys = QStringLiteral("25122027");
        for (const QChar key : keys) {
            QTest::keyClicks(form.Date(), QString(key));
            clock.Advance(20000);
            form.Tick();
        }
        QCOMPARE(form.Date()->date(), QDate(2027, 12, 25));
        QCOMPARE(Fault(form, QDateTime::currentDateTime()), QString());
    }

    void showsTheStartAgainWhenASectionIsLeftIncomplete()
    {
        FakeClock clock(Afternoon());
        const TaskForm form;
        QVERIFY(form.Show());
        Type(form.Start(), QDateTimeEdit::HourSection, "1");
        QCOMPARE(form.Start()->text(), QStringLiteral("1:00:00"));
        clock.Advance(20000);
        form.Tick();
        QCOMPARE(form.Start()->text(), QStringLiteral("1:00:00"));
        QCOMPARE(form.widget->GetStartDateTime(), Afternoon().addSecs(30));
        form.Name()->setFocus();
        QCOMPARE(form.Start()->text(), QStringLiteral("15:00:30"));
        QCOMPARE(form.widget->GetStartDateTime(), Afternoon().addSecs(30));
    }

    /// Hours before the minimum's cannot be typed on the day of the minimum; the minutes can.
    void refusesAnHourBeforeTheMinimum()
    {
        const FakeClock clock(QDateTime(Afternoon().date(), QTime(15, 30, 10)));
        const TaskForm form;
        QVERIFY(form.Show());
        form.Start()->setTime(QTime(18, 5));
        Type(form.Start(), QDateTimeEdit::HourSection, "09");
        form.Name()->setFocus();
        QCOMPARE(form.Start()->text(), QStringLiteral("18:05:00"));
        Type(form.Start(), QDateTimeEdit::MinuteSection, "50");
        Type(form.Start(), QDateTimeEdit::HourSection, "15");
        QCOMPARE(form.Start()->text(), QStringLiteral("15:50:00"));
    }

    // --- Clocks that are changed ---

    void survivesAChangeOfTheClock_data()
    {
        QTest::addColumn<qint64>("seconds");
        QTest::newRow("an hour on") << qint64(3600);
        QTest::newRow("a day on") << qint64(86400);
        QTest::newRow("ten years on") << qint64(3650) * 86400;
        QTest::newRow("an hour back") << qint64(-3600);
        QTest::newRow("a day back") << qint64(-86400);
        QTest::newRow("ten years back") << qint64(-3650) * 86400;
    }

    void survivesAChangeOfTheClock()
    {
        QFETCH(qint64, seconds);
        FakeClock clock(Afternoon());
        const TaskForm form;
        form.Start()->setTime(QTime(15, 30));
        const QDateTime start = form.widget->GetStartDateTime();
        clock.Advance(seconds * 1000);
        const QDateTime now = QDateTime::currentDateTime();
        form.Tick();
        QCOMPARE(form.widget->GetStartDateTime(), start < now ? now.addSecs(10) : start);
        QCOMPARE(Fault(form, now), QString());
    }

    void keepsAReadingThatExistsTwice()
    {
        const ZoneChange zone("Europe/Berlin");
        // 02:30 in winter time, for the second time that night.
        const QDateTime now = QDateTime(QDate(2027, 10, 31), QTime(1, 30)).addSecs(7200);
        QCOMPARE(now.time(), QTime(2, 30));
        FakeClock clock(now);
        const TaskForm form;
        QVERIFY(form.Show());
        ChangeSpies spies(form.widget);
        clock.Advance(1000);
        form.Tick();
        QCOMPARE(form.widget->GetStartDateTime(), now.addSecs(11));
        QCOMPARE(spies.Take(), QStringLiteral("0 0 1 0"));
        for (int tick = 0; tick < 30; ++tick) {
            clock.Advance(300);
            form.Tick();
        }
        QCOMPARE(spies.Take(), QStringLiteral("0 0 0 0"));
        Type(form.Start(), QDateTimeEdit::HourSection, "024500");
        form.Tick();
        QCOMPARE(form.widget->GetStartDateTime().toMSecsSinceEpoch() / 1000,
                 now.addSecs(15 * 60).toMSecsSinceEpoch() / 1000);
        ChangeLanguage(form);
        form.Tick();
        QCOMPARE(Fault(form, QDateTime::currentDateTime()), QString());
        QCOMPARE(form.Start()->text(), QStringLiteral("02:45:00"));
    }

    /// Which of the two moments a typed reading stands for is up to the system.
    void startsInTenSecondsThoughTheReadingComesAgain()
    {
        const ZoneChange zone("Europe/Berlin");
        const QDateTime first = QDateTime(QDate(2027, 10, 31), QTime(1, 45)).addSecs(3600);
        QCOMPARE(first.time(), QTime(2, 45));
        FakeClock clock(first.addSecs(-60));
        const TaskForm form;
        form.Start()->setDateTimeRange(first, first);
        QCOMPARE(form.widget->GetStartDateTime(), first);
        const QDateTime later = first.addSecs(60);
        clock.Set(later);
        ChangeSpies spies(form.widget);
        form.Tick();
        QCOMPARE(form.widget->GetStartDateTime(), later.addSecs(10));
        QCOMPARE(spies.Take(), QStringLiteral("0 0 1 0"));
    }

    void carriesTheStartInTheDateWhereClocksAreNotChanged()
    {
        const FakeClock clock(QDateTime(QDate(2027, 3, 28), QTime(2, 0)));
        const TaskForm form;
        form.Tick();
        QCOMPARE(form.Date()->dateTime(), form.Start()->dateTime());
    }

    void takesTheNextReadingForOneThatIsSkipped()
    {
        const ZoneChange zone("Europe/Berlin");
        const QDate spring(2027, 3, 28);
        const FakeClock clock(QDateTime(spring.addDays(-3), QTime(12, 0)));
        const TaskForm form;
        form.Date()->setDate(spring.addDays(-1));
        form.Start()->setTime(QTime(2, 30));
        form.Date()->setDate(spring);
        QCOMPARE(form.widget->GetStartDateTime(), QDateTime(spring, QTime(3, 30)));
        form.Tick();
        QCOMPARE(Fault(form, QDateTime::currentDateTime()), QString());
    }

    void knowsDaysWithoutMidnight_data()
    {
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<QDate>("day");
        QTest::newRow("Santiago") << QByteArray("America/Santiago") << QDate(2027, 9, 5);
        QTest::newRow("Cairo") << QByteArray("Africa/Cairo") << QDate(2027, 4, 30);
        QTest::newRow("Beirut") << QByteArray("Asia/Beirut") << QDate(2027, 3, 28);
        QTest::newRow("Havana") << QByteArray("America/Havana") << QDate(2027, 3, 14);
        QTest::newRow("Azores") << QByteArray("Atlantic/Azores") << QDate(2027, 3, 28);
    }

    void knowsDaysWithoutMidnight()
    {
        QFETCH(QByteArray, zone);
        QFETCH(QDate, day);
        const ZoneChange change(zone);
        QVERIFY(!QDateTime(day, QTime(0, 0)).isValid());
        FakeClock clock(QDateTime(day.addDays(-2), QTime(0, 20)));
        const TaskForm form;
        QVERIFY(form.Show());
        const auto isOn = [&](const QDate& date) {
            form.Tick();
            return form.Date()->date() == date
                && Fault(form, QDateTime::currentDateTime()).isEmpty();
        };
        ChooseInCalendar(form, day);
        QVERIFY(isOn(day));
        ChangeLanguage(form);
        QVERIFY(isOn(day));
        ChooseInCalendar(form, day.addDays(1));
        QVERIFY(isOn(day.addDays(1)));
        ChooseInCalendar(form, day);
        QVERIFY(isOn(day));
        form.Date()->setDate(day.addDays(-1));
        form.Date()->setFocus();
        form.Date()->setSelectedSection(QDateTimeEdit::DaySection);
        QTest::keyClick(form.Date(), Qt::Key_Up);
        QVERIFY(isOn(day) || day.day() == 1);
        form.Start()->setTime(QTime(1, 0));
        QVERIFY(isOn(form.Date()->date()));
        clock.Set(day.startOfDay().addSecs(-1));
        QVERIFY(isOn(form.widget->GetStartDateTime().date()));
        clock.Set(day.startOfDay().addSecs(60));
        form.Tick();
        QVERIFY(isOn(form.widget->GetStartDateTime().date()));
    }

    void isBuiltOnADayWithoutMidnight()
    {
        const ZoneChange change("America/Santiago");
        const QDate day(2027, 9, 5);
        const FakeClock clock(day.startOfDay().addSecs(60));
        const TaskForm form;
        form.Tick();
        QCOMPARE(Fault(form, QDateTime::currentDateTime()), QString());
        QCOMPARE(form.Date()->date(), day);
        QCOMPARE(form.Date()->minimumDate(), day);
        QCOMPARE(form.Date()->minimumDateTime(), day.startOfDay());
        form.Date()->setDate(day.addDays(-1));
        QCOMPARE(form.Date()->date(), day);
    }

    /// Every zone of the system, each day of a year chosen after the other.
    void choosesEveryDayInEveryZone()
    {
        QStringList faults;
        const auto zones = QTimeZone::availableTimeZoneIds();
        for (const QByteArray& zone : zones) {
            const ZoneChange change(zone);
            const QDate today(2026, 11, 21);
            const FakeClock clock(QDateTime(today, QTime(15, 0)));
            const TaskForm form;
            for (int days = 1; days <= 366; ++days) {
                const QDate day = today.addDays(days);
                const QTime reading(days % 24, days % 2 * 30);
                form.Date()->setDate(day.addDays(1));
                form.Start()->setTime(reading);
                form.Date()->setDate(day);
                form.Tick();
                const QDateTime start = form.widget->GetStartDateTime();
                const QString fault = Fault(form, QDateTime::currentDateTime());
                const bool isKept = start.time() == reading || !QDateTime(day, reading).isValid()
                    || !QDateTime(day.addDays(1), reading).isValid();
                if (!fault.isEmpty() || start.date() != day || !isKept) {
                    faults << zone + ' ' + day.toString(Qt::ISODate) + ' ' + reading.toString()
                            + ' ' + start.toString(Qt::ISODate) + ' ' + fault;
                }
            }
        }
        QVERIFY(zones.size() > 300);
        QCOMPARE(faults.mid(0, 20).join('\n'), QString());
    }

    /// Every change of the clocks in every zone, with a form that is open around it.
    void livesThroughEveryClockChange()
    {
        QStringList faults;
        int changeCount = 0;
        const auto zones = QTimeZone::availableTimeZoneIds();
        for (const QByteArray& zone : zones) {
            const ZoneChange change(zone);
            const auto moments = ClockChangesAfter(QDateTime(QDate(2026, 11, 21), QTime(15, 0)));
            changeCount += int(moments.size());
            for (const QDateTime& moment : moments) {
                FakeClock clock(moment.addSecs(-30));
                const TaskForm form;
                for (int step = 0; step < 60; ++step) {
                    clock.Advance(step < 40 ? 1500 : 900 * 1000);
                    if (step % 7 == 6) {
                        ChangeLanguage(form);
                    }
                    form.Tick();
                    const QString fault = Fault(form, QDateTime::currentDateTime());
                    if (!fault.isEmpty()) {
                        faults << zone + ' ' + QDateTime::currentDateTime().toString(Qt::ISODate)
                                + ' ' + fault;
                    }
                }
            }
        }
        QVERIFY(changeCount > 100);
        QCOMPARE(faults.mid(0, 20).join('\n'), QString());
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_CreateRecordTaskWidgetTime)

#include "tst_CreateRecordTaskWidgetTime.moc"
