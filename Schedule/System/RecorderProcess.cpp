// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "System/RecorderProcess.h"

#include <cmath>

#include <QJsonDocument>

#include <glog/logging.h>

#include "CoreInt/Printable.h"
#include "Protocol.h"
#include "System/BackgroundProcess.h"
#include "System/MachineClock.h"

namespace Zentor::Schedule {
namespace {

constexpr int LongestErrorLine = 1024;
/// Of a recording: a component that is in trouble says so with each frame.
constexpr int MostLoggedLines = 1000;
/// The events of a recorder carry what its "prepare" had; it gets only one.
constexpr int Id = 1;

// Seconds of silence after which the recorder hangs.
constexpr int GreetingPatience = 15;
constexpr int PreparationPatience = 30;
constexpr int FirstFramePatience = 15;
constexpr int ProgressPatience = 5;
constexpr int ClosingPatience = 20;
/// A process that waits for a broken disk cannot even be killed.
constexpr int KillPatience = 5;

qint64 NumberIn(const QJsonObject& event, const char* name, qint64 otherwise)
{
    const double number = event.value(QLatin1String(name)).toDouble(std::nan(""));
    constexpr double largest = 9e15;
    return std::abs(number) <= largest ? static_cast<qint64>(number) : otherwise;
}

QString TextIn(const QJsonObject& event, const char* name)
{
    return event.value(QLatin1String(name)).toString();
}

Length LengthIn(const QJsonObject& event)
{
    return std::chrono::milliseconds(std::max<qint64>(NumberIn(event, "ms", 0), 0));
}

RecordingProgress ProgressIn(const QJsonObject& event)
{
    return {LengthIn(event), NumberIn(event, "bytes", -1), NumberIn(event, "free", -1),
            NumberIn(event, "frames", 0), NumberIn(event, "dropped", 0)};
}

RecorderResult ResultIn(const QJsonObject& event)
{
    return {
        TextIn(event, "file"),        TextIn(event, "reason"),      LengthIn(event),
        NumberIn(event, "bytes", -1), NumberIn(event, "frames", 0), NumberIn(event, "dropped", 0)};
}

Moment FirstFrameIn(const QJsonObject& event)
{
    const qint64 microseconds = NumberIn(event, "wallUs", 0);
    return microseconds > 0 ? Moment(Length(microseconds)) : MachineClock().Now().wall;
}

/// Whether \a event is about the recording. A failure that does not say so answers a line.
bool IsOfRecording(const QString& name, const QJsonObject& event)
{
    const QJsonValue id = event.value(QLatin1String("id"));
    return id.isUndefined() ? name != Capture::Event::Failed : id == QJsonValue(Id);
}

} // namespace

RecorderProcess::RecorderProcess(const QString& program, QObject* parent)
    : QObject(parent)
    , m_program(program)
    , m_process(std::make_unique<BackgroundProcess>())
    , m_output(Capture::MaximumLineLength)
    , m_errors(LongestErrorLine)
{
    constexpr int watchMilliseconds = 1000;
    m_watch.setInterval(watchMilliseconds);
    Connect();
}

RecorderProcess::~RecorderProcess()
{
    constexpr int patienceMilliseconds = 2000;
    m_process->disconnect(this);
    if (m_process->state() != QProcess::NotRunning) {
        m_process->closeWriteChannel();
        if (!m_process->waitForFinished(patienceMilliseconds)) {
            m_process->kill();
            m_process->waitForFinished(patienceMilliseconds);
        }
    }
}

void RecorderProcess::Connect()
{
    connect(m_process.get(), &QProcess::readyReadStandardOutput, this,
            &RecorderProcess::ReadOutput);
    connect(m_process.get(), &QProcess::readyReadStandardError, this, &RecorderProcess::ReadErrors);
    // Queued: a program that is missing may be told of while it is being started.
    connect(m_process.get(), &QProcess::errorOccurred, this, &RecorderProcess::TakeProcessError,
            Qt::QueuedConnection);
    connect(m_process.get(), qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            &RecorderProcess::TakeProcessEnd);
    connect(&m_watch, &QTimer::timeout, this, &RecorderProcess::Watch);
}

void RecorderProcess::Prepare(const RecorderRequest& request)
{
    Q_ASSERT(m_state == State::Idle);
    m_request = request;
    Enter(State::Greeting);
    auto line = LineOf(request);
    line.insert(QStringLiteral("id"), Id);
    Send(line);
    m_process->start(m_program, {QStringLiteral("--lines")});
    m_watch.start();
}

void RecorderProcess::Start(std::optional<Moment> at, Length length)
{
    m_isStarted = true;
    m_startTime = at;
    m_silentSeconds = 0;
    QJsonObject line{{QStringLiteral("cmd"), Capture::Command::Start},
                     {QStringLiteral("durationUs"), qint64(length.count())}};
    if (at) {
        line.insert(QStringLiteral("atUs"), qint64(at->time_since_epoch().count()));
    }
    Send(line);
}

void RecorderProcess::Stop()
{
    m_isEnding = true;
    m_silentSeconds = 0;
    SendCommand(Capture::Command::Stop);
}

void RecorderProcess::Pause()
{
    m_isPaused = true;
    SendCommand(Capture::Command::Pause);
}

void RecorderProcess::Resume()
{
    m_isPaused = false;
    m_silentSeconds = 0;
    SendCommand(Capture::Command::Resume);
}

void RecorderProcess::Cancel()
{
    m_isEnding = true;
    m_silentSeconds = 0;
    SendCommand(Capture::Command::Cancel);
}

void RecorderProcess::Enter(State state)
{
    m_state = state;
    m_silentSeconds = 0;
}

void RecorderProcess::SendCommand(QLatin1String command)
{
    Send({{QStringLiteral("cmd"), command}});
}

void RecorderProcess::Send(const QJsonObject& line)
{
    if (m_state == State::Greeting) {
        m_pendingLines.push_back(line);
    } else if (m_state != State::Idle && m_state != State::Ended) {
        Write(line);
    }
}

void RecorderProcess::Write(const QJsonObject& line)
{
    // Its greeting may be read before it is known to have been started.
    if (m_process->state() != QProcess::NotRunning) {
        m_process->write(QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n');
    }
}

void RecorderProcess::ReadOutput()
{
    const auto lines = m_output.Take(m_process->readAllStandardOutput());
    for (const auto& line : lines) {
        Interpret(line);
    }
}

void RecorderProcess::ReadErrors()
{
    const auto lines = m_errors.Take(m_process->readAllStandardError());
    for (const auto& line : lines) {
        Log(line);
    }
}

void RecorderProcess::Log(const QByteArray& line)
{
    if (m_loggedLines < MostLoggedLines && !line.isEmpty()) {
        ++m_loggedLines;
        LOG(INFO) << "px-recorder: "
                  << Util::Printable(QString::fromUtf8(line.left(LongestErrorLine)));
    }
}

void RecorderProcess::Interpret(const QByteArray& line)
{
    const QJsonObject event = QJsonDocument::fromJson(line).object();
    const QString name = TextIn(event, "event");
    if (m_state == State::Greeting && name == Capture::Event::Hello) {
        Greet(event);
    } else if (m_state == State::Greeting || m_state == State::Ended
               || !IsOfRecording(name, event)) {
        Log(line);
    } else {
        Take(name, event);
    }
}

void RecorderProcess::Greet(const QJsonObject& event)
{
    if (NumberIn(event, "version", 0) != Capture::ProtocolVersion) {
        if (Conclude()) {
            Q_EMIT Failed(Why::NoRecorder, tr("%1 is of another version").arg(m_program));
        }
        return;
    }
    Enter(State::Preparing);
    for (const auto& line : m_pendingLines) {
        Write(line);
    }
    m_pendingLines.clear();
}

void RecorderProcess::Take(const QString& name, const QJsonObject& event)
{
    if (name == Capture::Event::Ready && m_state == State::Preparing) {
        Enter(State::Ready);
        Q_EMIT Ready();
    } else if (name == Capture::Event::Recording && m_state != State::Recording) {
        Enter(State::Recording);
        Q_EMIT Recording(FirstFrameIn(event));
    } else if (name == Capture::Event::Progress && m_state == State::Recording) {
        m_silentSeconds = 0;
        Q_EMIT Progressed(ProgressIn(event));
    } else if (name == Capture::Event::Warning) {
        Q_EMIT Warned(TextIn(event, "text"));
    } else {
        TakeEnd(name, event);
    }
}

void RecorderProcess::TakeEnd(const QString& name, const QJsonObject& event)
{
    if (name == Capture::Event::Finished && Conclude()) {
        Q_EMIT Finished(ResultIn(event));
    } else if (name == Capture::Event::Failed && Conclude()) {
        Q_EMIT Failed(TextIn(event, "code"), TextIn(event, "text"));
    } else if (name == Capture::Event::Cancelled && Conclude()) {
        Q_EMIT Cancelled();
    }
}

void RecorderProcess::TakeProcessError(QProcess::ProcessError error)
{
    if (error != QProcess::FailedToStart) {
        return;
    }
    m_watch.stop();
    if (Conclude()) {
        Q_EMIT Failed(Why::NoRecorder,
                      tr("%1 cannot be started: %2").arg(m_program, m_process->errorString()));
    }
}

void RecorderProcess::TakeProcessEnd()
{
    ReadOutput();
    ReadErrors();
    m_watch.stop();
    Log(m_errors.Rest());
    if (Conclude()) {
        const bool isCrash = m_process->exitStatus() == QProcess::CrashExit;
        const QString why = isCrash ? tr("The recorder crashed (signal %1).")
                                    : tr("The recorder ended unexpectedly (exit status %1).");
        Q_EMIT Died(m_killReason.isEmpty() ? why.arg(m_process->exitCode()) : m_killReason);
    }
}

std::optional<int> RecorderProcess::Patience() const
{
    if (!m_killReason.isEmpty()) {
        return KillPatience;
    }
    if (m_isEnding || m_state == State::Ended) {
        return ClosingPatience;
    }
    switch (m_state) {
    case State::Greeting:
        return GreetingPatience;
    case State::Preparing:
        // The portal's user may take as long as they like.
        return IsFromPortal(m_request) ? std::nullopt : std::optional(PreparationPatience);
    case State::Ready:
        return m_isStarted && !m_isPaused
                && (!m_startTime || *m_startTime <= MachineClock().Now().wall)
            ? std::optional(FirstFramePatience)
            : std::nullopt;
    default:
        return ProgressPatience;
    }
}

void RecorderProcess::Watch()
{
    const auto patience = Patience();
    m_silentSeconds = patience ? m_silentSeconds + 1 : 0;
    if (!patience || m_silentSeconds <= *patience) {
        return;
    }
    if (m_killReason.isEmpty()) {
        Kill(m_state == State::Greeting ? tr("The recorder did not start in time.")
                                        : tr("The recorder stopped responding."));
    } else if (Conclude()) {
        Q_EMIT Died(m_killReason);
    }
}

void RecorderProcess::Kill(const QString& why)
{
    LOG(WARNING) << "Zentor::Schedule::RecorderProcess::Kill: state=" << static_cast<int>(m_state)
                 << " silentSeconds=" << m_silentSeconds << " pid=" << m_process->processId();
    m_killReason = why;
    m_silentSeconds = 0;
    m_process->kill();
}

bool RecorderProcess::Conclude()
{
    if (m_state == State::Ended) {
        return false;
    }
    Enter(State::Ended);
    m_process->closeWriteChannel();
    return true;
}

} // namespace Zentor::Schedule
