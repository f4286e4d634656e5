// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

namespace Zentor::Desktop {

/// What is lost when the program ends now.
struct PendingWork {
    bool isRecording = false;
    /// Tasks that are still to come, in a schedule that is on.
    int taskCount = 0;

    bool IsAny() const { return isRecording || taskCount > 0; }
};

/// What closing the window does.
enum class CloseDecision {
    /// The program ends.
    Close,
    /// The program runs on without its window, which the tray shows again.
    Hide,
    /// The program runs on, and so that it can be found again, its window stays as an icon.
    Minimize
};

/// What closing the window does while \a work is pending. \a keepRunning is the user's choice;
/// \a hasTray tells whether there is a tray to come back from.
CloseDecision DecideClose(const PendingWork& work, bool keepRunning, bool hasTray);

} // namespace Zentor::Desktop
