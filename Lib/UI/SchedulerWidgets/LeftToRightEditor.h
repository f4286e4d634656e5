// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

class QDateTimeEdit;

namespace Zentor::PX::Scheduler::UI {

/// Left-to-right sections in every language, from the next display format of \a editor on. Only
/// the editor's alignment in the layout of its parent, in which it is by then, is mirrored in RTL
/// layouts.
///
/// In RTL layouts Qt reverses the sections: the seconds would come first in a clock reading, and
/// typing would go from the hours to the end of the field.
void KeepLeftToRight(QDateTimeEdit& editor);

} // namespace Zentor::PX::Scheduler::UI
