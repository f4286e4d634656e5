// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class QDateTimeEdit;
class QLineEdit;

namespace Zentor::PX::Scheduler::UI {

/// Scope guard for what a user is typing in a date or time editor while its value is set by
/// program.
///
/// At its end cursor and selection are put back, which a new value sends to the start of the
/// section, and so are the digits of a section that is not complete yet. The value that was set
/// stays until the user goes on typing or leaves the section.
class TypingKeeper {
public:
    explicit TypingKeeper(QDateTimeEdit& editor);
    ~TypingKeeper();
    TypingKeeper(const TypingKeeper&) = delete;
    TypingKeeper& operator=(const TypingKeeper&) = delete;

private:
    QLineEdit* m_lineEdit;
    QString m_incompleteText;
    int m_cursor;
    int m_selectionStart;
    int m_selectionLength;
};

} // namespace Zentor::PX::Scheduler::UI
