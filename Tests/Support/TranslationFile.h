// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include <QString>
#include <QStringList>

namespace Zentor::Tests {

/// One text of a language file, or one of the forms that it has for numbers.
struct Translation {
    QString context;
    QString source;
    QString translation;
    /// Anything but a finished translation, as in "unfinished".
    QString state;
    /// Which form it is; -1 for a text without a number.
    int form = -1;
};

/// The texts of the .ts file at \a path; none when there is no such file.
std::vector<Translation> ReadTranslations(const QString& path);

/// Whether \a entry is what the program says, for some number where it has one.
bool IsInUse(const Translation& entry);

/// Context and source of each of \a entries, sorted.
QStringList Keys(const std::vector<Translation>& entries);

} // namespace Zentor::Tests
