// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <map>

#include "EntryBook.h"
#include "RunnerCall.h"

namespace Zentor::Tests {

/// What a runner has to do, as rules that are applied in any order until none applies.
///
/// It keeps what was ordered and what was answered, recording by recording, and derives from that
/// and from the clocks what is owed. Its functions are called before those of the runner that have
/// the same names; `calls` says then what the runner has to call.
class RunnerModel {
public:
    /// \a book is what is listed already; \a screens outlives the model.
    RunnerModel(const EntryBook& book, const Schedule::IScreens& screens);

    std::vector<RunnerCall> calls;

    void SetSchedule(const std::vector<PX::RecordTime>& tasks, bool isEnabled,
                     const Schedule::Instant& now);
    void SetCountdown(Schedule::Length countdown) { m_countdown = countdown; }
    void Evaluate(const Schedule::Instant& now);
    bool StartByHand(Schedule::Length length, PX::PowerAction action, const Schedule::Instant& now);
    void Stop(const Schedule::Instant& now);
    void Pause(const Schedule::Instant& now);
    void Resume(const Schedule::Instant& now);
    void KeepRecordingByHand(const Schedule::Instant& now);
    void Skip(const QString& title, const Schedule::Instant& now);
    void CancelCountdown() { m_action = {}; }
    void ActNow();
    void Leave(const Schedule::Instant& now);
    void OnReady(Schedule::RecordingId id, const Schedule::Instant& now);
    void OnRecording(Schedule::RecordingId id, Schedule::Moment firstFrame, const QString& file,
                     const Schedule::Instant& now);
    void OnProgress(Schedule::RecordingId id, Schedule::Length length);
    void OnWarning(Schedule::RecordingId id, const QString& text);
    void OnFinished(Schedule::RecordingId id, const QString& reason, Schedule::Length length,
                    const QString& file, const Schedule::Instant& now);
    void OnFailed(Schedule::RecordingId id, const QString& code, const QString& file,
                  const Schedule::Instant& now);
    void OnDied(Schedule::RecordingId id, const QString& file, const Schedule::Instant& now);
    void OnCancelled(Schedule::RecordingId id, const Schedule::Instant& now);
    void OnPowerAnswer(PX::PowerAction action, bool isPossible, const Schedule::Instant& now);
    void OnPowerRefused(PX::PowerAction action, const QString& text);
    void OnSleep() { m_action = {}; }
    void OnShutDown(bool isShuttingDown, const Schedule::Instant& now);

    /// The runner's state, as one line.
    QString State() const;
    /// When it was last told the time.
    const Schedule::Instant& Now() const { return m_now; }

private:
    /// Why a recording ends, as far as the runner decided it.
    enum class Cause { None, Over, User, GivesWay, ShutDown, Withdrawn };

    struct Attempt {
        Schedule::RecordingId id = 0;
        bool isTask = false;
        PX::RecordTime task;
        bool isReady = false;
        bool isBegun = false;
        bool isShown = false;
        bool isEnding = false;
        Cause cause = Cause::None;
        bool isRest = false;
        /// How the clocks differed when it was told when to start.
        Schedule::Length difference{0};
        Schedule::Length length{0};
        Schedule::Instant first;
        std::optional<Schedule::Length> pausedAt;
        Schedule::Length paused{0};
        Schedule::Length progress{0};
        std::optional<EntryBook::Id> entryId;
        std::optional<EntryBook::Id> skippedId;
        Schedule::RecordingEntry entry;
    };

    /// What is remembered of a task.
    struct Memory {
        PX::RecordTime task;
        bool isSoonTold = false;
        bool isYieldTold = false;
        bool isScreenTold = false;
        QString obstacle;
        int failures = 0;
        QString failure;
        int breaks = 0;
        Schedule::Length retryAt{0};
    };

    struct Action {
        PX::PowerAction action = PX::DoNothing;
        std::optional<Schedule::Length> end;
    };

    // The rules. Each returns whether it applied.
    bool EndsOne();
    bool ListsOne();
    bool YieldsOne();
    bool PreparesOne();
    bool StartsOne();
    void CountsDown();
    void HoldsAwake();

    void Note(const Schedule::Instant& now);
    void End(Attempt& attempt, Cause cause);
    Cause CauseToEnd(const Attempt& attempt);
    bool IsPreceded(const PX::RecordTime& task);
    Memory& MemoryOf(const PX::RecordTime& task);
    bool IsWanted(const PX::RecordTime& task) const;
    bool IsUnderWay(const PX::RecordTime& task) const;
    const PX::RecordTime* NextTask() const;
    const PX::RecordTime* TaskAtHand() const;
    Attempt* Find(Schedule::RecordingId id);
    Attempt* Front();
    const Attempt* Waiting() const;
    bool IsRoomBeside(const Attempt* front) const;
    bool CanRecord() const { return !m_isLeaving && !m_isShuttingDown; }
    bool IsListed(const PX::RecordTime& task) const;
    QString WhyMissed(const PX::RecordTime& task);
    Schedule::RecordingId Prepare(Attempt attempt);
    void BeginByHand(Attempt attempt);
    void List(Attempt& attempt, Schedule::Moment firstFrame, const QString& file);
    void Rule(Attempt& attempt, Schedule::Outcome outcome, const QString& reason,
              const QString& file);
    bool IsShort(const Attempt& attempt, Schedule::Length recorded) const;
    std::pair<Schedule::Outcome, QString> Verdict(const Attempt& attempt, const QString& reason,
                                                  Schedule::Length recorded) const;
    std::optional<Attempt> Take(Schedule::RecordingId id);
    void Break(Schedule::RecordingId id, const QString& reason, const QString& file, bool isDeath,
               const Schedule::Instant& now);
    void BreakTask(const Attempt& attempt, const QString& reason, bool isDeath, bool wasLong);
    void WaitAfter(const Attempt& attempt, bool wasLong, bool isFirstFree);
    void BreakByHand(Attempt attempt, const QString& reason, bool wasLong);
    void Act(PX::PowerAction action);
    void RemoveTask(const PX::RecordTime& task);
    void TellOf(Schedule::Notice::Kind kind, const PX::RecordTime& task);
    void TellOf(Schedule::Notice::Kind kind, const Attempt& attempt, bool goesOn);
    void TellSkipped(PX::PowerAction action, const PX::RecordTime& task);

    EntryBook m_book;
    const Schedule::IScreens& m_screens;
    Schedule::Instant m_now;
    std::optional<Schedule::Moment> m_begin;
    std::optional<Schedule::Moment> m_enabledAt;
    bool m_isJump = false;
    bool m_isEnabled = false;
    bool m_isLeaving = false;
    bool m_isShuttingDown = false;
    bool m_isKept = false;
    bool m_isHeld = false;
    int m_breaksByHand = 0;
    Schedule::Length m_countdown{std::chrono::seconds(60)};
    Action m_action;
    std::vector<PX::RecordTime> m_tasks;
    std::map<QString, Memory> m_memories;
    /// Those that have no answer yet which ends them, in the order of their ids.
    std::vector<Attempt> m_attempts;
    Schedule::RecordingId m_lastId = 0;
};

} // namespace Zentor::Tests
