// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

#include "Request.h"

namespace Zentor::Desktop {

/// What the user asked for on the command line.
struct CommandLine {
    enum class Task {
        /// Open the window, or take the pictures when screenshotsFolder is set.
        Run,
        /// Print \a message on standard output and end with exit code 0.
        Print,
        /// Print \a message on standard error and end with exit code 2.
        Refuse
    };

    Task task = Task::Run;
    /// What is to be printed, without a line feed at its end; empty for Task::Run.
    QString message;
    /// The settings file, or empty for the one in the platform's configuration folder.
    QString settingsFile;
    /// Code of one of the languages of Languages.h, or empty for the user's own choice.
    QString language;
    /// One of ThemeNames(), or empty for the user's own choice.
    QString theme;
    /// Folder for the pictures of the screenshot tour, or empty for no tour.
    QString screenshotsFolder;
    /// What the instance that runs already is to do.
    Request request = Request::Show;
    /// Whether the program, when it is the first instance, starts without a window.
    bool isHidden = false;
};

/// Reads \a arguments, of which the first is the name of the program.
///
/// Needs an application object, but no display: a QCoreApplication is enough, so that a mistake is
/// reported wherever the program is started.
CommandLine ParseCommandLine(const QStringList& arguments);

/// \a arguments, which can be parsed, for a start that brings the program back as it is now: with
/// no recording started anew, and without a window where \a isHidden.
QStringList ArgumentsToRestart(const QStringList& arguments, bool isHidden);

} // namespace Zentor::Desktop
