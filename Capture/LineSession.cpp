// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "LineSession.h"

#include <unistd.h>

#include <QCoreApplication>

#include "Encoders.h"
#include "LineRequest.h"

namespace Zentor::Capture {
namespace {

constexpr int ProgressMilliseconds = 1000;

void AddTo(QJsonObject& event, const Recording::Progress& progress)
{
    event.insert(QStringLiteral("ms"), qint64(progress.milliseconds));
    event.insert(QStringLiteral("bytes"), qint64(progress.bytes));
    event.insert(QStringLiteral("frames"), qint64(progress.frames.pushed));
    event.insert(QStringLiteral("duplicated"), qint64(progress.frames.duplicated));
    event.insert(QStringLiteral("dropped"), qint64(progress.frames.dropped));
}

} // namespace

LineSession::LineSession()
    : m_channel(STDIN_FILENO, STDOUT_FILENO)
{
    connect(&m_channel, &LineChannel::Received, this, &LineSession::Obey);
    connect(&m_channel, &LineChannel::Misunderstood, this, [this](const QString& reason) {
        SendFailure(Code::BadLine, reason, QJsonValue::Undefined);
    });
    connect(&m_channel, &LineChannel::Ended, this, [this] { Leave(Reason::ClientGone); });
    connect(&m_signals, &StopSignals::Received, this, [this] { Leave(Reason::Stopped); });
    connect(&m_progress, &QTimer::timeout, this, &LineSession::SendProgress);
    m_progress.setTimerType(Qt::PreciseTimer);
    m_channel.Send(
        {{QStringLiteral("event"), Event::Hello}, {QStringLiteral("version"), ProtocolVersion}});
}

LineSession::~LineSession() = default;

void LineSession::Obey(const QJsonObject& line)
{
    const QString command = line.value(QLatin1String("cmd")).toString();
    if (command == Command::Probe) {
        m_channel.Send({{QStringLiteral("event"), Event::Encoders},
                        {QStringLiteral("list"), EncoderStates()}});
    } else if (command == Command::Prepare) {
        Prepare(line);
    } else if (command == Command::Quit) {
        Leave(Reason::Quit);
    } else {
        Control(command, line);
    }
}

void LineSession::Prepare(const QJsonObject& line)
{
    const QJsonValue id = line.value(QLatin1String("id"));
    if (m_recording != nullptr) {
        SendFailure(Code::Busy, tr("another recording is prepared or runs"), id);
        return;
    }
    QString problem;
    const auto request = ReadRequest(line, &problem);
    if (!request) {
        SendFailure(Code::BadLine, problem, id);
        return;
    }
    m_id = id;
    m_recording = std::make_unique<Recording>(*request);
    Connect();
    m_recording->Prepare();
}

void LineSession::Control(const QString& command, const QJsonObject& line)
{
    static const QStringList commands{Command::Start, Command::Stop, Command::Pause,
                                      Command::Resume, Command::Cancel};
    const QJsonValue id = line.value(QLatin1String("id"));
    if (!commands.contains(command)) {
        SendFailure(Code::BadLine, tr("there is no command \"%1\"").arg(command), id);
    } else if (m_recording == nullptr || (!id.isUndefined() && id != m_id)) {
        SendFailure(Code::NoRecording, tr("there is no such recording"), id);
    } else if (command == Command::Start) {
        m_recording->Start(NumberIn(line, "atUs"), NumberIn(line, "durationUs"));
    } else if (command == Command::Stop) {
        m_recording->Stop(Reason::Stopped);
    } else if (command == Command::Pause) {
        m_recording->Pause();
    } else if (command == Command::Resume) {
        m_recording->Resume();
    } else {
        m_recording->Cancel();
    }
}

void LineSession::Connect()
{
    auto* recording = m_recording.get();
    connect(recording, &Recording::Ready, this, [this](double tookMilliseconds) {
        auto event = EventOf(Event::Ready);
        event.insert(QStringLiteral("tookMs"), tookMilliseconds);
        m_channel.Send(event);
    });
    connect(recording, &Recording::Begun, this, [this](qint64 wallMicroseconds) {
        auto event = EventOf(Event::Recording);
        event.insert(QStringLiteral("wallUs"), wallMicroseconds);
        m_channel.Send(event);
        m_progress.start(ProgressMilliseconds);
    });
    connect(recording, &Recording::Warned, this, [this](const QString& text) {
        auto event = EventOf(Event::Warning);
        event.insert(QStringLiteral("text"), text);
        m_channel.Send(event);
    });
    connect(recording, &Recording::Cancelled, this,
            [this] { Conclude(EventOf(Event::Cancelled)); });
    connect(recording, &Recording::Finished, this, [this](QLatin1String reason) {
        const auto progress = m_recording->CurrentProgress();
        auto event = EventOf(Event::Finished);
        event.insert(QStringLiteral("file"), m_recording->Request().file);
        event.insert(QStringLiteral("reason"), reason);
        AddTo(event, progress);
        Conclude(event);
    });
    connect(recording, &Recording::Failed, this, [this](const Failure& failure) {
        auto event = EventOf(Event::Failed);
        event.insert(QStringLiteral("code"), failure.code);
        event.insert(QStringLiteral("text"), failure.text);
        Conclude(event);
    });
}

void LineSession::Leave(QLatin1String reason)
{
    if (m_isLeaving) {
        return;
    }
    m_isLeaving = true;
    if (m_recording != nullptr) {
        m_recording->Stop(reason);
    } else {
        m_channel.Flush();
        Q_EMIT Ended();
    }
}

void LineSession::Conclude(const QJsonObject& event)
{
    m_progress.stop();
    m_channel.Send(event);
    // It is one of the recording's own signals that has led here.
    m_recording.release()->deleteLater();
    if (m_isLeaving) {
        m_channel.Flush();
        Q_EMIT Ended();
    }
}

void LineSession::SendProgress()
{
    const auto progress = m_recording->CurrentProgress();
    auto event = EventOf(Event::Progress);
    event.insert(QStringLiteral("free"), qint64(progress.free));
    AddTo(event, progress);
    m_channel.Send(event);
}

void LineSession::SendFailure(QLatin1String code, const QString& text, const QJsonValue& id)
{
    QJsonObject event{{QStringLiteral("event"), Event::Failed},
                      {QStringLiteral("code"), code},
                      {QStringLiteral("text"), text}};
    if (!id.isUndefined()) {
        event.insert(QStringLiteral("id"), id);
    }
    m_channel.Send(event);
}

QJsonObject LineSession::EventOf(QLatin1String name) const
{
    QJsonObject event{{QStringLiteral("event"), name}};
    if (!m_id.isUndefined()) {
        event.insert(QStringLiteral("id"), m_id);
    }
    return event;
}

} // namespace Zentor::Capture
