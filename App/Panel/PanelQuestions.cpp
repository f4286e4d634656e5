// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "PanelQuestions.h"

#include <algorithm>

#include <QChildEvent>
#include <QCoreApplication>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QTimer>
#include <QToolButton>

#include "BoxKeys.h"
#include "HostInterfaces.h"
#include "PanelParts.h"

namespace Zentor::Desktop {
namespace {

void Mark(QWidget& row, bool isAsked)
{
    const QString state = isAsked ? QStringLiteral("Open") : QString();
    const auto parts = row.findChildren<QWidget*>();
    for (QWidget* widget : parts + QList<QWidget*>{&row}) {
        Util::ApplyWidgetStyle(widget, state, "Question");
    }
}

/// Scrolls the list, and the page that it is on.
void BringIntoView(QWidget& row)
{
    for (QWidget* around = row.parentWidget(); around != nullptr; around = around->parentWidget()) {
        if (auto* area = qobject_cast<QScrollArea*>(around)) {
            area->ensureWidgetVisible(&row, 0, 0);
        }
    }
}

/// Top of a box of \a height that keeps off \a row: below it, where it fits into \a room, else
/// above it; where it fits nowhere, on the side that has more room.
int TopBeside(const QRect& row, int height, const QRect& room)
{
    constexpr int distance = 8;
    const int below = row.bottom() + 1 + distance;
    const int above = row.top() - distance - height;
    const int roomBelow = room.bottom() + 1 - below - height;
    const int roomAbove = above - room.top();
    if (roomBelow >= 0 || roomBelow >= roomAbove) {
        return std::min(below, room.bottom() + 1 - height);
    }
    return std::max(above, room.top());
}

} // namespace

PanelQuestions::PanelQuestions(QWidget* panel)
    : QObject(panel)
    , m_window(panel->window())
{
    m_window->installEventFilter(this);
}

PanelQuestions::~PanelQuestions() = default;

void PanelQuestions::Expect(QWidget* row)
{
    m_askedRow = row;
    QTimer::singleShot(0, this, [this] { m_askedRow.clear(); });
}

bool PanelQuestions::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_window) {
        // What kind of widget it is shows only when it is complete.
        if (event->type() == QEvent::ChildAdded) {
            static_cast<QChildEvent*>(event)->child()->installEventFilter(this);
        }
    } else if (event->type() == QEvent::Show && !event->spontaneous() && !m_isPassingOn) {
        if (auto* box = qobject_cast<QMessageBox*>(watched)) {
            Show(*box, event);
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

void PanelQuestions::Show(QMessageBox& box, QEvent* event)
{
    GiveKeys(box);
    {
        // The box takes its size, and a place over the middle of its window.
        const QScopedValueRollback<bool> passingOn(m_isPassingOn, true);
        QCoreApplication::sendEvent(&box, event);
    }
    if (!m_askedRow.isNull()) {
        BringIntoView(*m_askedRow);
        MarkAskedRow(box);
        PlaceBesideRow(box);
        m_askedRow.clear();
    }
}

void PanelQuestions::MarkAskedRow(QMessageBox& box) const
{
    QWidget* row = m_askedRow;
    Mark(*row, true);
    // As in "Delete", followed by the title of the task.
    box.setAccessibleDescription(DeleteButtonOf(row)->accessibleName());
    // The box is deleted when it has been answered.
    connect(&box, &QObject::destroyed, row, [row] { Mark(*row, false); });
}

void PanelQuestions::PlaceBesideRow(QMessageBox& box) const
{
    const QRect row(m_askedRow->mapToGlobal(QPoint(0, 0)), m_askedRow->size());
    // The frame that the desktop will draw is not known yet, nor whether the place is that of the
    // frame or of the box in it: a title bar like the style's own has room above and below.
    const int title = box.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &box);
    const QRect taken = box.geometry().adjusted(0, -title, 0, title);
    if (taken.intersects(row)) {
        const QRect room = m_window->screen()->availableGeometry();
        box.move(taken.left(), TopBeside(row, taken.height(), room) + title);
    }
}

} // namespace Zentor::Desktop
