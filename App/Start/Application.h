// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

namespace Zentor::Desktop {

/// Runs the application from its command line to its end and returns its exit code: 0 when all went
/// well, 1 when the screenshot tour failed, a signal came and not everything could be saved, or
/// there is no running instance to do what was asked, 2 when the command line or the settings file
/// cannot be used.
int RunApplication(int argc, char** argv);

} // namespace Zentor::Desktop
