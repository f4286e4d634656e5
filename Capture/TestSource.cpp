// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "TestSource.h"

#include "Pipeline.h"

namespace Zentor::Capture {

TestSource::TestSource(const QSize& size, int framesPerSecond)
    : CaptureSource(framesPerSecond)
    , m_size(size)
{
}

void TestSource::Open()
{
    if (!Create(QStringLiteral("videotestsrc is-live=true pattern=ball"))) {
        return;
    }
    const CapsHandle rate(gst_caps_new_simple(
        "video/x-raw", "framerate", GST_TYPE_FRACTION, FramesPerSecond(), 1, "width", G_TYPE_INT,
        m_size.width(), "height", G_TYPE_INT, m_size.height(), nullptr));
    g_object_set(Elements().Element("rate"), "caps", rate.get(), nullptr);
    CutFromFirstSize(std::nullopt);
    Play();
}

} // namespace Zentor::Capture
