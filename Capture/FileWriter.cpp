// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "FileWriter.h"

#include <algorithm>

#include <gst/app/gstappsrc.h>

#include "OutputFile.h"
#include "Pipeline.h"
#include "Protocol.h"

namespace Zentor::Capture {
namespace {

/// What waits to be encoded takes memory, and time to encode when the file is to be closed.
constexpr guint64 QueueSeconds = 2;
constexpr guint64 QueueBytes = 512'000'000;

/// The sound comes a little later than the picture, which is kept encoded meanwhile.
const char* const Queue = "queue max-size-buffers=0 max-size-bytes=0 max-size-time=10000000000";

QString Description(const QStringList& encoders, int soundTracks)
{
    // Each encoder begins when the one before it has ended.
    QString description =
        QStringLiteral("concat name=encoded adjust-base=false ! %1 ! "
                       "matroskamux name=mux offset-to-zero=true writing-app=px-recorder ! "
                       "filesink name=file buffer-mode=unbuffered sync=false async=false")
            .arg(QLatin1String(Queue));
    for (int index = 0; index < encoders.size(); ++index) {
        description +=
            QStringLiteral(" appsrc name=picture%1 format=time block=false max-bytes=0 ! "
                           "%2 ! encoded.")
                .arg(index)
                .arg(encoders[index]);
    }
    for (int track = 0; track < soundTracks; ++track) {
        description += QStringLiteral(" appsrc name=sound%1 format=time block=false max-bytes=0 ! "
                                      "opusenc bitrate=128000 ! %2 ! mux.")
                           .arg(track)
                           .arg(QLatin1String(Queue));
    }
    return description;
}

QByteArray Numbered(const char* name, int number)
{
    return QByteArray(name) + QByteArray::number(number);
}

void Push(GstElement* source, BufferHandle buffer)
{
    gst_app_src_push_buffer(GST_APP_SRC(source), buffer.release());
}

} // namespace

FileWriter::FileWriter() = default;
FileWriter::~FileWriter() = default;

std::optional<Failure> FileWriter::Open(const OutputFile& file, const QStringList& encoders,
                                        const CapsHandle& format, int soundTracks)
{
    QString error;
    m_pipeline = Pipeline::Parse(Description(encoders, soundTracks), &error);
    if (m_pipeline == nullptr) {
        return Failure{Code::Pipeline, error};
    }
    connect(m_pipeline.get(), &Pipeline::Ended, this, &FileWriter::Closed);
    connect(m_pipeline.get(), &Pipeline::Failed, this,
            [this](const QString& text, bool isDiskFull) {
                Q_EMIT Failed({isDiskFull ? Code::DiskFull : Code::Pipeline, text});
            });
    g_object_set(m_pipeline->Element("file"), "location", file.Location().toUtf8().constData(),
                 nullptr);
    for (int index = 0; index < encoders.size(); ++index) {
        m_pictures.push_back(m_pipeline->Element(Numbered("picture", index).constData()));
    }
    SetUp(format);
    SetUpSound(soundTracks);
    if (!m_pipeline->Play()) {
        return Failure{Code::Pipeline, tr("the file %1 cannot be written").arg(file.Path())};
    }
    return std::nullopt;
}

void FileWriter::SetUp(const CapsHandle& format)
{
    const GstStructure* structure = gst_caps_get_structure(format.get(), 0);
    int width = 1;
    int height = 1;
    int rate = 1;
    int divisor = 1;
    gst_structure_get_int(structure, "width", &width);
    gst_structure_get_int(structure, "height", &height);
    gst_structure_get_fraction(structure, "framerate", &rate, &divisor);
    const guint64 bytesOfFrame = static_cast<guint64>(width) * static_cast<guint64>(height) * 3 / 2;
    m_longestQueue = std::clamp<guint64>(QueueBytes / bytesOfFrame, 2,
                                         QueueSeconds * static_cast<guint64>(rate));
    for (auto* picture : m_pictures) {
        g_object_set(picture, "caps", format.get(), nullptr);
    }
}

void FileWriter::SetUpSound(int tracks)
{
    const CapsHandle sound(
        gst_caps_from_string("audio/x-raw,format=S16LE,rate=48000,channels=2,layout=interleaved"));
    for (int track = 0; track < tracks; ++track) {
        m_sound.push_back(m_pipeline->Element(Numbered("sound", track).constData()));
        g_object_set(m_sound.back(), "caps", sound.get(), nullptr);
    }
}

bool FileWriter::PushFrame(BufferHandle frame)
{
    const auto waiting = gst_app_src_get_current_level_buffers(GST_APP_SRC(m_pictures.front()));
    if (waiting >= m_longestQueue / 2 && m_pictures.size() > 1) {
        gst_app_src_end_of_stream(GST_APP_SRC(m_pictures.front()));
        m_pictures.erase(m_pictures.begin());
        QMetaObject::invokeMethod(this, &FileWriter::SteppedDown, Qt::QueuedConnection);
    } else if (waiting >= m_longestQueue) {
        return false;
    }
    Push(m_pictures.front(), std::move(frame));
    return true;
}

void FileWriter::PushSound(int track, BufferHandle samples)
{
    Push(m_sound[static_cast<std::size_t>(track)], std::move(samples));
}

void FileWriter::EndStreams()
{
    for (auto* picture : m_pictures) {
        gst_app_src_end_of_stream(GST_APP_SRC(picture));
    }
    for (auto* sound : m_sound) {
        gst_app_src_end_of_stream(GST_APP_SRC(sound));
    }
}

void FileWriter::Stop()
{
    if (m_pipeline != nullptr) {
        m_pipeline->Stop();
    }
}

} // namespace Zentor::Capture
