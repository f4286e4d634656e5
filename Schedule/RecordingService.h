// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <vector>

#include <QObject>
#include <QTimer>

#include "IMachineClock.h"
#include "RecorderPool.h"
#include "RecordingsList.h"
#include "ScheduleRunner.h"
#include "System/Inhibitors.h"
#include "System/LoginManager.h"
#include "System/WallClockTimer.h"

namespace Zentor::Schedule {

/// What a service works with.
struct ServiceParts {
    /// Opened, with the section of RecordingSettings.
    std::shared_ptr<PX::SettingsStore> store;
    /// Opened.
    std::shared_ptr<RecordingsList> recordings;
    std::shared_ptr<const IScreens> screens;
    std::shared_ptr<const IMachineClock> clock;
    /// Path of px-recorder.
    QString recorderProgram;
    FreeBytes freeBytes;
};

/// Records what the settings ask for: the schedule as long as it lives, and by hand.
///
/// A runner decides; the service connects it with the clock, the recorder, the settings, the list
/// of recordings and the machine.
class RecordingService final : public QObject,
                               private ISchedule,
                               private IRecordings,
                               private IPower,
                               private INotices {
    Q_OBJECT

public:
    explicit RecordingService(ServiceParts parts, QObject* parent = nullptr);
    ~RecordingService() override;

    /// Settles what the last run left, and keeps the schedule from then on.
    void Begin();

    RunnerStatus Status() const { return m_runner.Status(); }

    /// How many tasks are still to be recorded, none while the schedule is off.
    int PendingTasks() const;

    /// Whether a recording is set up, runs or is being closed.
    bool IsRecording() const { return !m_runner.IsAtRest(); }

    /// What the tasks to come need, held against the disk.
    DiskBudget Budget() const;

    /// Starts a recording by hand, limited where the settings say so. Returns false when one runs,
    /// and when a task is about to start.
    bool StartByHand();
    void Stop();
    /// Pauses the recording, or resumes it.
    void TogglePause();
    /// The recording by hand goes on although a task is due.
    void KeepRecordingByHand();
    void Skip(const QString& title);
    void CancelCountdown();
    /// Ends the countdown: its action is done now.
    void ActNow();
    /// The screens are others, or are arranged otherwise.
    void OnScreensChanged() { Wake(); }

    /// Closes what is recorded, and records nothing from now on. AtRest() follows, at once or
    /// later.
    void Leave();

Q_SIGNALS:
    /// Status() is another one, its progress left out.
    void StatusChanged();
    /// There is more of the recording, about each second.
    void Progressed();
    /// The user should be told of \a notice.
    void Noticed(const Notice& notice);
    /// \a task is over, and is taken out of the settings once all have been told.
    void TaskOver(const PX::RecordTime& task);
    /// The finish action is to quit the program.
    void QuitRequested();
    /// After Leave(): nothing is recorded any more.
    void AtRest();

private:
    void RemoveTask(const PX::RecordTime& task) override;
    IRecordings::EntryId Add(const RecordingEntry& entry) override;
    void Update(IRecordings::EntryId id, const RecordingEntry& entry) override;
    bool Contains(const QString& title, Moment from, Moment to) const override;
    void Ask(PX::PowerAction action) override;
    void Perform(PX::PowerAction action) override;
    void SetHeldAwake(bool isHeld) override;
    void Tell(const Notice& notice) override;

    void ConnectRecorders();
    /// To what ends a recording.
    void ConnectEnds();
    void ConnectMachine();
    Instant Now() const { return m_parts.clock->Now(); }
    /// Does what is due.
    void Wake();
    /// Sets the alarm for what comes next, and tells what has changed. To be called after each call
    /// of the runner.
    void Follow();
    void TellOutside();
    /// Takes the schedule over as it is in the settings.
    void TakeSchedule();
    /// Tells when the tasks to come are likely not to fit on the disk.
    void TellBudget();
    void TellUnavailable(const QString& text);

    const ServiceParts m_parts;
    RecorderPool m_recorders;
    LoginManager m_login;
    Inhibitors m_inhibitors;
    WallClockTimer m_alarm;
    ScheduleRunner m_runner;
    /// Fires in the next pass of the event loop after a change of the settings.
    QTimer m_scheduleTimer;
    /// Tasks that are over, which a panel may still have in its list and store again.
    std::vector<PX::RecordTime> m_doneTasks;
    /// What is to be told once the runner has returned.
    std::vector<Notice> m_notices;
    std::vector<PX::RecordTime> m_removedTasks;
    bool m_isQuitAsked = false;
    /// The task that was told not to start for want of room, while nothing has started since.
    QString m_titleWithoutRoom;
    /// How many tasks were to come when the disk was looked at last.
    int m_budgetedTasks = 0;
    bool m_isLeaving = false;
};

} // namespace Zentor::Schedule
