// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

namespace Zentor::Desktop {

enum class Theme { Light, Dark };

/// "light" or "dark": what the theme is called on the command line, in the settings, and in the
/// names of resources.
QString ThemeName(Theme theme);

/// The names of all themes.
QStringList ThemeNames();

/// The theme called \a name, or \a otherwise when no theme is called so.
Theme ThemeFromName(const QString& name, Theme otherwise);

} // namespace Zentor::Desktop
