#include "ClockChanges.h"

namespace Zentor::PX::Scheduler::UI {

QDateTime MomentOf(const QDate& date, const QTime& time)
{
    QDateTime moment(date, time);
    if (moment.isValid()) {
        return moment;
    }
    const int offsetBefore = QDateTime(date.addDays(-1), time).offsetFromUtc();
    const QDateTime shifted(date, time, Qt::OffsetFromUTC, offsetBefore);
    return qMin(shifted.toLocalTime(), date.endOfDay());
}

QDateTime RepeatOf(const QDateTime& moment)
{
    // No clock is put back by more than three hours at once.
    constexpr qint64 LongestChange = qint64{3} * 60 * 60;
    const int putBack = moment.offsetFromUtc() - moment.addSecs(LongestChange).offsetFromUtc();
    const QDateTime repeat = moment.addSecs(qMax(putBack, 0));
    return repeat.time() == moment.time() && repeat.date() == moment.date() ? repeat : moment;
}

} // namespace Zentor::PX::Scheduler::UI
