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
constexpr guint64 QueueBytes = 512U * 1024U * 1024U;

QString Description(const QString& encoder, int soundTracks)
{
    // The sound comes a little later than the picture, which is kept encoded meanwhile.
    const QString queue = QStringLiteral("queue max-size-buffers=0 max-size-bytes=0 "
                                         "max-size-time=10000000000");
    QString description =
        QStringLiteral("appsrc name=picture format=time block=false max-bytes=0 ! %1 ! %2 ! "
                       "matroskamux name=mux offset-to-zero=true writing-app=px-recorder ! "
                       "filesink name=file buffer-mode=unbuffered sync=false async=false")
            .arg(encoder, queue);
    for (int track = 0; track < soundTracks; ++track) {
        description += QStringLiteral(" appsrc name=sound%1 format=time block=false max-bytes=0 ! "
                                      "opusenc bitrate=128000 ! %2 ! mux.")
                           .arg(track)
                           .arg(queue);
    }
    return description;
}

void Push(GstElement* source, BufferHandle buffer)
{
    gst_app_src_push_buffer(GST_APP_SRC(source), buffer.release());
}

} // namespace

FileWriter::FileWriter() = default;
FileWriter::~FileWriter() = default;

std::optional<Failure> FileWriter::Open(const OutputFile& file, const QString& encoder,
                                        const CapsHandle& format, int soundTracks)
{
    QString error;
    m_pipeline = Pipeline::Parse(Description(encoder, soundTracks), &error);
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
    SetUp(format, soundTracks);
    if (!m_pipeline->Play()) {
        return Failure{Code::Pipeline, tr("the file %1 cannot be written").arg(file.Path())};
    }
    return std::nullopt;
}

void FileWriter::SetUp(const CapsHandle& format, int soundTracks)
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
    m_picture = m_pipeline->Element("picture");
    g_object_set(m_picture, "caps", format.get(), nullptr);
    const CapsHandle sound(
        gst_caps_from_string("audio/x-raw,format=S16LE,rate=48000,channels=2,layout=interleaved"));
    for (int track = 0; track < soundTracks; ++track) {
        const QByteArray name = QByteArrayLiteral("sound") + QByteArray::number(track);
        m_sound.push_back(m_pipeline->Element(name.constData()));
        g_object_set(m_sound.back(), "caps", sound.get(), nullptr);
    }
}

bool FileWriter::PushFrame(BufferHandle frame)
{
    if (gst_app_src_get_current_level_buffers(GST_APP_SRC(m_picture)) >= m_longestQueue) {
        return false;
    }
    Push(m_picture, std::move(frame));
    return true;
}

void FileWriter::PushSound(int track, BufferHandle samples)
{
    Push(m_sound[static_cast<std::size_t>(track)], std::move(samples));
}

void FileWriter::EndStreams()
{
    gst_app_src_end_of_stream(GST_APP_SRC(m_picture));
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
