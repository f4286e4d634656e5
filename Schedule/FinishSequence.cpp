// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "FinishSequence.h"

namespace Zentor::Schedule {

FinishSequence::FinishSequence(IPower& power, INotices& notices)
    : m_power(power)
    , m_notices(notices)
{
}

void FinishSequence::Begin(PX::PowerAction action)
{
    Cancel();
    if (action == PX::QuitApplication) {
        m_power.Perform(action);
    } else if (action != PX::DoNothing) {
        m_action = action;
        m_power.Ask(action);
    }
}

void FinishSequence::OnAnswer(PX::PowerAction action, IPower::Answer answer, const Instant& now)
{
    if (action != m_action || m_end.has_value() || action == PX::DoNothing) {
        return;
    }
    Notice notice;
    notice.action = action;
    if (answer == IPower::Answer::No) {
        Cancel();
        notice.kind = Notice::Kind::ActionRefused;
    } else {
        m_end = now.sinceBoot + m_countdown;
        notice.kind = Notice::Kind::Countdown;
        notice.when = now.wall + m_countdown;
    }
    m_notices.Tell(notice);
}

void FinishSequence::Evaluate(const Instant& now)
{
    if (m_end.has_value() && now.sinceBoot >= *m_end) {
        ActNow();
    }
}

void FinishSequence::ActNow()
{
    if (m_end.has_value()) {
        const PX::PowerAction action = m_action;
        Cancel();
        m_power.Perform(action);
    }
}

void FinishSequence::Cancel()
{
    m_action = PX::DoNothing;
    m_end.reset();
}

} // namespace Zentor::Schedule
