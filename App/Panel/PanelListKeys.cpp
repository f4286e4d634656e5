// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "PanelListKeys.h"

#include <QApplication>
#include <QChildEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QPushButton>
#include <QScrollArea>
#include <QShortcut>
#include <QStackedWidget>
#include <QTimer>
#include <QToolButton>

namespace Zentor::Desktop {

PanelListKeys::PanelListKeys(QWidget* panel)
    : QObject(panel)
    , m_panel(panel)
    , m_parts(*panel)
    , m_newRowsTimer(new QTimer(this))
{
    panel->installEventFilter(this);
    WatchRows();
    ConnectAddButton();
}

PanelListKeys::~PanelListKeys() = default;

void PanelListKeys::WatchRows()
{
    m_newRowsTimer->setSingleShot(true);
    m_newRowsTimer->setInterval(0);
    connect(m_newRowsTimer, &QTimer::timeout, this, &PanelListKeys::TakeInNewRows);
    m_parts.rows->installEventFilter(this);
    const auto buttons = m_parts.DeleteButtons();
    for (const QToolButton* button : buttons) {
        WatchRow(button->parentWidget());
    }
    OrderTabs();
}

void PanelListKeys::ConnectAddButton()
{
    QPushButton* button = m_parts.addButton;
    const auto* insert = new QShortcut(QKeySequence(Qt::Key_Insert), m_panel);
    connect(insert, &QShortcut::activated, button, [button] {
        if (button->isVisible()) {
            button->click();
        }
    });
    connect(m_parts.stack, &QStackedWidget::currentChanged, this, [this] {
        if (!m_parts.IsFormVisible()) {
            FocusAddButton();
        }
    });
}

void PanelListKeys::TakeInNewRows()
{
    const auto rows = m_newRows;
    m_newRows.clear();
    for (const QPointer<QWidget>& row : rows) {
        if (DeleteButtonOf(row) != nullptr) {
            WatchRow(row);
        }
    }
    OrderTabs();
    QWidget* newest = rows.isEmpty() ? nullptr : rows.constLast().data();
    if (DeleteButtonOf(newest) != nullptr && m_parts.list->isVisible()) {
        m_parts.list->ensureWidgetVisible(newest, 0, 0);
    }
}

void PanelListKeys::WatchRow(QWidget* row)
{
    QToolButton* button = DeleteButtonOf(row);
    button->installEventFilter(this);
    connect(button, &QAbstractButton::pressed, this, [this, row, button] {
        m_pressedRow = FocusWidget() == button ? m_parts.rows->layout()->indexOf(row) : -1;
    });
    connect(button, &QAbstractButton::released, this,
            [this, row] { Q_EMIT DeleteButtonReleased(row); });
    // The list reacts to the click first: the question has been answered by then.
    connect(button, &QAbstractButton::clicked, this, [this, row] { FocusAfterDeletion(row); });
}

/// A new row stands at the end of the window's tab order, wherever in the list it is.
void PanelListKeys::OrderTabs()
{
    QWidget* previous = m_parts.list;
    const auto buttons = m_parts.DeleteButtons();
    for (QToolButton* button : buttons) {
        QWidget::setTabOrder(previous, button);
        previous = button;
    }
    QWidget::setTabOrder(previous, m_parts.addButton);
}

void PanelListKeys::FocusAddButton()
{
    // The stack has moved the focus from the closed form to some control of the list. A focus
    // outside of both stays where it is.
    if (m_parts.stack->isVisible() && m_parts.stack->isAncestorOf(FocusWidget())) {
        m_parts.addButton->setFocus(Qt::OtherFocusReason);
    }
}

void PanelListKeys::FocusAfterDeletion(QWidget* row)
{
    const int place = m_pressedRow;
    m_pressedRow = -1;
    const QLayout* layout = m_parts.rows->layout();
    const bool isDeleted = layout->indexOf(row) < 0;
    if (place < 0 || !isDeleted) {
        return;
    }
    auto* next = layout->itemAt(place);
    QAbstractButton* button = DeleteButtonOf(next != nullptr ? next->widget() : nullptr);
    (button != nullptr ? button : m_parts.addButton)->setFocus(Qt::OtherFocusReason);
}

bool PanelListKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ChildAdded && watched == m_parts.rows) {
        auto* child = static_cast<QChildEvent*>(event)->child();
        if (child->isWidgetType()) {
            m_newRows << static_cast<QWidget*>(child);
            m_newRowsTimer->start();
        }
    }
    if (event->type() == QEvent::KeyPress && QApplication::activePopupWidget() == nullptr) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        // Buttons would take the arrow keys for themselves.
        return watched == m_panel ? HandlePanelKey(key) : MoveAmongRows(watched, key.key());
    }
    return QObject::eventFilter(watched, event);
}

/// Handles a key that the focused control has no use for. Returns whether the list has.
bool PanelListKeys::HandlePanelKey(const QKeyEvent& event)
{
    const auto modifiers = event.modifiers() & ~Qt::KeypadModifier;
    if (modifiers != Qt::NoModifier) {
        return false;
    }
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return PressFocusedButton(event.isAutoRepeat());
    case Qt::Key_Delete:
        return DeleteFocusedTask(event.isAutoRepeat());
    default:
        return false;
    }
}

bool PanelListKeys::PressFocusedButton(bool isRepeated)
{
    QWidget* focused = FocusWidget();
    if (focused != m_parts.addButton && !HasDeleteButtonFocus()) {
        return false;
    }
    // A key that is held down opens the form and must not go on with what has the focus then.
    if (!isRepeated) {
        static_cast<QAbstractButton*>(focused)->click();
    }
    return true;
}

bool PanelListKeys::DeleteFocusedTask(bool isRepeated)
{
    if (!HasDeleteButtonFocus() || isRepeated) {
        return false;
    }
    static_cast<QAbstractButton*>(FocusWidget())->click();
    return true;
}

bool PanelListKeys::MoveAmongRows(QObject* from, int key)
{
    if (key != Qt::Key_Up && key != Qt::Key_Down) {
        return false;
    }
    const auto buttons = m_parts.DeleteButtons();
    const auto at = buttons.indexOf(qobject_cast<QToolButton*>(from));
    if (at < 0) {
        return false;
    }
    const auto next = at + (key == Qt::Key_Down ? 1 : -1);
    if (next >= 0 && next < buttons.size()) {
        buttons.at(next)->setFocus(key == Qt::Key_Down ? Qt::TabFocusReason
                                                       : Qt::BacktabFocusReason);
    }
    return true;
}

QWidget* PanelListKeys::FocusWidget() const
{
    return m_panel->window()->focusWidget();
}

bool PanelListKeys::HasDeleteButtonFocus() const
{
    const QWidget* focused = FocusWidget();
    return m_parts.rows->isAncestorOf(focused)
        && focused->objectName() == PanelPart::RowDeleteButton;
}

} // namespace Zentor::Desktop
