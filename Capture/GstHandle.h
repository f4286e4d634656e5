// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <gst/gst.h>

namespace Zentor::Capture {

struct ReleaseObject {
    void operator()(gpointer object) const { gst_object_unref(object); }
};
struct ReleaseMiniObject {
    template <typename T> void operator()(T* object) const
    {
        gst_mini_object_unref(GST_MINI_OBJECT_CAST(object));
    }
};
struct ReleaseMemory {
    void operator()(gpointer memory) const { g_free(memory); }
};
struct ReleaseError {
    void operator()(GError* error) const { g_error_free(error); }
};

/// One reference to an object of GStreamer each.
using ElementHandle = std::unique_ptr<GstElement, ReleaseObject>;
using PadHandle = std::unique_ptr<GstPad, ReleaseObject>;
using BusHandle = std::unique_ptr<GstBus, ReleaseObject>;
using ClockHandle = std::unique_ptr<GstClock, ReleaseObject>;
using FactoryHandle = std::unique_ptr<GstElementFactory, ReleaseObject>;
using CapsHandle = std::unique_ptr<GstCaps, ReleaseMiniObject>;
using SampleHandle = std::unique_ptr<GstSample, ReleaseMiniObject>;
using BufferHandle = std::unique_ptr<GstBuffer, ReleaseMiniObject>;
using TextHandle = std::unique_ptr<gchar, ReleaseMemory>;
using ErrorHandle = std::unique_ptr<GError, ReleaseError>;

} // namespace Zentor::Capture
