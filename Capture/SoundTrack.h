#pragma once

#include <memory>

#include <QObject>
#include <QString>

#include <gst/app/gstappsink.h>

#include "SoundClock.h"
#include "SoundTimeline.h"

namespace Zentor::Capture {

class Pipeline;

/// Records one device of the sound server, and no other one: when it is absent or goes away, there
/// is silence from then on.
class SoundTrack final : public QObject {
    Q_OBJECT

public:
    /// \a delay is how much later than its sound a picture is in the file.
    SoundTrack(QString device, const RecordedTime& time, GstClockTime delay);
    ~SoundTrack() override;

    /// Begins to record; \a isPresent: whether the sound server has the device.
    void Open(bool isPresent);
    SoundTimeline& Timeline() { return m_timeline; }

Q_SIGNALS:
    /// The device is silent from now on.
    void Warned(const QString& text);

private:
    bool Connect();
    void CheckDevice();
    void Mute(const QString& reason);
    static GstFlowReturn Keep(GstAppSink* sink, gpointer self);

    const QString m_device;
    const GstClockTime m_delay;
    SoundTimeline m_timeline;
    SoundClock m_clock;
    std::unique_ptr<Pipeline> m_pipeline;
    bool m_isMuted = false;
    bool m_isChecked = false;
};

} // namespace Zentor::Capture
