// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <QObject>
#include <QTimer>

#include "Recording.h"
#include "StopSignals.h"

namespace Zentor::Capture {

/// Makes one recording for whoever started the program in a terminal or from a script: progress and
/// warnings go to standard error.
class ConsoleSession final : public QObject {
    Q_OBJECT

public:
    ConsoleSession(const RecordingRequest& request, std::int64_t durationMicroseconds);

    void Start();

Q_SIGNALS:
    /// \a exitCode is that of the program.
    void Ended(int exitCode);

private:
    void ShowProgress();
    void ClearProgress();
    void Say(const QString& text);

    const std::int64_t m_durationMicroseconds;
    const bool m_isTerminal;
    Recording m_recording;
    StopSignals m_signals;
    QTimer m_progress;
};

/// Writes one line with the program's name to standard error.
void SayToUser(const QString& text);

} // namespace Zentor::Capture
