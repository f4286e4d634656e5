// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace Zentor::Desktop {

/// The folder for log files, in the platform's folder for the application's data.
QString LogFolder();

/// Writes everything that is logged from now on, by Qt also, into a file of this run in
/// LogFolder(), beside what goes to standard error. The folder is created when it is missing; it
/// and the file are the user's alone. Files of earlier runs are deleted when they are two weeks
/// old. Of Qt's messages, characters that control a terminal are escaped.
///
/// Call it after
/// google::InitGoogleLogging().
void KeepLog();

/// The log file of this run, complete up to now; empty when there is none, because KeepLog() was
/// not called, nothing has been logged, or the file could not be written.
QString LogFile();

} // namespace Zentor::Desktop
