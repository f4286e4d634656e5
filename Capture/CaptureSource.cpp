// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "CaptureSource.h"

#include "Pipeline.h"
#include "Protocol.h"
#include "Screens.h"

namespace Zentor::Capture {

CaptureSource::CaptureSource(int framesPerSecond)
    : m_framesPerSecond(framesPerSecond)
{
}

CaptureSource::~CaptureSource() = default;

void CaptureSource::Close()
{
    m_pipeline.reset();
}

QString CaptureSource::Description(const QString& source)
{
    // The pixel aspect ratio is fixed, too: it would change with the size, which no file allows.
    return source
        + QStringLiteral(" ! capsfilter name=rate ! videocrop name=crop"
                         " ! videoscale add-borders=true ! videoconvert n-threads=2"
                         " ! capsfilter name=size caps=video/x-raw,format=I420,"
                         "pixel-aspect-ratio=1/1"
                         " ! appsink name=frames max-buffers=1 drop=true sync=false");
}

bool CaptureSource::Create(const QString& source)
{
    QString error;
    m_pipeline = Pipeline::Parse(Description(source), &error);
    if (m_pipeline == nullptr) {
        Q_EMIT Failed({Code::Pipeline, error});
        return false;
    }
    connect(m_pipeline.get(), &Pipeline::Failed, this, [this](const QString& text) {
        Q_EMIT Failed({Code::Pipeline, text});
    });
    GstAppSinkCallbacks callbacks{};
    callbacks.new_sample = &CaptureSource::Keep;
    gst_app_sink_set_callbacks(GST_APP_SINK(m_pipeline->Element("frames")), &callbacks, this,
                               nullptr);
    return true;
}

bool CaptureSource::Play()
{
    const bool isPlaying = m_pipeline->Play();
    if (!isPlaying) {
        Q_EMIT Failed({Code::Pipeline, tr("the picture cannot be captured")});
    }
    return isPlaying;
}

void CaptureSource::FixSize(const QSize& size)
{
    const CapsHandle caps(gst_caps_new_simple(
        "video/x-raw", "format", G_TYPE_STRING, "I420", "pixel-aspect-ratio", GST_TYPE_FRACTION, 1,
        1, "width", G_TYPE_INT, size.width(), "height", G_TYPE_INT, size.height(), nullptr));
    g_object_set(m_pipeline->Element("size"), "caps", caps.get(), nullptr);
}

void CaptureSource::CutFromFirstSize(const std::optional<QRect>& area)
{
    m_area = area;
    const PadHandle pad(gst_element_get_static_pad(m_pipeline->Element("crop"), "sink"));
    gst_pad_add_probe(pad.get(), GST_PAD_PROBE_TYPE_EVENT_DOWNSTREAM, &CaptureSource::CutOnFormat,
                      this, nullptr);
}

GstPadProbeReturn CaptureSource::CutOnFormat(GstPad* /*pad*/, GstPadProbeInfo* info, gpointer self)
{
    GstEvent* event = gst_pad_probe_info_get_event(info);
    if (GST_EVENT_TYPE(event) != GST_EVENT_CAPS) {
        return GST_PAD_PROBE_OK;
    }
    GstCaps* caps = nullptr;
    gst_event_parse_caps(event, &caps);
    const GstStructure* structure = gst_caps_get_structure(caps, 0);
    int width = 0;
    int height = 0;
    gst_structure_get_int(structure, "width", &width);
    gst_structure_get_int(structure, "height", &height);
    static_cast<CaptureSource*>(self)->Cut(QSize(width, height));
    return GST_PAD_PROBE_REMOVE;
}

void CaptureSource::Cut(const QSize& size)
{
    const QRect whole(QPoint(0, 0), size);
    const QRect part = RecordableArea(m_area.value_or(whole), whole);
    if (part.isEmpty()) {
        QMetaObject::invokeMethod(
            this,
            [this] {
                Q_EMIT Failed({Code::NoDisplay, tr("nothing of the area is on the screen")});
            },
            Qt::QueuedConnection);
        return;
    }
    g_object_set(m_pipeline->Element("crop"), "left", part.x(), "top", part.y(), "right",
                 size.width() - part.x() - part.width(), "bottom",
                 size.height() - part.y() - part.height(), nullptr);
    FixSize(part.size());
}

void CaptureSource::Abandon()
{
    if (m_pipeline != nullptr) {
        m_pipeline->Abandon();
        // Its thread may still be in Keep(): the object stays, too.
        static_cast<void>(m_pipeline.release());
    }
}

GstFlowReturn CaptureSource::Keep(GstAppSink* sink, gpointer self)
{
    auto* source = static_cast<CaptureSource*>(self);
    SampleHandle sample(gst_app_sink_pull_sample(sink));
    if (sample == nullptr) {
        return GST_FLOW_EOS;
    }
    if (!source->IsFrameValid()) {
        return GST_FLOW_OK;
    }
    const std::lock_guard lock(source->m_mutex);
    if (!source->m_hasFormat.exchange(true)) {
        source->m_format.reset(gst_caps_copy(gst_sample_get_caps(sample.get())));
        QMetaObject::invokeMethod(source, &CaptureSource::Opened, Qt::QueuedConnection);
    }
    source->m_newest = std::move(sample);
    return GST_FLOW_OK;
}

QSize CaptureSource::FrameSize() const
{
    const auto format = Format();
    int width = 0;
    int height = 0;
    const GstStructure* structure = gst_caps_get_structure(format.get(), 0);
    gst_structure_get_int(structure, "width", &width);
    gst_structure_get_int(structure, "height", &height);
    return {width, height};
}

CapsHandle CaptureSource::Format() const
{
    const std::lock_guard lock(m_mutex);
    GstCaps* caps = gst_caps_copy(m_format.get());
    gst_caps_set_simple(caps, "framerate", GST_TYPE_FRACTION, m_framesPerSecond, 1, nullptr);
    return CapsHandle(caps);
}

SampleHandle CaptureSource::TakeFrame()
{
    const std::lock_guard lock(m_mutex);
    return std::move(m_newest);
}

} // namespace Zentor::Capture
