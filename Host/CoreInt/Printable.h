// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include <QString>

#include "HostData.h"

namespace Zentor::Util {

/// \a text in UTF-8, fit for one line of a log or a terminal, whoever wrote it. A character that
/// would control these is written as its number: as \\x1b below U+0100, otherwise as \\u202e. Such
/// are ends of lines, escape sequences and changes of direction.
///
/// Use it for all that comes from outside: paths, titles, content of files, messages of others.
ZENTOR_HOST_API std::string Printable(const QString& text);

/// The same for a message that goes to the user, too.
ZENTOR_HOST_API QString PrintableText(const QString& text);

} // namespace Zentor::Util
