// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include <QString>

#include "RunnerPorts.h"

namespace Zentor::Desktop {

/// What the user can do about a notice.
enum class NoticeAction {
    /// The task is not to be recorded.
    Skip,
    /// The recording by hand is to go on although a task is due.
    Keep,
    /// Play the file.
    Open,
    ShowInFolder,
    /// The finish action is not to be done.
    Cancel,
    /// The finish action is to be done at once.
    Now
};

/// What \a action is called on a button.
QString ActionText(NoticeAction action);

/// A notice in the user's language, in plain text.
struct NoticeText {
    QString title;
    /// Sentences; empty when the title says everything.
    QString body;
    std::vector<NoticeAction> actions;
    /// Whether something is lost, or the machine goes off, unless the user does something.
    bool isUrgent = false;
};

/// The text of \a notice.
NoticeText TextOf(const Schedule::Notice& notice);

/// Sentence that says that \a action, none of DoNothing and QuitApplication, follows after \a wait,
/// which is a text: "The computer shuts down in 45 s".
QString CountdownText(PX::PowerAction action, const QString& wait);

/// What a recording with \a title is called in a sentence; one by hand has none.
QString NameInSentence(const QString& title);

} // namespace Zentor::Desktop
