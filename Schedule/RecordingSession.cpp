// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RecordingSession.h"

#include "Protocol.h"

namespace Zentor::Schedule {
namespace {

using End = RecordingSession::End;

/// How late a task may start, and how much of it may be missing, and it is complete still.
constexpr Length Tolerance = std::chrono::seconds(2);

/// Of a recording that reached its end.
Verdict JudgeWhole(const RecordingSession& session)
{
    if (session.isRest) {
        return {Outcome::Partial, Why::Rest};
    }
    if (session.isTask && session.started.wall - session.task.start > Tolerance) {
        return {Outcome::Partial, Why::Late};
    }
    return {Outcome::Complete, QString()};
}

} // namespace

void RecordingSession::EndPause(Length sinceBoot)
{
    if (isPaused) {
        isPaused = false;
        pausedFor += sinceBoot - pausedSince;
    }
}

Verdict Judge(const RecordingSession& session, const RecordingResult& result)
{
    if (result.reason == Capture::Reason::Duration) {
        return JudgeWhole(session);
    }
    switch (session.end) {
    case End::User:
    case End::Withdrawn:
        return {Outcome::Stopped, Why::User};
    case End::GivesWay:
        return {Outcome::Partial, Why::GaveWay};
    case End::ShutDown:
        return {Outcome::Partial, Why::ShutDown};
    case End::Reached:
        // What is missing then passed while the machine slept.
        if (result.length + session.pausedFor + Tolerance < session.length) {
            return {Outcome::Partial, Why::Suspended};
        }
        return JudgeWhole(session);
    case End::None:
        break;
    }
    return {Outcome::Partial, result.reason};
}

Verdict JudgeBroken(const RecordingSession& session, const QString& reason)
{
    if (session.end == End::User || session.end == End::Withdrawn) {
        return {Outcome::Stopped, reason};
    }
    return {Outcome::Partial, reason};
}

} // namespace Zentor::Schedule
