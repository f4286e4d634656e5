// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

namespace Zentor::Capture {

/// Keeps the process alive when the X server goes, which Xlib answers by exit(), and when a request
/// of another library fails. Lives as long as anything in the process uses Xlib.
///
/// The thread that met the loss hangs for good, in the place of exit(). A process that has lost a
/// display therefore ends by _exit().
class DisplayLoss final : public QObject {
    Q_OBJECT

public:
    DisplayLoss();
    ~DisplayLoss() override;

    /// How many threads have met the loss of a display since the start of the process.
    static int Count();

Q_SIGNALS:
    void Happened();
};

} // namespace Zentor::Capture
