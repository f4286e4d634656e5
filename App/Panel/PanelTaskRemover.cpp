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
    connect(m_store.get(), &PX::SettingsStore::Changed, this, &PanelTaskRemover::NoteListed);
}

PanelTaskRemover::~PanelTaskRemover() = default;

void PanelTaskRemover::SetPanel(QWidget* panel, std::shared_ptr<DeletionConsent> consent)
{
    m_panel = panel;
    m_parts = std::make_unique<PanelParts>(*panel);
    m_consent = std::move(consent);
    m_listed.clear();
    NoteListed();
}

/// Takes the tasks over when they are those of the list, which stores its own when it is complete.
void PanelTaskRemover::NoteListed()
{
    const auto& schedule = m_store->Settings().schedule;
    if (!m_panel.isNull() && m_parts->DeleteButtons().size() == static_cast<int>(schedule.size())) {
        m_listed = schedule;
    }
}

void PanelTaskRemover::Remove(const PX::RecordTime& task)
{
    m_tasks.push_back(task);
    RemoveAll();
}

void PanelTaskRemover::RemoveAll()
{
    if (QWidget* box = QApplication::activeModalWidget()) {
        WaitForAnswer(box);
        return;
    }
    const auto tasks = std::exchange(m_tasks, {});
    for (const PX::RecordTime& task : tasks) {
        RemoveNow(task);
    }
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

void PanelTaskRemover::RemoveNow(const PX::RecordTime& task)
{
    QAbstractButton* button = ButtonOf(task);
    if (button == nullptr) {
        return;
    }
    const QRect row = button->parentWidget()->geometry();
    QScrollBar& bar = *m_parts->list->verticalScrollBar();
    const int place = bar.value();
    const bool isAboveView = row.bottom() < place;
    Q_EMIT Removing(task.title);
    m_consent->SetGiven(true);
    button->click();
    m_consent->SetGiven(false);
    m_parts->rows->layout()->activate();
    if (isAboveView) {
        bar.setValue(place - row.height());
    }
    CheckForm();
}

/// The delete button of \a task. Rows and tasks have the same order.
QAbstractButton* PanelTaskRemover::ButtonOf(const PX::RecordTime& task) const
{
    const auto found = std::find_if(m_listed.begin(), m_listed.end(), [&](const auto& other) {
        return other.title == task.title && other.start == task.start;
    });
    const auto buttons = m_parts->DeleteButtons();
    const auto index = static_cast<int>(found - m_listed.begin());
    const bool isListed =
        found != m_listed.end() && buttons.size() == static_cast<int>(m_listed.size());
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
