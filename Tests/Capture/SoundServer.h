// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "RecorderTestSupport.h"

namespace Zentor::Tests {

/// A PipeWire of its own in the surroundings, without any device of the machine.
class SoundServer {
public:
    explicit SoundServer(Surroundings& surroundings);

    /// Whether it answers.
    bool IsRunning() const { return m_isRunning; }
    /// An output whose monitor can be recorded.
    void AddOutput(const QString& name);
    /// A microphone; returns the number by which it is removed.
    QString AddMicrophone(const QString& name);
    void Remove(const QString& number);
    /// Plays a tone on an output until the end of the test.
    void PlayTone(const QString& output);

private:
    bool WaitFor(const QString& device) const;

    Surroundings& m_surroundings;
    bool m_isRunning = false;
};

} // namespace Zentor::Tests
