// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

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
constexpr std::chrono::seconds OpeningLimit(10);

} // namespace

X11Source::X11Source(const QRect& area, bool isPointerVisible, int framesPerSecond)
    : CaptureSource(framesPerSecond)
    , m_place(area)
    , m_isPointerVisible(isPointerVisible)
    , m_earlierLosses(DisplayLoss::Count())
    , m_isWholeDisplay(m_display.Geometry() == area)
{
    connect(&m_loss, &DisplayLoss::Happened, this, &X11Source::NoteLoss);
    connect(this, &CaptureSource::Opened, &m_openingLimit, &QTimer::stop);
    connect(&m_openingLimit, &QTimer::timeout, this, [this] {
        Q_EMIT Failed({Code::NoDisplay, tr("the display shows no picture")});
    });
    m_openingLimit.setSingleShot(true);
}

void X11Source::Open()
{
    // With XDamage on it takes half as much processor time again, and delivers fewer frames.
    if (!Create(QStringLiteral("ximagesrc name=screen use-damage=false"))) {
        return;
    }
    auto* screen = Elements().Element("screen");
    g_object_set(screen, "show-pointer", gboolean(m_isPointerVisible), nullptr);
    if (!m_isWholeDisplay) {
        // Where one of the ends is outside, ximagesrc captures the whole display instead.
        g_object_set(screen, "startx", guint(m_place.left()), "starty", guint(m_place.top()),
                     "endx", guint(m_place.right()), "endy", guint(m_place.bottom()), nullptr);
    }
    const CapsHandle rate(gst_caps_new_simple("video/x-raw", "framerate", GST_TYPE_FRACTION,
                                              FramesPerSecond(), 1, nullptr));
    g_object_set(Elements().Element("rate"), "caps", rate.get(), nullptr);
    FixSize(m_place.size());
    m_openingLimit.start(OpeningLimit);
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

bool X11Source::IsFrameValid()
{
    // Beyond the screen ximagesrc delivers memory that somebody else has used.
    const bool isValid = m_isWholeDisplay || m_display.Geometry().contains(m_place);
    if (!isValid && !m_isPartMissing) {
        QMetaObject::invokeMethod(
            this,
            [this] {
                Q_EMIT Warned(tr("a part of the area is not on the screen any more; the picture "
                                 "stands still until it is"));
            },
            Qt::QueuedConnection);
    }
    m_isPartMissing = !isValid;
    return isValid;
}

void X11Source::NoteLoss()
{
    Abandon();
    Q_EMIT Failed({Code::NoDisplay, tr("the display is gone")});
}

} // namespace Zentor::Capture
