// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include <QObject>
#include <QString>

#include <gst/app/gstappsink.h>

namespace Zentor::Capture {

class Pipeline;

/// What one device of the sound server hears, and no other one: when the device goes away the input
/// closes, instead of going on with whatever the server puts in its place.
class SoundInput final : public QObject {
    Q_OBJECT

public:
    static constexpr int Rate = 48000;
    static constexpr int Channels = 2;

    /// Takes \a count frames, a sample for each channel, that were recorded from the time \a start
    /// of the device on. Called by a thread of the input.
    using Take =
        std::function<void(GstClockTime start, const std::int16_t* samples, std::int64_t count)>;

    SoundInput(QString device, Take take);
    ~SoundInput() override;

    const QString& Device() const { return m_device; }
    /// Begins to listen. False when the device cannot be opened. Asked for a device that it does
    /// not have, the sound server takes another one: see that it is there before.
    bool Open();
    /// Ends that; nothing is taken any more when it returns.
    void Close();
    bool IsOpen() const { return m_isOpen; }

Q_SIGNALS:
    /// The input has been closed, for the \a reason that the user is told.
    void Lost(const QString& reason);

private:
    void CheckDevice();
    void Lose(const QString& reason);
    static GstFlowReturn Keep(GstAppSink* sink, gpointer self);

    const QString m_device;
    const Take m_take;
    std::unique_ptr<Pipeline> m_pipeline;
    bool m_isOpen = false;
    bool m_isChecked = false;
};

} // namespace Zentor::Capture
