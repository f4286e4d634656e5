// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include <QDateTime>
#include <QString>
#include <QTime>

#include "PXUserSettings/SettingsStore.h"

namespace Zentor::Desktop {

/// What a task form held when the application ended without asking. The initial values are the
/// defaults.
///
/// It is kept in the section "unfinishedTask" of the settings file:
///
///     "unfinishedTask": { "isOpen": true, "title": "Lect", "start": 1900000000000000,
///                         "duration": 5400000000, "screenIndex": -1, "finishAction": 0 }
///
/// Times are whole microseconds, the start is counted from the Unix epoch. When the form was
/// closed, "isOpen" is false and the rest means nothing.
struct UnfinishedTask {
    QString title;
    QDateTime start = QDateTime::fromSecsSinceEpoch(0);
    /// As a clock reading.
    QTime duration{0, 0, 5};
    /// Of the screens in use; -1 for a selected area.
    int screenIndex = 0;
    PX::PowerAction finishAction = PX::DoNothing;
};

/// The section of the file, for SettingsStore::AddSection().
PX::SettingsSection UnfinishedTaskSection();

/// The task that \a store, to which the section has been added, remembers.
std::optional<UnfinishedTask> UnfinishedTaskIn(const PX::SettingsStore& store);

/// Makes \a store remember \a task, or none. Changes nothing when it does already.
void RememberUnfinishedTask(PX::SettingsStore& store, const std::optional<UnfinishedTask>& task);

} // namespace Zentor::Desktop
