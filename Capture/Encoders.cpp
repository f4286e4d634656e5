// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "Encoders.h"

#include <QHash>

#include "GstHandle.h"

namespace Zentor::Capture {
namespace {

constexpr int KeyFrameSeconds = 2;

/// The constant quality that x264, openh264 and the hardware have in common. Lower is better.
int QuantizerOf(Quality quality)
{
    return quality == Quality::Small ? 28 : quality == Quality::High ? 18 : 23;
}

std::int64_t BitRateOf(const Encoding& encoding)
{
    return MaximumBitRate(encoding.size.width(), encoding.size.height(), encoding.framesPerSecond,
                          encoding.quality);
}

QString X264(const Encoding& encoding)
{
    // pass=qual obeys the bit rate, too, whose default would make all qualities the same. The
    // options make the parameter sets of both speeds the same, so that one can follow the other in
    // a file.
    return QStringLiteral("x264enc speed-preset=%1 pass=qual quantizer=%2 bitrate=%3"
                          " vbv-buf-capacity=2000 bframes=0 key-int-max=%4 rc-lookahead=0"
                          " sync-lookahead=0"
                          " option-string=weightp=0:cabac=1:8x8dct=1 ! video/x-h264,profile=high")
        .arg(encoding.isFast ? QStringLiteral("ultrafast") : QStringLiteral("superfast"))
        .arg(QuantizerOf(encoding.quality))
        .arg(BitRateOf(encoding) / 1000)
        .arg(encoding.framesPerSecond * KeyFrameSeconds);
}

QString Hardware(const QString& name, const Encoding& encoding)
{
    return QStringLiteral("videoconvert ! %1 rate-control=vbr bitrate=%2 key-int-max=%3 b-frames=0"
                          " ! h264parse")
        .arg(name)
        .arg(BitRateOf(encoding) / 1000)
        .arg(encoding.framesPerSecond * KeyFrameSeconds);
}

QString Vp9(const Encoding& encoding)
{
    return QStringLiteral("vp9enc deadline=1 cpu-used=9 end-usage=cq cq-level=%1 target-bitrate=%2"
                          " keyframe-max-dist=%3 lag-in-frames=0 threads=4 row-mt=true")
        .arg(QuantizerOf(encoding.quality))
        .arg(BitRateOf(encoding))
        .arg(encoding.framesPerSecond * KeyFrameSeconds);
}

QString OpenH264(const Encoding& encoding)
{
    return QStringLiteral("openh264enc complexity=low rate-control=quality bitrate=%1"
                          " qp-min=%2 qp-max=%3 gop-size=%4 ! h264parse")
        .arg(BitRateOf(encoding))
        .arg(QuantizerOf(encoding.quality) - 4)
        .arg(QuantizerOf(encoding.quality) + 8)
        .arg(encoding.framesPerSecond * KeyFrameSeconds);
}

bool IsInstalled(const QString& name)
{
    return FactoryHandle(gst_element_factory_find(name.toUtf8().constData())) != nullptr;
}

bool TryEncoding(const QString& name)
{
    const Encoding encoding{QSize(320, 240)};
    const QString description =
        QStringLiteral("videotestsrc num-buffers=3 ! "
                       "video/x-raw,format=I420,width=320,height=240,framerate=30/1 ! %1 ! "
                       "matroskamux ! fakesink sync=false")
            .arg(EncoderDescription(name, encoding));
    GError* problem = nullptr;
    GstElement* parsed = gst_parse_launch_full(description.toUtf8().constData(), nullptr,
                                               GST_PARSE_FLAG_FATAL_ERRORS, &problem);
    const ErrorHandle owned(problem);
    if (parsed == nullptr) {
        return false;
    }
    const ElementHandle pipeline(static_cast<GstElement*>(gst_object_ref_sink(parsed)));
    const BusHandle bus(gst_element_get_bus(parsed));
    gst_element_set_state(parsed, GST_STATE_PLAYING);
    constexpr GstClockTime patience = 5 * GST_SECOND;
    const std::unique_ptr<GstMessage, ReleaseMiniObject> message(gst_bus_timed_pop_filtered(
        bus.get(), patience, static_cast<GstMessageType>(GST_MESSAGE_EOS | GST_MESSAGE_ERROR)));
    gst_element_set_state(parsed, GST_STATE_NULL);
    return message != nullptr && GST_MESSAGE_TYPE(message.get()) == GST_MESSAGE_EOS;
}

} // namespace

QStringList EncoderNames()
{
    return {QStringLiteral("vah264enc"), QStringLiteral("vah264lpenc"), QStringLiteral("x264enc"),
            QStringLiteral("vp9enc"), QStringLiteral("openh264enc")};
}

QString EncoderDescription(const QString& name, const Encoding& encoding)
{
    if (name == QLatin1String("x264enc")) {
        return X264(encoding);
    }
    if (name == QLatin1String("vp9enc")) {
        return Vp9(encoding);
    }
    return name == QLatin1String("openh264enc") ? OpenH264(encoding) : Hardware(name, encoding);
}

bool HasFastMode(const QString& name)
{
    return name == QLatin1String("x264enc");
}

bool DoesEncoderWork(const QString& name)
{
    static QHash<QString, bool> known;
    if (!IsInstalled(name)) {
        return false;
    }
    if (!known.contains(name)) {
        known.insert(name, TryEncoding(name));
    }
    return known.value(name);
}

bool IsForMp4(const QString& name)
{
    // An MP4 needs to know more of VP9 than a Matroska file tells.
    return name != QLatin1String("vp9enc");
}

QString BestEncoder(bool isForMp4)
{
    const auto names = EncoderNames();
    const auto best = std::find_if(names.begin(), names.end(), [&](const QString& name) {
        return (!isForMp4 || IsForMp4(name)) && DoesEncoderWork(name);
    });
    return best == names.end() ? QString() : *best;
}

QJsonObject EncoderStates()
{
    QJsonObject states;
    const auto names = EncoderNames();
    for (const auto& name : names) {
        states.insert(name,
                      DoesEncoderWork(name)   ? QStringLiteral("works")
                          : IsInstalled(name) ? QStringLiteral("fails")
                                              : QStringLiteral("missing"));
    }
    return states;
}

} // namespace Zentor::Capture
