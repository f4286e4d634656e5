// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "CloseDecision.h"

namespace Zentor::Desktop {

CloseDecision DecideClose(const PendingWork& work, bool keepRunning, bool hasTray)
{
    if (!work.IsAny() || !keepRunning) {
        return CloseDecision::Close;
    }
    return hasTray ? CloseDecision::Hide : CloseDecision::Minimize;
}

} // namespace Zentor::Desktop
