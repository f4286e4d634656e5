// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

#include "GstHandle.h"
#include "RecordedTime.h"

namespace Zentor::Capture {

class CaptureSource;

/// Makes a constant frame rate of what a source delivers: at each tick the newest frame, or the
/// last one again, goes to where it is encoded. Runs a thread of its own.
class FramePump {
public:
    struct Counts {
        std::int64_t pushed = 0;
        /// Of those, the ones for which the source had nothing new.
        std::int64_t duplicated = 0;
        /// Left out because the encoder was too far behind.
        std::int64_t dropped = 0;
    };
    /// What the pump needs of others. All are called from its thread.
    struct Ports {
        /// Takes one frame; false when it has to be dropped.
        std::function<bool(BufferHandle frame)> push;
        /// Called before each tick and when the last one is over, with how much has been recorded.
        std::function<void(GstClockTime position)> tick;
        /// The moment of the first frame has come.
        std::function<void()> begun;
        /// The last frame has been pushed. \a isComplete: the length was reached.
        std::function<void(bool isComplete)> ended;
    };

    /// \a time is what it records, and is to outlive it.
    FramePump(CaptureSource& source, RecordedTime& time, int framesPerSecond, Ports ports);
    /// Stops it without a call of ended().
    ~FramePump();

    /// Pushes the first frame at \a begin of the clock and ends after \a frames; 0: without an end.
    void Start(GstClockTime begin, std::int64_t frames);
    /// Ends as soon as the current tick is over.
    void Stop();
    void Pause();
    void Resume();

    Counts CurrentCounts() const;
    /// How long the file is at the moment.
    GstClockTime Length() const;

private:
    void Run(std::int64_t frames);
    bool WaitFor(GstClockTime position);
    void PushFrame(std::int64_t number);
    GstClockTime PositionOf(std::int64_t number) const;

    CaptureSource& m_source;
    const int m_framesPerSecond;
    const Ports m_ports;
    RecordedTime& m_time;
    SampleHandle m_frame;
    std::atomic<std::int64_t> m_pushed = 0;
    std::atomic<std::int64_t> m_duplicated = 0;
    std::atomic<std::int64_t> m_dropped = 0;
    std::atomic<std::int64_t> m_ticks = 0;

    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_isStopped = false;
    bool m_isDiscarded = false;
    std::thread m_thread;
};

} // namespace Zentor::Capture
