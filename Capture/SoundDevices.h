#pragma once

#include <optional>

#include <QStringList>

namespace Zentor::Capture {

/// The names of the devices that the sound server can record from, monitors of outputs included.
/// Nothing when there is no sound server.
std::optional<QStringList> CurrentSoundDevices();

} // namespace Zentor::Capture
