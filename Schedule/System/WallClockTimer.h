// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include "Moment.h"

class QSocketNotifier;

namespace Zentor::Schedule {

/// A timer for a moment of the wall clock, however far it is: it goes with the clock when that is
/// set, and with the time that passes while the machine is suspended. It causes no wake-up before.
class WallClockTimer final : public QObject {
    Q_OBJECT

public:
    /// Throws std::system_error when the system has no timer to give.
    explicit WallClockTimer(QObject* parent = nullptr);
    ~WallClockTimer() override;

    /// Has Reached() sent at \a deadline, or from the event loop at once where that is past. It
    /// takes the place of an earlier deadline.
    void Arm(Moment deadline);

    /// Has no Reached() sent any more.
    void Disarm();

Q_SIGNALS:
    /// The deadline has come. Sent once for each Arm().
    void Reached();
    /// The wall clock was set, in either direction, or the machine resumed from suspend. The
    /// deadline stays; it is sent whether there is one or not.
    void ClockSet();

private:
    void SetTime(Moment moment);
    void Read();

    const int m_descriptor;
    QSocketNotifier* const m_notifier;
    Moment m_deadline;
};

} // namespace Zentor::Schedule
