// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

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
///         "confirmations": { "remove_schedule_record_always": true }
///     }
///
/// Times are whole microseconds, starts are counted from the Unix epoch. An integer that JSON
/// programs cannot be trusted with (beyond 2^53) is written as a text of digits. The finish actions
/// are "doNothing", "quitApplication", "sleep", "hibernate", "restart" and "shutDown". A field that
/// is missing has its default; of a task, the title, the start and the duration are required. A
/// field that an object has more than once has its last value, and that is noted as a problem.
///
/// Other parts of the program may keep a section of their own there (SettingsSection).
#pragma once

#include <vector>

#include <QJsonObject>
#include <QStringList>

#include "SettingsSection.h"
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
    /// How many tasks are left out.
    int droppedTasks = 0;
    /// The settings, with defaults for what was missing or could not be used.
    UserSettings settings;
    /// All of the file, fields that are not known included.
    QJsonObject fields;
};

/// The settings of a user who has not changed any, with \a sections.
ZENTOR_HOST_API UserSettings DefaultSettings(const std::vector<SettingsSection>& sections = {});

/// Reads the settings in \a json, and in it \a sections. There is no failure: what could not be
/// used is in the problems of the result.
ZENTOR_HOST_API SettingsDocument ParseSettings(const QByteArray& json,
                                               const std::vector<SettingsSection>& sections = {});

/// All fields of a file with \a settings. Fields that are not known are kept: of \a previousFields,
/// of its sections, and of its tasks that are there still (of the same title).
ZENTOR_HOST_API QJsonObject FieldsOf(const UserSettings& settings,
                                     const QJsonObject& previousFields);

/// FieldsOf() \a settings and \a previousFields, written as JSON in UTF-8.
ZENTOR_HOST_API QByteArray FormatSettings(const UserSettings& settings,
                                          const QJsonObject& previousFields);

} // namespace Zentor::PX
