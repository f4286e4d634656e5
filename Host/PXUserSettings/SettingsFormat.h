/// \file
/// The form in which UserSettings are kept in a file: a JSON object such as
///
///     {
///         "version": 1,
///         "limitedCapture": { "enabled": true, "duration": 90000000 },
///         "scheduledCapture": {
///             "enabled": true,
///             "tasks": [
///                 { "title": "Lecture", "start": 1900000000000000, "duration": 5400000000,
///                   "screenIndex": -1, "finishAction": "doNothing" }
///             ]
///         },
///         "captureFinishAction": "sleep",
///         "paths": { "resultsFolder": "/home/user/Videos" },
///         "confirmations": { "remove_schedule_record_always": true },
///         "appearance": { "language": "pt_BR", "theme": "dark", "windowGeometry": "AdnQywAD",
///                         "page": "schedule" }
///     }
///
/// Times are whole microseconds, starts are counted from the Unix epoch. An integer that JSON
/// programs cannot be trusted with (beyond 2^53) is written as a text of digits. The window's
/// geometry is in base 64. The finish actions are "doNothing", "quitApplication", "sleep",
/// "hibernate", "restart" and "shutDown". A field that is missing has its default; of a task, the
/// title, the start and the duration are required.
#pragma once

#include <QJsonObject>
#include <QStringList>

#include "UserSettings.h"

namespace Zentor::PX {

/// What was found in a settings file.
struct SettingsDocument {
    /// False when it is not JSON, no settings file, or made by a newer version. The settings are
    /// the defaults then.
    bool isUnderstood = false;
    /// For each value that could not be used, where it stands and why, for the log; otherwise
    /// empty. Such a value has its default; such a task is left out.
    QStringList problems;
    UserSettings settings;
    /// All of the file, fields that are not known included.
    QJsonObject fields;
};

/// Reads the settings in \a json.
ZENTOR_HOST_API SettingsDocument ParseSettings(const QByteArray& json);

/// Writes \a settings as JSON. Fields of \a previousFields and of its sections that are not known
/// are kept.
ZENTOR_HOST_API QByteArray FormatSettings(const UserSettings& settings,
                                          const QJsonObject& previousFields);

} // namespace Zentor::PX
