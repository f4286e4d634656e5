// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <QMessageBox>

#include "HostInterfaces.h"

namespace Zentor::PX::Scheduler::UI {

/// Shows \a box on behalf of \a asker and returns the answer of the user. The answer is Cancel, the
/// rejecting one, when \a box or \a asker is destroyed before.
///
/// While the box is on screen its event loop runs everything else too: the window or the asker may
/// be destroyed, and the same question may be asked again, in a box of its own. The caller finds
/// out with a QPointer what is left.
QMessageBox::StandardButton AskModally(std::unique_ptr<Zentor::Util::AlertBox> box, QWidget* asker);

} // namespace Zentor::PX::Scheduler::UI
