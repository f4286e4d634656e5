// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <QObject>
#include <QString>

#include "GstHandle.h"

namespace Zentor::Capture {

/// A pipeline of GStreamer on the system's monotonic clock. Its running time is the time of that
/// clock, so that the times of all pipelines can be compared.
class Pipeline final : public QObject {
    Q_OBJECT

public:
    /// \a description is in the syntax of gst-launch. Null and \a error when an element is missing.
    static std::unique_ptr<Pipeline> Parse(const QString& description, QString* error);
    /// Stops it, which waits for its threads.
    ~Pipeline() override;

    /// The element of that name, as long as the pipeline lives. Null when there is none.
    GstElement* Element(const char* name) const;
    GstElement* Bin() const { return m_bin.get(); }

    /// Starts it. False when an element refuses at once; later failures are announced.
    bool Play();
    /// Stops it now, whatever it still has to write.
    void Stop();
    /// Leaves it as it is for the rest of the process: one of its threads hangs, and stopping it
    /// would wait for that. Nothing is announced any more.
    void Abandon();

Q_SIGNALS:
    /// An element has failed. Sent by the event loop, once.
    void Failed(const QString& text, bool isDiskFull);
    /// Everything up to the end of the stream has arrived at its end. Sent by the event loop.
    void Ended();

private:
    explicit Pipeline(ElementHandle bin);
    static GstBusSyncReply Note(GstBus* bus, GstMessage* message, gpointer self);
    void NoteError(GstMessage* message);

    ElementHandle m_bin;
    bool m_hasFailed = false;
};

/// Now on the clock of the pipelines, in nanoseconds.
GstClockTime ClockNow();

} // namespace Zentor::Capture
