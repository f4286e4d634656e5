// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QtGlobal>

namespace Zentor::Tests {

/// Has system calls of this process fail for one file or folder, as a disk does that wears out.
/// One at a time.
class FaultyDisk {
public:
    enum class Fault {
        /// read() fails.
        Read,
        /// read() ends after the first byte.
        ShortRead,
        /// fdatasync() and fsync() fail.
        Sync,
    };

    /// \a name is the last part of the path, or its beginning.
    FaultyDisk(Fault fault, const QByteArray& name);
    ~FaultyDisk();
    Q_DISABLE_COPY(FaultyDisk)

    /// How many calls have failed so far.
    int Failures() const;
};

} // namespace Zentor::Tests
