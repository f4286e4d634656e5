// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "TypingKeeper.h"

#include <QDateTimeEdit>
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
    // The editor must not take this for user input.
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

} // namespace Zentor::PX::Scheduler::UI
