// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <mutex>
#include <vector>

#include "RecordedTime.h"

namespace Zentor::Capture {

/// The sound of one device, put where it belongs in the file: what comes between begin and end,
/// without the pauses, and silence where nothing came. Positions are in frames of the sound, which
/// have a sample for each channel. Safe to use from several threads.
class SoundTimeline {
public:
    static constexpr int Rate = 48000;
    static constexpr int Channels = 2;
    using Samples = std::vector<std::int16_t>;

    explicit SoundTimeline(const RecordedTime& time);

    /// Adds what was recorded from the \a moment of the clock on.
    void Add(GstClockTime moment, const std::int16_t* samples, std::int64_t count);
    /// Forgets what has not been taken yet, and takes no more.
    void Mute();

    /// How far the sound goes that has been added. Without an end once it is muted.
    std::int64_t End() const;
    /// Everything from where the last call ended up to \a end, and silence where there is nothing.
    Samples Take(std::int64_t end);

    static std::int64_t PositionAt(GstClockTime time);

private:
    void Append(std::int64_t position, const std::int16_t* samples, std::int64_t count);

    const RecordedTime& m_time;
    mutable std::mutex m_mutex;
    Samples m_samples;
    std::int64_t m_begin = 0;
    std::int64_t m_end = 0;
    bool m_isContinued = false;
    bool m_isMuted = false;
};

} // namespace Zentor::Capture
