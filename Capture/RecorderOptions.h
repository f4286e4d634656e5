// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

#include "RecordingRequest.h"

namespace Zentor::Capture {

/// What the program was started to do.
struct RecorderOptions {
    enum class Task { Record, Lines, Levels, Probe, Repair, Picture, Print, Refuse };

    Task task = Task::Record;
    /// What to print, or why the options are refused.
    QString message;
    RecordingRequest request;
    /// The PNG to make of request.file.
    QString picture;
    /// Whether a screen was asked for, so that one that does not exist is a wrong option.
    bool isScreenChosen = false;
    /// 0: until a signal comes.
    std::int64_t durationMicroseconds = 0;
};

RecorderOptions ParseRecorderOptions(const QStringList& arguments);

} // namespace Zentor::Capture
