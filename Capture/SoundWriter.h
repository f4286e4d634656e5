// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <atomic>
#include <functional>
#include <memory>
#include <vector>

#include "GstHandle.h"
#include "SoundTrack.h"

namespace Zentor::Capture {

/// Brings the sound of the devices to where it is encoded, as a track each or all as one.
class SoundWriter {
public:
    /// Takes the next samples of the track \a track.
    using Push = std::function<void(int track, BufferHandle samples)>;

    SoundWriter(std::vector<SoundTrack*> devices, bool isMixed, Push push);

    /// The number of tracks of the file.
    int TrackCount() const;
    /// Pushes what can be pushed when the recording is at \a position. What is younger than 0.3 s
    /// is held back: it may be of a device that the sound server has put in the place of the chosen
    /// one.
    void Advance(GstClockTime position);
    /// Pushes the rest up to \a length, for which it waits up to a second.
    void Finish(GstClockTime length);

private:
    std::int64_t Available() const;
    void PushUntil(std::int64_t end);
    void PushTrack(int track, const SoundTimeline::Samples& samples);
    SoundTimeline::Samples MixUntil(std::int64_t end);

    const std::vector<SoundTrack*> m_devices;
    const bool m_isMixed;
    const Push m_push;
    std::int64_t m_pushed = 0;
};

} // namespace Zentor::Capture
