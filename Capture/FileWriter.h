#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <QObject>

#include "Failure.h"
#include "GstHandle.h"

namespace Zentor::Capture {

class OutputFile;
class Pipeline;

/// Encodes frames and sound into a Matroska file, which can be played at any moment while it grows.
class FileWriter final : public QObject {
    Q_OBJECT

public:
    FileWriter();
    ~FileWriter() override;

    /// \a encoder is the description of one; \a format the caps of all frames.
    std::optional<Failure> Open(const OutputFile& file, const QString& encoder,
                                const CapsHandle& format, int soundTracks);

    /// Takes a frame. False when the encoder is two seconds behind: the frame is lost. Safe to call
    /// from another thread, as are the other two.
    bool PushFrame(BufferHandle frame);
    void PushSound(int track, BufferHandle samples);
    /// Nothing more is to come: Closed() follows when everything has been written.
    void EndStreams();

    /// Stops writing now; the file is left as it is.
    void Stop();

Q_SIGNALS:
    void Closed();
    void Failed(const Failure& failure);

private:
    void SetUp(const CapsHandle& format, int soundTracks);

    std::unique_ptr<Pipeline> m_pipeline;
    GstElement* m_picture = nullptr;
    std::vector<GstElement*> m_sound;
    guint64 m_longestQueue = 0;
};

} // namespace Zentor::Capture
