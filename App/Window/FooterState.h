// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <vector>

#include <QString>

#include "ScheduleRunner.h"

namespace Zentor::Desktop {

/// What the footer shows of the runner at a moment.
struct FooterState {
    enum class Button { Start, Stop, Pause, Resume, Skip, Keep, Cancel, Now };

    /// Whether something is recorded: the dot is shown, and the figures are.
    bool isRecording = false;
    bool isPaused = false;
    /// What happens now, with SentenceLabel::TitleMark() for the title; empty while nothing does.
    QString headline;
    /// The same without what changes each second: when it is another one, something has happened.
    QString event;
    QString title;
    /// What comes next, likewise; empty when there is nothing to say.
    QString note;
    QString noteEvent;
    QString noteTitle;
    /// From the first in the layout to the last, which is the most likely one.
    std::vector<Button> buttons;
    /// Whether the buttons do nothing for now.
    bool isBusy = false;
    /// After how long the texts are others; nothing when they stay.
    std::optional<std::chrono::milliseconds> untilChange;
};

/// What happens, or else what comes next, in plain text without what changes each second.
QString EventText(const FooterState& state);

/// The footer's state at \a now.
FooterState FooterStateOf(const Schedule::RunnerStatus& status, Schedule::Moment now);

} // namespace Zentor::Desktop
