// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include <QRect>
#include <QString>
#include <QStringList>

#include "Protocol.h"

namespace Zentor::Capture {

/// Frames a second that can be asked for.
constexpr int LowestRate = 1;
constexpr int HighestRate = 240;

/// What is to be recorded, how, and into which file.
struct RecordingRequest {
    enum class Source { X11, Portal, Test };

    /// Ends in ".mkv" or ".mp4", which decides about the format.
    QString file;
    Source source = Source::X11;
    /// Counted as QGuiApplication::screens() does; the portal asks its user instead. Without
    /// meaning when there is an area.
    int screen = 0;
    /// In pixels of the whole display, or of the picture that the portal's user has chosen. It may
    /// reach beyond that. Nothing: all of the screen.
    std::optional<QRect> area;
    bool isPointerVisible = true;
    int framesPerSecond = 30;
    /// Devices as CurrentSoundDevices() names them.
    QStringList sound;
    /// All devices in one track instead of a track each.
    bool isSoundMixed = false;
    /// Empty: the best one.
    QString encoder;
    Quality quality = Quality::Normal;
    /// Bytes of the volume that are not used.
    std::int64_t reserve = 0;
};

/// Whether the name of a file ends in one of the formats that can be written.
bool HasKnownEnding(const QString& file);

/// The source of a desktop such as this one.
RecordingRequest::Source UsualSource();

} // namespace Zentor::Capture
