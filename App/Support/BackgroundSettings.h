// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include "PXUserSettings/SettingsStore.h"

namespace Zentor::Desktop {

/// What becomes of the program when its window is closed. The initial values are the defaults.
///
/// It is kept in the section "background" of the settings file:
///
///     "background": { "keepRunning": true, "toldAboutTray": false }
struct BackgroundSettings {
    /// Whether the program runs on without its window while it has something to record.
    bool keepRunning = true;
    /// Whether the user has been told that it does.
    bool toldAboutTray = false;
};

/// The section of the file, for SettingsStore::AddSection().
PX::SettingsSection BackgroundSettingsSection();

/// The part of \a store, to which the section has been added, that is about the background.
BackgroundSettings BackgroundSettingsIn(const PX::SettingsStore& store);

/// Alters that part of \a store by \a change, like SettingsStore::Change().
void ChangeBackgroundSettings(PX::SettingsStore& store,
                              const std::function<void(BackgroundSettings&)>& change);

} // namespace Zentor::Desktop
