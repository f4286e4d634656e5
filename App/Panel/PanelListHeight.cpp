// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "PanelListHeight.h"

#include <algorithm>

#include <QEvent>
#include <QLayout>
#include <QStackedWidget>
#include <QTimer>
#include <QVariant>

namespace Zentor::Desktop {
namespace {

constexpr char MaximumRows[] = "maxRecordCount";

} // namespace

PanelListHeight::PanelListHeight(QWidget* panel)
    : QObject(panel)
    , m_panel(panel)
    , m_parts(*panel)
    , m_timer(new QTimer(this))
    , m_leastRows(m_parts.table->property(MaximumRows).toInt())
{
    m_timer->setSingleShot(true);
    m_timer->setInterval(0);
    connect(m_timer, &QTimer::timeout, this, &PanelListHeight::Fit);
    panel->installEventFilter(this);
    m_parts.table->installEventFilter(this);
}

PanelListHeight::~PanelListHeight() = default;

void PanelListHeight::SetPanelHeight(int height)
{
    m_panelHeight = height;
    m_timer->start();
}

bool PanelListHeight::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_parts.table && event->type() == QEvent::StyleChange) {
        // The style sheet has set its own number again.
        m_leastRows = m_parts.table->property(MaximumRows).toInt();
        m_timer->start();
    } else if (watched == m_panel && event->type() == QEvent::LayoutRequest) {
        m_timer->start();
    }
    return QObject::eventFilter(watched, event);
}

int PanelListHeight::RowsThatFit() const
{
    const QWidget* table = m_parts.table;
    const QWidget* page = table->parentWidget();
    const int aroundTable = page->sizeHint().height() - table->minimumHeight();
    const int aroundStack = m_panel->sizeHint().height() - m_parts.stack->sizeHint().height();
    const int height = m_panelHeight - aroundStack - aroundTable
        - table->property("minHeight").toInt() - table->property("heightOverflow").toInt();
    return height / std::max(1, table->property("heightStep").toInt());
}

void PanelListHeight::Fit()
{
    // A negative number is a list that grows with every task.
    if (m_leastRows < 0 || m_parts.stack->isHidden()) {
        return;
    }
    m_parts.table->setProperty(MaximumRows, std::max(m_leastRows, RowsThatFit()));
    UpdateTableHeight();
}

/// By the table's own rule, which it follows only when a task comes or goes.
void PanelListHeight::UpdateTableHeight()
{
    QWidget* table = m_parts.table;
    // Behind the rows stands a stretch; the placeholder counts as a row.
    const int taskCount = m_parts.rows->layout()->count() - 1;
    const int shown = std::max(1, std::min(taskCount, table->property(MaximumRows).toInt()));
    int height =
        table->property("minHeight").toInt() + shown * table->property("heightStep").toInt();
    if (taskCount > shown) {
        height += table->property("heightOverflow").toInt();
    }
    table->setFixedHeight(height);
}

} // namespace Zentor::Desktop
