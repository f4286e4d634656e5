// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "SoundInput.h"

#include "Pipeline.h"

namespace Zentor::Capture {
namespace {

constexpr const char* Description =
    "pulsesrc name=device provide-clock=false client-name=px-recorder"
    " ! audioconvert ! audioresample"
    " ! audio/x-raw,format=S16LE,rate=48000,channels=2,layout=interleaved"
    " ! appsink name=samples sync=false";

} // namespace

SoundInput::SoundInput(QString device, Take take)
    : m_device(std::move(device))
    , m_take(std::move(take))
{
}

SoundInput::~SoundInput() = default;

bool SoundInput::Open()
{
    QString error;
    m_isChecked = false;
    m_pipeline = Pipeline::Parse(QLatin1String(Description), &error);
    if (m_pipeline == nullptr) {
        return false;
    }
    auto* source = m_pipeline->Element("device");
    g_object_set(source, "device", m_device.toUtf8().constData(), nullptr);
    // The server moves the stream to another device when this one goes. The notice comes from a
    // thread in which the property cannot be read.
    const auto check = +[](GObject*, GParamSpec*, gpointer self) {
        QMetaObject::invokeMethod(static_cast<SoundInput*>(self), &SoundInput::CheckDevice,
                                  Qt::QueuedConnection);
    };
    g_signal_connect(source, "notify::current-device", G_CALLBACK(check), this);
    GstAppSinkCallbacks callbacks{};
    callbacks.new_sample = &SoundInput::Keep;
    gst_app_sink_set_callbacks(GST_APP_SINK(m_pipeline->Element("samples")), &callbacks, this,
                               nullptr);
    connect(m_pipeline.get(), &Pipeline::Failed, this, [this](const QString& text) {
        Lose(tr("the sound device %1 has failed: %2").arg(m_device, text));
    });
    m_isOpen = m_pipeline->Play();
    return m_isOpen;
}

void SoundInput::Close()
{
    m_isOpen = false;
    if (m_pipeline != nullptr) {
        m_pipeline->Stop();
    }
}

void SoundInput::CheckDevice()
{
    if (!m_isOpen) {
        return;
    }
    gchar* name = nullptr;
    g_object_get(m_pipeline->Element("device"), "current-device", &name, nullptr);
    const TextHandle owned(name);
    if (name != nullptr && m_device != QString::fromUtf8(name)) {
        Lose(tr("the sound device %1 is gone").arg(m_device));
    }
}

void SoundInput::Lose(const QString& reason)
{
    if (!m_isOpen) {
        return;
    }
    Close();
    Q_EMIT Lost(reason);
}

GstFlowReturn SoundInput::Keep(GstAppSink* sink, gpointer self)
{
    auto* input = static_cast<SoundInput*>(self);
    const SampleHandle sample(gst_app_sink_pull_sample(sink));
    GstBuffer* buffer = sample == nullptr ? nullptr : gst_sample_get_buffer(sample.get());
    GstMapInfo map;
    if (buffer == nullptr || gst_buffer_map(buffer, &map, GST_MAP_READ) == FALSE) {
        return GST_FLOW_EOS;
    }
    if (!input->m_isChecked) {
        input->m_isChecked = true;
        QMetaObject::invokeMethod(input, &SoundInput::CheckDevice, Qt::QueuedConnection);
    }
    constexpr gsize bytesOfFrame = Channels * sizeof(std::int16_t);
    input->m_take(GST_BUFFER_PTS(buffer), reinterpret_cast<const std::int16_t*>(map.data),
                  static_cast<std::int64_t>(map.size / bytesOfFrame));
    gst_buffer_unmap(buffer, &map);
    return GST_FLOW_OK;
}

} // namespace Zentor::Capture
