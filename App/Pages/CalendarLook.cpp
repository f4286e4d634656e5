// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "CalendarLook.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QEvent>
#include <QTextCharFormat>

#include "Theme.h"

namespace Zentor::Desktop {
namespace {

QColor ColorOf(const char* name)
{
    return QColor(ColorsOf(ThemeOf(QApplication::palette())).value(QLatin1String(name)));
}

} // namespace

CalendarLook::CalendarLook(QCalendarWidget* calendar)
    : QObject(calendar)
    , m_calendar(calendar)
{
    constexpr int edge = 1;
    calendar->setAttribute(Qt::WA_StyledBackground);
    calendar->setContentsMargins(edge, edge, edge, edge);
    calendar->installEventFilter(this);
    Update();
}

CalendarLook::~CalendarLook() = default;

void CalendarLook::Update()
{
    FormatWeekdays();
    FormatDays();
}

void CalendarLook::FormatWeekdays()
{
    QTextCharFormat weekend;
    weekend.setForeground(ColorOf("danger"));
    const auto workdays = QLocale().weekdays();
    for (int day = Qt::Monday; day <= Qt::Sunday; ++day) {
        const auto weekday = static_cast<Qt::DayOfWeek>(day);
        m_calendar->setWeekdayTextFormat(weekday,
                                         workdays.contains(weekday) ? QTextCharFormat() : weekend);
    }
}

/// No month before the one of the first day can be shown, nor one behind that of the last; of
/// other months' days at the edges, the calendar takes care itself.
void CalendarLook::FormatDays()
{
    m_calendar->setDateTextFormat({}, {});
    QTextCharFormat unavailable;
    unavailable.setForeground(ColorOf("textDisabled"));
    unavailable.setFontStrikeOut(true);
    const QDate first = m_calendar->minimumDate();
    for (QDate day(first.year(), first.month(), 1); day < first; day = day.addDays(1)) {
        m_calendar->setDateTextFormat(day, unavailable);
    }
    const QDate last = m_calendar->maximumDate();
    for (QDate day = last.addDays(1); day.month() == last.month(); day = day.addDays(1)) {
        m_calendar->setDateTextFormat(day, unavailable);
    }
    QTextCharFormat today;
    today.setFontWeight(QFont::Bold);
    today.setForeground(ColorOf("accentText"));
    today.setBackground(ColorOf("accentSoft"));
    today.setToolTip(tr("Today"));
    m_calendar->setDateTextFormat(QDate::currentDate(), today);
}

bool CalendarLook::eventFilter(QObject* watched, QEvent* event)
{
    // A day may have passed.
    if (event->type() == QEvent::Show) {
        Update();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace Zentor::Desktop
