// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "PictureMaker.h"

#include <QCoreApplication>
#include <QFile>

#include <gst/video/video.h>

#include "Pipeline.h"
#include "Protocol.h"

namespace Zentor::Capture {
namespace {

constexpr int LargestWidth = 320;
constexpr GstClockTime Moment = GST_SECOND;
/// For a file on a slow volume.
constexpr std::chrono::seconds Patience(20);

/// What becomes of \a frame: PNG, small, with pixels as wide as they are high.
CapsHandle CapsOfPicture(GstSample* frame)
{
    GstVideoInfo info;
    if (gst_video_info_from_caps(&info, gst_sample_get_caps(frame)) == FALSE) {
        return nullptr;
    }
    const int width = std::min(LargestWidth, GST_VIDEO_INFO_WIDTH(&info));
    const auto height = static_cast<int>(gst_util_uint64_scale_int_round(
        static_cast<guint64>(width), GST_VIDEO_INFO_HEIGHT(&info), GST_VIDEO_INFO_WIDTH(&info)));
    return CapsHandle(gst_caps_new_simple("image/png", "width", G_TYPE_INT, width, "height",
                                          G_TYPE_INT, std::max(1, height), "pixel-aspect-ratio",
                                          GST_TYPE_FRACTION, 1, 1, nullptr));
}

} // namespace

PictureMaker::PictureMaker(QString file, QString picture)
    : m_file(std::move(file))
    , m_picture(std::move(picture))
{
    m_patience.setSingleShot(true);
    connect(&m_patience, &QTimer::timeout, this, [this] { Fail(tr("it takes too long")); });
}

PictureMaker::~PictureMaker() = default;

void PictureMaker::Start()
{
    QString error;
    // From the beginning: what a crash has left has no index to find a place by.
    m_pipeline = Pipeline::Parse(QStringLiteral("filesrc name=file ! decodebin ! video/x-raw "
                                                "! appsink name=frames sync=false max-buffers=2"),
                                 &error);
    if (m_pipeline == nullptr) {
        Fail(error);
        return;
    }
    g_object_set(m_pipeline->Element("file"), "location", m_file.toUtf8().constData(), nullptr);
    GstAppSinkCallbacks callbacks{};
    callbacks.new_sample = &PictureMaker::TakeFrame;
    gst_app_sink_set_callbacks(GST_APP_SINK(m_pipeline->Element("frames")), &callbacks, this,
                               nullptr);
    connect(m_pipeline.get(), &Pipeline::Ended, this, &PictureMaker::Conclude);
    connect(m_pipeline.get(), &Pipeline::Failed, this, [this](const QString& text) { Fail(text); });
    m_patience.start(Patience);
    if (!m_pipeline->Play()) {
        Fail(tr("it cannot be read"));
    }
}

GstFlowReturn PictureMaker::TakeFrame(GstAppSink* sink, gpointer self)
{
    SampleHandle frame(gst_app_sink_pull_sample(sink));
    if (frame == nullptr) {
        return GST_FLOW_EOS;
    }
    static_cast<PictureMaker*>(self)->Keep(std::move(frame));
    return GST_FLOW_OK;
}

/// Called by a thread of the pipeline.
void PictureMaker::Keep(SampleHandle frame)
{
    const std::lock_guard lock(m_mutex);
    if (m_isComplete) {
        return;
    }
    const GstClockTime time = GST_BUFFER_PTS(gst_sample_get_buffer(frame.get()));
    m_frame = std::move(frame);
    m_isComplete = time >= Moment;
    if (m_isComplete) {
        QMetaObject::invokeMethod(this, &PictureMaker::Conclude, Qt::QueuedConnection);
    }
}

void PictureMaker::Conclude()
{
    if (m_isOver) {
        return;
    }
    m_pipeline->Stop();
    const CapsHandle caps = m_frame != nullptr ? CapsOfPicture(m_frame.get()) : nullptr;
    if (caps == nullptr) {
        Fail(tr("there is no picture in it"));
        return;
    }
    GError* problem = nullptr;
    const SampleHandle encoded(
        gst_video_convert_sample(m_frame.get(), caps.get(), GST_CLOCK_TIME_NONE, &problem));
    const ErrorHandle owned(problem);
    if (encoded == nullptr) {
        Fail(problem == nullptr ? QString() : QString::fromUtf8(problem->message));
    } else if (!WritePicture(encoded.get())) {
        Fail(tr("%1 cannot be written").arg(m_picture));
    } else {
        m_isOver = true;
        Q_EMIT Finished();
    }
}

bool PictureMaker::WritePicture(GstSample* encoded) const
{
    GstBuffer* buffer = gst_sample_get_buffer(encoded);
    GstMapInfo map;
    QFile file(m_picture);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly)
        || gst_buffer_map(buffer, &map, GST_MAP_READ) == FALSE) {
        return false;
    }
    const auto size = static_cast<qint64>(map.size);
    const bool isWritten =
        file.write(reinterpret_cast<const char*>(map.data), size) == size && file.flush();
    gst_buffer_unmap(buffer, &map);
    if (!isWritten) {
        file.remove();
    }
    return isWritten;
}

void PictureMaker::Fail(const QString& reason)
{
    if (m_isOver) {
        return;
    }
    m_isOver = true;
    Q_EMIT Failed({Code::Pipeline, tr("no picture can be made of %1: %2").arg(m_file, reason)});
}

} // namespace Zentor::Capture
