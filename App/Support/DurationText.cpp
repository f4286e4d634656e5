// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "DurationText.h"

#include <algorithm>

#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>

#include "SizeText.h"

namespace Zentor::Desktop {
namespace {

using Schedule::Length;
using Schedule::Moment;
using std::chrono::hours;
using std::chrono::milliseconds;
using std::chrono::minutes;
using std::chrono::seconds;

struct Text {
    Q_DECLARE_TR_FUNCTIONS(DurationText)
};

template <typename Unit> int CountUp(Length length)
{
    return static_cast<int>(std::chrono::ceil<Unit>(length).count());
}

QDateTime LocalTime(Moment moment)
{
    return QDateTime::fromMSecsSinceEpoch(
        std::chrono::duration_cast<milliseconds>(moment.time_since_epoch()).count());
}

} // namespace

QString RemainingText(Length left)
{
    if (left <= minutes(1)) {
        return Text::tr("%1 s").arg(std::max(1, CountUp<seconds>(left)));
    }
    const int wholeMinutes = CountUp<minutes>(left);
    constexpr int minutesOfAnHour = 60;
    const int wholeHours = wholeMinutes / minutesOfAnHour;
    return wholeHours == 0
        ? Text::tr("%1 min").arg(wholeMinutes)
        : Text::tr("%1 h %2 min").arg(wholeHours).arg(wholeMinutes % minutesOfAnHour);
}

milliseconds UntilRemainingTextChanges(Length left)
{
    const Length unit = left <= minutes(1) ? Length(seconds(1)) : Length(minutes(1));
    const Length sinceWhole = left % unit;
    // The text rounds up: it changes as soon as a whole unit is left.
    const Length wait = sinceWhole > Length::zero() ? sinceWhole : unit;
    return std::chrono::ceil<milliseconds>(wait);
}

QString TimeText(Moment moment, Moment now)
{
    const QDateTime time = LocalTime(moment);
    const QLocale locale;
    return Isolated(time.date() == LocalTime(now).date()
                        ? locale.toString(time.time(), QLocale::ShortFormat)
                        : locale.toString(time, QLocale::ShortFormat));
}

} // namespace Zentor::Desktop
