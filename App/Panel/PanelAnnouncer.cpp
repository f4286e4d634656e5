// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "PanelAnnouncer.h"

#include <algorithm>
#include <utility>

#include <QAccessible>
#include <QEvent>
#include <QLineEdit>
#include <QTimeEdit>
#include <QTimer>

#include "PXUserSettings/SettingsStore.h"

namespace Zentor::Desktop {
namespace {

QStringList TitlesOf(const std::vector<PX::RecordTime>& tasks)
{
    QStringList titles;
    for (const PX::RecordTime& task : tasks) {
        titles << task.title;
    }
    return titles;
}

/// The entry that \a longer has and \a shorter, which is otherwise the same, has not.
QString ExtraOf(const QStringList& longer, const QStringList& shorter)
{
    const auto extra =
        std::mismatch(longer.begin(), longer.end(), shorter.begin(), shorter.end()).first;
    return extra == longer.end() ? QString() : *extra;
}

} // namespace

PanelAnnouncer::PanelAnnouncer(QWidget* panel, std::shared_ptr<PX::SettingsStore> store)
    : QObject(panel)
    , m_store(std::move(store))
    , m_parts(*panel)
    , m_titles(TitlesOf(m_store->Settings().schedule))
{
    m_parts.nameField->installEventFilter(this);
    m_parts.startField->installEventFilter(this);
    connect(m_store.get(), &PX::SettingsStore::Changed, this, &PanelAnnouncer::CompareSchedule);
}

PanelAnnouncer::~PanelAnnouncer() = default;

void PanelAnnouncer::CompareSchedule()
{
    const QStringList before = std::exchange(m_titles, TitlesOf(m_store->Settings().schedule));
    if (m_isQuiet) {
        return;
    }
    if (m_titles.size() == before.size() + 1) {
        Q_EMIT Announced(tr("Task added: %1").arg(ExtraOf(m_titles, before)));
    } else if (m_titles.isEmpty() && before.size() > 1) {
        Q_EMIT Announced(tr("All tasks deleted"));
    } else if (before.size() == m_titles.size() + 1) {
        Q_EMIT Announced(tr("Task deleted: %1").arg(ExtraOf(before, m_titles)));
    }
}

void PanelAnnouncer::SetRefusal(const QString& reason)
{
    m_refusal = reason;
    UpdateProblem();
}

bool PanelAnnouncer::eventFilter(QObject* watched, QEvent* event)
{
    const auto type = event->type();
    if (type == QEvent::ToolTipChange && ShownProblem().isEmpty()) {
        // Later: the form clears a tip before it sets the next one, also the same one.
        QTimer::singleShot(0, this, &PanelAnnouncer::UpdateProblem);
    } else if (type == QEvent::ToolTipChange || type == QEvent::Show || type == QEvent::Hide) {
        UpdateProblem();
    }
    return QObject::eventFilter(watched, event);
}

void PanelAnnouncer::UpdateProblem()
{
    const QString problem = ShownProblem();
    if (problem == m_problem) {
        return;
    }
    m_problem = problem;
    for (QWidget* field : std::initializer_list<QWidget*>{m_parts.nameField, m_parts.startField}) {
        // A field without a description of its own is described by its tool tip.
        QAccessibleEvent event(field, QAccessible::DescriptionChanged);
        QAccessible::updateAccessibility(&event);
    }
    Q_EMIT ProblemChanged(problem);
}

QString PanelAnnouncer::ShownProblem() const
{
    if (!m_parts.nameField->isVisible()) {
        return {};
    }
    if (!m_refusal.isEmpty()) {
        return m_refusal;
    }
    const QString ofName = m_parts.nameField->toolTip();
    return ofName.isEmpty() ? m_parts.startField->toolTip() : ofName;
}

} // namespace Zentor::Desktop
