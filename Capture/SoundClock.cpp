// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "SoundClock.h"

#include <cstdlib>

namespace Zentor::Capture {
namespace {

constexpr GstClockTime Window = 4 * GST_SECOND;
/// The first windows only learn what is usual.
constexpr int LearningWindows = 2;
constexpr GstClockTimeDiff Tolerance = 15 * GST_MSECOND;

} // namespace

GstClockTime SoundClock::Correct(GstClockTime moment, GstClockTime arrival)
{
    if (m_windowEnd == 0) {
        m_windowEnd = arrival + Window;
    } else if (arrival >= m_windowEnd) {
        m_windowEnd = arrival + Window;
        EndWindow();
    }
    const Lateness lateness = GST_CLOCK_DIFF(moment, arrival) - m_correction;
    m_least = std::min(m_least, lateness);
    const auto corrected = static_cast<GstClockTimeDiff>(moment) + m_correction;
    return static_cast<GstClockTime>(std::max<GstClockTimeDiff>(0, corrected));
}

void SoundClock::EndWindow()
{
    ++m_windows;
    if (m_windows <= LearningWindows) {
        m_usual = std::min(m_usual, m_least);
    } else if (std::abs(m_least - m_usual) > Tolerance) {
        m_correction += m_least - m_usual;
    }
    m_least = None;
}

} // namespace Zentor::Capture
