// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <vector>

#include <QObject>
#include <QTimer>

#include "LevelMeter.h"
#include "LineChannel.h"
#include "StopSignals.h"

namespace Zentor::Capture {

/// Writes to standard output, ten times a second, how loud sound devices are, until standard input
/// or output closes or a signal comes. A device that is absent is left out until it is there.
class LevelSession final : public QObject {
    Q_OBJECT

public:
    explicit LevelSession(const QStringList& devices);

Q_SIGNALS:
    void Ended();

private:
    /// Opens the devices that are there and not open yet.
    void OpenDevices();
    void Send();

    LineChannel m_channel;
    StopSignals m_signals;
    QTimer m_sendTimer;
    QTimer m_openTimer;
    std::vector<std::unique_ptr<LevelMeter>> m_meters;
};

} // namespace Zentor::Capture
