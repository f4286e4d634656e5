// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <tuple>

#include <QHash>

#include "HostData.h"

namespace Zentor::PX {
namespace {

using TimePoint = Time::IClock::time_point;

/// Half-open interval: from `start` up to, but not including, `end`.
struct Span {
    TimePoint start;
    TimePoint end;
};

Span SpanOf(const RecordTime& record)
{
    // Saturates: an end beyond the largest time point is that time point.
    const bool fits = record.duration <= std::chrono::microseconds::zero()
        || record.start <= TimePoint::max() - record.duration;
    return {record.start, fits ? record.start + record.duration : TimePoint::max()};
}

bool IsBefore(const RecordTime& left, const RecordTime& right)
{
    const Span leftSpan = SpanOf(left);
    const Span rightSpan = SpanOf(right);
    return std::tie(leftSpan.start, leftSpan.end, left.title)
        < std::tie(rightSpan.start, rightSpan.end, right.title);
}

} // namespace

struct SchedulerHelper::Private {
    /// Ordered by IsBefore(). As no two spans overlap, their ends are in order too.
    std::vector<RecordTime> records;
    /// The same records, for look-up in constant time.
    QHash<QString, RecordTime> byTitle;
};

SchedulerHelper::SchedulerHelper()
    : d(std::make_unique<Private>())
{
}

SchedulerHelper::~SchedulerHelper() = default;

int SchedulerHelper::AddRecord(const RecordTime& record)
{
    constexpr int refused = -1;
    if (record.title.trimmed().isEmpty() || record.duration < std::chrono::microseconds::zero()
        || DoesTitleAlreadyExists(record.title) || DoesCaptureTimeIntersected(record)) {
        return refused;
    }
    const auto place = std::upper_bound(d->records.begin(), d->records.end(), record, IsBefore);
    const auto inserted = d->records.insert(place, record);
    d->byTitle.insert(record.title, record);
    return static_cast<int>(inserted - d->records.begin());
}

void SchedulerHelper::RemoveRecord(const QString& title)
{
    const auto known = d->byTitle.constFind(title);
    if (known == d->byTitle.constEnd()) {
        return;
    }
    const auto place = std::lower_bound(d->records.begin(), d->records.end(), *known, IsBefore);
    d->records.erase(place);
    d->byTitle.erase(known);
}

void SchedulerHelper::ClearSchedule()
{
    d->records.clear();
    d->byTitle.clear();
}

bool SchedulerHelper::DoesTitleAlreadyExists(const QString& title) const
{
    return d->byTitle.contains(title);
}

bool SchedulerHelper::DoesCaptureTimeIntersected(const RecordTime& record) const
{
    const Span span = SpanOf(record);
    // Of the records that are not over at the start of the span, the first one starts earliest:
    // when it does not overlap, none does.
    const auto endsAfter = [](TimePoint moment, const RecordTime& other) {
        return moment < SpanOf(other).end;
    };
    const auto first =
        std::upper_bound(d->records.begin(), d->records.end(), span.start, endsAfter);
    return first != d->records.end() && first->start < span.end;
}

std::vector<RecordTime> SchedulerHelper::GetPreparedSchedule() const
{
    return d->records;
}

std::uint64_t SchedulerHelper::GetRecordCount() const
{
    return d->records.size();
}

} // namespace Zentor::PX
