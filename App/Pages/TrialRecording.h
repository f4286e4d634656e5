// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

namespace Zentor::Schedule {
struct RecordingSettings;
}

namespace Zentor::Desktop {

/// Records some seconds with given settings into a folder that goes with this object.
class TrialRecording final : public QObject {
    Q_OBJECT

public:
    static constexpr int Seconds = 5;

    /// Starts in the next pass of the event loop.
    TrialRecording(const Schedule::RecordingSettings& settings, QObject* parent);
    /// Ends it.
    ~TrialRecording() override;

Q_SIGNALS:
    /// The recorder has run for \a milliseconds, of those that the recording has.
    void Progressed(int milliseconds);
    /// The recording is in \a file. \a warnings are what the recorder had to say, in English.
    void Finished(const QString& file, const QStringList& warnings);
    /// Nothing was recorded. \a reason is the recorder's, in English, and empty when it could not
    /// even be started.
    void Failed(const QString& reason);

private:
    void End(int exitCode, QProcess::ExitStatus status);

    QTemporaryDir m_folder;
    QString m_file;
    QProcess m_process;
    QTimer m_progress;
    QTimer m_patience;
};

} // namespace Zentor::Desktop
