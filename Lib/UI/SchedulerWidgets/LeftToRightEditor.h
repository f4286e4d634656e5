#pragma once

class QDateTimeEdit;

namespace Zentor::PX::Scheduler::UI {

/// Has \a editor show and take its sections from left to right in every language, from its next
/// display format on. Its place in the layout of its parent, which it has by then, is mirrored in
/// RTL layouts all the same.
///
/// In RTL layouts Qt reverses the sections: the seconds would come first in a clock reading, and
/// typing would go from the hours to the end of the field.
void KeepLeftToRight(QDateTimeEdit& editor);

} // namespace Zentor::PX::Scheduler::UI
