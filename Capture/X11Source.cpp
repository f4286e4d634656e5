#include "X11Source.h"

#include <chrono>
#include <future>
#include <memory>
#include <thread>

#include "Pipeline.h"
#include "Protocol.h"

namespace Zentor::Capture {
namespace {

constexpr std::chrono::milliseconds CheckInterval(20);

} // namespace

X11Source::X11Source(const QRect& area, bool isPointerVisible, int framesPerSecond)
    : CaptureSource(framesPerSecond)
    , m_place(area)
    , m_isPointerVisible(isPointerVisible)
    , m_earlierLosses(DisplayLoss::Count())
{
    connect(&m_loss, &DisplayLoss::Happened, this, &X11Source::NoteLoss);
}

void X11Source::Open()
{
    // With XDamage on it takes half as much processor time again, and delivers fewer frames.
    if (!Create(QStringLiteral("ximagesrc name=screen use-damage=false"))) {
        return;
    }
    // Where one of the ends is outside, ximagesrc captures the whole screen instead.
    g_object_set(Elements().Element("screen"), "show-pointer", gboolean(m_isPointerVisible),
                 "startx", guint(m_place.left()), "starty", guint(m_place.top()), "endx",
                 guint(m_place.right()), "endy", guint(m_place.bottom()), nullptr);
    const CapsHandle rate(gst_caps_new_simple("video/x-raw", "framerate", GST_TYPE_FRACTION,
                                              FramesPerSecond(), 1, nullptr));
    g_object_set(Elements().Element("rate"), "caps", rate.get(), nullptr);
    FixSize(m_place.size());
    Play();
}

void X11Source::Close()
{
    if (!IsCreated()) {
        return;
    }
    // Closing the display asks the server once more. The thread that does it hangs when the server
    // is gone by then.
    const auto stopped = std::make_shared<std::promise<void>>();
    auto isStopped = stopped->get_future();
    if (DisplayLoss::Count() == m_earlierLosses) {
        std::thread([stopped, pipeline = &Elements()] {
            pipeline->Stop();
            stopped->set_value();
        }).detach();
    }
    while (DisplayLoss::Count() == m_earlierLosses
           && isStopped.wait_for(CheckInterval) != std::future_status::ready) { }
    if (DisplayLoss::Count() == m_earlierLosses) {
        CaptureSource::Close();
    } else {
        Abandon();
    }
}

void X11Source::NoteLoss()
{
    Abandon();
    Q_EMIT Failed({Code::NoDisplay, tr("the display is gone")});
}

} // namespace Zentor::Capture
