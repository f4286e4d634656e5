#include "PanelKeyboard.h"

#include <algorithm>

#include <QApplication>
#include <QButtonGroup>
#include <QChildEvent>
#include <QDateTimeEdit>
#include <QKeyEvent>
#include <QLayout>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollArea>
#include <QShortcut>
#include <QStackedWidget>
#include <QTimer>
#include <QToolButton>

#include "CalendarArrow.h"
#include "RecordSchedulerWidget.h"

namespace Zentor::Desktop {
namespace {

QAbstractButton* DeleteButtonOf(const QWidget* row)
{
    // The placeholder of an empty schedule has none.
    return row == nullptr ? nullptr
                          : row->findChild<QToolButton*>(QStringLiteral("deleteToolButton"));
}

bool IsDeleteButton(const QObject* object)
{
    return qobject_cast<const QToolButton*>(object) != nullptr
        && object->objectName() == QLatin1String("deleteToolButton");
}

/// Tab stops at the chosen button of a group. Qt sees to it only when a button is clicked, not when
/// one is checked by program.
void LetTabStopAtChecked(const QButtonGroup& group)
{
    const auto buttons = group.buttons();
    for (QAbstractButton* button : buttons) {
        button->setFocusPolicy(button->isChecked()
                                   ? Qt::StrongFocus
                                   : Qt::FocusPolicy(Qt::StrongFocus & ~Qt::TabFocus));
    }
}

void KeepTabAtChecked(QButtonGroup& group)
{
    LetTabStopAtChecked(group);
    QObject::connect(&group, qOverload<QAbstractButton*, bool>(&QButtonGroup::buttonToggled),
                     &group, [&group] { LetTabStopAtChecked(group); });
}

} // namespace

PanelKeyboard::PanelKeyboard(PX::Scheduler::UI::RecordSchedulerWidget* panel)
    : QObject(panel)
    , m_panel(panel)
    , m_stack(panel->findChild<QStackedWidget*>(QStringLiteral("scheduledCaptureStackedWidget")))
    , m_form(panel->findChild<QWidget*>(QStringLiteral("createRecordTaskWidget")))
    , m_date(panel->findChild<QDateTimeEdit*>(QStringLiteral("scheduledCaptureSettingsDate")))
    , m_list(panel->findChild<QScrollArea*>(QStringLiteral("recordTableScrollArea")))
    , m_rows(panel->findChild<QWidget*>(QStringLiteral("recordTableFrame")))
    , m_addButton(
          panel->findChild<QPushButton*>(QStringLiteral("scheduledCaptureSettingsAddRecordButton")))
    , m_newRowsTimer(new QTimer(this))
{
    panel->installEventFilter(this);
    WatchRows();
    WatchForm();
    WatchModes();
}

PanelKeyboard::~PanelKeyboard() = default;

void PanelKeyboard::WatchRows()
{
    m_newRowsTimer->setSingleShot(true);
    m_newRowsTimer->setInterval(0);
    connect(m_newRowsTimer, &QTimer::timeout, this, &PanelKeyboard::TakeInNewRows);
    m_rows->installEventFilter(this);
    const auto buttons = DeleteButtons();
    for (QAbstractButton* button : buttons) {
        WatchRow(button->parentWidget());
    }
    OrderTabs();
}

void PanelKeyboard::WatchForm()
{
    m_date->installEventFilter(this);
    const auto* insert = new QShortcut(QKeySequence(Qt::Key_Insert), m_panel);
    connect(insert, &QShortcut::activated, m_addButton, [this] {
        if (m_addButton->isVisible()) {
            m_addButton->click();
        }
    });
    // The panel reacts to the click first: the form is filled by then.
    connect(m_addButton, &QAbstractButton::clicked, this, &PanelKeyboard::FocusNameField);
    connect(m_stack, &QStackedWidget::currentChanged, this, [this] {
        if (!IsFormShown()) {
            FocusAddButton();
        }
    });
}

void PanelKeyboard::WatchModes()
{
    auto* modes = m_panel->findChild<QButtonGroup*>(QStringLiteral("timerTypeRadioButtonGroup"));
    KeepTabAtChecked(*modes);
    KeepTabAtChecked(
        *m_panel->findChild<QButtonGroup*>(QStringLiteral("captureAreaRadioButtonGroup")));
    // When the question about leaving a mode is refused, the old mode is in use and the focus on
    // the refused one. Queued, because an arrow key moves the focus only after the click.
    connect(
        modes, qOverload<QAbstractButton*>(&QButtonGroup::buttonClicked), this,
        [this, modes] {
            const auto* focused = qobject_cast<QAbstractButton*>(FocusWidget());
            if (focused != nullptr && focused->group() == modes && !focused->isChecked()
                && modes->checkedButton() != nullptr) {
                modes->checkedButton()->setFocus(Qt::OtherFocusReason);
            }
        },
        Qt::QueuedConnection);
}

void PanelKeyboard::TakeInNewRows()
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
    if (DeleteButtonOf(newest) != nullptr && m_list->isVisible()) {
        m_list->ensureWidgetVisible(newest, 0, 0);
    }
}

void PanelKeyboard::WatchRow(QWidget* row)
{
    QAbstractButton* button = DeleteButtonOf(row);
    button->installEventFilter(this);
    connect(button, &QAbstractButton::pressed, this, [this, row, button] {
        m_pressedRow = FocusWidget() == button ? m_rows->layout()->indexOf(row) : -1;
    });
    // The list reacts to the click first: the question has been answered by then.
    connect(button, &QAbstractButton::clicked, this, [this, row] { FocusAfterDeletion(row); });
}

/// A new row stands at the end of the window's tab order, wherever in the list it is.
void PanelKeyboard::OrderTabs()
{
    QWidget* previous = m_list;
    const auto buttons = DeleteButtons();
    for (QAbstractButton* button : buttons) {
        QWidget::setTabOrder(previous, button);
        previous = button;
    }
    QWidget::setTabOrder(previous, m_addButton);
}

QList<QAbstractButton*> PanelKeyboard::DeleteButtons() const
{
    QList<QAbstractButton*> buttons;
    const QLayout* layout = m_rows->layout();
    for (int index = 0; index < layout->count(); ++index) {
        if (QAbstractButton* button = DeleteButtonOf(layout->itemAt(index)->widget())) {
            buttons << button;
        }
    }
    return buttons;
}

void PanelKeyboard::FocusNameField()
{
    auto* name =
        m_form->findChild<QLineEdit*>(QStringLiteral("scheduledCaptureSettingsNameLineEdit"));
    name->setFocus(Qt::OtherFocusReason);
    name->selectAll();
}

void PanelKeyboard::FocusAddButton()
{
    // The stack has moved the focus from the closed form to some control of the list. A focus
    // outside of both stays where it is.
    if (m_stack->isVisible() && m_stack->isAncestorOf(FocusWidget())) {
        m_addButton->setFocus(Qt::OtherFocusReason);
    }
}

void PanelKeyboard::FocusAfterDeletion(QWidget* row)
{
    const int place = m_pressedRow;
    m_pressedRow = -1;
    const QLayout* layout = m_rows->layout();
    const bool isDeleted = layout->indexOf(row) < 0;
    if (place < 0 || !isDeleted) {
        return;
    }
    auto* next = layout->itemAt(place);
    QAbstractButton* button = DeleteButtonOf(next != nullptr ? next->widget() : nullptr);
    (button != nullptr ? button : m_addButton)->setFocus(Qt::OtherFocusReason);
}

bool PanelKeyboard::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ChildAdded && watched == m_rows) {
        auto* child = static_cast<QChildEvent*>(event)->child();
        if (child->isWidgetType()) {
            m_newRows << static_cast<QWidget*>(child);
            m_newRowsTimer->start();
        }
    }
    if (event->type() == QEvent::KeyPress && QApplication::activePopupWidget() == nullptr) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        if (watched == m_panel) {
            return HandleKey(key);
        }
        // Buttons and fields would take the arrow keys for themselves.
        return watched == m_date ? OpenCalendar(key)
                                 : MoveAmongRows(qobject_cast<QWidget*>(watched), key.key());
    }
    return QObject::eventFilter(watched, event);
}

/// Handles a key that the focused control has no use for. Returns whether the panel has.
bool PanelKeyboard::HandleKey(const QKeyEvent& event)
{
    const auto modifiers = event.modifiers() & ~Qt::KeypadModifier;
    if (modifiers != Qt::NoModifier) {
        return false;
    }
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return PressEnter(event.isAutoRepeat());
    case Qt::Key_Escape:
        if (IsFormShown()) {
            m_form->findChild<QPushButton*>(QStringLiteral("scheduledCaptureSettingsBackButton"))
                ->click();
            return true;
        }
        return false;
    case Qt::Key_Delete:
        if (IsDeleteButton(FocusWidget()) && !event.isAutoRepeat()) {
            static_cast<QAbstractButton*>(FocusWidget())->click();
            return true;
        }
        return false;
    default:
        return false;
    }
}

bool PanelKeyboard::PressEnter(bool isRepeated)
{
    auto* button = qobject_cast<QAbstractButton*>(FocusWidget());
    const bool isPushed = qobject_cast<QPushButton*>(button) != nullptr || IsDeleteButton(button);
    if (!isPushed && IsFormShown()) {
        button =
            m_form->findChild<QPushButton*>(QStringLiteral("scheduledCaptureSettingsCreateButton"));
    } else if (!isPushed) {
        return false;
    }
    // A key that is held down closes the form and must not go on with what has the focus then.
    if (!isRepeated) {
        button->click();
    }
    return true;
}

bool PanelKeyboard::OpenCalendar(const QKeyEvent& event)
{
    const bool isWanted = (event.key() == Qt::Key_F4 && event.modifiers() == Qt::NoModifier)
        || (event.key() == Qt::Key_Down && event.modifiers().testFlag(Qt::AltModifier));
    if (isWanted) {
        // The field opens its calendar for the mouse alone.
        const QPoint arrow = CalendarArrowOf(*m_date).center();
        QMouseEvent press(QEvent::MouseButtonPress, arrow, m_date->mapToGlobal(arrow),
                          Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_date, &press);
    }
    return isWanted;
}

bool PanelKeyboard::MoveAmongRows(const QWidget* from, int key)
{
    if (key != Qt::Key_Up && key != Qt::Key_Down) {
        return false;
    }
    const auto buttons = DeleteButtons();
    const auto at = std::find(buttons.begin(), buttons.end(), from);
    if (at == buttons.end()) {
        return false;
    }
    const auto next = std::distance(buttons.begin(), at) + (key == Qt::Key_Down ? 1 : -1);
    if (next >= 0 && next < buttons.size()) {
        buttons.at(static_cast<int>(next))
            ->setFocus(key == Qt::Key_Down ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    }
    return true;
}

QWidget* PanelKeyboard::FocusWidget() const
{
    return m_panel->window()->focusWidget();
}

bool PanelKeyboard::IsFormShown() const
{
    return m_form->isVisible() && m_stack->currentWidget() == m_form;
}

} // namespace Zentor::Desktop
