// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include <QString>

#include "Moment.h"

namespace Zentor::Schedule {

/// How a recording ended.
enum class Outcome {
    /// As it was meant to, its limit included.
    Complete,
    /// It started more than two seconds late, or ended early for a reason that was not the user's.
    Partial,
    /// The user ended it.
    Stopped,
    /// A task of which nothing was recorded, as nothing could be, or the user skipped it.
    Missed,
    /// Something that was to be recorded could not be.
    Failed,
    /// It runs; found at a start, it was running when the program died.
    Recording
};

/// What \a outcome is called in files: "complete", "partial", "stopped", "missed", "failed" or
/// "recording".
QString NameOf(Outcome outcome);

/// The outcome that is called \a name, or nothing.
std::optional<Outcome> OutcomeOf(const QString& name);

/// Why a recording is not "complete", in the words of the file. Others are kept as they are.
namespace Why {

const inline QString Late = QStringLiteral("late");
/// It follows an earlier recording of the same, which broke off.
const inline QString Rest = QStringLiteral("rest");
const inline QString RecorderDied = QStringLiteral("recorder-died");
const inline QString ProgramDied = QStringLiteral("program-died");
const inline QString GaveWay = QStringLiteral("gave-way");
const inline QString ShutDown = QStringLiteral("shut-down");
const inline QString Suspended = QStringLiteral("suspended");
const inline QString NotRunning = QStringLiteral("not-running");
const inline QString ScheduleOff = QStringLiteral("schedule-off");
const inline QString ClockSet = QStringLiteral("clock-set");
const inline QString OtherRecording = QStringLiteral("other-recording");
const inline QString ScreenMissing = QStringLiteral("screen-missing");
const inline QString Skipped = QStringLiteral("skipped");
const inline QString User = QStringLiteral("user");
const inline QString NoRecorder = QStringLiteral("no-recorder");

} // namespace Why

/// A recording that runs or ran, or that should have.
struct RecordingEntry {
    /// Of the task; of a recording by hand as its file is called.
    QString title;
    /// When its first frame was recorded; of one that was missed or failed, when it should have
    /// been.
    Moment start;
    Moment end;
    Outcome outcome = Outcome::Recording;
    /// Absolute path; empty when there is none.
    QString file;
    /// One of Why, or a code or reason of the recorder's ("disk-low", "no-display"); empty when
    /// complete.
    QString reason;
};

} // namespace Zentor::Schedule
