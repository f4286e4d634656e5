// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "PacketReader.h"

#include "Pipeline.h"

namespace Zentor::Capture {

PacketReader::PacketReader(QString file, bool isMp4)
    : m_file(std::move(file))
    , m_isMp4(isMp4)
{
}

PacketReader::~PacketReader() = default;

void PacketReader::Count()
{
    Run({}, {});
}

void PacketReader::CopyTo(const QString& location, bool asMp4)
{
    Run(QStringLiteral(" %1 name=mux ! filesink name=sink sync=false async=false")
            .arg(asMp4 ? QStringLiteral("mp4mux") : QStringLiteral("matroskamux")),
        location);
}

PacketReader::Counts PacketReader::Packets() const
{
    const std::lock_guard lock(m_mutex);
    return m_packets;
}

void PacketReader::Run(const QString& description, const QString& location)
{
    QString error;
    m_pipeline = Pipeline::Parse(
        QStringLiteral("filesrc name=file ! %1 name=demuxer%2")
            .arg(m_isMp4 ? QStringLiteral("qtdemux") : QStringLiteral("matroskademux"),
                 description),
        &error);
    if (m_pipeline == nullptr) {
        Q_EMIT Failed(error);
        return;
    }
    g_object_set(m_pipeline->Element("file"), "location", m_file.toUtf8().constData(), nullptr);
    if (!location.isEmpty()) {
        g_object_set(m_pipeline->Element("sink"), "location", location.toUtf8().constData(),
                     nullptr);
    }
    g_signal_connect(m_pipeline->Element("demuxer"), "pad-added",
                     G_CALLBACK(&PacketReader::LinkTrack), this);
    connect(m_pipeline.get(), &Pipeline::Ended, this, &PacketReader::Finished);
    connect(m_pipeline.get(), &Pipeline::Failed, this, &PacketReader::Failed);
    if (!m_pipeline->Play()) {
        Q_EMIT Failed(tr("%1 cannot be read").arg(m_file));
    }
}

void PacketReader::LinkTrack(GstElement* demuxer, GstPad* pad, gpointer self)
{
    auto* reader = static_cast<PacketReader*>(self);
    auto* bin = GST_BIN(reader->m_pipeline->Bin());
    auto* muxer = reader->m_pipeline->Element("mux");
    GstElement* next = gst_element_factory_make(muxer == nullptr ? "fakesink" : "queue", nullptr);
    if (muxer == nullptr) {
        g_object_set(next, "async", FALSE, "sync", FALSE, nullptr);
    } else {
        // The muxer waits for the slowest track.
        g_object_set(next, "max-size-buffers", 0U, "max-size-bytes", 0U, "max-size-time",
                     guint64(0), nullptr);
    }
    gst_bin_add(bin, next);
    const TextHandle name(gst_pad_get_name(pad));
    gst_element_link_pads(demuxer, name.get(), next, "sink");
    if (muxer != nullptr) {
        gst_element_link(next, muxer);
    }
    gst_element_sync_state_with_parent(next);
    gst_pad_add_probe(pad, GST_PAD_PROBE_TYPE_BUFFER, &PacketReader::CountPacket, self, nullptr);
}

GstPadProbeReturn PacketReader::CountPacket(GstPad* pad, GstPadProbeInfo* /*info*/, gpointer self)
{
    auto* reader = static_cast<PacketReader*>(self);
    const TextHandle name(gst_pad_get_name(pad));
    const std::lock_guard lock(reader->m_mutex);
    ++reader->m_packets[QString::fromUtf8(name.get())];
    return GST_PAD_PROBE_OK;
}

} // namespace Zentor::Capture
