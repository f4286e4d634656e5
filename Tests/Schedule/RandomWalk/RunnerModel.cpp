// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RunnerModel.h"

#include <algorithm>

namespace Zentor::Tests {

using namespace Schedule;
using std::chrono::milliseconds;
using std::chrono::minutes;
using std::chrono::seconds;
using Kind = RunnerCall::Kind;

namespace {

Moment EndOf(const PX::RecordTime& task)
{
    return task.start + task.duration;
}

bool AreSame(const PX::RecordTime& left, const PX::RecordTime& right)
{
    return left.title == right.title && left.start == right.start && left.duration == right.duration
        && left.screenIndex == right.screenIndex && left.finishAction == right.finishAction;
}

bool IsMore(Length difference, Length limit)
{
    return difference > limit || difference < -limit;
}

Length Difference(const Instant& now)
{
    return now.wall.time_since_epoch() - now.sinceBoot;
}

} // namespace

RunnerModel::RunnerModel(const EntryBook& book, const IScreens& screens)
    : m_book(book)
    , m_screens(screens)
{
}

// What is known.

void RunnerModel::Note(const Instant& now)
{
    if (!m_begin) {
        m_begin = now.wall;
    } else if (IsMore(Difference(now) - Difference(m_now), seconds(5))) {
        m_isJump = true;
    }
    m_now = now;
}

bool RunnerModel::IsWanted(const PX::RecordTime& task) const
{
    return m_isEnabled && std::any_of(m_tasks.begin(), m_tasks.end(), [&](const auto& other) {
               return AreSame(task, other);
           });
}

bool RunnerModel::IsUnderWay(const PX::RecordTime& task) const
{
    return std::any_of(m_attempts.begin(), m_attempts.end(), [&](const auto& attempt) {
        return attempt.isTask && AreSame(attempt.task, task);
    });
}

const PX::RecordTime* RunnerModel::NextTask() const
{
    const auto next = std::find_if(m_tasks.begin(), m_tasks.end(), [&](const auto& task) {
        return EndOf(task) > m_now.wall && !IsUnderWay(task);
    });
    return m_isEnabled && next != m_tasks.end() ? &*next : nullptr;
}

const PX::RecordTime* RunnerModel::TaskAtHand() const
{
    if (const Attempt* waiting = Waiting()) {
        return &waiting->task;
    }
    const PX::RecordTime* next = NextTask();
    return next != nullptr && next->start <= m_now.wall + minutes(10) ? next : nullptr;
}

RunnerModel::Memory& RunnerModel::MemoryOf(const PX::RecordTime& task)
{
    Memory& memory = m_memories[task.title];
    memory.task = task;
    return memory;
}

RunnerModel::Attempt* RunnerModel::Find(RecordingId id)
{
    const auto found = std::find_if(m_attempts.begin(), m_attempts.end(),
                                    [&](const auto& attempt) { return attempt.id == id; });
    return found == m_attempts.end() ? nullptr : &*found;
}

RunnerModel::Attempt* RunnerModel::Front()
{
    const auto front = std::find_if(m_attempts.begin(), m_attempts.end(),
                                    [](const auto& attempt) { return attempt.isBegun; });
    return front == m_attempts.end() ? nullptr : &*front;
}

const RunnerModel::Attempt* RunnerModel::Waiting() const
{
    const auto waiting = std::find_if(m_attempts.begin(), m_attempts.end(),
                                      [](const auto& attempt) { return !attempt.isBegun; });
    return waiting == m_attempts.end() ? nullptr : &*waiting;
}

bool RunnerModel::IsListed(const PX::RecordTime& task) const
{
    return m_book.Contains(task.title, task.start - seconds(1), EndOf(task));
}

// The rules.

void RunnerModel::Evaluate(const Instant& now)
{
    Note(now);
    while (EndsOne() || ListsOne() || YieldsOne() || PreparesOne() || StartsOne()) { }
    CountsDown();
    HoldsAwake();
    m_isJump = false;
}

/// Why a task's attempt has to end now, or None.
RunnerModel::Cause RunnerModel::CauseToEnd(const Attempt& attempt)
{
    if (!IsWanted(attempt.task)) {
        return Cause::User;
    }
    if (attempt.isShown) {
        const bool isExact = !attempt.pausedAt && attempt.paused == Length::zero();
        const Length end = attempt.first.sinceBoot + attempt.length
            + (isExact ? Length(seconds(2)) : Length::zero());
        return m_now.sinceBoot >= end ? Cause::Over : Cause::None;
    }
    Memory& memory = MemoryOf(attempt.task);
    if (EndOf(attempt.task) <= m_now.wall) {
        const bool wasAwake = m_now.wall <= EndOf(attempt.task) + seconds(5);
        memory.obstacle = m_isJump ? Why::ClockSet : wasAwake ? Why::NoRecorder : Why::Suspended;
        return Cause::Withdrawn;
    }
    if (attempt.task.start > m_now.wall + seconds(11)) {
        memory.isSoonTold = false;
        return Cause::Withdrawn;
    }
    const bool isMisplaced =
        attempt.isBegun && IsMore(Difference(m_now) - attempt.difference, milliseconds(20));
    return isMisplaced || IsPreceded(attempt.task) ? Cause::Withdrawn : Cause::None;
}

/// Whether another task has to be recorded first.
bool RunnerModel::IsPreceded(const PX::RecordTime& task)
{
    const PX::RecordTime* next = NextTask();
    return next != nullptr && CanRecord() && next->start < task.start
        && next->start <= m_now.wall + seconds(10) && m_screens.IsThere(next->screenIndex)
        && m_now.sinceBoot >= MemoryOf(*next).retryAt;
}

bool RunnerModel::EndsOne()
{
    for (Attempt& attempt : m_attempts) {
        if (attempt.isTask && !attempt.isEnding) {
            const Cause cause = CauseToEnd(attempt);
            if (cause != Cause::None) {
                End(attempt, cause);
                return true;
            }
        }
    }
    return false;
}

void RunnerModel::End(Attempt& attempt, Cause cause)
{
    if (!attempt.isEnding) {
        attempt.isEnding = true;
        attempt.cause = attempt.isShown ? cause : Cause::Withdrawn;
        if (attempt.pausedAt) {
            attempt.paused += m_now.sinceBoot - *attempt.pausedAt;
            attempt.pausedAt.reset();
        }
        calls.push_back(PlainCall(attempt.isShown ? Kind::Stop : Kind::Cancel, qint64(attempt.id)));
    }
}

bool RunnerModel::ListsOne()
{
    const auto past = std::find_if(m_tasks.begin(), m_tasks.end(), [&](const auto& task) {
        return EndOf(task) <= m_now.wall && !IsUnderWay(task);
    });
    if (past == m_tasks.end() || !m_isEnabled || !CanRecord()) {
        return false;
    }
    const PX::RecordTime task = *past;
    if (!IsListed(task)) {
        const Memory& memory = MemoryOf(task);
        const bool isFailed = memory.failures > 0;
        Notice notice;
        notice.kind = isFailed ? Notice::Kind::Failed : Notice::Kind::Missed;
        notice.title = task.title;
        notice.when = task.start;
        notice.entry = {task.title,  task.start,
                        EndOf(task), isFailed ? Outcome::Failed : Outcome::Missed,
                        {},          isFailed ? memory.failure : WhyMissed(task)};
        m_book.Add(notice.entry);
        calls.push_back(AddCall(notice.entry));
        calls.push_back(TellCall(notice));
    }
    RemoveTask(task);
    return true;
}

QString RunnerModel::WhyMissed(const PX::RecordTime& task)
{
    if (EndOf(task) <= *m_begin) {
        return Why::NotRunning;
    }
    if (m_enabledAt && EndOf(task) <= *m_enabledAt) {
        return Why::ScheduleOff;
    }
    const QString obstacle = MemoryOf(task).obstacle;
    return !obstacle.isEmpty() ? obstacle : m_isJump ? Why::ClockSet : Why::Suspended;
}

bool RunnerModel::YieldsOne()
{
    Attempt* front = Front();
    const PX::RecordTime* next = NextTask();
    if (front == nullptr || front->isTask || front->isEnding || m_isKept || next == nullptr
        || !CanRecord() || !m_screens.IsThere(next->screenIndex)
        || next->start > m_now.wall + seconds(60)) {
        return false;
    }
    if (next->start <= m_now.wall + seconds(10)) {
        End(*front, Cause::GivesWay);
        return true;
    }
    Memory& memory = MemoryOf(*next);
    if (!memory.isYieldTold) {
        memory.isYieldTold = true;
        TellOf(Notice::Kind::GivingWay, *next);
        return true;
    }
    return false;
}

bool RunnerModel::IsRoomBeside(const Attempt* front) const
{
    return front == nullptr || front->isEnding
        || (front->isTask && front->isShown
            && front->first.sinceBoot + front->length <= m_now.sinceBoot + seconds(10));
}

bool RunnerModel::PreparesOne()
{
    const PX::RecordTime* next = NextTask();
    if (Waiting() != nullptr || next == nullptr || !CanRecord()
        || next->start > m_now.wall + seconds(10)) {
        return false;
    }
    Memory& memory = MemoryOf(*next);
    if (!IsRoomBeside(Front())) {
        memory.obstacle = Why::OtherRecording;
        return false;
    }
    if (!m_screens.IsThere(next->screenIndex)) {
        memory.obstacle = Why::ScreenMissing;
        if (!memory.isScreenTold && next->start <= m_now.wall) {
            memory.isScreenTold = true;
            TellOf(Notice::Kind::ScreenAwaited, *next);
        }
        return false;
    }
    if (m_now.sinceBoot < memory.retryAt) {
        return false;
    }
    Attempt attempt;
    attempt.isTask = true;
    attempt.task = *next;
    attempt.isRest = IsListed(*next);
    if (!memory.isSoonTold && next->start > m_now.wall) {
        memory.isSoonTold = true;
        TellOf(Notice::Kind::StartsSoon, *next);
    }
    Prepare(attempt);
    return true;
}

RecordingId RunnerModel::Prepare(Attempt attempt)
{
    attempt.id = ++m_lastId;
    RecordingPlan plan;
    plan.isTask = attempt.isTask;
    plan.title = attempt.task.title;
    plan.screenIndex = attempt.task.screenIndex;
    plan.start = attempt.isTask ? std::max(attempt.task.start, m_now.wall) : m_now.wall;
    calls.push_back(PrepareCall(attempt.id, plan));
    m_attempts.push_back(attempt);
    return attempt.id;
}

bool RunnerModel::StartsOne()
{
    if (Front() != nullptr) {
        return false;
    }
    for (Attempt& attempt : m_attempts) {
        if (attempt.isReady && !attempt.isEnding) {
            const bool isEarly = m_now.wall < attempt.task.start;
            attempt.isBegun = true;
            attempt.difference = Difference(m_now);
            attempt.length = EndOf(attempt.task) - (isEarly ? attempt.task.start : m_now.wall);
            calls.push_back(StartCall(attempt.id,
                                      isEarly ? std::optional(attempt.task.start) : std::nullopt,
                                      attempt.length));
            return true;
        }
    }
    return false;
}

void RunnerModel::CountsDown()
{
    const PX::PowerAction action = m_action.action;
    if (action == PX::DoNothing) {
        return;
    }
    if (const PX::RecordTime* task = TaskAtHand()) {
        m_action = {};
        TellSkipped(action, *task);
    } else if (!m_attempts.empty() || !CanRecord()) {
        m_action = {};
    } else if (m_action.end && m_now.sinceBoot >= *m_action.end) {
        ActNow();
    }
}

void RunnerModel::HoldsAwake()
{
    if (m_isHeld == m_attempts.empty()) {
        m_isHeld = !m_isHeld;
        calls.push_back(PlainCall(Kind::HoldAwake, m_isHeld));
    }
}

// What happens.

void RunnerModel::SetSchedule(const std::vector<PX::RecordTime>& tasks, bool isEnabled,
                              const Instant& now)
{
    if (isEnabled && !m_isEnabled) {
        m_enabledAt = now.wall;
    }
    m_isEnabled = isEnabled;
    m_tasks = tasks;
    std::stable_sort(m_tasks.begin(), m_tasks.end(),
                     [](const auto& left, const auto& right) { return left.start < right.start; });
    for (auto memory = m_memories.begin(); memory != m_memories.end();) {
        const bool isKnown = std::any_of(m_tasks.begin(), m_tasks.end(), [&](const auto& task) {
            return AreSame(task, memory->second.task);
        });
        memory = isKnown ? std::next(memory) : m_memories.erase(memory);
    }
    Evaluate(now);
}

void RunnerModel::BeginByHand(Attempt attempt)
{
    attempt.isBegun = true;
    const RecordingId id = Prepare(attempt);
    calls.push_back(StartCall(id, std::nullopt, attempt.length));
}

bool RunnerModel::StartByHand(Length length, PX::PowerAction action, const Instant& now)
{
    m_action = {};
    Evaluate(now);
    const PX::RecordTime* next = NextTask();
    const bool isDue = next != nullptr && next->start <= m_now.wall + seconds(10)
        && m_screens.IsThere(next->screenIndex);
    if (!m_attempts.empty() || isDue || !CanRecord()) {
        return false;
    }
    m_isKept = false;
    m_breaksByHand = 0;
    for (auto& memory : m_memories) {
        memory.second.isYieldTold = false;
    }
    Attempt attempt;
    attempt.length = length;
    attempt.task.start = now.wall;
    attempt.task.duration = length;
    attempt.task.finishAction = action;
    BeginByHand(attempt);
    Evaluate(now);
    return true;
}

void RunnerModel::Stop(const Instant& now)
{
    m_action = {};
    Attempt* front = Front();
    if (front != nullptr && (!front->isTask || (front->isShown && !front->isEnding))) {
        Note(now);
        End(*front, Cause::User);
        Evaluate(now);
    } else if (!m_attempts.empty()) {
        Skip((front != nullptr ? *front : m_attempts.front()).task.title, now);
    }
}

void RunnerModel::Pause(const Instant& now)
{
    Attempt* front = Front();
    if (front != nullptr && front->isShown && !front->isEnding && !front->pausedAt) {
        front->pausedAt = now.sinceBoot;
        calls.push_back(PlainCall(Kind::Pause, qint64(front->id)));
    }
    Evaluate(now);
}

void RunnerModel::Resume(const Instant& now)
{
    Attempt* front = Front();
    if (front != nullptr && front->isShown && !front->isEnding && front->pausedAt) {
        front->paused += now.sinceBoot - *front->pausedAt;
        front->pausedAt.reset();
        calls.push_back(PlainCall(Kind::Resume, qint64(front->id)));
    }
    Evaluate(now);
}

void RunnerModel::KeepRecordingByHand(const Instant& now)
{
    const Attempt* front = Front();
    m_isKept = front != nullptr && !front->isTask && !front->isEnding;
    Evaluate(now);
}

void RunnerModel::Skip(const QString& title, const Instant& now)
{
    const auto found = std::find_if(m_tasks.begin(), m_tasks.end(),
                                    [&](const auto& task) { return task.title == title; });
    const Attempt* front = Front();
    const bool isRecorded = front != nullptr && front->isTask && front->task.title == title
        && front->entryId.has_value();
    if (found != m_tasks.end() && !isRecorded) {
        const PX::RecordTime task = *found;
        if (!IsListed(task)) {
            const RecordingEntry entry{title,           task.start, EndOf(task),
                                       Outcome::Missed, {},         Why::Skipped};
            const auto id = m_book.Add(entry);
            calls.push_back(AddCall(entry));
            for (Attempt& attempt : m_attempts) {
                if (attempt.isTask && AreSame(attempt.task, task)) {
                    attempt.skippedId = id;
                }
            }
        }
        RemoveTask(task);
    }
    Evaluate(now);
}

void RunnerModel::ActNow()
{
    if (m_action.end) {
        const PX::PowerAction action = m_action.action;
        m_action = {};
        calls.push_back(PlainCall(Kind::Perform, action));
    }
}

void RunnerModel::Leave(const Instant& now)
{
    m_isLeaving = true;
    Note(now);
    for (Attempt& attempt : m_attempts) {
        End(attempt, Cause::User);
    }
    Evaluate(now);
}

void RunnerModel::OnShutDown(bool isShuttingDown, const Instant& now)
{
    m_isShuttingDown = isShuttingDown;
    Note(now);
    for (Attempt& attempt : m_attempts) {
        if (isShuttingDown) {
            End(attempt, Cause::ShutDown);
        }
    }
    Evaluate(now);
}

// What the recorder says.

void RunnerModel::OnReady(RecordingId id, const Instant& now)
{
    if (Attempt* attempt = Find(id)) {
        attempt->isReady = true;
    }
    Evaluate(now);
}

void RunnerModel::OnRecording(RecordingId id, Moment firstFrame, const QString& file,
                              const Instant& now)
{
    Attempt* attempt = Find(id);
    if (attempt == nullptr || attempt->isShown || attempt->isEnding) {
        return;
    }
    Note(now);
    const Length age =
        std::clamp<Length>(now.wall - firstFrame, Length::zero(), Length(seconds(1)));
    attempt->first = {firstFrame, now.sinceBoot - age};
    attempt->isShown = true;
    List(*attempt, firstFrame, file);
    if (attempt->isTask) {
        TellOf(Notice::Kind::Started, *attempt, false);
    }
    Evaluate(now);
}

void RunnerModel::List(Attempt& attempt, Moment firstFrame, const QString& file)
{
    attempt.entry = {attempt.isTask ? attempt.task.title : QStringLiteral("Recording"),
                     firstFrame,
                     firstFrame,
                     Outcome::Recording,
                     file,
                     {}};
    if (attempt.skippedId) {
        attempt.entryId = attempt.skippedId;
        m_book.Update(*attempt.entryId, attempt.entry);
        calls.push_back(UpdateCall(*attempt.entryId, attempt.entry));
    } else {
        attempt.entryId = m_book.Add(attempt.entry);
        calls.push_back(AddCall(attempt.entry));
    }
}

void RunnerModel::OnProgress(RecordingId id, Length length)
{
    if (Attempt* attempt = Find(id)) {
        attempt->progress = length;
    }
}

void RunnerModel::OnWarning(RecordingId id, const QString& text)
{
    if (const Attempt* attempt = Find(id)) {
        Notice notice;
        notice.kind = Notice::Kind::Warning;
        notice.title = attempt->task.title;
        notice.text = text;
        calls.push_back(TellCall(notice));
    }
}

std::optional<RunnerModel::Attempt> RunnerModel::Take(RecordingId id)
{
    const Attempt* found = Find(id);
    if (found == nullptr) {
        return std::nullopt;
    }
    const Attempt attempt = *found;
    m_attempts.erase(m_attempts.begin() + (found - m_attempts.data()));
    return attempt;
}

void RunnerModel::Rule(Attempt& attempt, Outcome outcome, const QString& reason,
                       const QString& file)
{
    attempt.entry.end = attempt.first.wall + (m_now.sinceBoot - attempt.first.sinceBoot);
    attempt.entry.outcome = outcome;
    attempt.entry.reason = reason;
    attempt.entry.file = file.isEmpty() ? attempt.entry.file : file;
    m_book.Update(*attempt.entryId, attempt.entry);
    calls.push_back(UpdateCall(*attempt.entryId, attempt.entry));
}

/// Whether part of it is missing that nobody left out.
bool RunnerModel::IsShort(const Attempt& attempt, Length recorded) const
{
    return recorded + attempt.paused < attempt.length - seconds(2);
}

std::pair<Outcome, QString> RunnerModel::Verdict(const Attempt& attempt, const QString& reason,
                                                 Length recorded) const
{
    const bool isWhole =
        reason == "duration" || (attempt.cause == Cause::Over && !IsShort(attempt, recorded));
    if (!isWhole) {
        switch (attempt.cause) {
        case Cause::User:
        case Cause::Withdrawn:
            return {Outcome::Stopped, Why::User};
        case Cause::GivesWay:
            return {Outcome::Partial, Why::GaveWay};
        case Cause::ShutDown:
            return {Outcome::Partial, Why::ShutDown};
        case Cause::Over:
            return {Outcome::Partial, Why::Suspended};
        case Cause::None:
            return {Outcome::Partial, reason};
        }
    }
    if (attempt.isRest) {
        return {Outcome::Partial, Why::Rest};
    }
    if (attempt.isTask && attempt.first.wall > attempt.task.start + seconds(2)) {
        return {Outcome::Partial, Why::Late};
    }
    return {Outcome::Complete, {}};
}

void RunnerModel::OnFinished(RecordingId id, const QString& reason, Length length,
                             const QString& file, const Instant& now)
{
    auto attempt = Take(id);
    if (!attempt) {
        return;
    }
    Note(now);
    if (!attempt->entryId) {
        attempt->first = {now.wall - length, now.sinceBoot - length};
        List(*attempt, now.wall - length, file);
    }
    const auto verdict = Verdict(*attempt, reason, length);
    Rule(*attempt, verdict.first, verdict.second, file);
    const Cause cause = attempt->cause;
    const bool isWhole = cause == Cause::Over || reason == "duration"
        || (cause == Cause::None && reason == "disk-low");
    const bool isOver =
        isWhole || cause != Cause::None || !attempt->isTask || EndOf(attempt->task) <= now.wall;
    TellOf(Notice::Kind::Ended, *attempt, !isOver);
    if (!isOver) {
        WaitAfter(*attempt, now.sinceBoot - attempt->first.sinceBoot >= seconds(30), true);
    } else if (attempt->isTask) {
        RemoveTask(attempt->task);
    }
    if (isWhole && verdict.second != Why::Suspended && cause != Cause::User
        && cause != Cause::Withdrawn) {
        Act(attempt->task.finishAction);
    }
    Evaluate(now);
}

void RunnerModel::Act(PX::PowerAction action)
{
    if (action == PX::DoNothing || !CanRecord()) {
        return;
    }
    if (action == PX::QuitApplication) {
        m_action = {};
        calls.push_back(PlainCall(Kind::Perform, action));
    } else if (const PX::RecordTime* task = TaskAtHand()) {
        TellSkipped(action, *task);
    } else {
        m_action = {action, {}};
        calls.push_back(PlainCall(Kind::Ask, action));
    }
}

void RunnerModel::OnFailed(RecordingId id, const QString& code, const QString& file,
                           const Instant& now)
{
    Break(id, code, file, false, now);
}

void RunnerModel::OnDied(RecordingId id, const QString& file, const Instant& now)
{
    Break(id, Why::RecorderDied, file, true, now);
}

void RunnerModel::Break(RecordingId id, const QString& reason, const QString& file, bool isDeath,
                        const Instant& now)
{
    Note(now);
    auto attempt = Take(id);
    const bool hasFrames = attempt && attempt->entryId;
    if (hasFrames) {
        const bool isUsers = attempt->cause == Cause::User || attempt->cause == Cause::Withdrawn;
        Rule(*attempt, isUsers ? Outcome::Stopped : Outcome::Partial, reason, file);
    }
    const bool wasLong = hasFrames && now.sinceBoot - attempt->first.sinceBoot >= seconds(30);
    if (attempt && (hasFrames || !attempt->isEnding)) {
        if (attempt->isTask) {
            BreakTask(*attempt, reason, isDeath, wasLong);
        } else {
            BreakByHand(*attempt, reason, wasLong);
        }
    }
    Evaluate(now);
}

void RunnerModel::BreakTask(const Attempt& attempt, const QString& reason, bool isDeath,
                            bool wasLong)
{
    const bool isOver = attempt.isEnding || EndOf(attempt.task) <= m_now.wall;
    if (isOver && attempt.entryId) {
        TellOf(Notice::Kind::Failed, attempt, false);
        RemoveTask(attempt.task);
        return;
    }
    Memory& memory = MemoryOf(attempt.task);
    memory.failures = wasLong ? 1 : memory.failures + 1;
    memory.failure = reason;
    WaitAfter(attempt, wasLong, isDeath);
    if (memory.failures == 1 && !isOver) {
        TellOf(Notice::Kind::Failed, attempt, true);
    }
}

void RunnerModel::WaitAfter(const Attempt& attempt, bool wasLong, bool isFirstFree)
{
    static constexpr int delays[] = {1, 2, 4, 8, 16, 30};
    Memory& memory = MemoryOf(attempt.task);
    memory.breaks = wasLong ? 1 : memory.breaks + 1;
    const bool isFree = isFirstFree && memory.breaks == 1;
    memory.retryAt = m_now.sinceBoot + seconds(isFree ? 0 : delays[std::min(memory.breaks, 6) - 1]);
}

void RunnerModel::BreakByHand(Attempt attempt, const QString& reason, bool wasLong)
{
    m_breaksByHand = wasLong ? 1 : m_breaksByHand + 1;
    const bool isLimited = attempt.length > Length::zero();
    const Length left = attempt.length - attempt.progress;
    const bool goesOn = attempt.entryId && !attempt.isEnding && m_breaksByHand < 3 && CanRecord()
        && (!isLimited || left > Length::zero());
    if (!attempt.entryId) {
        attempt.entry = {"Recording", m_now.wall, m_now.wall, Outcome::Failed, {}, reason};
        m_book.Add(attempt.entry);
        calls.push_back(AddCall(attempt.entry));
    }
    TellOf(Notice::Kind::Failed, attempt, goesOn);
    if (goesOn) {
        Attempt rest;
        rest.task = attempt.task;
        rest.isRest = true;
        rest.length = isLimited ? left : Length::zero();
        BeginByHand(rest);
    }
}

void RunnerModel::OnCancelled(RecordingId id, const Instant& now)
{
    Take(id);
    Evaluate(now);
}

// What the machine says.

void RunnerModel::OnPowerAnswer(PX::PowerAction action, bool isPossible, const Instant& now)
{
    if (action == m_action.action && !m_action.end && action != PX::DoNothing) {
        Notice notice;
        notice.action = action;
        notice.kind = isPossible ? Notice::Kind::Countdown : Notice::Kind::ActionRefused;
        if (isPossible) {
            m_action.end = now.sinceBoot + m_countdown;
            notice.when = now.wall + m_countdown;
        } else {
            m_action = {};
        }
        calls.push_back(TellCall(notice));
    }
    Evaluate(now);
}

void RunnerModel::OnPowerRefused(PX::PowerAction action, const QString& text)
{
    Notice notice;
    notice.kind = Notice::Kind::ActionRefused;
    notice.action = action;
    notice.text = text;
    calls.push_back(TellCall(notice));
}

// Small things.

void RunnerModel::RemoveTask(const PX::RecordTime& task)
{
    const auto found = std::find_if(m_tasks.begin(), m_tasks.end(),
                                    [&](const auto& other) { return AreSame(task, other); });
    if (found != m_tasks.end()) {
        const QString title = found->title;
        m_tasks.erase(found);
        m_memories.erase(title);
        calls.push_back(RemoveTaskCall(title));
    }
}

void RunnerModel::TellOf(Notice::Kind kind, const PX::RecordTime& task)
{
    Notice notice;
    notice.kind = kind;
    notice.title = task.title;
    notice.when = task.start;
    calls.push_back(TellCall(notice));
}

void RunnerModel::TellOf(Notice::Kind kind, const Attempt& attempt, bool goesOn)
{
    Notice notice;
    notice.kind = kind;
    notice.title = attempt.task.title;
    notice.when = attempt.task.start;
    notice.entry = attempt.entry;
    notice.goesOn = goesOn;
    calls.push_back(TellCall(notice));
}

void RunnerModel::TellSkipped(PX::PowerAction action, const PX::RecordTime& task)
{
    Notice notice;
    notice.kind = Notice::Kind::ActionSkipped;
    notice.title = task.title;
    notice.when = task.start;
    notice.action = action;
    calls.push_back(TellCall(notice));
}

QString RunnerModel::State() const
{
    const PX::RecordTime* next = NextTask();
    QString state = next != nullptr ? next->title : QString();
    const Attempt* shown = nullptr;
    for (const Attempt& attempt : m_attempts) {
        shown = shown == nullptr || attempt.isBegun ? &attempt : shown;
    }
    if (shown != nullptr) {
        state += shown->isEnding ? "|closing|" : shown->isShown ? "|recording|" : "|preparing|";
        state += shown->task.title;
        state += m_isKept && !shown->isTask ? "|kept" : "";
        state += shown->pausedAt ? "|paused" : "";
    } else if (m_action.end) {
        state += "|countdown|" + QString::number(m_action.action);
    }
    return state;
}

} // namespace Zentor::Tests
