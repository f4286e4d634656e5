// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "PanelTaskRemover.h"

#include <algorithm>
#include <utility>

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QLayout>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QToolButton>

#include "PXUserSettings/SettingsStore.h"

namespace Zentor::Desktop {
namespace {

/// As the panel asks.
const QLatin1String DeletionId("remove_schedule_record_always");

} // namespace

DeletionConsent::DeletionConsent(std::shared_ptr<App::ISettingsManager> answers)
    : m_answers(std::move(answers))
{
}

bool DeletionConsent::IsConfirmed(const QString& confirmationId) const
{
    return (m_isGiven && confirmationId == DeletionId) || m_answers->IsConfirmed(confirmationId);
}

void DeletionConsent::SetConfirmed(const QString& confirmationId, bool confirmed)
{
    m_answers->SetConfirmed(confirmationId, confirmed);
}

PanelTaskRemover::PanelTaskRemover(std::shared_ptr<PX::SettingsStore> store, QObject* parent)
    : QObject(parent)
    , m_store(std::move(store))
{
}

PanelTaskRemover::~PanelTaskRemover() = default;

void PanelTaskRemover::SetPanel(QWidget* panel, std::shared_ptr<DeletionConsent> consent)
{
    m_parts = std::make_unique<PanelParts>(*panel);
    m_consent = std::move(consent);
}

void PanelTaskRemover::Remove(const PX::RecordTime& task)
{
    if (QAbstractButton* button = ButtonOf(task)) {
        m_buttons.push_back(button);
        Q_EMIT RemovingChanged(true);
        RemoveAll();
    }
}

void PanelTaskRemover::RemoveAll()
{
    if (QWidget* box = QApplication::activeModalWidget()) {
        WaitForAnswer(box);
        return;
    }
    const auto buttons = std::exchange(m_buttons, {});
    for (const auto& button : buttons) {
        if (IsListed(button)) {
            RemoveNow(*button);
        }
    }
    Q_EMIT RemovingChanged(false);
}

void PanelTaskRemover::WaitForAnswer(QWidget* box)
{
    disconnect(m_answer);
    // Queued: whoever has asked acts on the answer first.
    m_answer =
        connect(box, &QObject::destroyed, this, &PanelTaskRemover::RemoveAll, Qt::QueuedConnection);
    // Some boxes are kept.
    box->installEventFilter(this);
}

bool PanelTaskRemover::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Hide) {
        QTimer::singleShot(0, this, &PanelTaskRemover::RemoveAll);
    }
    return QObject::eventFilter(watched, event);
}

/// False for the button of a row that the user has deleted meanwhile.
bool PanelTaskRemover::IsListed(const QPointer<QAbstractButton>& button) const
{
    return !button.isNull() && m_parts->rows->layout()->indexOf(button->parentWidget()) >= 0;
}

void PanelTaskRemover::RemoveNow(QAbstractButton& button)
{
    const QRect row = button.parentWidget()->geometry();
    QScrollBar& bar = *m_parts->list->verticalScrollBar();
    const int place = bar.value();
    const bool isAboveView = row.bottom() < place;
    m_consent->SetGiven(true);
    button.click();
    m_consent->SetGiven(false);
    m_parts->rows->layout()->activate();
    if (isAboveView) {
        bar.setValue(place - row.height());
    }
    CheckForm();
}

/// The delete button of \a task. Rows and tasks have the same order; a row that waits to be removed
/// may have lost its task already.
QAbstractButton* PanelTaskRemover::ButtonOf(const PX::RecordTime& task) const
{
    const auto& schedule = m_store->Settings().schedule;
    const auto found = std::find_if(schedule.begin(), schedule.end(), [&](const auto& other) {
        return other.title == task.title && other.start == task.start;
    });
    auto buttons = m_parts->DeleteButtons();
    if (buttons.size() > static_cast<int>(schedule.size())) {
        buttons.erase(std::remove_if(buttons.begin(), buttons.end(),
                                     [&](const QToolButton* button) {
                                         return std::find(m_buttons.begin(), m_buttons.end(),
                                                          button)
                                             != m_buttons.end();
                                     }),
                      buttons.end());
    }
    const auto index = static_cast<int>(found - schedule.begin());
    const bool isListed =
        found != schedule.end() && buttons.size() == static_cast<int>(schedule.size());
    return isListed ? buttons.at(index) : nullptr;
}

/// Has an open form forget what was wrong with it because of the task that is gone.
void PanelTaskRemover::CheckForm() const
{
    if (m_parts->IsFormVisible()) {
        Q_EMIT m_parts->nameField->textChanged(m_parts->nameField->text());
    }
}

} // namespace Zentor::Desktop
