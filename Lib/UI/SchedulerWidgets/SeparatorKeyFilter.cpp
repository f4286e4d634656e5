// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "SeparatorKeyFilter.h"

#include <QDateTimeEdit>
#include <QKeyEvent>
#include <QLineEdit>

namespace Zentor::PX::Scheduler::UI {

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
