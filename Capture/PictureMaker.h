// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <mutex>

#include <QObject>
#include <QString>
#include <QTimer>

#include <gst/app/gstappsink.h>

#include "Failure.h"
#include "GstHandle.h"

namespace Zentor::Capture {

class Pipeline;

/// Makes a small picture of a recording: of what it shows after a second, or at its end where that
/// comes first.
class PictureMaker final : public QObject {
    Q_OBJECT

public:
    /// \a picture is written as PNG. An existing file is left alone.
    PictureMaker(QString file, QString picture);
    ~PictureMaker() override;

    void Start();

Q_SIGNALS:
    void Finished();
    void Failed(const Failure& failure);

private:
    static GstFlowReturn TakeFrame(GstAppSink* sink, gpointer self);
    void Keep(SampleHandle frame);
    void Conclude();
    bool WritePicture(GstSample* encoded) const;
    void Fail(const QString& reason);

    const QString m_file;
    const QString m_picture;
    std::unique_ptr<Pipeline> m_pipeline;
    QTimer m_patience;
    std::mutex m_mutex;
    SampleHandle m_frame;
    bool m_isComplete = false;
    bool m_isOver = false;
};

} // namespace Zentor::Capture
