// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>

class QDateTimeEdit;

namespace Zentor::PX::Scheduler::UI {

/// Event filter for typed separators in a date or time editor: 00:01:30 is taken as well as 000130.
///
/// The digit that fills a section makes the editor move on to the next one. A separator typed then
/// would skip that section, so the filter drops it. In any other place a separator moves on.
class SeparatorKeyFilter final : public QObject {
public:
    /// Filters the events of \a editor, which becomes the owner.
    explicit SeparatorKeyFilter(QDateTimeEdit* editor);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool IsSeparatorBeforeSection(const QString& key) const;

    QDateTimeEdit* m_editor;
    /// The section that the last key was a digit of; -1 when it was another key.
    int m_sectionOfDigit = -1;
};

} // namespace Zentor::PX::Scheduler::UI
