// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

/// \file
/// What the runner of a schedule needs from outside. None of it may call the runner back before it
/// has returned.
#pragma once

#include <optional>

#include <QSize>
#include <QString>

#include "RecordingEntry.h"

namespace Zentor::Schedule {

/// Names a recording from its preparation to its end; never reused.
using RecordingId = quint64;

/// What the recorder is to record.
struct RecordingPlan {
    /// Of the task; empty for a recording by hand.
    QString title;
    /// Whether it records a screen or area of a task, or what is set for recordings by hand.
    bool isTask = false;
    /// Of a task: the screen, or -1 for the selected area.
    int screenIndex = 0;
    /// When it is meant to start: names the file.
    Moment start;
};

/// How far a recording is.
struct RecordingProgress {
    /// How long the file is by now.
    Length length{0};
    /// -1 when it cannot be told.
    qint64 bytes = -1;
    qint64 freeBytes = -1;
    qint64 frames = 0;
    qint64 droppedFrames = 0;
};

/// Records, in processes of their own. Each recording that is prepared ends with exactly one of the
/// runner's OnFinished(), OnFailed(), OnDied() and OnCancelled().
class IRecorder {
public:
    virtual ~IRecorder() = default;

    /// Sets up everything for a start within a frame; answered by OnReady().
    virtual void Prepare(RecordingId id, const RecordingPlan& plan) = 0;
    /// Begins at \a at, or at once without it, and ends after \a length of recorded time, or at
    /// Stop() where it is 0. Answered by OnRecording() with the first frame.
    virtual void Start(RecordingId id, std::optional<Moment> at, Length length) = 0;
    /// Closes the file; answered by OnFinished() or OnFailed().
    virtual void Stop(RecordingId id) = 0;
    virtual void Pause(RecordingId id) = 0;
    virtual void Resume(RecordingId id) = 0;
    /// Ends the recording and deletes its file; answered by OnCancelled().
    virtual void Cancel(RecordingId id) = 0;
};

/// Tells which screens there are.
class IScreens {
public:
    virtual ~IScreens() = default;

    /// Whether something of what \a screenIndex names (-1: the selected area) can be recorded now.
    virtual bool IsThere(int screenIndex) const = 0;

    /// How large the picture is of what \a screenIndex names, in pixels; empty when it is not
    /// there.
    virtual QSize SizeOf(int screenIndex) const = 0;
};

/// The list of what was recorded.
class IRecordings {
public:
    using EntryId = quint64;

    virtual ~IRecordings() = default;

    virtual EntryId Add(const RecordingEntry& entry) = 0;
    virtual void Update(EntryId id, const RecordingEntry& entry) = 0;
    /// See RecordingsList::Contains().
    virtual bool Contains(const QString& title, Moment from, Moment to) const = 0;
};

/// The user's schedule.
class ISchedule {
public:
    virtual ~ISchedule() = default;

    /// Takes a task that is over out of the schedule, and stores that.
    virtual void RemoveTask(const PX::RecordTime& task) = 0;
};

/// Turns the machine off, and keeps it from going off by itself.
class IPower {
public:
    enum class Answer { Yes, No };

    virtual ~IPower() = default;

    /// Asks whether \a action, none of DoNothing and QuitApplication, is possible; answered by
    /// OnPowerAnswer().
    virtual void Ask(PX::PowerAction action) = 0;
    /// Does \a action. A refusal is told by OnPowerRefused().
    virtual void Perform(PX::PowerAction action) = 0;
    /// Whether the machine is kept from sleeping, and from being shut down before the file is
    /// closed.
    virtual void SetHeldAwake(bool isHeld) = 0;
};

/// Something that the user is told.
struct Notice {
    enum class Kind {
        /// A task starts in a moment: `title`, `when`.
        StartsSoon,
        /// The task started, `when` it was due.
        Started,
        /// A recording ended, as `entry` says.
        Ended,
        /// A task was missed, as `entry` says.
        Missed,
        /// A recording failed, as `entry` says; where `goesOn`, the rest is recorded into a new
        /// file.
        Failed,
        /// The recording by hand will be closed for the task `title`, which starts at `when`.
        GivingWay,
        /// The screen of the task `title` is not there; it is waited for.
        ScreenAwaited,
        /// `action` begins in a moment.
        Countdown,
        /// `action` was not done, as the task `title` starts at `when`.
        ActionSkipped,
        /// `action` is not possible, or was refused: `text` says why where that is known.
        ActionRefused,
        /// What the recorder warns of: `text`.
        Warning,
        /// The tasks to come are likely to need `neededBytes`, and `freeBytes` can be used.
        LowDisk,
        /// The task `title` is not started, as no more than `freeBytes` are free.
        NoRoom,
        /// A service of the desktop is missing: `text` says what will not work.
        Unavailable,
        /// The window was closed, and the program runs on.
        RunsOn
    };

    Kind kind;
    QString title;
    Moment when;
    RecordingEntry entry;
    bool goesOn = false;
    PX::PowerAction action = PX::DoNothing;
    QString text;
    qint64 neededBytes = 0;
    qint64 freeBytes = 0;
};

/// Tells the user, in whatever way fits.
class INotices {
public:
    virtual ~INotices() = default;

    virtual void Tell(const Notice& notice) = 0;
};

} // namespace Zentor::Schedule
