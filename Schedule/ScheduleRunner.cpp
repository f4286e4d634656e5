// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "ScheduleRunner.h"

#include <algorithm>

#include "Protocol.h"

namespace Zentor::Schedule {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

/// How long after its end a recording that was not paused may end by itself before it is stopped:
/// the recorder counts frames, and is exact.
constexpr seconds EndGrace{2};

/// How far the clocks may drift apart between the order to start and the start. More is a clock
/// that was set.
constexpr milliseconds MaximumDrift{20};

/// The same for longer times, in which the clock may be adjusted by and by.
constexpr seconds MaximumAdjustment{5};

/// How long before its start something recorded counts as a task's.
constexpr seconds EarlyStart{1};

/// How long a recording has to last for its end to count as a failure of its own.
constexpr seconds LongRecording{30};

constexpr int MostBreaksByHand = 3;

const QString TitleByHand = QStringLiteral("Recording");

Moment EndOf(const PX::RecordTime& task)
{
    return task.start + task.duration;
}

bool IsSame(const PX::RecordTime& left, const PX::RecordTime& right)
{
    return left.title == right.title && left.start == right.start && left.duration == right.duration
        && left.screenIndex == right.screenIndex && left.finishAction == right.finishAction;
}

Length OffsetOf(const Instant& instant)
{
    return instant.wall.time_since_epoch() - instant.sinceBoot;
}

RunnerStatus::Phase PhaseOf(const RecordingSession& session)
{
    switch (session.phase) {
    case RecordingSession::Phase::Recording:
        return RunnerStatus::Phase::Recording;
    case RecordingSession::Phase::Ending:
        return RunnerStatus::Phase::Closing;
    default:
        return RunnerStatus::Phase::Preparing;
    }
}

/// How long to wait after the last of \a breaks in a row.
Length DelayAfter(int breaks, bool isFirstAtOnce)
{
    constexpr int mostDoublings = 5;
    constexpr seconds longest{30};
    if (isFirstAtOnce && breaks == 1) {
        return Length::zero();
    }
    return std::min<Length>(seconds(1 << std::min(breaks - 1, mostDoublings)), longest);
}

} // namespace

ScheduleRunner::ScheduleRunner(const RunnerPorts& ports)
    : m_ports(ports)
    , m_finish(ports.power, ports.notices)
{
}

void ScheduleRunner::SetSchedule(std::vector<PX::RecordTime> tasks, bool isEnabled,
                                 const Instant& now)
{
    if (isEnabled && !m_isEnabled) {
        m_enabledSince = now.wall;
    }
    m_isEnabled = isEnabled;
    m_tasks = std::move(tasks);
    std::stable_sort(m_tasks.begin(), m_tasks.end(),
                     [](const auto& left, const auto& right) { return left.start < right.start; });
    for (auto note = m_notes.begin(); note != m_notes.end();) {
        // Another task may have got the title.
        const bool isThere = std::any_of(m_tasks.begin(), m_tasks.end(), [&](const auto& task) {
            return IsSame(task, note->second.task);
        });
        note = isThere ? std::next(note) : m_notes.erase(note);
    }
    Evaluate(now);
}

void ScheduleRunner::Evaluate(const Instant& now)
{
    NoteTime(now);
    WithdrawOutdated();
    EndOverdue();
    ListPast();
    GiveWay();
    StartUpcoming();
    PrepareNext();
    // Nothing is held when an action is done.
    HoldAwake();
    EvaluateCountdown();
    m_isClockSet = false;
}

void ScheduleRunner::NoteTime(const Instant& now)
{
    if (!m_firstTime) {
        m_firstTime = now.wall;
        m_now = now;
    }
    const Length jump = OffsetOf(now) - OffsetOf(m_now);
    m_isClockSet = m_isClockSet || jump > MaximumAdjustment || jump < -MaximumAdjustment;
    m_now = now;
}

// What there is to do.

bool ScheduleRunner::IsScheduled(const PX::RecordTime& task) const
{
    return m_isEnabled && std::any_of(m_tasks.begin(), m_tasks.end(), [&](const auto& other) {
               return IsSame(task, other);
           });
}

bool ScheduleRunner::HasSession(const PX::RecordTime& task) const
{
    const auto isOf = [&](const std::optional<Session>& session) {
        return session && session->isTask && IsSame(session->task, task);
    };
    return isOf(m_active) || isOf(m_upcoming);
}

bool ScheduleRunner::IsPending(const PX::RecordTime& task) const
{
    return m_isEnabled && EndOf(task) > m_now.wall && !HasSession(task);
}

const PX::RecordTime* ScheduleRunner::NextTask() const
{
    const auto next = std::find_if(m_tasks.begin(), m_tasks.end(),
                                   [&](const auto& task) { return IsPending(task); });
    return next == m_tasks.end() ? nullptr : &*next;
}

/// The task that forbids a finish action now, or null.
const PX::RecordTime* ScheduleRunner::TaskSoonAfterNow() const
{
    if (m_upcoming) {
        return &m_upcoming->task;
    }
    const PX::RecordTime* next = NextTask();
    return next != nullptr && next->start - m_now.wall <= ActionDistance ? next : nullptr;
}

ScheduleRunner::TaskNote& ScheduleRunner::NoteOf(const PX::RecordTime& task)
{
    TaskNote& note = m_notes[task.title];
    note.task = task;
    return note;
}

RecordingSession* ScheduleRunner::Find(RecordingId id)
{
    for (auto* session : {&m_active, &m_upcoming}) {
        if (*session && (*session)->id == id) {
            return &**session;
        }
    }
    return nullptr;
}

/// When the recording that runs has to be stopped, by Instant::sinceBoot.
std::optional<Length> ScheduleRunner::ActiveDeadline() const
{
    if (!m_active || !m_active->isTask || !m_active->IsRecording()) {
        return std::nullopt;
    }
    return m_active->EndSinceBoot() + (m_active->WasPaused() ? Length::zero() : Length(EndGrace));
}

/// Whether the next task may be prepared beside the recording that runs.
bool ScheduleRunner::IsActiveNearlyOver() const
{
    return !m_active || m_active->phase == Phase::Ending
        || (m_active->isTask && m_active->IsRecording()
            && m_active->EndSinceBoot() - m_now.sinceBoot <= PrepareAhead);
}

// The steps.

void ScheduleRunner::Withdraw(Session& session)
{
    session.end = End::Withdrawn;
    session.phase = Phase::Ending;
    m_ports.recorder.Cancel(session.id);
}

void ScheduleRunner::StopRecording(Session& session, End end)
{
    session.EndPause(m_now.sinceBoot);
    session.end = end;
    session.phase = Phase::Ending;
    m_ports.recorder.Stop(session.id);
}

/// Stops what is recorded, and drops what is not yet.
void ScheduleRunner::EndFor(std::optional<Session>& session, End end)
{
    if (!session || session->phase == Phase::Ending) {
        return;
    }
    if (session->IsRecording()) {
        StopRecording(*session, end);
    } else {
        Withdraw(*session);
    }
}

void ScheduleRunner::WithdrawOutdated()
{
    for (auto* session : {&m_active, &m_upcoming}) {
        if (*session && (*session)->isTask && (*session)->phase != Phase::Ending) {
            WithdrawOutdated(**session);
        }
    }
}

void ScheduleRunner::WithdrawOutdated(Session& session)
{
    if (!IsScheduled(session.task)) {
        if (session.IsRecording()) {
            StopRecording(session, End::User);
        } else {
            Withdraw(session);
        }
        return;
    }
    if (session.IsRecording()) {
        return;
    }
    const Length drift = OffsetOf(m_now) - session.clockOffset;
    const bool isMisplaced =
        session.phase == Phase::Starting && (drift > MaximumDrift || drift < -MaximumDrift);
    const bool isEarly = session.task.start - m_now.wall > PrepareAhead + EarlyStart;
    const bool isPast = EndOf(session.task) <= m_now.wall;
    if (isPast) {
        // At its end it would have been woken, had the machine been awake.
        const bool hasSlept = m_now.wall - EndOf(session.task) > MaximumAdjustment;
        NoteOf(session.task).whyMissed = m_isClockSet ? Why::ClockSet
            : hasSlept                                ? Why::Suspended
                                                      : Why::NoRecorder;
    } else if (isEarly) {
        NoteOf(session.task).isAnnounced = false;
    }
    if (isMisplaced || isEarly || isPast || IsPreceded(session.task)) {
        Withdraw(session);
    }
}

/// Whether a task that starts before \a task, and was added after it was prepared, can be recorded.
bool ScheduleRunner::IsPreceded(const PX::RecordTime& task) const
{
    const PX::RecordTime* next = NextTask();
    if (next == nullptr || !MayStart() || next->start >= task.start
        || next->start - m_now.wall > PrepareAhead || !m_ports.screens.IsThere(next->screenIndex)) {
        return false;
    }
    const auto note = m_notes.find(next->title);
    return note == m_notes.end() || m_now.sinceBoot >= note->second.notBefore;
}

void ScheduleRunner::EndOverdue()
{
    const auto deadline = ActiveDeadline();
    if (deadline && m_now.sinceBoot >= *deadline) {
        StopRecording(*m_active, End::Reached);
    }
}

void ScheduleRunner::ListPast()
{
    if (!MayStart()) {
        return;
    }
    std::vector<PX::RecordTime> past;
    std::copy_if(m_tasks.begin(), m_tasks.end(), std::back_inserter(past),
                 [&](const auto& task) { return EndOf(task) <= m_now.wall && !HasSession(task); });
    for (const PX::RecordTime& task : past) {
        ListPast(task);
    }
}

void ScheduleRunner::ListPast(const PX::RecordTime& task)
{
    if (!m_ports.recordings.Contains(task.title, task.start - EarlyStart, EndOf(task))) {
        const TaskNote& note = NoteOf(task);
        const bool isFailed = note.failures > 0;
        Notice notice;
        notice.kind = isFailed ? Notice::Kind::Failed : Notice::Kind::Missed;
        notice.title = task.title;
        notice.when = task.start;
        notice.entry = {task.title,  task.start,
                        EndOf(task), isFailed ? Outcome::Failed : Outcome::Missed,
                        QString(),   isFailed ? note.failure : WhyMissed(task)};
        m_ports.recordings.Add(notice.entry);
        m_ports.notices.Tell(notice);
    }
    RemoveTask(task);
}

QString ScheduleRunner::WhyMissed(const PX::RecordTime& task) const
{
    const auto note = m_notes.find(task.title);
    if (EndOf(task) <= *m_firstTime) {
        return Why::NotRunning;
    }
    if (m_enabledSince && EndOf(task) <= *m_enabledSince) {
        return Why::ScheduleOff;
    }
    if (note != m_notes.end() && !note->second.whyMissed.isEmpty()) {
        return note->second.whyMissed;
    }
    return m_isClockSet ? Why::ClockSet : Why::Suspended;
}

void ScheduleRunner::GiveWay()
{
    const PX::RecordTime* next = NextTask();
    if (!m_active || m_active->isTask || m_isKept || m_active->phase == Phase::Ending
        || next == nullptr || !MayStart() || next->start - m_now.wall > GiveWayNotice
        || !m_ports.screens.IsThere(next->screenIndex)) {
        return;
    }
    if (next->start - m_now.wall <= PrepareAhead) {
        EndFor(m_active, End::GivesWay);
    } else if (!NoteOf(*next).isYieldAnnounced) {
        NoteOf(*next).isYieldAnnounced = true;
        TellOf(Notice::Kind::GivingWay, *next);
    }
}

void ScheduleRunner::StartUpcoming()
{
    if (m_active || !m_upcoming || m_upcoming->phase != Phase::Ready) {
        return;
    }
    const PX::RecordTime& task = m_upcoming->task;
    const bool isInTime = m_now.wall < task.start;
    m_upcoming->phase = Phase::Starting;
    m_upcoming->clockOffset = OffsetOf(m_now);
    m_upcoming->length = isInTime ? task.duration : EndOf(task) - m_now.wall;
    m_ports.recorder.Start(m_upcoming->id, isInTime ? std::optional(task.start) : std::nullopt,
                           m_upcoming->length);
    m_active = m_upcoming;
    m_upcoming.reset();
}

void ScheduleRunner::PrepareNext()
{
    const PX::RecordTime* next = NextTask();
    if (m_upcoming || next == nullptr || !IsPreparable(*next)) {
        return;
    }
    Session session;
    session.isTask = true;
    session.task = *next;
    session.isRest =
        m_ports.recordings.Contains(next->title, next->start - EarlyStart, EndOf(*next));
    Prepare(session);
    m_upcoming = session;
    TaskNote& note = NoteOf(*next);
    if (!note.isAnnounced && next->start > m_now.wall) {
        note.isAnnounced = true;
        TellOf(Notice::Kind::StartsSoon, *next);
    }
}

bool ScheduleRunner::IsPreparable(const PX::RecordTime& task)
{
    if (!MayStart() || task.start - m_now.wall > PrepareAhead) {
        return false;
    }
    TaskNote& note = NoteOf(task);
    if (!IsActiveNearlyOver()) {
        note.whyMissed = Why::OtherRecording;
        return false;
    }
    if (!m_ports.screens.IsThere(task.screenIndex)) {
        note.whyMissed = Why::ScreenMissing;
        if (!note.isScreenAwaited && task.start <= m_now.wall) {
            note.isScreenAwaited = true;
            TellOf(Notice::Kind::ScreenAwaited, task);
        }
        return false;
    }
    return m_now.sinceBoot >= note.notBefore;
}

void ScheduleRunner::Prepare(Session& session)
{
    session.id = ++m_lastId;
    RecordingPlan plan;
    plan.isTask = session.isTask;
    plan.title = session.task.title;
    plan.screenIndex = session.task.screenIndex;
    plan.start = session.isTask ? std::max(session.task.start, m_now.wall) : m_now.wall;
    m_ports.recorder.Prepare(session.id, plan);
}

void ScheduleRunner::HoldAwake()
{
    const bool isNeeded = m_active || m_upcoming;
    if (isNeeded != m_isHeldAwake) {
        m_isHeldAwake = isNeeded;
        m_ports.power.SetHeldAwake(isNeeded);
    }
}

void ScheduleRunner::EvaluateCountdown()
{
    if (m_finish.Action() == PX::DoNothing) {
        return;
    }
    if (const PX::RecordTime* task = TaskSoonAfterNow()) {
        const PX::PowerAction action = m_finish.Action();
        m_finish.Cancel();
        TellActionSkipped(action, *task);
    } else if (m_active || !CanRecord()) {
        m_finish.Cancel();
    } else {
        m_finish.Evaluate(m_now);
    }
}

std::optional<Moment> ScheduleRunner::NextWake() const
{
    std::vector<Moment> moments;
    const auto addSinceBoot = [&](Length moment) {
        moments.push_back(m_now.wall + (moment - m_now.sinceBoot));
    };
    if (const auto deadline = ActiveDeadline()) {
        addSinceBoot(*deadline);
    }
    for (const auto* session : {&m_active, &m_upcoming}) {
        if (*session && (*session)->isTask && !(*session)->IsRecording()) {
            moments.push_back((*session)->TaskEnd());
        }
    }
    if (m_finish.End()) {
        addSinceBoot(*m_finish.End());
    }
    if (const PX::RecordTime* next = MayStart() ? NextTask() : nullptr) {
        AddWakes(*next, moments);
    }
    const auto past = std::remove_if(moments.begin(), moments.end(),
                                     [&](Moment moment) { return moment <= m_now.wall; });
    const auto first = std::min_element(moments.begin(), past);
    return first == past ? std::nullopt : std::optional(*first);
}

/// Adds when something may be to do for the task that comes next.
void ScheduleRunner::AddWakes(const PX::RecordTime& next, std::vector<Moment>& moments) const
{
    moments.push_back(next.start - PrepareAhead);
    moments.push_back(next.start);
    moments.push_back(EndOf(next));
    if (m_active && !m_active->isTask) {
        moments.push_back(next.start - GiveWayNotice);
    }
    if (m_finish.Action() != PX::DoNothing) {
        moments.push_back(next.start - ActionDistance);
    }
    const auto addSinceBoot = [&](Length moment) {
        const Moment wall = m_now.wall + (moment - m_now.sinceBoot);
        if (next.start - PrepareAhead < wall) {
            moments.push_back(wall);
        }
    };
    // It waits for the recording that runs.
    if (ActiveDeadline()) {
        addSinceBoot(m_active->EndSinceBoot() - PrepareAhead);
    }
    const auto note = m_notes.find(next.title);
    if (note != m_notes.end()) {
        addSinceBoot(note->second.notBefore);
    }
}

RunnerStatus ScheduleRunner::Status() const
{
    RunnerStatus status;
    if (const PX::RecordTime* next = NextTask()) {
        status.next = *next;
        status.isNextThere = m_ports.screens.IsThere(next->screenIndex);
    }
    if (const Session* session = m_active ? &*m_active : m_upcoming ? &*m_upcoming : nullptr) {
        status.phase = PhaseOf(*session);
        status.title = session->task.title;
        status.isTask = session->isTask;
        status.isPaused = session->isPaused;
        status.isKept = m_isKept && !session->isTask;
        status.progress = session->progress;
        status.start = session->HasFrames() ? session->started.wall : session->task.start;
        if (session->isTask) {
            status.end = session->TaskEnd();
        } else if (session->length > Length::zero() && session->HasFrames()) {
            status.end = session->started.wall + session->length + session->pausedFor;
        }
    } else if (m_finish.End()) {
        status.phase = RunnerStatus::Phase::Countdown;
        status.action = m_finish.Action();
        status.countdownEnd = m_now.wall + (*m_finish.End() - m_now.sinceBoot);
    }
    return status;
}

// What the user does.

bool ScheduleRunner::StartByHand(Length length, PX::PowerAction action, const Instant& now)
{
    CancelCountdown();
    Evaluate(now);
    const PX::RecordTime* next = NextTask();
    const bool isTaskDue = next != nullptr && MayStart() && next->start - m_now.wall <= PrepareAhead
        && m_ports.screens.IsThere(next->screenIndex);
    if (m_active || m_upcoming || isTaskDue || !CanRecord()) {
        return false;
    }
    m_isKept = false;
    m_breaksByHand = 0;
    for (auto& note : m_notes) {
        note.second.isYieldAnnounced = false;
    }
    Session session;
    session.task.start = now.wall;
    session.task.duration = length;
    session.task.finishAction = action;
    session.length = length;
    StartNow(session);
    Evaluate(now);
    return true;
}

void ScheduleRunner::Stop(const Instant& now)
{
    m_finish.Cancel();
    if (m_active && (m_active->IsRecording() || !m_active->isTask)) {
        EndFor(m_active, End::User);
        Evaluate(now);
    } else if (m_active || m_upcoming) {
        Skip((m_active ? *m_active : *m_upcoming).task.title, now);
    }
}

void ScheduleRunner::Pause(const Instant& now)
{
    if (m_active && m_active->IsRecording() && !m_active->isPaused) {
        m_active->isPaused = true;
        m_active->pausedSince = now.sinceBoot;
        m_ports.recorder.Pause(m_active->id);
    }
    Evaluate(now);
}

void ScheduleRunner::Resume(const Instant& now)
{
    if (m_active && m_active->IsRecording() && m_active->isPaused) {
        m_active->EndPause(now.sinceBoot);
        m_ports.recorder.Resume(m_active->id);
    }
    Evaluate(now);
}

void ScheduleRunner::KeepRecordingByHand(const Instant& now)
{
    m_isKept = m_active && !m_active->isTask && m_active->phase != Phase::Ending;
    Evaluate(now);
}

void ScheduleRunner::Skip(const QString& title, const Instant& now)
{
    const auto task = std::find_if(m_tasks.begin(), m_tasks.end(),
                                   [&](const auto& other) { return other.title == title; });
    const bool isRecorded = m_active && m_active->isTask && m_active->task.title == title
        && (m_active->IsRecording() || m_active->HasFrames());
    if (task != m_tasks.end() && !isRecorded) {
        if (!m_ports.recordings.Contains(title, task->start - EarlyStart, EndOf(*task))) {
            ListSkipped(*task);
        }
        RemoveTask(PX::RecordTime(*task));
    }
    Evaluate(now);
}

void ScheduleRunner::ListSkipped(const PX::RecordTime& task)
{
    const auto id = m_ports.recordings.Add(
        {task.title, task.start, EndOf(task), Outcome::Missed, QString(), Why::Skipped});
    for (auto* session : {&m_active, &m_upcoming}) {
        if (*session && (*session)->isTask && IsSame((*session)->task, task)) {
            (*session)->skippedId = id;
        }
    }
}

void ScheduleRunner::Leave(const Instant& now)
{
    m_isLeaving = true;
    EndFor(m_active, End::User);
    EndFor(m_upcoming, End::User);
    Evaluate(now);
}

void ScheduleRunner::OnShutDown(bool isShuttingDown, const Instant& now)
{
    m_isShuttingDown = isShuttingDown;
    if (isShuttingDown) {
        EndFor(m_active, End::ShutDown);
        EndFor(m_upcoming, End::ShutDown);
    }
    Evaluate(now);
}

void ScheduleRunner::OnPowerAnswer(PX::PowerAction action, IPower::Answer answer,
                                   const Instant& now)
{
    m_finish.OnAnswer(action, answer, now);
    Evaluate(now);
}

void ScheduleRunner::OnPowerRefused(PX::PowerAction action, const QString& text)
{
    Notice notice;
    notice.kind = Notice::Kind::ActionRefused;
    notice.action = action;
    notice.text = text;
    m_ports.notices.Tell(notice);
}

// What the recorder says.

void ScheduleRunner::OnReady(RecordingId id, const Instant& now)
{
    Session* session = Find(id);
    if (session != nullptr && session->phase == Phase::Preparing) {
        session->phase = Phase::Ready;
    }
    Evaluate(now);
}

void ScheduleRunner::OnRecording(RecordingId id, Moment firstFrame, const QString& file,
                                 const Instant& now)
{
    Session* session = Find(id);
    // What is being cancelled will not have been.
    if (session == nullptr || session->HasFrames() || session->end == End::Withdrawn) {
        return;
    }
    NoteTime(now);
    if (session->phase != Phase::Ending) {
        session->phase = Phase::Recording;
    }
    List(*session, firstFrame, file);
    if (session->isTask && session->IsRecording()) {
        Tell(Notice::Kind::Started, *session);
    }
    Evaluate(now);
}

/// Lists a recording that has begun.
void ScheduleRunner::List(Session& session, Moment firstFrame, const QString& file)
{
    constexpr Length longestDelay = seconds(1);
    const Length age = std::clamp(m_now.wall - firstFrame, Length::zero(), longestDelay);
    session.started = {firstFrame, m_now.sinceBoot - age};
    session.entry = {session.isTask ? session.task.title : TitleByHand,
                     firstFrame,
                     firstFrame,
                     Outcome::Recording,
                     file,
                     QString()};
    if (session.skippedId) {
        session.entryId = session.skippedId;
        m_ports.recordings.Update(*session.entryId, session.entry);
    } else {
        session.entryId = m_ports.recordings.Add(session.entry);
    }
}

void ScheduleRunner::OnProgress(RecordingId id, const RecordingProgress& progress)
{
    if (Session* session = Find(id)) {
        session->progress = progress;
    }
}

void ScheduleRunner::OnWarning(RecordingId id, const QString& text)
{
    if (const Session* session = Find(id)) {
        Notice notice;
        notice.kind = Notice::Kind::Warning;
        notice.title = session->task.title;
        notice.text = text;
        m_ports.notices.Tell(notice);
    }
}

void ScheduleRunner::OnFinished(RecordingId id, const RecordingResult& result, const Instant& now)
{
    Session* found = Find(id);
    if (found == nullptr) {
        return;
    }
    NoteTime(now);
    Session session = *found;
    Forget(id);
    if (!session.HasFrames()) {
        List(session, now.wall - result.length, result.file);
        session.started.sinceBoot = now.sinceBoot - result.length;
    }
    const Verdict verdict = Judge(session, result);
    Close(session, verdict, result.file);
    const bool isWhole = session.end == End::Reached || result.reason == Capture::Reason::Duration
        || (session.end == End::None && result.reason == Capture::Reason::DiskLow);
    const bool isOver =
        isWhole || session.end != End::None || !session.isTask || session.TaskEnd() <= now.wall;
    Tell(Notice::Kind::Ended, session, !isOver);
    if (isOver) {
        // It may have reached its end while it was being stopped.
        const bool isUsers = session.end == End::User || session.end == End::Withdrawn;
        Settle(session, isWhole && !isUsers && verdict.reason != Why::Suspended);
    } else {
        // A display may be reported present and end each recording all the same.
        PutOff(session, true);
    }
    Evaluate(now);
}

void ScheduleRunner::OnFailed(RecordingId id, const QString& code, const QString& file,
                              const Instant& now)
{
    NoteTime(now);
    if (const Session* session = Find(id)) {
        Break(*session, code, file, false);
    }
    Evaluate(now);
}

void ScheduleRunner::OnDied(RecordingId id, const QString& file, const Instant& now)
{
    NoteTime(now);
    if (const Session* session = Find(id)) {
        Break(*session, Why::RecorderDied, file, true);
    }
    Evaluate(now);
}

void ScheduleRunner::OnCancelled(RecordingId id, const Instant& now)
{
    Forget(id);
    Evaluate(now);
}

void ScheduleRunner::Forget(RecordingId id)
{
    for (auto* session : {&m_active, &m_upcoming}) {
        if (*session && (*session)->id == id) {
            session->reset();
        }
    }
}

/// Brings the list up to date with a recording that is over.
void ScheduleRunner::Close(Session& session, const Verdict& verdict, const QString& file)
{
    session.entry.end = session.started.wall + (m_now.sinceBoot - session.started.sinceBoot);
    session.entry.outcome = verdict.outcome;
    session.entry.reason = verdict.reason;
    if (!file.isEmpty()) {
        session.entry.file = file;
    }
    m_ports.recordings.Update(*session.entryId, session.entry);
}

/// Takes note that the recorder failed or died.
void ScheduleRunner::Break(Session session, const QString& reason, const QString& file,
                           bool isDeath)
{
    Forget(session.id);
    if (session.HasFrames()) {
        Close(session, JudgeBroken(session, reason), file);
    } else if (session.end != End::None) {
        // Nothing was recorded, and nothing was to be.
        return;
    }
    if (session.isTask) {
        BreakTask(session, reason, isDeath);
    } else {
        BreakByHand(session, reason);
    }
}

void ScheduleRunner::BreakTask(const Session& session, const QString& reason, bool isDeath)
{
    const bool isOver = session.end != End::None || session.TaskEnd() <= m_now.wall;
    if (isOver && session.HasFrames()) {
        Tell(Notice::Kind::Failed, session);
        Settle(session, false);
        return;
    }
    TaskNote& note = NoteOf(session.task);
    note.failures = WasLong(session) ? 1 : note.failures + 1;
    note.failure = reason;
    PutOff(session, isDeath);
    if (note.failures == 1 && !isOver) {
        Tell(Notice::Kind::Failed, session, true);
    }
}

/// Has the rest of a task wait, longer each time, after \a session broke off.
void ScheduleRunner::PutOff(const Session& session, bool isFirstAtOnce)
{
    TaskNote& note = NoteOf(session.task);
    note.breaks = WasLong(session) ? 1 : note.breaks + 1;
    note.notBefore = m_now.sinceBoot + DelayAfter(note.breaks, isFirstAtOnce);
}

/// Whether \a session, which has just ended, recorded long enough to be no part of a series.
bool ScheduleRunner::WasLong(const Session& session) const
{
    return session.HasFrames() && m_now.sinceBoot - session.started.sinceBoot >= LongRecording;
}

void ScheduleRunner::BreakByHand(Session session, const QString& reason)
{
    m_breaksByHand = WasLong(session) ? 1 : m_breaksByHand + 1;
    if (!session.HasFrames()) {
        session.entry = {TitleByHand, m_now.wall, m_now.wall, Outcome::Failed, QString(), reason};
        m_ports.recordings.Add(session.entry);
    }
    const bool goesOn = session.HasFrames() && session.end == End::None
        && m_breaksByHand < MostBreaksByHand && ContinueByHand(session);
    Tell(Notice::Kind::Failed, session, goesOn);
}

/// Records the rest of a recording by hand that broke off. Returns false when there is none.
bool ScheduleRunner::ContinueByHand(const Session& broken)
{
    const Length left = broken.length - broken.progress.length;
    if (!CanRecord() || (broken.length > Length::zero() && left <= Length::zero())) {
        return false;
    }
    Session session;
    session.task = broken.task;
    session.isRest = true;
    session.length = broken.length > Length::zero() ? left : Length::zero();
    StartNow(session);
    return true;
}

void ScheduleRunner::StartNow(Session& session)
{
    session.phase = Phase::Starting;
    Prepare(session);
    m_active = session;
    m_ports.recorder.Start(session.id, std::nullopt, session.length);
}

/// Does what follows a recording of which no part is to come.
void ScheduleRunner::Settle(const Session& session, bool mayAct)
{
    if (session.isTask) {
        RemoveTask(session.task);
    }
    if (!mayAct || session.task.finishAction == PX::DoNothing || !CanRecord()) {
        return;
    }
    const PX::RecordTime* task = TaskSoonAfterNow();
    // To quit is what the user wants even then; only the machine has to stay on.
    if (task != nullptr && session.task.finishAction != PX::QuitApplication) {
        TellActionSkipped(session.task.finishAction, *task);
    } else {
        m_finish.Begin(session.task.finishAction);
    }
}

void ScheduleRunner::RemoveTask(const PX::RecordTime& task)
{
    const auto found = std::find_if(m_tasks.begin(), m_tasks.end(),
                                    [&](const auto& other) { return IsSame(task, other); });
    if (found != m_tasks.end()) {
        const PX::RecordTime removed = *found;
        m_tasks.erase(found);
        m_notes.erase(removed.title);
        m_ports.schedule.RemoveTask(removed);
    }
}

// What the user is told.

void ScheduleRunner::Tell(Notice::Kind kind, const Session& session, bool goesOn)
{
    Notice notice;
    notice.kind = kind;
    notice.title = session.task.title;
    notice.when = session.task.start;
    notice.entry = session.entry;
    notice.goesOn = goesOn;
    m_ports.notices.Tell(notice);
}

void ScheduleRunner::TellOf(Notice::Kind kind, const PX::RecordTime& task)
{
    Notice notice;
    notice.kind = kind;
    notice.title = task.title;
    notice.when = task.start;
    m_ports.notices.Tell(notice);
}

void ScheduleRunner::TellActionSkipped(PX::PowerAction action, const PX::RecordTime& task)
{
    Notice notice;
    notice.kind = Notice::Kind::ActionSkipped;
    notice.title = task.title;
    notice.when = task.start;
    notice.action = action;
    m_ports.notices.Tell(notice);
}

} // namespace Zentor::Schedule
