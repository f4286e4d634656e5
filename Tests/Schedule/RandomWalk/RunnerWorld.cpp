// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RunnerWorld.h"

#include <algorithm>

namespace Zentor::Tests {

using namespace Schedule;
using std::chrono::microseconds;
using std::chrono::milliseconds;
using std::chrono::minutes;
using std::chrono::seconds;

RunnerWorld::RunnerWorld(quint32 seed)
    : m_random(seed)
{
    constexpr seconds begin{1'795'000'000};
    now = {Moment(begin), seconds(5000)};
}

Length RunnerWorld::Between(Length low, Length high)
{
    return low + Length(qint64(quint64(m_random()) % quint64((high - low).count() + 1)));
}

void RunnerWorld::Complain(const char* text)
{
    if (problem.isEmpty()) {
        problem = QString::fromLatin1(text);
    }
}

// The recorders.

void RunnerWorld::Plan(Recorder& recorder, EventKind next, Length delay, const QString& reason)
{
    recorder.next = next;
    recorder.at = awake + delay;
    recorder.reason = reason;
}

void RunnerWorld::Prepare(RecordingId id, const RecordingPlan& plan)
{
    calls.push_back(PrepareCall(id, plan));
    Recorder recorder;
    recorder.file = QStringLiteral("file");
    static const char* const codes[] = {"busy",      "exists",     "no-folder", "not-writable",
                                        "disk-full", "no-display", "refused",   "pipeline"};
    const int fate = Below(100);
    if (fate < 84) {
        Plan(recorder, EventKind::Ready, Between(milliseconds(1), milliseconds(300)));
    } else if (fate < 89) {
        Plan(recorder, EventKind::Ready, Between(milliseconds(1), seconds(20)));
    } else if (fate < 95) {
        Plan(recorder, EventKind::Failed, Between(milliseconds(1), milliseconds(100)),
             codes[Below(int(std::size(codes)))]);
    } else {
        Plan(recorder, EventKind::Died, Between(milliseconds(1), seconds(fate < 98 ? 1 : 30)));
    }
    if (!m_recorders.emplace(id, recorder).second) {
        Complain("an id is used twice");
    }
    if (m_recorders.size() > 2) {
        Complain("there are more than two recorders");
    }
}

void RunnerWorld::PlanStart(Recorder& recorder, Length at)
{
    const Length lag = Between(microseconds(0), milliseconds(57));
    Plan(recorder, Chance(4) ? EventKind::Failed : EventKind::FirstFrame,
         std::max(at - awake, Length::zero()) + lag, QStringLiteral("pipeline"));
}

void RunnerWorld::Start(RecordingId id, std::optional<Moment> at, Length length)
{
    calls.push_back(StartCall(id, at, length));
    for (const auto& other : m_recorders) {
        if (other.second.isStarted) {
            Complain("two recordings at a time");
        }
    }
    Recorder& recorder = m_recorders.at(id);
    recorder.isStarted = true;
    recorder.length = length;
    const Length begin = awake + (at ? *at - now.wall : Length::zero());
    if (recorder.at) {
        recorder.startOrder = begin;
    } else {
        PlanStart(recorder, begin);
    }
}

void RunnerWorld::PlanMishap(Recorder& recorder)
{
    const int fate = Below(100);
    if (fate >= 20) {
        return;
    }
    const Length longest = recorder.length > Length::zero() ? recorder.length : Length(minutes(20));
    recorder.mishapAt = awake + Between(Length::zero(), longest);
    recorder.mishap = fate < 8 ? EventKind::Died
        : fate < 11            ? EventKind::Failed
                               : EventKind::Finished;
    recorder.mishapReason = fate < 8 ? QString()
        : fate < 11                  ? QStringLiteral("disk-full")
        : fate < 15                  ? QStringLiteral("no-display")
        : fate < 19                  ? QStringLiteral("disk-low")
                                     : QStringLiteral("stopped");
}

void RunnerWorld::Begin(Recorder& recorder, RecordingId id)
{
    recorder.file = QStringLiteral("file ") + QString::number(id);
    recorder.at.reset();
    if (recorder.isEnding) {
        Plan(recorder, EventKind::Cancelled, Between(milliseconds(1), milliseconds(50)));
        return;
    }
    recorder.isRecording = true;
    recorder.since = awake;
    if (recorder.length > Length::zero()) {
        Plan(recorder, EventKind::Finished, recorder.length, QStringLiteral("duration"));
    }
    PlanMishap(recorder);
}

void RunnerWorld::Stop(RecordingId id)
{
    calls.push_back(PlainCall(RunnerCall::Kind::Stop, qint64(id)));
    Recorder& recorder = m_recorders.at(id);
    if (!recorder.isRecording || recorder.isEnding) {
        Complain("what does not record is stopped");
    }
    recorder.recorded = RecordedBy(id);
    recorder.isEnding = true;
    recorder.isRecording = false;
    recorder.mishapAt.reset();
    const int fate = Below(100);
    if (fate < 80) {
        Plan(recorder, EventKind::Finished, Between(milliseconds(10), milliseconds(60)), "stopped");
    } else if (fate < 84) {
        Plan(recorder, EventKind::Finished, Between(seconds(0), seconds(12)), "stopped");
    } else if (fate < 92) {
        static const char* const reasons[] = {"duration", "disk-low", "no-display", "quit"};
        Plan(recorder, EventKind::Finished, milliseconds(1), reasons[Below(4)]);
    } else if (fate < 96) {
        Plan(recorder, EventKind::Died, Between(milliseconds(1), seconds(20)));
    } else {
        Plan(recorder, EventKind::Failed, milliseconds(5),
             fate < 98 ? QStringLiteral("remux") : QStringLiteral("nothing-recorded"));
    }
}

void RunnerWorld::Pause(RecordingId id)
{
    calls.push_back(PlainCall(RunnerCall::Kind::Pause, qint64(id)));
    Recorder& recorder = m_recorders.at(id);
    recorder.recorded = RecordedBy(id);
    recorder.isPaused = true;
    recorder.at.reset();
}

void RunnerWorld::Resume(RecordingId id)
{
    calls.push_back(PlainCall(RunnerCall::Kind::Resume, qint64(id)));
    Recorder& recorder = m_recorders.at(id);
    recorder.isPaused = false;
    recorder.since = awake;
    if (recorder.length > Length::zero()) {
        Plan(recorder, EventKind::Finished, recorder.length - recorder.recorded, "duration");
    }
}

void RunnerWorld::Cancel(RecordingId id)
{
    calls.push_back(PlainCall(RunnerCall::Kind::Cancel, qint64(id)));
    Recorder& recorder = m_recorders.at(id);
    if (recorder.isEnding || recorder.isRecording) {
        Complain("a recording is deleted, or cancelled twice");
    }
    recorder.isEnding = true;
    recorder.mishapAt.reset();
    const Length delay =
        Chance(95) ? Between(milliseconds(1), milliseconds(100)) : Between(seconds(1), seconds(8));
    const int fate = Below(100);
    if (fate < 10 && recorder.isStarted) {
        Plan(recorder, EventKind::FirstFrame, delay);
    } else if (fate < 14 && recorder.isStarted) {
        static const char* const reasons[] = {"duration", "disk-low", "no-display"};
        recorder.recorded = milliseconds(30);
        Plan(recorder, EventKind::Finished, delay, reasons[Below(3)]);
    } else if (fate < 20) {
        Plan(recorder, fate < 17 ? EventKind::Failed : EventKind::Died, delay,
             QStringLiteral("nothing-recorded"));
    } else {
        Plan(recorder, EventKind::Cancelled, delay);
    }
}

std::optional<Length> RunnerWorld::NextOf(const Recorder& recorder)
{
    if (!recorder.mishapAt || (recorder.at && *recorder.at <= *recorder.mishapAt)) {
        return recorder.at;
    }
    return recorder.mishapAt;
}

std::optional<Length> RunnerWorld::NextEvent() const
{
    std::optional<Length> first;
    for (const auto& recorder : m_recorders) {
        const auto at = NextOf(recorder.second);
        if (at && (!first || *at < *first)) {
            first = at;
        }
    }
    return first;
}

RecorderEvent RunnerWorld::TakeEvent()
{
    const auto first =
        std::min_element(m_recorders.begin(), m_recorders.end(), [](auto& left, auto& right) {
            return NextOf(left.second).value_or(Length::max())
                < NextOf(right.second).value_or(Length::max());
        });
    Recorder& recorder = first->second;
    const bool isMishap = NextOf(recorder) != recorder.at;
    RecorderEvent event{isMishap ? recorder.mishap : recorder.next, first->first, recorder.file,
                        isMishap ? recorder.mishapReason : recorder.reason,
                        RecordedBy(first->first)};
    if (event.kind == EventKind::Ready) {
        recorder.at.reset();
        if (recorder.startOrder) {
            PlanStart(recorder, *recorder.startOrder);
        }
    } else if (event.kind == EventKind::FirstFrame) {
        Begin(recorder, event.id);
        event.file = recorder.file;
    } else {
        m_recorders.erase(first);
    }
    return event;
}

std::vector<RecordingId> RunnerWorld::Recordings() const
{
    std::vector<RecordingId> ids;
    for (const auto& recorder : m_recorders) {
        ids.push_back(recorder.first);
    }
    return ids;
}

Length RunnerWorld::RecordedBy(RecordingId id) const
{
    const Recorder& recorder = m_recorders.at(id);
    return recorder.isRecording && !recorder.isPaused ? recorder.recorded + awake - recorder.since
                                                      : recorder.recorded;
}

void RunnerWorld::Die()
{
    m_recorders.clear();
    m_isHeldAwake = false;
    questions.clear();
}

// The schedule and the list.

void RunnerWorld::AddTask(const PX::RecordTime& task)
{
    tasks.push_back(task);
    m_listed[task.title] = {};
}

void RunnerWorld::ReplaceTask(std::size_t index, const PX::RecordTime& task)
{
    tasks[index] = task;
    m_listed[task.title].isShared = true;
}

void RunnerWorld::DeleteTask(const QString& title)
{
    tasks.erase(std::remove_if(tasks.begin(), tasks.end(),
                               [&](const auto& task) { return task.title == title; }),
                tasks.end());
}

void RunnerWorld::RemoveTask(const PX::RecordTime& task)
{
    calls.push_back(RemoveTaskCall(task.title));
    const auto count = tasks.size();
    DeleteTask(task.title);
    if (tasks.size() + 1 != count) {
        Complain("a task leaves that is not there");
    }
    const Listed& listed = m_listed[task.title];
    if (!listed.isMissed && !listed.isRecorded
        && !book.Contains(task.title, task.start - seconds(1), task.start + task.duration)) {
        Complain("a task leaves without a word");
    }
}

IRecordings::EntryId RunnerWorld::Add(const RecordingEntry& entry)
{
    calls.push_back(AddCall(entry));
    Listed& listed = m_listed[entry.title];
    (entry.outcome == Outcome::Missed ? listed.isMissed : listed.isRecorded) = true;
    if (listed.isMissed && listed.isRecorded && !listed.isShared) {
        Complain("a task is missed and recorded");
    }
    return book.Add(entry);
}

void RunnerWorld::Update(EntryId id, const RecordingEntry& entry)
{
    calls.push_back(UpdateCall(id, entry));
    book.Update(id, entry);
}

// Power.

void RunnerWorld::Ask(PX::PowerAction action)
{
    calls.push_back(PlainCall(RunnerCall::Kind::Ask, action));
    questions.push_back(action);
}

void RunnerWorld::Perform(PX::PowerAction action)
{
    calls.push_back(PlainCall(RunnerCall::Kind::Perform, action));
    for (const auto& recorder : m_recorders) {
        if (recorder.second.isStarted || action != PX::QuitApplication) {
            Complain("an action is done while there is a recording");
        }
    }
    if (action == PX::QuitApplication) {
        return;
    }
    if (m_isHeldAwake) {
        Complain("an action is done while the machine is kept awake");
    }
    for (const auto& task : tasks) {
        if (isEnabled && !isActionWanted && task.start + task.duration > now.wall
            && task.start - now.wall <= minutes(10)) {
            Complain("an action is done although a task starts soon");
        }
    }
}

void RunnerWorld::SetHeldAwake(bool isHeld)
{
    calls.push_back(PlainCall(RunnerCall::Kind::HoldAwake, isHeld));
    if (isHeld == m_isHeldAwake) {
        Complain("the machine is kept awake twice, or let go twice");
    }
    m_isHeldAwake = isHeld;
}

void RunnerWorld::Tell(const Notice& notice)
{
    calls.push_back(TellCall(notice));
}

} // namespace Zentor::Tests
