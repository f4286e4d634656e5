// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "TrialRecording.h"

#include <algorithm>
#include <memory>

#include <QElapsedTimer>

#include "RecorderArguments.h"
#include "RecorderProgram.h"

namespace Zentor::Desktop {
namespace {

constexpr int MillisecondsBetweenSteps = 100;
/// Closing a file and converting it takes some seconds at worst; what takes longer hangs.
constexpr int PatienceMilliseconds = (TrialRecording::Seconds + 30) * 1000;

/// What stands behind the name of the program in \a lines.
QStringList Messages(const QString& lines)
{
    const QString name = QStringLiteral("px-recorder: ");
    QStringList messages = lines.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (QString& message : messages) {
        message = message.startsWith(name) ? message.mid(name.size()) : message;
    }
    return messages;
}

} // namespace

TrialRecording::TrialRecording(const Schedule::RecordingSettings& settings, QObject* parent)
    : QObject(parent)
    , m_file(m_folder.filePath(QStringLiteral("px-scheduler.") + settings.container))
{
    m_process.setProgram(Schedule::RecorderProgram());
    m_process.setArguments(Schedule::RecorderArguments(settings, m_file, Seconds));
    connect(&m_process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            &TrialRecording::End);
    connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            m_progress.stop();
            m_patience.stop();
            Q_EMIT Failed({});
        }
    });
    const auto begin = std::make_shared<QElapsedTimer>();
    connect(&m_progress, &QTimer::timeout, this, [this, begin] {
        Q_EMIT Progressed(static_cast<int>(std::min(begin->elapsed(), qint64(Seconds) * 1000)));
    });
    connect(&m_patience, &QTimer::timeout, &m_process, &QProcess::kill);
    QTimer::singleShot(0, this, [this, begin] {
        begin->start();
        m_progress.start(MillisecondsBetweenSteps);
        m_patience.start(PatienceMilliseconds);
        m_process.start();
    });
}

TrialRecording::~TrialRecording()
{
    m_process.disconnect(this);
    if (m_process.state() != QProcess::NotRunning) {
        m_process.kill();
        m_process.waitForFinished();
    }
}

void TrialRecording::End(int exitCode, QProcess::ExitStatus status)
{
    m_progress.stop();
    m_patience.stop();
    const QStringList messages = Messages(QString::fromLocal8Bit(m_process.readAllStandardError()));
    if (status == QProcess::NormalExit && exitCode == 0) {
        Q_EMIT Finished(m_file, messages);
    } else {
        Q_EMIT Failed(messages.isEmpty() ? QStringLiteral("the recorder crashed")
                                         : messages.constLast());
    }
}

} // namespace Zentor::Desktop
