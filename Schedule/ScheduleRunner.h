// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <map>
#include <optional>
#include <vector>

#include "FinishSequence.h"
#include "RecordingSession.h"

namespace Zentor::Schedule {

/// What the runner does, for a window to show.
struct RunnerStatus {
    enum class Phase {
        Idle,
        /// A recording is set up; a task that is to start at `start`.
        Preparing,
        Recording,
        Closing,
        /// `action` follows at `countdownEnd`.
        Countdown
    };

    Phase phase = Phase::Idle;
    /// Of the recording: of a task its title, else empty.
    QString title;
    bool isTask = false;
    bool isPaused = false;
    /// When the first frame was recorded, or will be.
    Moment start;
    /// When the recording ends by itself, if nobody pauses it.
    std::optional<Moment> end;
    RecordingProgress progress;
    /// Whether a recording by hand is kept although a task is due.
    bool isKept = false;
    PX::PowerAction action = PX::DoNothing;
    Moment countdownEnd;
    /// The first task that is still to be recorded.
    std::optional<PX::RecordTime> next;
    /// Whether what `next` records is there now: it is waited for, and nothing gives way to it,
    /// while it is not.
    bool isNextThere = true;
};

/// What the runner acts on.
struct RunnerPorts {
    IRecorder& recorder;
    const IScreens& screens;
    IRecordings& recordings;
    ISchedule& schedule;
    IPower& power;
    INotices& notices;
};

/// Keeps a schedule: records each task in its time, recordings by hand in between, and does what
/// follows a recording. Whatever happens, each task is recorded, as far as it can be, or listed as
/// missed or failed; never both.
///
/// It has no clock and no timer: each call says when it happens, and Evaluate() is to be called at
/// NextWake(), when a clock was set, when the machine woke up, and when screens came or went.
class ScheduleRunner {
public:
    /// How long before its start a task is prepared, and a recording by hand gives way to it.
    static constexpr std::chrono::seconds PrepareAhead{10};
    /// How long before a task the user is told that a recording by hand will give way.
    static constexpr std::chrono::seconds GiveWayNotice{60};
    /// The machine is not turned off by itself while a task starts within this time.
    static constexpr std::chrono::minutes ActionDistance{10};

    /// What \a ports refers to outlives the runner.
    explicit ScheduleRunner(const RunnerPorts& ports);

    /// The tasks from now on, in the order of their starts, of which none is run unless
    /// \a isEnabled. Tasks that have left are stopped.
    void SetSchedule(std::vector<PX::RecordTime> tasks, bool isEnabled, const Instant& now);
    void SetCountdown(Length countdown) { m_finish.SetCountdown(countdown); }

    /// Does everything that is due.
    void Evaluate(const Instant& now);

    /// When Evaluate() is to be called next; nothing when only an event can change anything.
    std::optional<Moment> NextWake() const;

    RunnerStatus Status() const;

    /// Starts a recording by hand, of \a length of recorded time (0 for no limit), which \a action
    /// follows. Returns false, and starts nothing, when one runs, and when a task is about to
    /// start.
    bool StartByHand(Length length, PX::PowerAction action, const Instant& now);
    /// Ends the recording for the user, who wants no finish action then. A task that is about to
    /// start is skipped.
    void Stop(const Instant& now);
    void Pause(const Instant& now);
    void Resume(const Instant& now);
    /// The recording by hand goes on although a task is due, which starts late then.
    void KeepRecordingByHand(const Instant& now);
    /// Takes the task called \a title out of the schedule, unless it is being recorded.
    void Skip(const QString& title, const Instant& now);
    void CancelCountdown() { m_finish.Cancel(); }
    void ActNow() { m_finish.ActNow(); }

    /// Ends everything for good: the program is about to leave, as the user wants.
    void Leave(const Instant& now);
    /// Whether no recording is under way.
    bool IsAtRest() const { return !m_active && !m_upcoming; }

    // From the recorder.
    void OnReady(RecordingId id, const Instant& now);
    void OnRecording(RecordingId id, Moment firstFrame, const QString& file, const Instant& now);
    void OnProgress(RecordingId id, const RecordingProgress& progress);
    void OnWarning(RecordingId id, const QString& text);
    void OnFinished(RecordingId id, const RecordingResult& result, const Instant& now);
    /// \a file is what there is of the recording; empty when nothing was recorded.
    void OnFailed(RecordingId id, const QString& code, const QString& file, const Instant& now);
    void OnDied(RecordingId id, const QString& file, const Instant& now);
    void OnCancelled(RecordingId id, const Instant& now);

    // From the machine.
    void OnPowerAnswer(PX::PowerAction action, IPower::Answer answer, const Instant& now);
    void OnPowerRefused(PX::PowerAction action, const QString& text);
    /// The machine is about to sleep: nobody would see the end of a countdown.
    void OnSleep() { m_finish.Cancel(); }
    /// Whether the machine is about to be shut down.
    void OnShutDown(bool isShuttingDown, const Instant& now);

private:
    /// What is remembered of a task as long as it is in the schedule.
    struct TaskNote {
        PX::RecordTime task;
        bool isAnnounced = false;
        bool isYieldAnnounced = false;
        bool isScreenAwaited = false;
        /// What keeps it from being recorded, or last kept it; empty when nothing did.
        QString whyMissed;
        /// How often the recorder has failed or died in a row, and why last.
        int failures = 0;
        QString failure;
        /// How often its recording broke off in a row, those included that the recorder ended in
        /// good order.
        int breaks = 0;
        /// Of the next attempt, by Instant::sinceBoot.
        Length notBefore{0};
    };
    using Session = RecordingSession;
    using Phase = RecordingSession::Phase;
    using End = RecordingSession::End;

    bool IsScheduled(const PX::RecordTime& task) const;
    bool HasSession(const PX::RecordTime& task) const;
    bool IsPending(const PX::RecordTime& task) const;
    const PX::RecordTime* NextTask() const;
    const PX::RecordTime* TaskSoonAfterNow() const;
    TaskNote& NoteOf(const PX::RecordTime& task);
    bool CanRecord() const { return !m_isLeaving && !m_isShuttingDown; }
    bool MayStart() const { return m_isEnabled && CanRecord(); }
    Session* Find(RecordingId id);
    bool IsActiveNearlyOver() const;
    std::optional<Length> ActiveDeadline() const;

    void NoteTime(const Instant& now);
    void Withdraw(Session& session);
    void StopRecording(Session& session, End end);
    void EndFor(std::optional<Session>& session, End end);

    // The steps of Evaluate(), in their order.
    void WithdrawOutdated();
    void WithdrawOutdated(Session& session);
    bool IsPreceded(const PX::RecordTime& task) const;
    void EndOverdue();
    void ListPast();
    void ListPast(const PX::RecordTime& task);
    void GiveWay();
    void StartUpcoming();
    void PrepareNext();
    bool IsPreparable(const PX::RecordTime& task);
    void HoldAwake();
    void EvaluateCountdown();

    QString WhyMissed(const PX::RecordTime& task) const;
    void AddWakes(const PX::RecordTime& next, std::vector<Moment>& moments) const;

    void ListSkipped(const PX::RecordTime& task);
    void Prepare(Session& session);
    void StartNow(Session& session);
    void Forget(RecordingId id);
    void List(Session& session, Moment firstFrame, const QString& file);
    void Close(Session& session, const Verdict& verdict, const QString& file);
    void Break(Session session, const QString& reason, const QString& file, bool isDeath);
    void BreakTask(const Session& session, const QString& reason, bool isDeath);
    void PutOff(const Session& session, bool isFirstAtOnce);
    bool WasLong(const Session& session) const;
    void BreakByHand(Session session, const QString& reason);
    bool ContinueByHand(const Session& broken);
    void Settle(const Session& session, bool mayAct);
    void RemoveTask(const PX::RecordTime& task);

    void Tell(Notice::Kind kind, const Session& session, bool goesOn = false);
    void TellOf(Notice::Kind kind, const PX::RecordTime& task);
    void TellActionSkipped(PX::PowerAction action, const PX::RecordTime& task);

    RunnerPorts m_ports;
    FinishSequence m_finish;
    std::vector<PX::RecordTime> m_tasks;
    std::map<QString, TaskNote> m_notes;
    bool m_isEnabled = false;
    /// When tasks began to be run, last.
    std::optional<Moment> m_enabledSince;
    std::optional<Moment> m_firstTime;
    bool m_isClockSet = false;
    bool m_isLeaving = false;
    bool m_isShuttingDown = false;
    bool m_isHeldAwake = false;
    Instant m_now;
    RecordingId m_lastId = 0;
    /// The recording that has been told to start.
    std::optional<Session> m_active;
    /// The task that is prepared, and starts as soon as it is due and nothing else runs.
    std::optional<Session> m_upcoming;
    bool m_isKept = false;
    /// How often a recording by hand has broken off in a row.
    int m_breaksByHand = 0;
};

} // namespace Zentor::Schedule
