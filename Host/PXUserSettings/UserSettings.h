// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

/// \file
/// The settings themselves.
#pragma once

#include <chrono>
#include <vector>

#include <QJsonObject>
#include <QMap>
#include <QString>

#include "HostData.h"

namespace Zentor::PX {

/// The user's folder for videos, as an absolute path, or the home folder where there is none. The
/// folder need not exist.
ZENTOR_HOST_API QString DefaultResultsFolderPath();

/// Everything that is remembered for the user. The initial values are the defaults.
struct UserSettings {
    /// Whether a capture stops after a duration.
    bool limitedCaptureEnabled = false;
    /// At least ShortestCaptureDuration and below CaptureDurationLimit.
    std::chrono::microseconds limitedCaptureDuration{std::chrono::hours(1)};
    /// Whether captures are scheduled; it comes before the limit when both are on.
    bool scheduledCaptureEnabled = false;
    /// The tasks, in display order.
    std::vector<RecordTime> schedule;
    /// What to do when a limited capture ends.
    PowerAction captureFinishAction = DoNothing;
    /// The folder in which output videos are written.
    QString resultsFolderPath = DefaultResultsFolderPath();
    /// By the names of the questions, whether they were answered for good.
    QMap<QString, bool> confirmations;
    /// By name, the sections that other parts of the program keep for themselves.
    QMap<QString, QJsonObject> sections;
};

} // namespace Zentor::PX
