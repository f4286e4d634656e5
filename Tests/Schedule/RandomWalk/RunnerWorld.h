// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <map>
#include <random>
#include <vector>

#include "EntryBook.h"
#include "RunnerCall.h"

namespace Zentor::Tests {

/// What a recorder says.
struct RecorderEvent {
    enum class Kind { Ready, FirstFrame, Finished, Failed, Died, Cancelled };

    Kind kind;
    Schedule::RecordingId id;
    QString file;
    /// Of what has finished, or failed.
    QString reason;
    Schedule::Length length{0};
};

/// All that is outside a runner: clocks, screens, recorders that work or not, at random, a schedule
/// and a list. It complains of what no runner may do, whatever led to it.
class RunnerWorld final : public Schedule::IRecorder,
                          public Schedule::IScreens,
                          public Schedule::IRecordings,
                          public Schedule::ISchedule,
                          public Schedule::IPower,
                          public Schedule::INotices {
public:
    explicit RunnerWorld(quint32 seed);

    Schedule::Instant now;
    /// Time that the machine was awake.
    Schedule::Length awake{0};
    /// Whether calls are recorded by the real runner, in `calls`.
    std::vector<RunnerCall> calls;
    QString problem;
    EntryBook book;
    std::vector<PX::RecordTime> tasks;
    bool isEnabled = true;
    bool mayRun = true;
    /// Whether the user has just chosen to have an action done without delay.
    bool isActionWanted = false;
    std::array<bool, 3> screens{true, true, true};
    /// Actions whose possibility was asked about.
    std::vector<PX::PowerAction> questions;

    /// A number from 0 to \a limit - 1.
    int Below(int limit) { return int(m_random() % unsigned(limit)); }
    bool Chance(int percent) { return Below(100) < percent; }
    /// From \a low to \a high, to the microsecond.
    Schedule::Length Between(Schedule::Length low, Schedule::Length high);

    /// When the first recorder has something to say, in the time of `awake`.
    std::optional<Schedule::Length> NextEvent() const;
    /// What it says; to be called when NextEvent() has come.
    RecorderEvent TakeEvent();
    /// Whether all recordings are over.
    bool IsQuiet() const { return m_recorders.empty(); }
    std::vector<Schedule::RecordingId> Recordings() const;
    Schedule::Length RecordedBy(Schedule::RecordingId id) const;
    /// The recorders and the program are gone.
    void Die();
    void AddTask(const PX::RecordTime& task);
    /// Another task gets the title of the one at \a index.
    void ReplaceTask(std::size_t index, const PX::RecordTime& task);
    void DeleteTask(const QString& title);

    void Prepare(Schedule::RecordingId id, const Schedule::RecordingPlan& plan) override;
    void Start(Schedule::RecordingId id, std::optional<Schedule::Moment> at,
               Schedule::Length length) override;
    void Stop(Schedule::RecordingId id) override;
    void Pause(Schedule::RecordingId id) override;
    void Resume(Schedule::RecordingId id) override;
    void Cancel(Schedule::RecordingId id) override;
    bool IsThere(int screenIndex) const override { return screens[std::size_t(screenIndex + 1)]; }
    QSize SizeOf(int /*screenIndex*/) const override { return {1920, 1080}; }
    EntryId Add(const Schedule::RecordingEntry& entry) override;
    void Update(EntryId id, const Schedule::RecordingEntry& entry) override;
    bool Contains(const QString& title, Schedule::Moment from, Schedule::Moment to) const override
    {
        return book.Contains(title, from, to);
    }
    void RemoveTask(const PX::RecordTime& task) override;
    void Ask(PX::PowerAction action) override;
    void Perform(PX::PowerAction action) override;
    void SetHeldAwake(bool isHeld) override;
    void Tell(const Schedule::Notice& notice) override;

private:
    using EventKind = RecorderEvent::Kind;

    struct Recorder {
        bool isStarted = false;
        bool isRecording = false;
        bool isPaused = false;
        bool isEnding = false;
        /// When it is to start, where it was told before it was ready.
        std::optional<Schedule::Length> startOrder;
        Schedule::Length length{0};
        Schedule::Length recorded{0};
        Schedule::Length since{0};
        QString file;
        /// What comes next, and when; and what may come before that.
        std::optional<Schedule::Length> at;
        EventKind next = EventKind::Ready;
        QString reason;
        /// Of something that goes wrong, by the time of `awake`.
        std::optional<Schedule::Length> mishapAt;
        EventKind mishap = EventKind::Died;
        QString mishapReason;
        /// That the first frame is told although it is being cancelled.
        bool isLate = false;
    };

    void Complain(const char* text);
    void Plan(Recorder& recorder, EventKind next, Schedule::Length delay,
              const QString& reason = {});
    void PlanMishap(Recorder& recorder);
    void PlanStart(Recorder& recorder, Schedule::Length at);
    static std::optional<Schedule::Length> NextOf(const Recorder& recorder);
    void Begin(Recorder& recorder, Schedule::RecordingId id);

    std::mt19937 m_random;
    std::map<Schedule::RecordingId, Recorder> m_recorders;
    /// What was listed of a task.
    struct Listed {
        bool isMissed = false;
        bool isRecorded = false;
        /// Whether it may be of another task that had the title before.
        bool isShared = false;
    };
    std::map<QString, Listed> m_listed;
    bool m_isHeldAwake = false;
};

} // namespace Zentor::Tests
