// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include "RunnerPorts.h"

namespace Zentor::Schedule {

/// How the recorder ended a recording whose file is closed.
struct RecordingResult {
    QString file;
    /// The recorder's word for why: "duration", "stopped", "disk-low", "no-display", …
    QString reason;
    /// Of the file.
    Length length{0};
};

/// One recording from its preparation to its end, as the runner sees it.
struct RecordingSession {
    enum class Phase {
        /// The recorder sets everything up.
        Preparing,
        /// It is ready to start.
        Ready,
        /// It was told when to start.
        Starting,
        Recording,
        /// It was told to stop, or to forget the recording.
        Ending
    };

    /// Why the runner ended it.
    enum class End {
        /// It did not; the recorder may do so by itself.
        None,
        /// The task or the user's limit is over.
        Reached,
        /// The user stopped it, or took the task away.
        User,
        /// A task is due.
        GivesWay,
        ShutDown,
        /// Nothing had been recorded, and nothing is to be.
        Withdrawn
    };

    RecordingId id = 0;
    bool isTask = false;
    /// Of a recording by hand, the finish action and, as the duration, the limit; 0 for none.
    PX::RecordTime task;
    Phase phase = Phase::Preparing;
    End end = End::None;
    /// Whether part of it is in another file already.
    bool isRest = false;
    /// By how much the clocks differed when the recorder was told when to start.
    Length clockOffset{0};
    /// What it is to record from its first frame on; 0 for no limit.
    Length length{0};
    /// When the first frame was recorded.
    Instant started;
    bool isPaused = false;
    Length pausedSince{0};
    /// Of pauses that are over.
    Length pausedFor{0};
    RecordingProgress progress;
    /// Where it stands in the list, once something has been recorded.
    std::optional<IRecordings::EntryId> entryId;
    /// The entry of a task that was skipped, which is missed unless the recorder finishes after
    /// all.
    std::optional<IRecordings::EntryId> skippedId;
    RecordingEntry entry;

    bool IsRecording() const { return phase == Phase::Recording; }
    bool HasFrames() const { return entryId.has_value(); }
    Moment TaskEnd() const { return task.start + task.duration; }

    /// When it is over by Instant::sinceBoot, pauses of a recording by hand left out.
    Length EndSinceBoot() const { return started.sinceBoot + length; }
    void EndPause(Length sinceBoot);
    bool WasPaused() const { return isPaused || pausedFor > Length::zero(); }
};

/// How a recording is listed, and what it was.
struct Verdict {
    Outcome outcome;
    QString reason;
};

/// The verdict on \a session, whose file is closed.
Verdict Judge(const RecordingSession& session, const RecordingResult& result);

/// The verdict on \a session when the recorder failed or died, for \a reason, after it had recorded
/// something.
Verdict JudgeBroken(const RecordingSession& session, const QString& reason);

} // namespace Zentor::Schedule
