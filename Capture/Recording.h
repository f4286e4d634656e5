// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include "Failure.h"
#include "FramePump.h"
#include "OutputFile.h"
#include "RecordedTime.h"
#include "RecordingRequest.h"

namespace Zentor::Capture {

class CaptureSource;
class FileWriter;
class Remuxer;
class SoundTrack;
class SoundWriter;

/// One recording, from its preparation to its closed file. It ends with exactly one of Finished(),
/// Failed() and Cancelled(); nothing is announced after that. It is then of no more use.
class Recording final : public QObject {
    Q_OBJECT

public:
    struct Progress {
        std::int64_t milliseconds = 0;
        std::int64_t bytes = 0;
        /// Bytes that are free where the file is; negative when that cannot be told.
        std::int64_t free = -1;
        FramePump::Counts frames;
    };

    explicit Recording(RecordingRequest request);
    /// Ends it where it is: what is in the file stays.
    ~Recording() override;

    /// Sets everything up, so that it can begin within a frame. Ready() follows.
    void Prepare();
    /// Begins \a atMicroseconds since 1970, at once where that is past, and ends after
    /// \a durationMicroseconds of recorded time; 0: without an end. May be called before Ready().
    void Start(std::int64_t atMicroseconds, std::int64_t durationMicroseconds);
    /// Ends it and closes the file. \a reason is what Finished() says.
    void Stop(QLatin1String reason);
    void Pause();
    void Resume();
    /// Ends it and deletes the file.
    void Cancel();

    const RecordingRequest& Request() const { return m_request; }
    Progress CurrentProgress() const;

Q_SIGNALS:
    void Ready(double tookMilliseconds);
    /// The first frame has been recorded, at this time of the wall clock.
    void Begun(qint64 wallMicroseconds);
    /// Something is not as it was asked for, but the recording goes on.
    void Warned(const QString& text);
    /// The file is complete.
    void Finished(QLatin1String reason);
    /// The file is not what it should be. It stays when something was recorded into it.
    void Failed(const Failure& failure);
    void Cancelled();

private:
    struct StartOrder {
        std::int64_t atMicroseconds;
        std::int64_t durationMicroseconds;
    };
    enum class State { Preparing, Ready, Started, Closing, Over };

    std::optional<Failure> CreateFile();
    std::unique_ptr<CaptureSource> CreateSource(Failure* failure) const;
    void SetUpSource();
    void SetUpWriter();
    void SetUpSound();
    std::optional<Failure> ChooseEncoder(QString* name) const;
    void StartPump(const StartOrder& order);
    FramePump::Ports PumpPorts();
    std::optional<Failure> OpenWriter(const QString& encoder);
    void WatchDisk();
    void Warn(const QString& text);
    void EndStreams(bool isComplete);
    void CloseFile();
    void ConvertFile();
    void HandleSourceFailure(const Failure& failure);
    void Fail(const Failure& failure);
    void Release();
    QString WorkingFile() const;
    bool IsMp4() const;

    const RecordingRequest m_request;
    State m_state = State::Preparing;
    QElapsedTimer m_preparation;
    std::optional<StartOrder> m_order;
    std::optional<QLatin1String> m_reason;
    std::optional<Failure> m_failure;
    QTimer m_closingLimit;
    Progress m_last;

    RecordedTime m_time;
    OutputFile m_output;
    std::unique_ptr<CaptureSource> m_source;
    std::unique_ptr<FileWriter> m_writer;
    std::vector<std::unique_ptr<SoundTrack>> m_tracks;
    std::unique_ptr<SoundWriter> m_sound;
    std::unique_ptr<FramePump> m_pump;
    std::unique_ptr<Remuxer> m_remuxer;
};

} // namespace Zentor::Capture
