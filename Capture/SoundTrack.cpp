// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "SoundTrack.h"

#include "Pipeline.h"

namespace Zentor::Capture {

static_assert(SoundInput::Rate == SoundTimeline::Rate
              && SoundInput::Channels == SoundTimeline::Channels);

SoundTrack::SoundTrack(const QString& device, const RecordedTime& time, GstClockTime delay)
    : m_delay(delay)
    , m_timeline(time)
    , m_input(device, [this](GstClockTime start, const std::int16_t* samples, std::int64_t count) {
        const GstClockTime moment = m_clock.Correct(start, ClockNow());
        m_timeline.Add(moment + m_delay, samples, count);
    })
{
    connect(&m_input, &SoundInput::Lost, this, &SoundTrack::Mute);
}

void SoundTrack::Open(bool isPresent)
{
    if (!isPresent) {
        Mute(tr("the sound device %1 is absent").arg(m_input.Device()));
    } else if (!m_input.Open()) {
        Mute(tr("the sound device %1 cannot be opened").arg(m_input.Device()));
    }
}

void SoundTrack::Mute(const QString& reason)
{
    if (m_isMuted) {
        return;
    }
    m_isMuted = true;
    m_timeline.Mute();
    m_input.Close();
    Q_EMIT Warned(tr("%1; its track is silent from now on").arg(reason));
}

} // namespace Zentor::Capture
