// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <QJsonObject>
#include <QObject>
#include <QProcess>
#include <QTimer>

#include "RunnerPorts.h"
#include "System/LineSplitter.h"
#include "System/RecorderRequest.h"

namespace Zentor::Schedule {

/// A file that is complete and on the disk.
struct RecorderResult {
    QString file;
    /// Why the recording ended, one of Capture::Reason.
    QString reason;
    Length length{0};
    /// -1 when it cannot be told.
    qint64 bytes = -1;
    qint64 frames = 0;
    qint64 droppedFrames = 0;
};

/// One recording, in a px-recorder of its own that it starts, drives and watches over.
///
/// After Prepare() exactly one of Finished(), Failed(), Cancelled() and Died() is sent; all signals
/// come from the event loop. Delete it by deleteLater() in answer to one of them. A recorder that
/// hangs is killed: how long it is silent is counted in seconds that this process was awake for.
///
/// The recorder has a process group of its own, so that Ctrl+C in a terminal does not reach it, and
/// closes its file when this process is gone.
class RecorderProcess final : public QObject {
    Q_OBJECT

public:
    /// \a program is the path of px-recorder.
    explicit RecorderProcess(const QString& program, QObject* parent = nullptr);
    /// Has a file that is still being written closed, and waits for that, for up to 2 seconds.
    ~RecorderProcess() override;

    /// Starts the recorder and has it set up everything. To be called once; answered by Ready().
    void Prepare(const RecorderRequest& request);

    /// Begins at \a at, or at once without it or where it is past, and ends after \a length of
    /// recorded time, or at Stop() where it is 0. Before Ready() it takes effect then.
    void Start(std::optional<Moment> at, Length length);

    /// Closes the file. Answered by Finished(), or by Failed() where nothing has been recorded.
    void Stop();
    /// What passes until Resume() is not in the file.
    void Pause();
    void Resume();
    /// Deletes the file. Answered by Cancelled().
    void Cancel();

Q_SIGNALS:
    /// Start() takes effect within a frame now.
    void Ready();
    /// The first frame was recorded, at \a firstFrame.
    void Recording(Zentor::Schedule::Moment firstFrame);
    /// Sent each second from then on, also while it pauses and while it closes the file.
    void Progressed(const Zentor::Schedule::RecordingProgress& progress);
    /// The recording goes on, but not quite as it was asked for: \a text, for the user.
    void Warned(const QString& text);

    void Finished(const Zentor::Schedule::RecorderResult& result);
    /// \a code is one of Capture::Code, or Why::NoRecorder when the program cannot be started or is
    /// not the one that belongs to this one; \a text is for the user. A file is left only where
    /// something was recorded into it.
    void Failed(const QString& code, const QString& text);
    void Cancelled();
    /// The recorder has ended before the recording did, or was killed as it hung: \a why, for the
    /// user. What the file has can be played.
    void Died(const QString& why);

private:
    enum class State { Idle, Greeting, Preparing, Ready, Recording, Ended };

    void Connect();
    void Enter(State state);
    void Send(const QJsonObject& line);
    void SendCommand(QLatin1String command);
    void Write(const QJsonObject& line);
    void ReadOutput();
    void ReadErrors();
    void Log(const QByteArray& line);
    void Interpret(const QByteArray& line);
    void Greet(const QJsonObject& event);
    void Take(const QString& name, const QJsonObject& event);
    void TakeEnd(const QString& name, const QJsonObject& event);
    void TakeProcessError(QProcess::ProcessError error);
    void TakeProcessEnd();
    std::optional<int> Patience() const;
    void Watch();
    void Kill(const QString& why);
    bool Conclude();

    const QString m_program;
    const std::unique_ptr<QProcess> m_process;
    LineSplitter m_output;
    LineSplitter m_errors;
    RecorderRequest m_request;
    State m_state = State::Idle;
    /// What is sent after the greeting.
    std::vector<QJsonObject> m_pendingLines;
    bool m_isStarted = false;
    bool m_isPaused = false;
    std::optional<Moment> m_startTime;
    /// Stop() or Cancel() was called.
    bool m_isEnding = false;
    /// Why it was killed.
    QString m_killReason;
    QTimer m_watch;
    int m_silentSeconds = 0;
    int m_loggedLines = 0;
};

} // namespace Zentor::Schedule
