// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <QObject>

#include "HostData.h"
#include "PanelParts.h"

class QTimer;

namespace Zentor::PX {
class SettingsStore;
}

namespace Zentor::Desktop {

/// Tells of each task in a scheduler panel what its row has no column for, in its tool tip and to
/// screen readers: when it ends, also where that is on the next day, what is recorded, and what
/// happens afterwards.
///
/// A task that is over is marked, there and for the style sheet: the labels of its row have the
/// property "TaskState" with the value "Over", any other value or none being a task to come. The
/// marks follow the clock while the list is on screen, and are brought up to date when it comes
/// there.
class PanelTaskDetails final : public QObject {
    Q_OBJECT

public:
    /// Belongs to \a panel, which has been restored and keeps its schedule in \a store.
    PanelTaskDetails(QWidget* panel, std::shared_ptr<PX::SettingsStore> store);
    ~PanelTaskDetails() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Update();
    void DescribeAnew();
    void ScheduleUpdate(Time::IClock::time_point now);
    QString DetailsOf(const PX::RecordTime& task, bool isOver) const;
    QString EndOf(const PX::RecordTime& task) const;
    QString CaptureOf(const PX::RecordTime& task) const;

    std::shared_ptr<PX::SettingsStore> m_store;
    const PanelParts m_parts;
    /// Runs out when a task ends.
    QTimer* m_timer;
};

} // namespace Zentor::Desktop
