// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

namespace Zentor::Desktop {

/// Turns the signals by which a desktop, a shell or an administrator ends a program (SIGTERM,
/// SIGINT, SIGHUP) into one of Qt, which comes from the event loop.
///
/// As long as it lives they no longer end the process by themselves. Where the process was started
/// to ignore SIGHUP, as by nohup, it stays ignored.
class TerminationSignals final : public QObject {
    Q_OBJECT

public:
    TerminationSignals();
    ~TerminationSignals() override;

Q_SIGNALS:
    /// The program is to end, without asking anything. Sent again when asked again.
    void Received();
};

} // namespace Zentor::Desktop
