// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "PanelTaskDetails.h"

#include <algorithm>

#include <QAbstractButton>
#include <QComboBox>
#include <QDateTime>
#include <QEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QLayout>
#include <QScreen>
#include <QTimeEdit>
#include <QTimer>
#include <QToolButton>

#include "HostInterfaces.h"
#include "PXUserSettings/SettingsStore.h"

namespace Zentor::Desktop {
namespace {

using std::chrono::milliseconds;
using TimePoint = Time::IClock::time_point;

constexpr char TaskState[] = "TaskState";

/// How long a clock that is set, or a night that the machine sleeps through, may stay unnoticed.
constexpr std::chrono::minutes LongestWait(1);

QString Over()
{
    return QStringLiteral("Over");
}

QDateTime LocalTime(TimePoint moment)
{
    return QDateTime::fromMSecsSinceEpoch(
        std::chrono::duration_cast<milliseconds>(moment.time_since_epoch()).count());
}

bool IsMarkedOver(const QWidget& row)
{
    return row.property(TaskState).toString() == Over();
}

void MarkOver(QWidget& row, bool isOver)
{
    const QString state = isOver ? Over() : QString();
    row.setProperty(TaskState, state);
    const auto labels = row.findChildren<QLabel*>();
    for (QLabel* label : labels) {
        if (label->testAttribute(Qt::WA_WState_Polished)) {
            Util::ApplyWidgetStyle(label, state, TaskState);
        } else {
            label->setProperty(TaskState, state);
        }
    }
}

} // namespace

PanelTaskDetails::PanelTaskDetails(QWidget* panel, std::shared_ptr<PX::SettingsStore> store)
    : QObject(panel)
    , m_store(std::move(store))
    , m_parts(*panel)
    , m_timer(new QTimer(this))
{
    m_timer->setSingleShot(true);
    connect(m_timer, &QTimer::timeout, this, &PanelTaskDetails::Update);
    // The list tells of a change when it is complete.
    connect(m_store.get(), &PX::SettingsStore::Changed, this, &PanelTaskDetails::Update);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, &PanelTaskDetails::DescribeAnew);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &PanelTaskDetails::DescribeAnew);
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &PanelTaskDetails::DescribeAnew);
    m_parts.rows->installEventFilter(this);
    Update();
}

PanelTaskDetails::~PanelTaskDetails() = default;

void PanelTaskDetails::DescribeAnew()
{
    const QLayout* rows = m_parts.rows->layout();
    for (int index = 0; index < rows->count(); ++index) {
        if (QWidget* row = rows->itemAt(index)->widget()) {
            row->setAccessibleDescription({});
        }
    }
    Update();
}

/// Rows and tasks have the same order. A row that is described, and whose task has not ended since,
/// costs a few comparisons.
void PanelTaskDetails::Update()
{
    const TimePoint now = Time::SystemClock().Now();
    const auto& schedule = m_store->Settings().schedule;
    const QLayout* rows = m_parts.rows->layout();
    const int count = std::min(rows->count(), static_cast<int>(schedule.size()));
    for (int index = 0; index < count; ++index) {
        QWidget* row = rows->itemAt(index)->widget();
        if (row == nullptr || row->objectName() != PanelPart::Row) {
            return;
        }
        const PX::RecordTime& task = schedule[static_cast<std::size_t>(index)];
        const bool isOver = task.start + task.duration <= now;
        const bool isMarked = IsMarkedOver(*row);
        if (isOver != isMarked) {
            MarkOver(*row, isOver);
        }
        if (isOver != isMarked || row->accessibleDescription().isEmpty()) {
            const QString details = DetailsOf(task, isOver);
            row->setToolTip(details);
            row->setAccessibleDescription(details);
            DeleteButtonOf(row)->setAccessibleDescription(details);
        }
    }
    ScheduleUpdate(now);
}

void PanelTaskDetails::ScheduleUpdate(TimePoint now)
{
    const auto& schedule = m_store->Settings().schedule;
    const auto next = std::find_if(schedule.begin(), schedule.end(), [&](const auto& task) {
        return task.start + task.duration > now;
    });
    // Without one to come, a clock that is set back is noticed with the next change.
    if (next == schedule.end() || !m_parts.rows->isVisible()) {
        m_timer->stop();
    } else {
        const auto wait = std::chrono::ceil<milliseconds>(next->start + next->duration - now);
        m_timer->start(std::min<milliseconds>(wait, LongestWait));
    }
}

bool PanelTaskDetails::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show) {
        Update();
    } else if (event->type() == QEvent::Hide) {
        m_timer->stop();
    }
    return QObject::eventFilter(watched, event);
}

QString PanelTaskDetails::DetailsOf(const PX::RecordTime& task, bool isOver) const
{
    QStringList lines;
    if (isOver) {
        lines << tr("This task is over.");
    }
    lines << EndOf(task) << CaptureOf(task)
          << tr("Afterwards: %1").arg(m_parts.actionBox->itemText(task.finishAction));
    return lines.join(QLatin1Char('\n'));
}

QString PanelTaskDetails::EndOf(const PX::RecordTime& task) const
{
    const QDateTime end = LocalTime(task.start + task.duration);
    const QString time = end.time().toString(m_parts.startField->displayFormat());
    const bool isSameDay = LocalTime(task.start).date() == end.date();
    return isSameDay ? tr("Ends at %1").arg(time) : tr("Ends on the next day at %1").arg(time);
}

QString PanelTaskDetails::CaptureOf(const PX::RecordTime& task) const
{
    const bool isConnected = task.screenIndex < m_parts.screenBox->count();
    if (task.screenIndex >= 0 && !isConnected) {
        return tr("Records screen %1, which is not connected").arg(task.screenIndex + 1);
    }
    if (task.screenIndex < 0) {
        return tr("Records: %1").arg(m_parts.selectedAreaButton->text());
    }
    const QString screen = m_parts.screenBox->itemText(task.screenIndex);
    // Not every platform has names for its screens.
    return tr("Records: %1").arg(screen.isEmpty() ? m_parts.fullScreenButton->text() : screen);
}

} // namespace Zentor::Desktop
