// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include <QByteArray>
#include <QString>

#include "PXUserSettings/SettingsStore.h"

namespace Zentor::Desktop {

/// What the application remembers for itself, beside the settings of the recording. The initial
/// values are the defaults.
///
/// They are kept in the section "appearance" of the settings file:
///
///     "appearance": { "language": "pt_BR", "theme": "dark", "windowGeometry": "AdnQywAD",
///                     "page": "schedule" }
struct ApplicationSettings {
    /// A name that QLocale understands, such as "pt_BR"; empty for the language of the system.
    QString language;
    /// One of ThemeNames(); empty for the theme of the desktop.
    QString theme;
    /// From QWidget::saveGeometry(), in base 64 in the file; empty before the first time.
    QByteArray windowGeometry;
    /// Id of the page that was shown last; empty before the first time.
    QString page;
};

/// The section of the file, for SettingsStore::AddSection().
PX::SettingsSection ApplicationSettingsSection();

/// The application's part of \a store, to which the section has been added.
ApplicationSettings ApplicationSettingsIn(const PX::SettingsStore& store);

/// Alters the application's part of \a store by \a change, like SettingsStore::Change().
void ChangeApplicationSettings(PX::SettingsStore& store,
                               const std::function<void(ApplicationSettings&)>& change);

} // namespace Zentor::Desktop
