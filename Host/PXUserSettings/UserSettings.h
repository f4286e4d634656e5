// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <vector>

#include <QJsonObject>
#include <QMap>
#include <QString>

#include "HostData.h"

namespace Zentor::PX {

/// The user's folder for videos, or the home folder where there is none.
ZENTOR_HOST_API QString DefaultResultsFolderPath();

/// Everything that is remembered for the user. The initial values are the defaults.
struct UserSettings {
    bool limitedCaptureEnabled = false;
    /// At least ShortestCaptureDuration and below CaptureDurationLimit.
    std::chrono::microseconds limitedCaptureDuration{std::chrono::hours(1)};
    bool scheduledCaptureEnabled = false;
    /// In display order.
    std::vector<RecordTime> schedule;
    PowerAction captureFinishAction = DoNothing;
    /// The folder in which output videos are written.
    QString resultsFolderPath = DefaultResultsFolderPath();
    /// By the names of the questions, whether they were answered for good.
    QMap<QString, bool> confirmations;
    /// By name, the sections that other parts of the program keep for themselves.
    QMap<QString, QJsonObject> sections;
};

} // namespace Zentor::PX
