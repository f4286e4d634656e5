// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <mutex>
#include <vector>

#include <gst/gst.h>

namespace Zentor::Capture {

/// Which moments of the clock are recorded, and where in the file they are: from the begin on,
/// without the pauses. All times in nanoseconds. Safe to use from several threads.
class RecordedTime {
public:
    /// A stretch of the clock that is recorded without a break.
    struct Span {
        GstClockTime begin;
        /// GST_CLOCK_TIME_NONE as long as it goes on.
        GstClockTime end;
        /// Where its begin is in the file.
        GstClockTime position;
    };

    void Begin(GstClockTime now);
    void Pause(GstClockTime now);
    void Resume(GstClockTime now);

    /// The moment of the clock that is at \a position of the file if there is no further pause.
    /// GST_CLOCK_TIME_NONE in a pause and before the begin.
    GstClockTime MomentOf(GstClockTime position) const;
    /// How much has been recorded by \a now.
    GstClockTime PositionAt(GstClockTime now) const;
    std::vector<Span> Spans() const;

private:
    mutable std::mutex m_mutex;
    std::vector<Span> m_spans;
};

} // namespace Zentor::Capture
