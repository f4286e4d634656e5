// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "SoundWriter.h"

#include <algorithm>
#include <chrono>
#include <limits>
#include <thread>

namespace Zentor::Capture {
namespace {

/// Longer than the notice takes that a device is gone, and than sound takes to come.
constexpr std::int64_t HeldBack = SoundTimeline::Rate * 3 / 10;
/// A device that is this late is silent: the file is not to wait for it.
constexpr std::int64_t Patience = SoundTimeline::Rate;

GstClockTime TimeAt(std::int64_t position)
{
    return gst_util_uint64_scale(static_cast<guint64>(position), GST_SECOND, SoundTimeline::Rate);
}

std::int16_t Sum(std::int16_t first, std::int16_t second)
{
    using Limits = std::numeric_limits<std::int16_t>;
    return static_cast<std::int16_t>(
        std::clamp<int>(first + second, Limits::lowest(), Limits::max()));
}

} // namespace

SoundWriter::SoundWriter(std::vector<SoundTrack*> devices, bool isMixed, Push push)
    : m_devices(std::move(devices))
    , m_isMixed(isMixed)
    , m_push(std::move(push))
{
}

int SoundWriter::TrackCount() const
{
    return m_isMixed ? std::min<int>(1, static_cast<int>(m_devices.size()))
                     : static_cast<int>(m_devices.size());
}

std::int64_t SoundWriter::Available() const
{
    std::int64_t end = std::numeric_limits<std::int64_t>::max();
    for (auto* device : m_devices) {
        end = std::min(end, device->Timeline().End());
    }
    return end;
}

void SoundWriter::Advance(GstClockTime position)
{
    const std::int64_t now = SoundTimeline::PositionAt(position);
    PushUntil(std::max(std::min(Available(), now - HeldBack), now - Patience));
}

void SoundWriter::Finish(GstClockTime length)
{
    if (m_devices.empty()) {
        return;
    }
    using namespace std::chrono_literals;
    const auto begin = std::chrono::steady_clock::now();
    const std::int64_t end = SoundTimeline::PositionAt(length);
    // A device that is gone is known to be by then.
    std::this_thread::sleep_until(begin + 300ms);
    while (Available() < end && std::chrono::steady_clock::now() < begin + 1s) {
        std::this_thread::sleep_for(10ms);
    }
    PushUntil(end);
}

void SoundWriter::PushUntil(std::int64_t end)
{
    if (m_devices.empty() || end <= m_pushed) {
        return;
    }
    if (m_isMixed) {
        PushTrack(0, MixUntil(end));
    } else {
        for (std::size_t index = 0; index < m_devices.size(); ++index) {
            PushTrack(static_cast<int>(index), m_devices[index]->Timeline().Take(end));
        }
    }
    m_pushed = end;
}

SoundTimeline::Samples SoundWriter::MixUntil(std::int64_t end)
{
    auto mixed = m_devices.front()->Timeline().Take(end);
    for (std::size_t index = 1; index < m_devices.size(); ++index) {
        const auto samples = m_devices[index]->Timeline().Take(end);
        std::transform(mixed.begin(), mixed.end(), samples.begin(), mixed.begin(), Sum);
    }
    return mixed;
}

void SoundWriter::PushTrack(int track, const SoundTimeline::Samples& samples)
{
    const gsize bytes = samples.size() * sizeof(std::int16_t);
    BufferHandle buffer(gst_buffer_new_allocate(nullptr, bytes, nullptr));
    gst_buffer_fill(buffer.get(), 0, samples.data(), bytes);
    const auto count = static_cast<std::int64_t>(samples.size() / SoundTimeline::Channels);
    GST_BUFFER_PTS(buffer.get()) = TimeAt(m_pushed);
    GST_BUFFER_DURATION(buffer.get()) = TimeAt(m_pushed + count) - TimeAt(m_pushed);
    m_push(track, std::move(buffer));
}

} // namespace Zentor::Capture
