// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

/// \file
/// Reading and replacing files that are the user's alone. A failure is told as a reason for the
/// user, such as "No space left on device", or as nothing when there was none.
#pragma once

#include <array>
#include <cstdint>

#include <QByteArray>
#include <QString>

#include "HostData.h"

namespace Zentor::Util {

/// A file as it was when it was last read or replaced.
struct FileVersion {
    /// Whether there was a file. The rest means something only then.
    bool exists = false;
    /// All of it.
    QByteArray content;
    /// Of its owner alone, as in chmod().
    unsigned permissions = 0;
    /// What tells it from another version without reading that.
    std::array<std::int64_t, 5> stamp{};
};

/// Where \a path leads, symbolic links of it and of its folders followed, whether or not there is
/// anything; \a path where that cannot be told.
ZENTOR_HOST_API QString RealPath(const QString& path);

/// Reads \a path into \a found. That there is no such file is no failure, but that only a part of
/// it could be read is one. Returns the reason of a failure, or nothing.
ZENTOR_HOST_API QString ReadFile(const QString& path, FileVersion& found);

/// Whether \a path is \a known still, as far as can be told without reading it.
ZENTOR_HOST_API bool IsUntouched(const QString& path, const FileVersion& known);

/// Replaces \a path, as a whole and for the user alone, by \a content, which \a written is then.
/// Returns the reason of a failure, or nothing; that the new file may not survive a loss of power
/// is a failure, too.
ZENTOR_HOST_API QString ReplaceFile(const QString& path, const QByteArray& content,
                                    FileVersion& written);

/// Writes \a version into the new file \a path, with no more rights than it had, as ReplaceFile()
/// does. Returns the reason of a failure, or nothing.
ZENTOR_HOST_API QString KeepFile(const QString& path, const FileVersion& version);

/// A name beside \a path, with \a suffix and the time, that no file has: for KeepFile().
ZENTOR_HOST_API QString FreePath(const QString& path, const QString& suffix);

/// Removes what ReplaceFile() and KeepFile() left beside \a path when the process was killed.
ZENTOR_HOST_API void RemoveUnfinishedFiles(const QString& path);

} // namespace Zentor::Util
