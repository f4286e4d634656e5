// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace Zentor::Capture {

/// What the portal gives out so that it need not ask its user again. Each can be used once, and
/// every use gives a new one. Kept in a private file of the state folder
/// ($XDG_STATE_HOME/px-recorder).
class RestoreToken {
public:
    /// Empty when there is none.
    static QString Load();
    /// Keeps \a token in the place of the last one; empty: forgets that. False when it could not be
    /// written.
    static bool Store(const QString& token);
};

} // namespace Zentor::Capture
