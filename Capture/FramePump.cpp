// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "FramePump.h"

#include "CaptureSource.h"
#include "Pipeline.h"

namespace Zentor::Capture {

FramePump::FramePump(CaptureSource& source, RecordedTime& time, int framesPerSecond, Ports ports)
    : m_source(source)
    , m_framesPerSecond(framesPerSecond)
    , m_ports(std::move(ports))
    , m_time(time)
{
}

FramePump::~FramePump()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isStopped = true;
        m_isDiscarded = true;
    }
    m_changed.notify_all();
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

void FramePump::Start(GstClockTime begin, std::int64_t frames)
{
    m_time.Begin(begin);
    m_thread = std::thread([this, frames] { Run(frames); });
}

void FramePump::Stop()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isStopped = true;
    }
    m_changed.notify_all();
}

void FramePump::Pause()
{
    const std::lock_guard lock(m_mutex);
    m_time.Pause(ClockNow());
    m_changed.notify_all();
}

void FramePump::Resume()
{
    const std::lock_guard lock(m_mutex);
    m_time.Resume(ClockNow());
    m_changed.notify_all();
}

FramePump::Counts FramePump::CurrentCounts() const
{
    return {m_pushed, m_duplicated, m_dropped};
}

GstClockTime FramePump::PositionOf(std::int64_t number) const
{
    return gst_util_uint64_scale(static_cast<guint64>(number), GST_SECOND,
                                 static_cast<guint64>(m_framesPerSecond));
}

GstClockTime FramePump::Length() const
{
    return PositionOf(m_ticks);
}

bool FramePump::WaitFor(GstClockTime position)
{
    std::unique_lock lock(m_mutex);
    while (!m_isStopped) {
        const GstClockTime moment = m_time.MomentOf(position);
        const GstClockTime now = ClockNow();
        if (moment == GST_CLOCK_TIME_NONE) {
            m_changed.wait(lock);
        } else if (moment > now) {
            m_changed.wait_for(lock, std::chrono::nanoseconds(moment - now));
        } else {
            return true;
        }
    }
    return false;
}

void FramePump::Run(std::int64_t frames)
{
    bool isComplete = false;
    while (!isComplete && WaitFor(PositionOf(m_ticks))) {
        if (m_ticks == 0) {
            m_ports.begun();
        }
        PushFrame(m_ticks);
        ++m_ticks;
        isComplete = m_ticks == frames;
        m_ports.tick(Length());
    }
    {
        const std::lock_guard lock(m_mutex);
        if (m_isDiscarded) {
            return;
        }
    }
    m_ports.ended(isComplete);
}

void FramePump::PushFrame(std::int64_t number)
{
    SampleHandle newest = m_source.TakeFrame();
    const bool isNew = newest != nullptr;
    if (isNew) {
        m_frame = std::move(newest);
    }
    if (m_frame == nullptr) {
        ++m_dropped;
        return;
    }
    // The pixels are shared, only the time is the frame's own.
    BufferHandle frame(gst_buffer_copy(gst_sample_get_buffer(m_frame.get())));
    GST_BUFFER_PTS(frame.get()) = PositionOf(number);
    GST_BUFFER_DTS(frame.get()) = GST_CLOCK_TIME_NONE;
    GST_BUFFER_DURATION(frame.get()) = PositionOf(number + 1) - PositionOf(number);
    GST_BUFFER_OFFSET(frame.get()) = static_cast<guint64>(number);
    if (!m_ports.push(std::move(frame))) {
        ++m_dropped;
        return;
    }
    ++m_pushed;
    if (!isNew) {
        ++m_duplicated;
    }
}

} // namespace Zentor::Capture
