// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

namespace Zentor::Capture {

/// Turns the signals by which a terminal, a session or another program ends this one (SIGINT,
/// SIGTERM, SIGHUP) into one of Qt, which comes from the event loop.
///
/// One that the process was started to ignore, as by nohup, stays ignored.
class StopSignals final : public QObject {
    Q_OBJECT

public:
    StopSignals();
    ~StopSignals() override;

Q_SIGNALS:
    void Received();
};

} // namespace Zentor::Capture
