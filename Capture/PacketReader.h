// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <map>
#include <memory>
#include <mutex>

#include <QObject>
#include <QString>

#include "GstHandle.h"

namespace Zentor::Capture {

class Pipeline;

/// Reads a Matroska or MP4 file from its begin to its end, counts the packets of each track, and
/// copies them into another file if that is wanted.
class PacketReader final : public QObject {
    Q_OBJECT

public:
    /// How many packets each track has, by its kind and number: "video_0", "audio_1".
    using Counts = std::map<QString, std::int64_t>;

    /// \a isMp4: what is read; Matroska otherwise.
    PacketReader(QString file, bool isMp4);
    ~PacketReader() override;

    void Count();
    /// \a location is where a sink writes to, as Matroska or as MP4.
    void CopyTo(const QString& location, bool asMp4);
    /// Complete once it is finished.
    Counts Packets() const;

Q_SIGNALS:
    void Finished();
    void Failed(const QString& text);

private:
    void Run(const QString& description, const QString& location);
    static void LinkTrack(GstElement* demuxer, GstPad* pad, gpointer self);
    static GstPadProbeReturn CountPacket(GstPad* pad, GstPadProbeInfo* info, gpointer self);

    const QString m_file;
    const bool m_isMp4;
    std::unique_ptr<Pipeline> m_pipeline;
    mutable std::mutex m_mutex;
    Counts m_packets;
};

} // namespace Zentor::Capture
