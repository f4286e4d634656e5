#include "SoundTrack.h"

#include "Pipeline.h"

namespace Zentor::Capture {
namespace {

constexpr const char* Description =
    "pulsesrc name=device provide-clock=false client-name=px-recorder"
    " ! audioconvert ! audioresample"
    " ! audio/x-raw,format=S16LE,rate=48000,channels=2,layout=interleaved"
    " ! appsink name=samples sync=false";

} // namespace

SoundTrack::SoundTrack(QString device, const RecordedTime& time, GstClockTime delay)
    : m_device(std::move(device))
    , m_delay(delay)
    , m_timeline(time)
{
}

SoundTrack::~SoundTrack() = default;

void SoundTrack::Open(bool isPresent)
{
    // Asked for a device that it does not have, the sound server takes another one.
    if (!isPresent) {
        Mute(tr("the sound device %1 is absent").arg(m_device));
    } else if (!Connect()) {
        Mute(tr("the sound device %1 cannot be opened").arg(m_device));
    }
}

bool SoundTrack::Connect()
{
    QString error;
    m_pipeline = Pipeline::Parse(QLatin1String(Description), &error);
    if (m_pipeline == nullptr) {
        return false;
    }
    auto* source = m_pipeline->Element("device");
    g_object_set(source, "device", m_device.toUtf8().constData(), nullptr);
    // The server moves the stream to another device when this one goes. The notice comes from a
    // thread in which the property cannot be read.
    const auto check = +[](GObject*, GParamSpec*, gpointer self) {
        QMetaObject::invokeMethod(static_cast<SoundTrack*>(self), &SoundTrack::CheckDevice,
                                  Qt::QueuedConnection);
    };
    g_signal_connect(source, "notify::current-device", G_CALLBACK(check), this);
    GstAppSinkCallbacks callbacks{};
    callbacks.new_sample = &SoundTrack::Keep;
    gst_app_sink_set_callbacks(GST_APP_SINK(m_pipeline->Element("samples")), &callbacks, this,
                               nullptr);
    connect(m_pipeline.get(), &Pipeline::Failed, this, [this](const QString& text) {
        Mute(tr("the sound device %1 has failed: %2").arg(m_device, text));
    });
    return m_pipeline->Play();
}

void SoundTrack::CheckDevice()
{
    if (m_isMuted || m_pipeline == nullptr) {
        return;
    }
    gchar* name = nullptr;
    g_object_get(m_pipeline->Element("device"), "current-device", &name, nullptr);
    const TextHandle owned(name);
    if (name != nullptr && m_device != QString::fromUtf8(name)) {
        Mute(tr("the sound device %1 is gone").arg(m_device));
    }
}

void SoundTrack::Mute(const QString& reason)
{
    if (m_isMuted) {
        return;
    }
    m_isMuted = true;
    m_timeline.Mute();
    if (m_pipeline != nullptr) {
        m_pipeline->Stop();
    }
    Q_EMIT Warned(tr("%1; its track is silent from now on").arg(reason));
}

GstFlowReturn SoundTrack::Keep(GstAppSink* sink, gpointer self)
{
    auto* track = static_cast<SoundTrack*>(self);
    const SampleHandle sample(gst_app_sink_pull_sample(sink));
    GstBuffer* buffer = sample == nullptr ? nullptr : gst_sample_get_buffer(sample.get());
    GstMapInfo map;
    if (buffer == nullptr || gst_buffer_map(buffer, &map, GST_MAP_READ) == FALSE) {
        return GST_FLOW_EOS;
    }
    if (!track->m_isChecked) {
        track->m_isChecked = true;
        QMetaObject::invokeMethod(track, &SoundTrack::CheckDevice, Qt::QueuedConnection);
    }
    constexpr gsize bytesOfFrame = SoundTimeline::Channels * sizeof(std::int16_t);
    const GstClockTime moment = track->m_clock.Correct(GST_BUFFER_PTS(buffer), ClockNow());
    track->m_timeline.Add(moment + track->m_delay, reinterpret_cast<const std::int16_t*>(map.data),
                          static_cast<std::int64_t>(map.size / bytesOfFrame));
    gst_buffer_unmap(buffer, &map);
    return GST_FLOW_OK;
}

} // namespace Zentor::Capture
