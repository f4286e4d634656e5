// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

// What HostData.h declares: path, clock and schedule. No widgets here.
#include <algorithm>

#include "HostInterfaces.h"

namespace Zentor {

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
    return time_point(std::chrono::seconds(seconds));
}

} // namespace Time

namespace PX {

struct SchedulerHelper::Private {
    /// In the order of their starts, which is the order of the rows.
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
    if (record.title.trimmed().isEmpty() || DoesTitleAlreadyExists(record.title)
        || DoesCaptureTimeIntersected(record)) {
        return -1;
    }
    auto& records = d->records;
    const auto place = std::upper_bound(
        records.begin(), records.end(), record,
        [](const RecordTime& one, const RecordTime& other) { return one.start < other.start; });
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
    // Half-open: a task may start the moment another ends.
    return std::any_of(d->records.begin(), d->records.end(), [&](const RecordTime& other) {
        return record.start < other.start + other.duration
            && other.start < record.start + record.duration;
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
