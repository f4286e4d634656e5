// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include <QRect>
#include <QString>
#include <QStringList>

#include "PXUserSettings/SettingsStore.h"

namespace Zentor::Schedule {

/// What is recorded, and how. The initial values are the defaults.
///
/// It is kept in the section "recording" of the settings file:
///
///     "recording": { "container": "mkv", "framesPerSecond": 30, "quality": "normal",
///                    "showPointer": true, "soundDevices": ["speakers.monitor"], "mixSound": true,
///                    "source": "area", "screenIndex": 0,
///                    "area": { "x": 0, "y": 0, "width": 1280, "height": 720 },
///                    "reserveBytes": 1000000000, "countdownSeconds": 60 }
struct RecordingSettings {
    enum class Source { Screen, Area };
    enum class Quality { Small, Normal, High };

    /// The ending of the files: "mkv" or "mp4".
    QString container = QStringLiteral("mkv");
    /// 1 to 240.
    int framesPerSecond = 30;
    Quality quality = Quality::Normal;
    bool showPointer = true;
    /// As px-recorder names them; empty for no sound.
    QStringList soundDevices;
    /// Whether all devices share one track.
    bool mixSound = true;
    /// Of a recording by hand.
    Source source = Source::Screen;
    /// Of a recording by hand, in the order of QGuiApplication::screens().
    int screenIndex = 0;
    /// In the pixels of the X display; null before one has been chosen. Tasks that record the
    /// selected area record this one, or the whole of screen 0 while it is null.
    QRect area;
    /// Space of the volume that recordings leave free, at least 0.
    qint64 reserveBytes = 1'000'000'000;
    /// How long a finish action can be cancelled, 0 to 3600.
    int countdownSeconds = 60;
};

/// What \a quality is called in the file and by the recorder: "small", "normal" or "high".
QString NameOf(RecordingSettings::Quality quality);

/// The section of the file, for PX::SettingsStore::AddSection().
PX::SettingsSection RecordingSettingsSection();

/// The part of \a store, to which the section has been added, that is about recordings.
RecordingSettings RecordingSettingsIn(const PX::SettingsStore& store);

/// Alters that part of \a store by \a change, like PX::SettingsStore::Change().
void ChangeRecordingSettings(PX::SettingsStore& store,
                             const std::function<void(RecordingSettings&)>& change);

} // namespace Zentor::Schedule
