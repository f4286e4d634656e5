// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "DurationClamp.h"

#include <QSignalBlocker>
#include <QTimeEdit>

#include "TypingKeeper.h"

namespace Zentor::PX::Scheduler::UI {

void ClampDuration(QTimeEdit& editor)
{
    if (editor.time() >= MinimumDuration) {
        return;
    }
    // A new time sends the cursor back to the start of its section. In the middle of typing, the
    // next digit would then be inserted there instead of in the section that follows.
    const TypingKeeper keeper(editor);
    const QSignalBlocker blocker(&editor);
    editor.setTime(MinimumDuration);
}

} // namespace Zentor::PX::Scheduler::UI
