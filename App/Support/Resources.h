// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

namespace Zentor::Desktop {

/// Registers what the program brings along: style sheet, icons, translations and sample settings.
/// Call it once, before any of them is read.
void RegisterResources();

} // namespace Zentor::Desktop
