// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "FooterState.h"

#include "CoreInt/Printable.h"
#include <algorithm>

#include <QCoreApplication>

#include "DurationText.h"
#include "NoticeText.h"
#include "SentenceLabel.h"

namespace Zentor::Desktop {
namespace {

using Schedule::Moment;
using Schedule::RunnerStatus;
using Schedule::ScheduleRunner;
using std::chrono::milliseconds;
using Button = FooterState::Button;

struct Text {
    Q_DECLARE_TR_FUNCTIONS(FooterState)
};

/// From this on, a task is announced with its date, which stays true while the machine sleeps.
constexpr std::chrono::hours FarAway(24);
/// How long a text may be out of date after a night that the machine slept through.
constexpr std::chrono::hours LongestWait(1);

/// The title's place in a sentence; a recording by hand has none.
QString Name(const QString& title)
{
    return NameInSentence(title.isEmpty() ? QString() : SentenceLabel::TitleMark());
}

void ChangeAfter(FooterState& state, Schedule::Length wait)
{
    const auto until = std::min<milliseconds>(
        std::max(milliseconds(1), std::chrono::ceil<milliseconds>(wait)), LongestWait);
    state.untilChange = state.untilChange ? std::min(*state.untilChange, until) : until;
}

/// The text of what remains until \a moment, which counts down.
QString CountDown(FooterState& state, Moment moment, Moment now)
{
    const Schedule::Length left = moment - now;
    if (left > Schedule::Length::zero()) {
        ChangeAfter(state, UntilRemainingTextChanges(left));
    }
    return RemainingText(left);
}

QString NextNote(FooterState& state, Moment start, Moment now)
{
    const QString name = Name(state.noteTitle);
    const Schedule::Length left = start - now;
    if (left <= Schedule::Length::zero()) {
        return Text::tr("Next: %1, as soon as possible").arg(name);
    }
    if (left > FarAway) {
        ChangeAfter(state, left - FarAway);
        return Text::tr("Next: %1 on %2").arg(name, TimeText(start, now));
    }
    return Text::tr("Next: %1 in %2").arg(name, CountDown(state, start, now));
}

void ShowIdle(FooterState& state, const RunnerStatus& status, Moment now)
{
    state.buttons = {Button::Start};
    if (status.next) {
        state.noteTitle = status.next->title;
        state.note = NextNote(state, status.next->start, now);
    }
}

void ShowPreparing(FooterState& state, const RunnerStatus& status, Moment now)
{
    if (!status.isTask) {
        state.headline = Text::tr("The recording starts");
        state.buttons = {Button::Stop};
    } else {
        const QString name = Name(status.title);
        state.event = Text::tr("%1 is about to start").arg(name);
        state.headline = status.start > now
            ? Text::tr("%1 starts in %2").arg(name, CountDown(state, status.start, now))
            : state.event;
        state.buttons = {Button::Skip};
    }
}

/// The note of a recording by hand about the task that is due next.
void ShowTaskAfter(FooterState& state, const RunnerStatus& status, Moment now)
{
    if (status.isTask || !status.next || !status.isNextThere) {
        return;
    }
    const Moment start = status.next->start;
    const Moment end = start - ScheduleRunner::PrepareAhead;
    const Moment notice = start - ScheduleRunner::GiveWayNotice;
    const QString name = Name(status.next->title);
    if (status.isKept && now >= end) {
        state.noteEvent = Text::tr("%1 starts when this recording has ended").arg(name);
        state.note = state.noteEvent;
    } else if (!status.isKept && now < notice) {
        ChangeAfter(state, notice - now);
    } else if (!status.isKept && now < end) {
        state.noteEvent = Text::tr("This recording will end for %1").arg(name);
        state.note = Text::tr("Ends in %1 for %2").arg(CountDown(state, end, now), name);
        state.buttons.front() = Button::Keep;
    }
    state.noteTitle = state.note.isEmpty() ? QString() : status.next->title;
}

void ShowRecording(FooterState& state, const RunnerStatus& status, Moment now)
{
    state.isRecording = true;
    state.isPaused = status.isPaused;
    state.buttons = {status.isPaused ? Button::Resume : Button::Pause, Button::Stop};
    const QString mark = SentenceLabel::TitleMark();
    if (status.title.isEmpty()) {
        state.headline = status.isPaused ? Text::tr("Paused") : Text::tr("Recording");
        state.event = state.headline;
    } else {
        state.headline = status.isPaused ? Text::tr("Paused: %1").arg(mark) : mark;
        state.event = status.isPaused ? state.headline : Text::tr("Recording: %1").arg(mark);
    }
    ShowTaskAfter(state, status, now);
}

void ShowPhase(FooterState& state, const RunnerStatus& status, Moment now)
{
    switch (status.phase) {
    case RunnerStatus::Phase::Idle:
        ShowIdle(state, status, now);
        break;
    case RunnerStatus::Phase::Preparing:
        ShowPreparing(state, status, now);
        break;
    case RunnerStatus::Phase::Recording:
        ShowRecording(state, status, now);
        break;
    case RunnerStatus::Phase::Closing:
        state.headline = Text::tr("%1 is being saved").arg(Name(status.title));
        state.buttons = {Button::Stop};
        state.isBusy = true;
        break;
    case RunnerStatus::Phase::Countdown:
        state.headline = CountdownText(status.action, CountDown(state, status.countdownEnd, now));
        state.event = CountdownText(status.action, QStringLiteral("…"));
        state.buttons = {Button::Now, Button::Cancel};
        break;
    }
}

} // namespace

FooterState FooterStateOf(const RunnerStatus& status, Moment now)
{
    FooterState state;
    state.title = status.title;
    ShowPhase(state, status, now);
    if (state.event.isEmpty()) {
        state.event = state.headline;
    }
    return state;
}

QString EventText(const FooterState& state)
{
    const bool isIdle = state.event.isEmpty();
    return QString(isIdle ? state.noteEvent : state.event)
        .replace(SentenceLabel::TitleMark(),
                 Util::PrintableText(isIdle ? state.noteTitle : state.title));
}

} // namespace Zentor::Desktop
