// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>

#include <QDateTime>

#include "HostInterfaces.h"

namespace Zentor::Tests {

inline Time::IClock::time_point At(const QDateTime& dateTime)
{
    return Time::IClock::time_point(std::chrono::milliseconds(dateTime.toMSecsSinceEpoch()));
}

/// The moment \a time (as "hh:mm" or "hh:mm:ss") of 1 March 2030, UTC.
inline Time::IClock::time_point At(const char* time)
{
    return At(QDateTime(QDate(2030, 3, 1), QTime::fromString(QString::fromLatin1(time)), Qt::UTC));
}

inline PX::RecordTime Record(const QString& title, Time::IClock::time_point start,
                             std::chrono::microseconds duration)
{
    PX::RecordTime record;
    record.title = title;
    record.start = start;
    record.duration = duration;
    return record;
}

inline PX::RecordTime Record(const char* title, const char* start,
                             std::chrono::microseconds duration = std::chrono::minutes(1))
{
    return Record(QString::fromUtf8(title), At(start), duration);
}

} // namespace Zentor::Tests
