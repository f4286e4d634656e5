// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

/// \file
/// A style sheet for the panel, made from the palette.
#pragma once

#include <QString>

#include "HostInterfaces.h"

class QApplication;

namespace Zentor::App {

/// The plain style sheet of the panel, for the palette, font, base style and language that the
/// application has now. It names nothing but parts of the panel.
///
/// For hosts that put a sheet together themselves. Set it, on the application or on a widget that
/// the panel is built in, before the panel is built, and again when one of the four changes.
ZENTOR_HOST_API QString PlainStyleSheet();

/// Gives \a application the plain style sheet followed by \a ownSheet, in which a rule with the
/// same selector wins, and does so again whenever palette, font or language of the application
/// change.
///
/// Call it before the first panel is built, after translations are installed. A later call replaces
/// the earlier one, and so does setStyleSheet(), until the next change.
ZENTOR_HOST_API void ApplyPlainStyle(QApplication& application,
                                     const QString& ownSheet = QString());

/// Does the same to \a widget and all that is in it, with \a ownSheet, for applications that have a
/// sheet of their own or another use for an object name of the panel. The panel is built inside
/// \a widget afterwards.
ZENTOR_HOST_API void ApplyPlainStyle(QWidget& widget, const QString& ownSheet = QString());

} // namespace Zentor::App
