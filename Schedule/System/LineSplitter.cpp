// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "System/LineSplitter.h"

namespace Zentor::Schedule {

LineSplitter::LineSplitter(int longest)
    : m_longest(longest)
{
}

std::vector<QByteArray> LineSplitter::Take(const QByteArray& part)
{
    std::vector<QByteArray> lines;
    decltype(part.size()) begin = 0;
    for (auto end = part.indexOf('\n'); end >= 0; end = part.indexOf('\n', begin)) {
        Append(part.mid(begin, end - begin));
        if (!m_isTooLong) {
            lines.push_back(m_rest);
        }
        m_rest.clear();
        m_isTooLong = false;
        begin = end + 1;
    }
    Append(part.mid(begin));
    return lines;
}

void LineSplitter::Append(const QByteArray& part)
{
    m_isTooLong = m_isTooLong || part.size() > m_longest - m_rest.size();
    if (m_isTooLong) {
        m_rest.clear();
    } else {
        m_rest += part;
    }
}

} // namespace Zentor::Schedule
