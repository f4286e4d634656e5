// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "SoundTimeline.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace Zentor::Capture {
namespace {

/// Times of consecutive buffers may differ by this much from what the count of samples says, or
/// from where the corrections of a device's clock leave them, without a gap being made of it: 20
/// ms.
constexpr std::int64_t Tolerance = SoundTimeline::Rate / 50;

/// The number of sound frames from \a from to \a to; negative when \a to is earlier.
std::int64_t FramesBetween(GstClockTime from, GstClockTime to)
{
    return to >= from ? SoundTimeline::PositionAt(to - from)
                      : -SoundTimeline::PositionAt(from - to);
}

} // namespace

SoundTimeline::SoundTimeline(const RecordedTime& time)
    : m_time(time)
{
}

std::int64_t SoundTimeline::PositionAt(GstClockTime time)
{
    return static_cast<std::int64_t>(gst_util_uint64_scale_round(time, Rate, GST_SECOND));
}

void SoundTimeline::Add(GstClockTime moment, const std::int16_t* samples, std::int64_t count)
{
    const std::lock_guard lock(m_mutex);
    if (m_isMuted) {
        return;
    }
    for (const auto& span : m_time.Spans()) {
        const std::int64_t first = std::max<std::int64_t>(0, FramesBetween(moment, span.begin));
        const std::int64_t last = span.end == GST_CLOCK_TIME_NONE
            ? count
            : std::min(count, FramesBetween(moment, span.end));
        if (first >= last) {
            continue;
        }
        const std::int64_t offset = first - FramesBetween(moment, span.begin);
        Append(PositionAt(span.position) + offset, samples + first * Channels, last - first);
    }
}

void SoundTimeline::Append(std::int64_t position, const std::int16_t* samples, std::int64_t count)
{
    if (m_isContinued && std::abs(position - m_end) <= Tolerance) {
        position = m_end;
    }
    if (position > m_end) {
        m_samples.resize(m_samples.size()
                         + static_cast<std::size_t>((position - m_end) * Channels));
        m_end = position;
    }
    const std::int64_t overlap = std::min(count, m_end - position);
    m_samples.insert(m_samples.end(), samples + overlap * Channels, samples + count * Channels);
    m_end += count - overlap;
    m_isContinued = true;
}

void SoundTimeline::Mute()
{
    const std::lock_guard lock(m_mutex);
    m_isMuted = true;
    m_samples.clear();
    m_end = m_begin;
}

std::int64_t SoundTimeline::End() const
{
    const std::lock_guard lock(m_mutex);
    return m_isMuted ? std::numeric_limits<std::int64_t>::max() : m_end;
}

SoundTimeline::Samples SoundTimeline::Take(std::int64_t end)
{
    const std::lock_guard lock(m_mutex);
    if (end > m_end) {
        m_samples.resize(static_cast<std::size_t>((end - m_begin) * Channels));
        m_end = end;
        m_isContinued = false;
    }
    const auto middle = m_samples.begin() + (end - m_begin) * Channels;
    Samples taken(m_samples.begin(), middle);
    m_samples.erase(m_samples.begin(), middle);
    m_begin = end;
    return taken;
}

} // namespace Zentor::Capture
