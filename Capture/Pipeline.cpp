// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "Pipeline.h"

namespace Zentor::Capture {
namespace {

const ClockHandle& SystemClock()
{
    static const ClockHandle clock(gst_system_clock_obtain());
    return clock;
}

bool IsDiskFull(const GError* error)
{
    return g_error_matches(error, GST_RESOURCE_ERROR, GST_RESOURCE_ERROR_NO_SPACE_LEFT) != 0;
}

} // namespace

GstClockTime ClockNow()
{
    return gst_clock_get_time(SystemClock().get());
}

std::unique_ptr<Pipeline> Pipeline::Parse(const QString& description, QString* error)
{
    GError* problem = nullptr;
    GstElement* bin = gst_parse_launch_full(description.toUtf8().constData(), nullptr,
                                            GST_PARSE_FLAG_FATAL_ERRORS, &problem);
    const ErrorHandle owned(problem);
    if (bin == nullptr) {
        *error = problem == nullptr ? QString() : QString::fromUtf8(problem->message);
        return nullptr;
    }
    gst_object_ref_sink(bin);
    return std::unique_ptr<Pipeline>(new Pipeline(ElementHandle(bin)));
}

Pipeline::Pipeline(ElementHandle bin)
    : m_bin(std::move(bin))
{
    gst_pipeline_use_clock(GST_PIPELINE(m_bin.get()), SystemClock().get());
    gst_element_set_base_time(m_bin.get(), 0);
    gst_element_set_start_time(m_bin.get(), GST_CLOCK_TIME_NONE);
    const BusHandle bus(gst_element_get_bus(m_bin.get()));
    gst_bus_set_sync_handler(bus.get(), &Pipeline::Note, this, nullptr);
}

Pipeline::~Pipeline()
{
    Stop();
}

GstElement* Pipeline::Element(const char* name) const
{
    GstElement* element = gst_bin_get_by_name(GST_BIN(m_bin.get()), name);
    // The bin keeps a reference of its own.
    const ElementHandle released(element);
    return element;
}

bool Pipeline::Play()
{
    return gst_element_set_state(m_bin.get(), GST_STATE_PLAYING) != GST_STATE_CHANGE_FAILURE;
}

void Pipeline::Stop()
{
    if (m_bin == nullptr) {
        return;
    }
    gst_element_set_state(m_bin.get(), GST_STATE_NULL);
    const BusHandle bus(gst_element_get_bus(m_bin.get()));
    gst_bus_set_sync_handler(bus.get(), nullptr, nullptr, nullptr);
}

void Pipeline::Abandon()
{
    const BusHandle bus(gst_element_get_bus(m_bin.get()));
    gst_bus_set_sync_handler(bus.get(), nullptr, nullptr, nullptr);
    static_cast<void>(m_bin.release());
}

GstBusSyncReply Pipeline::Note(GstBus* /*bus*/, GstMessage* message, gpointer self)
{
    auto* pipeline = static_cast<Pipeline*>(self);
    if (GST_MESSAGE_TYPE(message) == GST_MESSAGE_ERROR) {
        pipeline->NoteError(message);
    } else if (GST_MESSAGE_TYPE(message) == GST_MESSAGE_EOS) {
        QMetaObject::invokeMethod(pipeline, &Pipeline::Ended, Qt::QueuedConnection);
    }
    gst_message_unref(message);
    return GST_BUS_DROP;
}

void Pipeline::NoteError(GstMessage* message)
{
    GError* problem = nullptr;
    gst_message_parse_error(message, &problem, nullptr);
    const ErrorHandle owned(problem);
    const QString text = QString::fromUtf8(problem->message).simplified();
    const bool isDiskFull = IsDiskFull(problem);
    QMetaObject::invokeMethod(
        this,
        [this, text, isDiskFull] {
            if (!m_hasFailed) {
                m_hasFailed = true;
                Q_EMIT Failed(text, isDiskFull);
            }
        },
        Qt::QueuedConnection);
}

} // namespace Zentor::Capture
