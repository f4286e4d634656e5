// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <QJsonObject>
#include <QJsonValue>
#include <QObject>
#include <QTimer>

#include "LineChannel.h"
#include "Recording.h"
#include "StopSignals.h"

namespace Zentor::Capture {

/// Does what the lines on standard input say, one recording after another, and tells on standard
/// output what happens.
class LineSession final : public QObject {
    Q_OBJECT

public:
    LineSession();
    ~LineSession() override;

Q_SIGNALS:
    /// Everything is closed and told.
    void Ended();

private:
    void Obey(const QJsonObject& line);
    void Prepare(const QJsonObject& line);
    void Control(const QString& command, const QJsonObject& line);
    void Connect();
    void Leave(QLatin1String reason);
    void Conclude(const QJsonObject& event);
    void SendProgress();
    void SendFailure(QLatin1String code, const QString& text, const QJsonValue& id);
    QJsonObject EventOf(QLatin1String name) const;

    LineChannel m_channel;
    StopSignals m_signals;
    QTimer m_progress;
    std::unique_ptr<Recording> m_recording;
    /// Which recording a line is about: as the client gave it.
    QJsonValue m_id;
    bool m_isLeaving = false;
};

} // namespace Zentor::Capture
