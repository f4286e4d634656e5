#pragma once

#include <QList>
#include <QObject>
#include <QPointer>

class QAbstractButton;
class QDateTimeEdit;
class QKeyEvent;
class QScrollArea;
class QStackedWidget;
class QTimer;
class QWidget;

namespace Zentor::PX::Scheduler::UI {
class RecordSchedulerWidget;
}

namespace Zentor::Desktop {

/// Makes a scheduler panel comfortable to use without a mouse.
///
/// In the task form, Enter creates the task when it can be created, and Escape goes back, with the
/// panel's question about the unsaved task. In the list of tasks, Up and Down move among the tasks,
/// and Delete deletes the task that has the focus, after the panel's question. Insert opens the
/// form while the list is on screen. On a button, Enter presses it. In the date field, F4 and
/// Alt+Down open the calendar.
///
/// The focus follows: into the name field when the form opens, to the button that adds a task when
/// the form closes, to the next task when one is deleted, to the mode that stays in use when
/// leaving it is refused.
class PanelKeyboard : public QObject {
    Q_OBJECT

public:
    /// Belongs to \a panel. The panel may have tasks already.
    explicit PanelKeyboard(PX::Scheduler::UI::RecordSchedulerWidget* panel);
    ~PanelKeyboard() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void WatchRows();
    void WatchForm();
    void WatchModes();
    void TakeInNewRows();
    void WatchRow(QWidget* row);
    void OrderTabs();
    QList<QAbstractButton*> DeleteButtons() const;
    void FocusNameField();
    void FocusAddButton();
    void FocusAfterDeletion(QWidget* row);
    bool HandleKey(const QKeyEvent& event);
    bool PressEnter(bool isRepeated);
    bool OpenCalendar(const QKeyEvent& event);
    bool MoveAmongRows(const QWidget* from, int key);
    QWidget* FocusWidget() const;
    bool IsFormShown() const;

    PX::Scheduler::UI::RecordSchedulerWidget* m_panel;
    QStackedWidget* m_stack;
    QWidget* m_form;
    QDateTimeEdit* m_date;
    QScrollArea* m_list;
    QWidget* m_rows;
    QAbstractButton* m_addButton;
    /// Runs out when control is back in the event loop, where new rows are complete.
    QTimer* m_newRowsTimer;
    QList<QPointer<QWidget>> m_newRows;
    /// Where the row stands whose deletion is asked about with the focus on it; -1 for none.
    int m_pressedRow = -1;
};

} // namespace Zentor::Desktop
