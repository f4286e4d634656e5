// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

/// \file
/// What the user should be told of the settings file.
#pragma once

#include <QString>

#include "HostData.h"

namespace Zentor::PX {

/// Something in the settings file that the program could not use, or that was not its own, and that
/// it has kept in another file: what the user should be told, once.
struct SettingsNotice {
    /// What has happened to the file.
    enum class Cause {
        /// The file could not be understood: the settings are the defaults.
        NotUnderstood,
        /// Some values could not be used, or stood there more than once; the rest is in use.
        PartlyUnusable,
        /// Another program changed the file while this one was running; the settings of this one
        /// stay in use, and replace it.
        ChangedOutside,
    };

    /// What has happened.
    Cause cause{};
    /// The file, with its folder, that holds what was found.
    QString keptPath;
    /// How many tasks could not be used, of a file that is PartlyUnusable; otherwise 0.
    int droppedTasks = 0;

    /// The notice as plain text, a few sentences in the language in use. It names the file.
    /// Ask anew after a change of language.
    ZENTOR_HOST_API QString Text() const;
};

} // namespace Zentor::PX
