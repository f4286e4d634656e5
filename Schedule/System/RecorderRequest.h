// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonObject>
#include <QRect>
#include <QString>
#include <QStringList>

#include "RecordingSettings.h"

namespace Zentor::Schedule {

/// What px-recorder is to record, how, and into which file.
struct RecorderRequest {
    /// Where the picture comes from.
    enum class Source {
        /// The portal on a Wayland desktop, else the X display.
        Desktop,
        X11,
        Portal,
        /// A moving picture that needs no display.
        Test
    };

    /// Absolute path that ends in ".mkv" or ".mp4". It must not exist.
    QString file;
    Source source = Source::Desktop;
    /// In the order of QGuiApplication::screens(), at least 0. The portal asks its user instead.
    int screenIndex = 0;
    /// In pixels of the X display, or of what the portal's user has chosen; of the test picture the
    /// size. Null for all of the screen.
    QRect area;
    /// 1 to 240.
    int framesPerSecond = 30;
    RecordingSettings::Quality quality = RecordingSettings::Quality::Normal;
    bool showPointer = true;
    /// As px-recorder names them; empty for no sound.
    QStringList soundDevices;
    /// Whether all devices share one track.
    bool mixSound = true;
    /// Space of the volume that stays free, at least 0; with less, the recording ends.
    qint64 reserveBytes = 0;
};

/// The line "prepare" that asks for \a request, without an id.
QJsonObject LineOf(const RecorderRequest& request);

/// Whether the picture comes from the portal, which may ask its user first.
bool IsFromPortal(const RecorderRequest& request);

} // namespace Zentor::Schedule
