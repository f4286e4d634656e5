// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QObject>
#include <QPointer>

#include "PanelParts.h"

class QKeyEvent;
class QTimer;

namespace Zentor::Desktop {

/// Makes the list of tasks in a scheduler panel usable by keyboard.
///
/// Up and Down move among the tasks, Delete deletes the task that has the focus, after the panel's
/// question, Insert opens the task form, and Enter presses the button that has the focus.
///
/// The focus goes to the next task when one is deleted, and to the button that adds a task when the
/// form closes. A task that is added is scrolled into view.
class PanelListKeys final : public QObject {
    Q_OBJECT

public:
    /// Belongs to \a panel, which may have tasks already.
    explicit PanelListKeys(QWidget* panel);
    ~PanelListKeys() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The delete button of \a row was let go. If that makes a click, it comes next.
    void DeleteButtonReleased(QWidget* row);

private:
    void WatchRows();
    void ConnectAddButton();
    void TakeInNewRows();
    void WatchRow(QWidget* row);
    void OrderTabs();
    void FocusAddButton();
    void FocusAfterDeletion(QWidget* row);
    bool HandlePanelKey(const QKeyEvent& event);
    bool PressFocusedButton(bool isRepeated);
    bool DeleteFocusedTask(bool isRepeated);
    bool MoveAmongRows(QObject* from, int key);
    QWidget* FocusWidget() const;
    bool HasDeleteButtonFocus() const;

    QWidget* m_panel;
    const PanelParts m_parts;
    /// Runs out when control is back in the event loop, where new rows are complete.
    QTimer* m_newRowsTimer;
    QList<QPointer<QWidget>> m_newRows;
    /// Index of the row whose deletion is asked about with the focus on it; -1 for none.
    int m_pressedRow = -1;
};

} // namespace Zentor::Desktop
