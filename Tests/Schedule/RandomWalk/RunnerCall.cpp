// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RunnerCall.h"

#include <tuple>

namespace Zentor::Tests {
namespace {

using namespace Schedule;
using Kind = RunnerCall::Kind;

qint64 Number(Moment moment)
{
    return moment.time_since_epoch().count();
}

RunnerCall EntryCall(Kind kind, qint64 id, const RecordingEntry& entry)
{
    return {kind,
            {id, Number(entry.start), Number(entry.end), qint64(entry.outcome), 0},
            entry.title,
            entry.file + '|' + entry.reason};
}

} // namespace

bool operator==(const RunnerCall& left, const RunnerCall& right)
{
    return left.kind == right.kind && left.numbers == right.numbers && left.title == right.title
        && left.text == right.text;
}

bool operator<(const RunnerCall& left, const RunnerCall& right)
{
    return std::tie(left.kind, left.numbers, left.title, left.text)
        < std::tie(right.kind, right.numbers, right.title, right.text);
}

QString ToText(const RunnerCall& call)
{
    static const char* const names[] = {"Prepare", "Start",     "Stop",   "Pause",      "Resume",
                                        "Cancel",  "Add",       "Update", "RemoveTask", "Ask",
                                        "Perform", "HoldAwake", "Tell"};
    QString text = QString::fromLatin1(names[int(call.kind)]);
    for (const qint64 number : call.numbers) {
        text += ' ' + QString::number(number);
    }
    return text + " \"" + call.title + "\" \"" + call.text + '"';
}

RunnerCall PrepareCall(RecordingId id, const RecordingPlan& plan)
{
    return {Kind::Prepare,
            {qint64(id), plan.isTask, plan.screenIndex, Number(plan.start), 0},
            plan.title,
            {}};
}

RunnerCall StartCall(RecordingId id, std::optional<Moment> at, Length length)
{
    return {Kind::Start, {qint64(id), at ? Number(*at) : -1, length.count(), 0, 0}, {}, {}};
}

RunnerCall PlainCall(Kind kind, qint64 value)
{
    return {kind, {value, 0, 0, 0, 0}, {}, {}};
}

RunnerCall AddCall(const RecordingEntry& entry)
{
    return EntryCall(Kind::Add, 0, entry);
}

RunnerCall UpdateCall(IRecordings::EntryId id, const RecordingEntry& entry)
{
    return EntryCall(Kind::Update, qint64(id), entry);
}

RunnerCall RemoveTaskCall(const QString& title)
{
    return {Kind::RemoveTask, {}, title, {}};
}

RunnerCall TellCall(const Notice& notice)
{
    return {Kind::Tell,
            {qint64(notice.kind), Number(notice.when), notice.goesOn, notice.action,
             qint64(notice.entry.outcome)},
            notice.title,
            notice.entry.reason + '|' + notice.text};
}

} // namespace Zentor::Tests
