#include "DurationClamp.h"

#include <QLineEdit>
#include <QSignalBlocker>
#include <QTimeEdit>

namespace Zentor::PX::Scheduler::UI {
namespace {

/// Puts the cursor and the selection of a line edit back when it goes out of scope.
class CursorKeeper {
public:
    explicit CursorKeeper(QLineEdit* edit)
        : m_edit(edit)
        , m_cursor(edit->cursorPosition())
        , m_selectionStart(edit->selectionStart())
        , m_selectionLength(edit->selectionLength())
    {
    }

    ~CursorKeeper()
    {
        // The editor must not take this for a move of the user's to another section.
        const QSignalBlocker blocker(m_edit);
        if (m_selectionLength == 0) {
            m_edit->setCursorPosition(m_cursor);
        } else if (m_cursor == m_selectionStart) {
            m_edit->setSelection(m_selectionStart + m_selectionLength, -m_selectionLength);
        } else {
            m_edit->setSelection(m_selectionStart, m_selectionLength);
        }
    }

    CursorKeeper(const CursorKeeper&) = delete;
    CursorKeeper& operator=(const CursorKeeper&) = delete;

private:
    QLineEdit* m_edit;
    int m_cursor;
    int m_selectionStart;
    int m_selectionLength;
};

} // namespace

void ClampDuration(QTimeEdit& editor)
{
    if (editor.time() >= MinimumDuration) {
        return;
    }
    // A new time sends the cursor back to the start of its section. In the middle of typing, the
    // next digit would then be inserted there instead of in the section that follows.
    const CursorKeeper keeper(editor.findChild<QLineEdit*>());
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
    if (milliseconds < std::chrono::milliseconds::zero()
        || milliseconds >= std::chrono::hours(24)) {
        return {};
    }
    return QTime::fromMSecsSinceStartOfDay(static_cast<int>(milliseconds.count()));
}

} // namespace Zentor::PX::Scheduler::UI
