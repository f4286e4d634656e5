// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPointer>

class QMessageBox;
class QWidget;

namespace Zentor::Desktop {

/// Shows what a question of a scheduler panel is about, and makes its buttons usable by keyboard.
///
/// While the question before deleting a task is on screen, the task's row is marked for the style
/// sheet, by the property "Question" with the value "Open" of the row and all in it, and the box
/// stands beside it and names the task to screen readers. Every box of the panel's window gets keys
/// for its buttons.
class PanelQuestions final : public QObject {
    Q_OBJECT

public:
    /// Belongs to \a panel, which has its place in a window.
    explicit PanelQuestions(QWidget* panel);
    ~PanelQuestions() override;

    /// A box that is opened before control is back in the event loop asks about \a row.
    void Expect(QWidget* row);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Show(QMessageBox& box, QEvent* event);
    void MarkAskedRow(QMessageBox& box) const;
    void PlaceBesideRow(QMessageBox& box) const;

    QWidget* const m_window;
    QPointer<QWidget> m_askedRow;
    bool m_isPassingOn = false;
};

} // namespace Zentor::Desktop
