// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

namespace Zentor::Desktop {

/// What a start of the program asks of the instance that runs already.
enum class Request {
    /// Show the window.
    Show,
    /// Stay as it is.
    Nothing,
    /// Start recording.
    Start,
    /// Stop the recording.
    Stop,
    /// Pause the recording, or go on with one that is paused.
    Pause,
    /// End the program without a question.
    Quit
};

} // namespace Zentor::Desktop
