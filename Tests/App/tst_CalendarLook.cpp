// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QCalendarWidget>
#include <QDateTimeEdit>
#include <QTextCharFormat>

#include "AppWindow.h"
#include "CalendarLook.h"
#include "PanelParts.h"
#include "Resources.h"
#include "Theme.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

using Desktop::Theme;

QColor ColorOf(Theme theme, const char* name)
{
    return QColor(Desktop::ColorsOf(theme).value(QLatin1String(name)));
}

bool IsFaint(const QCalendarWidget& calendar, const QDate& day, Theme theme)
{
    const QTextCharFormat format = calendar.dateTextFormat(day);
    return format.fontStrikeOut() && format.foreground().color() == ColorOf(theme, "textDisabled");
}

} // namespace
} // namespace Zentor::Tests

Q_DECLARE_METATYPE(Zentor::Desktop::Theme)

namespace Zentor::Tests {

class tst_CalendarLook : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Desktop::RegisterResources(); }

    void showsWhatCannotBeChosen_data() { AddThemes(); }
    void showsWhatCannotBeChosen()
    {
        QFETCH(Theme, theme);
        Desktop::ApplyTheme(theme);
        QCalendarWidget calendar;
        calendar.setDateRange({2031, 3, 13}, {2031, 5, 20});
        const Desktop::CalendarLook look(&calendar);
        QVERIFY(IsFaint(calendar, {2031, 3, 1}, theme));
        QVERIFY(IsFaint(calendar, {2031, 3, 12}, theme));
        QVERIFY(!IsFaint(calendar, {2031, 3, 13}, theme));
        QVERIFY(!IsFaint(calendar, {2031, 4, 30}, theme));
        QVERIFY(!IsFaint(calendar, {2031, 5, 20}, theme));
        QVERIFY(IsFaint(calendar, {2031, 5, 21}, theme));
        QVERIFY(IsFaint(calendar, {2031, 5, 31}, theme));
    }

    void marksToday_data() { AddThemes(); }
    void marksToday()
    {
        QFETCH(Theme, theme);
        Desktop::ApplyTheme(theme);
        QCalendarWidget calendar;
        const Desktop::CalendarLook look(&calendar);
        const QTextCharFormat today = calendar.dateTextFormat(QDate::currentDate());
        QCOMPARE(today.background().color(), ColorOf(theme, "accentSoft"));
        QCOMPARE(today.foreground().color(), ColorOf(theme, "accentText"));
        QCOMPARE(today.toolTip(), QStringLiteral("Today"));
        QVERIFY(calendar.dateTextFormat(QDate::currentDate().addDays(1)).isEmpty());
    }

    void hasAnEdge_data() { AddThemes(); }
    void hasAnEdge()
    {
        QFETCH(Theme, theme);
        Desktop::ApplyTheme(theme);
        QCalendarWidget calendar;
        const Desktop::CalendarLook look(&calendar);
        calendar.resize(calendar.sizeHint());
        const QImage picture = calendar.grab().toImage();
        const QColor edge = ColorOf(theme, "border");
        const QPoint center = picture.rect().center();
        for (const QPoint& point :
             {QPoint(0, center.y()), QPoint(picture.width() - 1, center.y()), QPoint(center.x(), 0),
              QPoint(center.x(), picture.height() - 1)}) {
            QCOMPARE(picture.pixelColor(point), edge);
        }
    }

    /// As on a day after the one on which it was opened last, or in another range.
    void isUpToDateWhenItIsShown()
    {
        QCalendarWidget calendar;
        const Desktop::CalendarLook look(&calendar);
        calendar.setDateRange({2031, 3, 13}, {2031, 5, 20});
        calendar.show();
        QVERIFY(IsFaint(calendar, {2031, 3, 12}, Theme::Dark));
        calendar.hide();
        calendar.setDateRange({2031, 3, 2}, {2031, 5, 20});
        calendar.show();
        QVERIFY(IsFaint(calendar, {2031, 3, 1}, Theme::Dark));
        QVERIFY(!IsFaint(calendar, {2031, 3, 12}, Theme::Dark));
    }

    void servesTheTaskForm()
    {
        Desktop::ApplyTheme(Theme::Light);
        const AppWindow app(1);
        const auto* calendar =
            app.Find<QDateTimeEdit>(Desktop::PanelPart::DateField)->calendarWidget();
        QVERIFY(!calendar->dateTextFormat(QDate::currentDate()).isEmpty());
        const auto weekend = [&] {
            return calendar->weekdayTextFormat(Qt::Sunday).foreground().color();
        };
        QCOMPARE(weekend(), ColorOf(Theme::Light, "danger"));
        Desktop::ApplyTheme(Theme::Dark);
        QCOMPARE(weekend(), ColorOf(Theme::Dark, "danger"));
    }

private:
    static void AddThemes()
    {
        QTest::addColumn<Theme>("theme");
        QTest::newRow("light") << Theme::Light;
        QTest::newRow("dark") << Theme::Dark;
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_CalendarLook)

#include "tst_CalendarLook.moc"
