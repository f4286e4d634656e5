// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <QObject>
#include <QStringList>

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

    /// \a encoders are descriptions of one each, the slowest first: when it falls behind, the next
    /// one takes over. \a format are the caps of all frames.
    std::optional<Failure> Open(const OutputFile& file, const QStringList& encoders,
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
    /// The encoder was too slow for this machine, and a faster one has taken over.
    void SteppedDown();

private:
    void SetUp(const CapsHandle& format);
    void SetUpSound(int tracks);

    std::unique_ptr<Pipeline> m_pipeline;
    /// One for each encoder; frames go to the first one.
    std::vector<GstElement*> m_pictures;
    std::vector<GstElement*> m_sound;
    guint64 m_longestQueue = 0;
};

} // namespace Zentor::Capture
