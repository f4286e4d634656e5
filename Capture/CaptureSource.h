// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <atomic>
#include <memory>
#include <mutex>
#include <optional>

#include <QObject>
#include <QRect>
#include <QSize>

#include <gst/app/gstappsink.h>

#include "Failure.h"
#include "GstHandle.h"

namespace Zentor::Capture {

class Pipeline;

/// A moving picture that can be recorded. It delivers frames whenever it has some, or none at all
/// for a while; each is of the size and in the format that the first one was.
class CaptureSource : public QObject {
    Q_OBJECT

public:
    ~CaptureSource() override;

    /// Begins to deliver frames. Opened() or Failed() follows.
    virtual void Open() = 0;
    /// Ends the delivery.
    virtual void Close();

    /// Even in both directions. Known once it is open.
    QSize FrameSize() const;
    /// The caps of every frame. Known once it is open.
    CapsHandle Format() const;
    /// The newest frame, or null when there was none since the last call. Safe to call from another
    /// thread.
    SampleHandle TakeFrame();

Q_SIGNALS:
    /// The first frame is there.
    void Opened();
    /// It could not be opened, or cannot go on.
    void Failed(const Failure& failure);
    /// It goes on, but not with the picture that it should have.
    void Warned(const QString& text);

protected:
    explicit CaptureSource(int framesPerSecond);

    /// Whether the frame that has just been captured is a picture of the screen. Called from the
    /// thread that captures.
    virtual bool IsFrameValid() { return true; }

    int FramesPerSecond() const { return m_framesPerSecond; }
    /// The description of a pipeline that brings what \a source delivers to a size of its own,
    /// which FixSize() sets, and to the format of the encoders. In between, an area is cut out.
    static QString Description(const QString& source);
    bool Create(const QString& source);
    bool Play();
    bool IsCreated() const { return m_pipeline != nullptr; }
    Pipeline& Elements() { return *m_pipeline; }
    /// From now on every frame has this size, scaled with black bars where it must be.
    void FixSize(const QSize& size);
    /// Cuts \a area, or as much as can be encoded, out of the first frame's size, and fixes the
    /// size to what is left of it.
    void CutFromFirstSize(const std::optional<QRect>& area);
    /// The pipeline hangs in a call that never returns.
    void Abandon();

private:
    static GstFlowReturn Keep(GstAppSink* sink, gpointer self);
    static GstPadProbeReturn CutOnFormat(GstPad* pad, GstPadProbeInfo* info, gpointer self);
    void Cut(const QSize& size);

    const int m_framesPerSecond;
    std::unique_ptr<Pipeline> m_pipeline;
    std::optional<QRect> m_area;
    std::atomic<bool> m_hasFormat = false;
    mutable std::mutex m_mutex;
    SampleHandle m_newest;
    CapsHandle m_format;
};

} // namespace Zentor::Capture
