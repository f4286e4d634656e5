// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include <QByteArray>

namespace Zentor::Schedule {

/// Makes lines of the parts in which a program's output arrives.
class LineSplitter {
public:
    /// Lines of more than \a longest bytes are dropped, and are never kept in memory as a whole.
    explicit LineSplitter(int longest);

    /// The lines that are complete with \a part, without their ends.
    std::vector<QByteArray> Take(const QByteArray& part);

    /// What came after the last end of a line.
    const QByteArray& Rest() const { return m_rest; }

private:
    void Append(const QByteArray& part);

    const int m_longest;
    QByteArray m_rest;
    bool m_isTooLong = false;
};

} // namespace Zentor::Schedule
