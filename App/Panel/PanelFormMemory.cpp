// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "PanelFormMemory.h"

#include <QComboBox>
#include <QEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTimeEdit>
#include <QTimer>

#include "UnfinishedTask.h"

namespace Zentor::Desktop {

PanelFormMemory::PanelFormMemory(QWidget* panel, std::shared_ptr<PX::SettingsStore> store)
    : QObject(panel)
    , m_panel(panel)
    , m_store(std::move(store))
    , m_parts(*panel)
    , m_isPending(UnfinishedTaskIn(*m_store).has_value())
{
    panel->installEventFilter(this);
    connect(m_parts.stack, &QStackedWidget::currentChanged, this,
            &PanelFormMemory::ForgetWithoutForm);
    connect(m_parts.scheduledModeButton, &QAbstractButton::toggled, this,
            &PanelFormMemory::ForgetWithoutForm);
}

PanelFormMemory::~PanelFormMemory() = default;

bool PanelFormMemory::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show && m_isPending) {
        // Later: a panel that is shown shows its list first.
        QTimer::singleShot(0, this, &PanelFormMemory::OpenForm);
    }
    return QObject::eventFilter(watched, event);
}

void PanelFormMemory::OpenForm()
{
    const auto task = UnfinishedTaskIn(*m_store);
    if (!m_isPending || !task) {
        return;
    }
    // The mode is not stored before there is a task.
    if (!m_parts.scheduledModeButton->isChecked()) {
        m_parts.scheduledModeButton->click();
    }
    m_parts.addButton->click();
    m_parts.nameField->setText(task->title);
    m_parts.dateField->setDate(task->start.date());
    // A day that has passed has become another one, on which the time means nothing.
    if (m_parts.startField->date() == task->start.date()) {
        m_parts.startField->setTime(task->start.time());
    }
    m_parts.durationField->setTime(task->duration);
    const bool isFullScreen = task->screenIndex >= 0;
    (isFullScreen ? m_parts.fullScreenButton : m_parts.selectedAreaButton)->setChecked(true);
    if (isFullScreen && task->screenIndex < m_parts.screenBox->count()) {
        m_parts.screenBox->setCurrentIndex(task->screenIndex);
    }
    m_parts.actionBox->setCurrentIndex(task->finishAction);
    m_isPending = false;
}

void PanelFormMemory::Remember()
{
    if (m_isPending) {
        return;
    }
    if (!IsFormOpen()) {
        RememberUnfinishedTask(*m_store, {});
        return;
    }
    UnfinishedTask task;
    task.title = m_parts.nameField->text();
    task.start = m_parts.startField->dateTime();
    task.duration = m_parts.durationField->time();
    task.screenIndex =
        m_parts.fullScreenButton->isChecked() ? qMax(0, m_parts.screenBox->currentIndex()) : -1;
    task.finishAction = static_cast<PX::PowerAction>(qMax(0, m_parts.actionBox->currentIndex()));
    RememberUnfinishedTask(*m_store, task);
}

void PanelFormMemory::Keep()
{
    Remember();
    m_isPending = UnfinishedTaskIn(*m_store).has_value();
}

void PanelFormMemory::ForgetWithoutForm()
{
    if (!m_isPending && !IsFormOpen()) {
        RememberUnfinishedTask(*m_store, {});
    }
}

bool PanelFormMemory::IsFormOpen() const
{
    // On a page that is shown, whether or not its window is.
    return m_parts.scheduledModeButton->isChecked()
        && m_parts.stack->currentWidget() == m_parts.form
        && m_panel->isVisibleTo(m_panel->window());
}

} // namespace Zentor::Desktop
