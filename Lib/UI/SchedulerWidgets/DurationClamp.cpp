#include "DurationClamp.h"

#include <QSignalBlocker>
#include <QTimeEdit>

#include "TimeEditTyping.h"

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

std::chrono::microseconds DurationOf(const QTime& time)
{
    return std::chrono::milliseconds(time.msecsSinceStartOfDay());
}

QTime ClockReadingOf(std::chrono::microseconds duration)
{
    const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(duration);
    // QTime counts in int and would take a longer duration for what is left of it after narrowing.
    if (milliseconds < std::chrono::milliseconds::zero() || milliseconds >= CaptureDurationLimit) {
        return {};
    }
    return QTime::fromMSecsSinceStartOfDay(static_cast<int>(milliseconds.count()));
}

} // namespace Zentor::PX::Scheduler::UI
