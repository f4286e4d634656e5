// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace Zentor::Desktop {

/// The settings file that is used where the command line names none: in the platform's
/// configuration folder, under the name of the application.
QString DefaultSettingsFile();

} // namespace Zentor::Desktop
