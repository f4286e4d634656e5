// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>

#include "RunnerPorts.h"

namespace Zentor::Tests {

/// One thing that a runner did to what is outside it, in a form that can be compared.
struct RunnerCall {
    enum class Kind {
        Prepare,
        Start,
        Stop,
        Pause,
        Resume,
        Cancel,
        Add,
        Update,
        RemoveTask,
        Ask,
        Perform,
        HoldAwake,
        Tell
    };

    Kind kind;
    std::array<qint64, 5> numbers{};
    QString title;
    QString text;
};

bool operator==(const RunnerCall& left, const RunnerCall& right);
bool operator<(const RunnerCall& left, const RunnerCall& right);

/// \a call in words, for a person.
QString ToText(const RunnerCall& call);

RunnerCall PrepareCall(Schedule::RecordingId id, const Schedule::RecordingPlan& plan);
RunnerCall StartCall(Schedule::RecordingId id, std::optional<Schedule::Moment> at,
                     Schedule::Length length);
/// Of a call that says no more than which recording, action or state is meant.
RunnerCall PlainCall(RunnerCall::Kind kind, qint64 value);
RunnerCall AddCall(const Schedule::RecordingEntry& entry);
RunnerCall UpdateCall(Schedule::IRecordings::EntryId id, const Schedule::RecordingEntry& entry);
RunnerCall RemoveTaskCall(const QString& title);
RunnerCall TellCall(const Schedule::Notice& notice);

} // namespace Zentor::Tests
