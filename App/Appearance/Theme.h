// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QIcon>
#include <QMap>
#include <QPalette>
#include <QString>
#include <QStringList>

#include "ThemeName.h"

namespace Zentor::Desktop {

/// The named colours of one theme, by name, written as "#rrggbb".
using ColorTable = QMap<QString, QString>;

/// A style sheet in which names of colours were replaced by the colours.
struct FilledSheet {
    QString text;
    /// Names in the template that the table does not have, each once.
    QStringList unknownNames;
    /// Names in the table that the template does not use.
    QStringList unusedNames;
};

/// The theme that goes with \a palette: dark when its windows are.
Theme ThemeOf(const QPalette& palette);

/// Reads lines of the form "name: #rrggbb". Empty lines and lines starting with "//" are skipped.
/// A line that is neither, and a name that comes twice, is added to \a problems.
ColorTable ParseColors(const QString& text, QStringList* problems);

/// The colour table of \a theme as it ships.
ColorTable ColorsOf(Theme theme);

/// Replaces every "@name@" of \a sheetTemplate by the colour of that name; a name that is not in
/// \a colors stays as it is and is reported.
FilledSheet FillSheet(const QString& sheetTemplate, const ColorTable& colors);

/// The application's style sheet: the reference host's plain one, and after it the application's
/// own in the colours of \a theme.
QString StyleSheetOf(Theme theme);

/// The palette in the colours of \a theme, for what the style sheet does not reach.
QPalette PaletteOf(Theme theme);

/// Gives the whole application the look of \a theme.
///
/// Apply a theme before the first scheduler panel is built: a panel takes its table's width from
/// the style sheet while it is built.
void ApplyTheme(Theme theme);

/// The application's icon \a name in the colours of the theme in use.
QIcon ThemedIcon(const QString& name);

} // namespace Zentor::Desktop
