// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <atomic>

#include "SoundInput.h"

namespace Zentor::Capture {

/// Measures how loud one device of the sound server is.
class LevelMeter {
public:
    /// What silence is said to be; the quietest sound of 16 bits is at -90.3.
    static constexpr double SilenceDecibels = -96;

    explicit LevelMeter(const QString& device);

    SoundInput& Input() { return m_input; }
    /// The highest level since the last call, in decibels below full scale (0 is the loudest). What
    /// it was then when nothing has come since.
    double TakePeak();

    /// The level of a sample that is \a amplitude away from 0, from 0 to 32768.
    static double DecibelsOf(int amplitude);

private:
    void Measure(const std::int16_t* samples, std::int64_t count);

    static constexpr int Nothing = -1;
    std::atomic<int> m_amplitude{Nothing};
    double m_peak = SilenceDecibels;
    /// Last: its thread measures.
    SoundInput m_input;
};

} // namespace Zentor::Capture
