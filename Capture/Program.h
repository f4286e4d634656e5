// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

namespace Zentor::Capture {

/// The program px-recorder: from its command line to its exit code.
int RunRecorder(int argc, char** argv);

} // namespace Zentor::Capture
