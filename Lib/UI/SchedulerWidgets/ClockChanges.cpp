// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

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

} // namespace Zentor::PX::Scheduler::UI
