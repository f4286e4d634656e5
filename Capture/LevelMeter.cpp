// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "LevelMeter.h"

#include <algorithm>
#include <cmath>

namespace Zentor::Capture {

LevelMeter::LevelMeter(const QString& device)
    : m_input(device,
              [this](GstClockTime /*start*/, const std::int16_t* samples, std::int64_t count) {
                  Measure(samples, count);
              })
{
}

double LevelMeter::TakePeak()
{
    const int amplitude = m_amplitude.exchange(Nothing);
    if (amplitude != Nothing) {
        m_peak = DecibelsOf(amplitude);
    }
    return m_peak;
}

double LevelMeter::DecibelsOf(int amplitude)
{
    constexpr double fullScale = 32768;
    constexpr double decibelsOfDecade = 20;
    return amplitude == 0 ? SilenceDecibels : decibelsOfDecade * std::log10(amplitude / fullScale);
}

void LevelMeter::Measure(const std::int16_t* samples, std::int64_t count)
{
    int highest = Nothing;
    for (std::int64_t index = 0; index < count * SoundInput::Channels; ++index) {
        highest = std::max(highest, std::abs(static_cast<int>(samples[index])));
    }
    int before = m_amplitude.load();
    while (before < highest && !m_amplitude.compare_exchange_weak(before, highest)) { }
}

} // namespace Zentor::Capture
