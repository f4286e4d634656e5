// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <vector>

#include "HostInterfaces.h"

namespace Zentor::PX::Scheduler::UI {

/// The list of scheduled tasks: a header, a row with a delete button for each task, and a
/// placeholder row while there is none.
///
/// The table owns the schedule and is the only one to change it. It fixes its own height from the
/// number of tasks and the four properties after every change. Its width is what it has once it is
/// built, so a style sheet sets `min-width` by class selector before that.
class ScheduleRecordTableWidget : public ZFrame {
    Q_OBJECT

    /// Height in pixels of the table without rows (header and frame); 20 by default.
    Q_PROPERTY(int minHeight MEMBER m_minHeight)
    /// How many rows the table grows to show; 2 by default. Below 1 counts as 1, but a negative
    /// number means that the table grows with every task.
    Q_PROPERTY(int maxRecordCount MEMBER m_maxRecordCount)
    /// Height in pixels added for each shown row; 20 by default.
    Q_PROPERTY(int heightStep MEMBER m_heightStep)
    /// Height in pixels added once there are more tasks than shown rows; 0 by default.
    Q_PROPERTY(int heightOverflow MEMBER m_heightOverflow)

public:
    /// Creates a table with an empty schedule.
    /// \a settingsManager keeps the answer to the deletion question.
    /// \throws std::logic_error when \a settingsManager is null.
    ScheduleRecordTableWidget(const std::shared_ptr<App::ISettingsManager>& settingsManager,
                              QWidget* parent);
    ~ScheduleRecordTableWidget() override;

    /// Adds a task and its row. Nothing happens when the schedule refuses the task.
    void AddRecord(const RecordTime& record);

    /// Adds each task in turn; each one that is not refused emits ScheduleChanged().
    void AddRecords(const std::vector<RecordTime>& records);

    /// Removes every task and row, without asking.
    void ClearSchedule();

    /// Every task, in the order of the rows.
    std::vector<RecordTime> GetPreparedSchedule() const;

    bool DoesTitleAlreadyExists(const QString& title) const;

    /// Whether the span of \a record overlaps a task; only `start` and `duration` are looked at.
    bool DoesCaptureTimeIntersected(const RecordTime& record) const;

    bool IsScheduleEmpty() const;

    /// A title for the next task: the translated "Task " and the next free number.
    /// \throws std::runtime_error as DefaultTaskName() does, for a title such as "Task 09".
    QString GetDefaultTaskName() const;

    /// Restyles a row while the mouse is over it. The event is never consumed.
    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The schedule changed: once for each added task, each deleted task and each clearing, even of
    /// an empty schedule. Not sent for a refused task or a deletion that was not confirmed.
    void ScheduleChanged();

protected:
    void changeEvent(QEvent* event) override;

private:
    void UpdateFixedHeight();

    int m_minHeight = 20;
    int m_maxRecordCount = 2;
    int m_heightStep = 20;
    int m_heightOverflow = 0;

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Zentor::PX::Scheduler::UI
