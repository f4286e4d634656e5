// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

// What HostData.h declares: path, clock and schedule. No widgets here.
#include <algorithm>
#include <tuple>

#include "HostInterfaces.h"

namespace Zentor {
namespace {

/// Whether \a early, which does not start after \a late, reaches into it. Spans are half-open: a
/// task may start the moment another ends.
bool ReachesInto(const PX::RecordTime& early, const PX::RecordTime& late)
{
    if (early.start == late.start) {
        return early.duration.count() > 0 && late.duration.count() > 0;
    }
    // Unsigned: a stored schedule may hold any two moments, whose distance must not overflow.
    const auto distance = static_cast<std::uint64_t>(late.start.time_since_epoch().count())
        - static_cast<std::uint64_t>(early.start.time_since_epoch().count());
    return distance < static_cast<std::uint64_t>(early.duration.count());
}

/// The order of the rows: by start. Tasks without length may share theirs.
bool IsBefore(const PX::RecordTime& one, const PX::RecordTime& other)
{
    return std::tie(one.start, one.duration, one.title)
        < std::tie(other.start, other.duration, other.title);
}

} // namespace

ioPath& ioPath::operator=(const std::string& utf8Path)
{
    m_utf8Path = utf8Path;
    return *this;
}

std::string ioPath::ToUtf8() const
{
    return m_utf8Path;
}

namespace Time {

IClock::time_point SystemClock::Now() const
{
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return time_point(std::chrono::duration_cast<duration>(now));
}

IClock::time_point SystemClock::FromTimeT(std::int64_t seconds) const
{
    // Beyond these the count of microseconds would overflow.
    constexpr auto earliest = std::chrono::ceil<std::chrono::seconds>(duration::min());
    constexpr auto latest = std::chrono::floor<std::chrono::seconds>(duration::max());
    return time_point(std::clamp(std::chrono::seconds(seconds), earliest, latest));
}

} // namespace Time

namespace PX {

struct SchedulerHelper::Private {
    /// In the order of the rows.
    std::vector<RecordTime> records;
};

SchedulerHelper::SchedulerHelper()
    : d(std::make_unique<Private>())
{
}

SchedulerHelper::~SchedulerHelper() = default;

int SchedulerHelper::AddRecord(const RecordTime& record)
{
    // A stored schedule may hold anything: what is refused here gets no row.
    if (record.title.trimmed().isEmpty() || record.duration.count() < 0
        || DoesTitleAlreadyExists(record.title) || DoesCaptureTimeIntersected(record)) {
        return -1;
    }
    auto& records = d->records;
    const auto place = std::upper_bound(records.begin(), records.end(), record, IsBefore);
    const auto index = place - records.begin();
    records.insert(place, record);
    // The row is inserted exactly there.
    return static_cast<int>(index);
}

void SchedulerHelper::RemoveRecord(const QString& title)
{
    auto& records = d->records;
    records.erase(std::remove_if(records.begin(), records.end(),
                                 [&](const RecordTime& record) { return record.title == title; }),
                  records.end());
}

void SchedulerHelper::ClearSchedule()
{
    d->records.clear();
}

bool SchedulerHelper::DoesTitleAlreadyExists(const QString& title) const
{
    return std::any_of(d->records.begin(), d->records.end(),
                       [&](const RecordTime& record) { return record.title == title; });
}

bool SchedulerHelper::DoesCaptureTimeIntersected(const RecordTime& record) const
{
    return std::any_of(d->records.begin(), d->records.end(), [&](const RecordTime& other) {
        return record.start < other.start ? ReachesInto(record, other) : ReachesInto(other, record);
    });
}

std::vector<RecordTime> SchedulerHelper::GetPreparedSchedule() const
{
    return d->records;
}

std::uint64_t SchedulerHelper::GetRecordCount() const
{
    return d->records.size();
}

} // namespace PX

} // namespace Zentor
