// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

class QMessageBox;

namespace Zentor::Desktop {

/// Gives each button of \a box, and its check box, a key of its own to be reached with Alt: a
/// letter of its text is underlined, or one is added behind texts whose characters cannot be typed
/// by one key or cannot be underlined. One that has a key keeps it.
void GiveKeys(QMessageBox& box);

} // namespace Zentor::Desktop
