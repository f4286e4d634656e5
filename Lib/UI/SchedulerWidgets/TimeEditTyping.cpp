#include "TimeEditTyping.h"

#include <QDateTimeEdit>
#include <QKeyEvent>
#include <QLayout>
#include <QLineEdit>
#include <QSignalBlocker>

namespace Zentor::PX::Scheduler::UI {

TypingKeeper::TypingKeeper(QDateTimeEdit& editor)
    : m_lineEdit(editor.findChild<QLineEdit*>())
    , m_incompleteText(editor.hasAcceptableInput() ? QString() : m_lineEdit->text())
    , m_cursor(m_lineEdit->cursorPosition())
    , m_selectionStart(m_lineEdit->selectionStart())
    , m_selectionLength(m_lineEdit->selectionLength())
{
}

TypingKeeper::~TypingKeeper()
{
    // The editor must not take this for something that the user did.
    const QSignalBlocker blocker(m_lineEdit);
    if (!m_incompleteText.isNull()) {
        m_lineEdit->setText(m_incompleteText);
    }
    if (m_selectionLength == 0) {
        m_lineEdit->setCursorPosition(m_cursor);
    } else if (m_cursor == m_selectionStart) {
        m_lineEdit->setSelection(m_selectionStart + m_selectionLength, -m_selectionLength);
    } else {
        m_lineEdit->setSelection(m_selectionStart, m_selectionLength);
    }
}

void PrepareForTyping(QDateTimeEdit& editor)
{
    editor.setLayoutDirection(Qt::LeftToRight);
    new PlaceMirror(&editor);
    new SeparatorKeyFilter(&editor);
}

PlaceMirror::PlaceMirror(QDateTimeEdit* editor)
    : QObject(editor)
    , m_editor(editor)
{
    editor->parentWidget()->installEventFilter(this);
    FollowParent();
}

bool PlaceMirror::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::LayoutDirectionChange) {
        FollowParent();
    }
    return QObject::eventFilter(watched, event);
}

void PlaceMirror::FollowParent()
{
    const QWidget* parent = m_editor->parentWidget();
    QLayout* layout = parent->layout();
    if (layout == nullptr || parent->isRightToLeft() == m_isMirrored) {
        return;
    }
    m_isMirrored = !m_isMirrored;
    const QLayoutItem* item = layout->itemAt(layout->indexOf(m_editor));
    layout->setAlignment(m_editor, item->alignment() ^ (Qt::AlignLeft | Qt::AlignRight));
}

SeparatorKeyFilter::SeparatorKeyFilter(QDateTimeEdit* editor)
    : QObject(editor)
    , m_editor(editor)
{
    editor->installEventFilter(this);
}

bool SeparatorKeyFilter::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress) {
        return QObject::eventFilter(watched, event);
    }
    const QString key = static_cast<QKeyEvent*>(event)->text();
    const bool isDigit = key.size() == 1 && key.at(0).isDigit();
    const int section = m_editor->currentSectionIndex();
    const bool hasMovedOn = m_sectionOfDigit >= 0 && section > m_sectionOfDigit;
    m_sectionOfDigit = isDigit ? section : -1;
    return hasMovedOn && IsSeparatorBeforeSection(key);
}

bool SeparatorKeyFilter::IsSeparatorBeforeSection(const QString& key) const
{
    // The section that was moved on to is selected as a whole.
    const auto* lineEdit = m_editor->findChild<QLineEdit*>();
    if (!lineEdit->hasSelectedText()) {
        return false;
    }
    const QString before = lineEdit->text().left(lineEdit->selectionStart());
    return !key.isEmpty() && before.endsWith(key);
}

} // namespace Zentor::PX::Scheduler::UI
