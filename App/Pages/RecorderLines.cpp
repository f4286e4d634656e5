// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RecorderLines.h"

#include <QJsonDocument>
#include <QTimer>

#include "RecorderProgram.h"

namespace Zentor::Desktop {

RecorderLines::RecorderLines(const QStringList& arguments, QObject* parent)
    : QObject(parent)
{
    m_process.setProgram(Schedule::RecorderProgram());
    m_process.setArguments(arguments);
    m_process.setStandardErrorFile(QProcess::nullDevice());
    connect(&m_process, &QProcess::readyReadStandardOutput, this, &RecorderLines::Read);
    connect(&m_process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            &RecorderLines::Ended);
    connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            Q_EMIT Ended();
        }
    });
    QTimer::singleShot(0, this, [this] { m_process.start(); });
}

RecorderLines::~RecorderLines()
{
    m_process.disconnect(this);
    if (m_process.state() != QProcess::NotRunning) {
        // It has nothing to lose, and this thread has no time.
        m_process.kill();
        m_process.waitForFinished();
    }
}

void RecorderLines::Read()
{
    while (m_process.canReadLine()) {
        const QJsonDocument line = QJsonDocument::fromJson(m_process.readLine());
        if (line.isObject()) {
            Q_EMIT Received(line.object());
        }
    }
}

} // namespace Zentor::Desktop
