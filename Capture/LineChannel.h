// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QObject>
#include <QSocketNotifier>

namespace Zentor::Capture {

/// JSON objects as lines: reads them from one descriptor, writes them to another. Neither a reader
/// that does not read nor a writer that never ends its line makes it wait or grow.
class LineChannel final : public QObject {
    Q_OBJECT

public:
    /// Does not own the descriptors.
    LineChannel(int input, int output);

    void Send(const QJsonObject& line);
    /// Waits a little until everything has been written.
    void Flush();

Q_SIGNALS:
    void Received(const QJsonObject& line);
    /// A line was not a JSON object, or too long to be one.
    void Misunderstood(const QString& reason);
    /// No more lines will come.
    void Ended();

private:
    void Read();
    void Split();
    void Interpret(const QByteArray& line);
    void Write();

    const int m_in;
    const int m_out;
    QSocketNotifier m_readable;
    QSocketNotifier m_writable;
    QByteArray m_received;
    QByteArray m_pending;
    bool m_isTooLong = false;
};

} // namespace Zentor::Capture
