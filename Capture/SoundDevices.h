// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <vector>

#include <QString>
#include <QStringList>

namespace Zentor::Capture {

/// A device that the sound server can record from, monitors of outputs included.
struct SoundDevice {
    QString name;
    /// What it is called for people.
    QString title;
};

/// Nothing when there is no sound server.
std::optional<std::vector<SoundDevice>> DescribeSoundDevices();

/// The names of the devices that the sound server can record from, monitors of outputs included.
/// Nothing when there is no sound server.
std::optional<QStringList> CurrentSoundDevices();

} // namespace Zentor::Capture
