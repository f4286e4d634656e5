#pragma once

#include <memory>

#include <QMessageBox>

#include "HostInterfaces.h"

namespace Zentor::PX::Scheduler::UI {

/// One question of a widget to the user, asked in a modal box.
///
/// While the box is on screen its event loop runs everything else too: the window or the asking
/// widget may be destroyed, or the same question be asked once more.
class ModalQuestion {
public:
    /// Whether the box is open: Ask() is running.
    bool IsOpen() const { return m_isOpen; }

    /// Runs \a box on behalf of \a asker, which owns \a question, and returns the answer.
    ///
    /// The answer is Cancel, the rejecting one, when the box of \a question is open (\a box is then
    /// not shown), and when \a box or \a asker is destroyed before the user answers. The caller
    /// finds out with a QPointer whether it was destroyed.
    static QMessageBox::StandardButton
    Ask(ModalQuestion& question, std::unique_ptr<Zentor::Util::AlertBox> box, QWidget* asker);

private:
    bool m_isOpen = false;
};

} // namespace Zentor::PX::Scheduler::UI
