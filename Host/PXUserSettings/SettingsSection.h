// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

/// \file
/// Sections of the settings file that other parts of a program keep.
#pragma once

#include <functional>

#include <QJsonObject>
#include <QString>

#include "SectionReader.h"

namespace Zentor::PX {

/// A section of the file that another part of the program keeps for itself.
struct SettingsSection {
    /// Its key in the file, which no other section has.
    QString name;
    /// Returns what UserSettings::sections is to hold of what was \a found in the file: every field
    /// that is known, with its default where it is missing or cannot be used.
    std::function<QJsonObject(const SectionReader& found)> read;
};

} // namespace Zentor::PX
