// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <limits>

#include <gst/gst.h>

namespace Zentor::Capture {

/// Notices samples that a busy sound server has lost: times that count samples are too early from
/// then on. How late buffers come tells, by the least late one of some seconds: all others were
/// held up.
class SoundClock {
public:
    /// The time of a buffer that says that it is of \a moment and has come at \a arrival.
    GstClockTime Correct(GstClockTime moment, GstClockTime arrival);

private:
    using Lateness = GstClockTimeDiff;
    static constexpr Lateness None = std::numeric_limits<Lateness>::max();

    void EndWindow();

    GstClockTime m_windowEnd = 0;
    int m_windows = 0;
    Lateness m_usual = None;
    Lateness m_least = None;
    Lateness m_correction = 0;
};

} // namespace Zentor::Capture
