// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RecordedTime.h"

#include <algorithm>

namespace Zentor::Capture {
namespace {

GstClockTime PositionIn(const RecordedTime::Span& span, GstClockTime now)
{
    const GstClockTime last = span.end == GST_CLOCK_TIME_NONE ? now : std::min(now, span.end);
    return span.position + (last > span.begin ? last - span.begin : 0);
}

} // namespace

void RecordedTime::Begin(GstClockTime now)
{
    const std::lock_guard lock(m_mutex);
    m_spans = {{now, GST_CLOCK_TIME_NONE, 0}};
}

void RecordedTime::Pause(GstClockTime now)
{
    const std::lock_guard lock(m_mutex);
    if (!m_spans.empty() && m_spans.back().end == GST_CLOCK_TIME_NONE) {
        m_spans.back().end = std::max(now, m_spans.back().begin);
    }
}

void RecordedTime::Resume(GstClockTime now)
{
    const std::lock_guard lock(m_mutex);
    if (!m_spans.empty() && m_spans.back().end != GST_CLOCK_TIME_NONE) {
        const Span& last = m_spans.back();
        m_spans.push_back({std::max(now, last.end), GST_CLOCK_TIME_NONE,
                           last.position + (last.end - last.begin)});
    }
}

GstClockTime RecordedTime::MomentOf(GstClockTime position) const
{
    const std::lock_guard lock(m_mutex);
    if (m_spans.empty() || m_spans.back().end != GST_CLOCK_TIME_NONE) {
        return GST_CLOCK_TIME_NONE;
    }
    const Span& last = m_spans.back();
    return last.begin + (position > last.position ? position - last.position : 0);
}

GstClockTime RecordedTime::PositionAt(GstClockTime now) const
{
    const std::lock_guard lock(m_mutex);
    return m_spans.empty() ? 0 : PositionIn(m_spans.back(), now);
}

std::vector<RecordedTime::Span> RecordedTime::Spans() const
{
    const std::lock_guard lock(m_mutex);
    return m_spans;
}

} // namespace Zentor::Capture
