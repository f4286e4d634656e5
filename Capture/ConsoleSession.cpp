// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "ConsoleSession.h"

#include <cstdio>

#include <unistd.h>

#include <QLocale>
#include <QTime>

namespace Zentor::Capture {
namespace {

constexpr int ProgressMilliseconds = 1000;
/// Returns to the begin of the line and deletes it.
constexpr const char* ClearLine = "\r\x1b[K";

void Write(const QString& text)
{
    const QByteArray bytes = text.toLocal8Bit();
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stderr);
    std::fflush(stderr);
}

QString SizeText(std::int64_t bytes)
{
    return bytes < 0 ? QStringLiteral("?") : QLocale().formattedDataSize(bytes);
}

QString TimeText(std::int64_t milliseconds)
{
    constexpr std::int64_t secondsOfHour = 3600;
    constexpr std::int64_t secondsOfMinute = 60;
    const std::int64_t seconds = milliseconds / 1000;
    const auto twoDigits = [](std::int64_t number) {
        return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
    };
    return QStringLiteral("%1:%2:%3")
        .arg(seconds / secondsOfHour)
        .arg(twoDigits(seconds / secondsOfMinute % secondsOfMinute),
             twoDigits(seconds % secondsOfMinute));
}

} // namespace

void SayToUser(const QString& text)
{
    Write(QStringLiteral("px-recorder: %1\n").arg(text.simplified()));
}

ConsoleSession::ConsoleSession(const RecordingRequest& request, std::int64_t durationMicroseconds)
    : m_durationMicroseconds(durationMicroseconds)
    , m_isTerminal(isatty(STDERR_FILENO) != 0)
    , m_recording(request)
{
    connect(&m_recording, &Recording::Warned, this,
            [this](const QString& text) { Say(tr("warning: %1").arg(text)); });
    connect(&m_recording, &Recording::Begun, this, [this] {
        if (m_isTerminal) {
            m_progress.start(ProgressMilliseconds);
        }
    });
    connect(&m_recording, &Recording::Finished, this, [this] {
        ClearProgress();
        const auto dropped = m_recording.CurrentProgress().frames.dropped;
        if (dropped > 0) {
            SayToUser(tr("warning: %1 frames were dropped").arg(dropped));
        }
        Q_EMIT Ended(EXIT_SUCCESS);
    });
    connect(&m_recording, &Recording::Failed, this, [this](const Failure& failure) {
        Say(failure.text);
        Q_EMIT Ended(EXIT_FAILURE);
    });
    connect(&m_signals, &StopSignals::Received, this,
            [this] { m_recording.Stop(Reason::Stopped); });
    connect(&m_progress, &QTimer::timeout, this, &ConsoleSession::ShowProgress);
}

void ConsoleSession::Start()
{
    m_recording.Start(0, m_durationMicroseconds);
    m_recording.Prepare();
}

void ConsoleSession::ShowProgress()
{
    const auto progress = m_recording.CurrentProgress();
    Write(QLatin1String(ClearLine)
          + tr("%1  %2  (%3 free)  %4 frames, %5 dropped")
                .arg(TimeText(progress.milliseconds), SizeText(progress.bytes),
                     SizeText(progress.free))
                .arg(progress.frames.pushed)
                .arg(progress.frames.dropped));
}

void ConsoleSession::ClearProgress()
{
    m_progress.stop();
    if (m_isTerminal) {
        Write(QLatin1String(ClearLine));
    }
}

void ConsoleSession::Say(const QString& text)
{
    if (m_isTerminal) {
        Write(QLatin1String(ClearLine));
    }
    SayToUser(text);
}

} // namespace Zentor::Capture
