// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>

#include "SoundClock.h"
#include "SoundInput.h"
#include "SoundTimeline.h"

namespace Zentor::Capture {

/// Records one device of the sound server, and no other one: when it is absent or goes away, there
/// is silence from then on.
class SoundTrack final : public QObject {
    Q_OBJECT

public:
    /// \a delay is how much later than its sound a picture is in the file.
    SoundTrack(const QString& device, const RecordedTime& time, GstClockTime delay);

    /// Begins to record; \a isPresent: whether the sound server has the device.
    void Open(bool isPresent);
    SoundTimeline& Timeline() { return m_timeline; }

Q_SIGNALS:
    /// The device is silent from now on.
    void Warned(const QString& text);

private:
    void Mute(const QString& reason);

    const GstClockTime m_delay;
    SoundTimeline m_timeline;
    SoundClock m_clock;
    SoundInput m_input;
    bool m_isMuted = false;
};

} // namespace Zentor::Capture
