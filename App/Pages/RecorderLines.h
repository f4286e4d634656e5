// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonObject>
#include <QObject>
#include <QProcess>
#include <QStringList>

namespace Zentor::Desktop {

/// Runs px-recorder and reads what it prints: JSON objects, a line each. Ends it when it is
/// destroyed.
class RecorderLines final : public QObject {
    Q_OBJECT

public:
    /// Starts the program in the next pass of the event loop.
    RecorderLines(const QStringList& arguments, QObject* parent);
    ~RecorderLines() override;

Q_SIGNALS:
    void Received(const QJsonObject& line);
    /// The program has ended, or could not be started.
    void Ended();

private:
    void Read();

    QProcess m_process;
};

} // namespace Zentor::Desktop
