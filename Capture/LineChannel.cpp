// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "LineChannel.h"

#include <array>
#include <cerrno>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <QJsonDocument>

#include "Protocol.h"

namespace Zentor::Capture {
namespace {

/// What a client leaves unread beyond this is lost to it.
constexpr int LongestPending = 1024 * 1024;

} // namespace

LineChannel::LineChannel(int input, int output)
    : m_in(input)
    , m_out(output)
    , m_readable(input, QSocketNotifier::Read)
    , m_writable(output, QSocketNotifier::Write)
{
    m_writable.setEnabled(false);
    fcntl(m_out, F_SETFL, fcntl(m_out, F_GETFL) | O_NONBLOCK);
    connect(&m_readable, &QSocketNotifier::activated, this, &LineChannel::Read);
    connect(&m_writable, &QSocketNotifier::activated, this, &LineChannel::Write);
}

void LineChannel::Read()
{
    std::array<char, 4096> part{};
    const auto count = read(m_in, part.data(), part.size());
    if (count < 0 && (errno == EINTR || errno == EAGAIN)) {
        return;
    }
    if (count <= 0) {
        m_readable.setEnabled(false);
        Q_EMIT Ended();
        return;
    }
    m_received.append(part.data(), static_cast<int>(count));
    Split();
}

void LineChannel::Split()
{
    for (auto end = m_received.indexOf('\n'); end >= 0; end = m_received.indexOf('\n')) {
        const QByteArray line = m_received.left(end);
        m_received.remove(0, end + 1);
        if (!m_isTooLong) {
            Interpret(line);
        }
        m_isTooLong = false;
    }
    if (m_received.size() > MaximumLineLength) {
        m_received.clear();
        if (!m_isTooLong) {
            m_isTooLong = true;
            Q_EMIT Misunderstood(tr("a line is longer than %1 bytes").arg(MaximumLineLength));
        }
    }
}

void LineChannel::Interpret(const QByteArray& line)
{
    if (line.trimmed().isEmpty()) {
        return;
    }
    QJsonParseError error;
    const auto document = QJsonDocument::fromJson(line, &error);
    if (document.isObject()) {
        Q_EMIT Received(document.object());
    } else {
        Q_EMIT Misunderstood(error.error == QJsonParseError::NoError
                                 ? tr("the line is not a JSON object")
                                 : tr("the line is not JSON: %1").arg(error.errorString()));
    }
}

void LineChannel::Send(const QJsonObject& line)
{
    if (m_pending.size() < LongestPending) {
        m_pending += QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n';
    }
    Write();
}

void LineChannel::Write()
{
    while (!m_pending.isEmpty()) {
        const auto count =
            write(m_out, m_pending.constData(), static_cast<size_t>(m_pending.size()));
        if (count > 0) {
            m_pending.remove(0, static_cast<int>(count));
        } else if (errno == EAGAIN) {
            break;
        } else if (errno != EINTR) {
            // Nobody reads any more. That the client is gone is told by the other direction.
            m_pending.clear();
        }
    }
    m_writable.setEnabled(!m_pending.isEmpty());
}

void LineChannel::Flush()
{
    constexpr int patienceMilliseconds = 500;
    pollfd writable{m_out, POLLOUT, 0};
    while (!m_pending.isEmpty() && poll(&writable, 1, patienceMilliseconds) > 0) {
        Write();
    }
}

} // namespace Zentor::Capture
