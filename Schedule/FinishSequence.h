// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include "RunnerPorts.h"

namespace Zentor::Schedule {

/// What follows a recording: asks whether the action is possible, counts down, and acts.
///
/// "Quit" follows at once. Any other action can be cancelled for as long as the countdown takes.
class FinishSequence {
public:
    /// \a power and \a notices outlive the sequence.
    FinishSequence(IPower& power, INotices& notices);

    /// How long an action can be cancelled; taken at OnAnswer().
    void SetCountdown(Length countdown) { m_countdown = countdown; }

    /// Begins with \a action, in the place of one that is under way. DoNothing is nothing to do.
    void Begin(PX::PowerAction action);

    /// \a action is possible, or not. An answer that is not waited for is ignored.
    void OnAnswer(PX::PowerAction action, IPower::Answer answer, const Instant& now);

    /// Acts when the countdown is over.
    void Evaluate(const Instant& now);

    /// Acts without waiting for the end of the countdown; does nothing before it has begun.
    void ActNow();

    /// Forgets the action.
    void Cancel();

    /// The action that is asked about or counted down for, or DoNothing.
    PX::PowerAction Action() const { return m_action; }

    /// When the countdown ends, by Instant::sinceBoot; nothing while there is none.
    std::optional<Length> End() const { return m_end; }

private:
    IPower& m_power;
    INotices& m_notices;
    Length m_countdown{std::chrono::seconds(60)};
    PX::PowerAction m_action = PX::DoNothing;
    std::optional<Length> m_end;
};

} // namespace Zentor::Schedule
