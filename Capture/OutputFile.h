// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>

#include <QString>

#include "Failure.h"

namespace Zentor::Capture {

/// A file of its own making that is never another's: it is created and never opened. A thread
/// brings it to the disk each second and watches the space that is left.
class OutputFile {
public:
    OutputFile();
    /// Closes it. What is in it stays.
    ~OutputFile();

    /// Creates the file \a path. An existing one is refused and not touched.
    std::optional<Failure> Create(const QString& path);
    /// Where GStreamer finds the file itself, whatever has become of its name.
    QString Location() const;
    const QString& Path() const { return m_path; }

    /// Calls \a diskLow from another thread, once, when less than \a reserve bytes are free, or
    /// \a reserve and the size of the file once more when \a isCopied.
    void Watch(std::int64_t reserve, bool isCopied, std::function<void()> diskLow);
    /// Ends the watch and brings everything to the disk. False when that has failed.
    bool Close();
    /// Deletes it. What was written is lost.
    void Remove();

    std::int64_t Size() const;
    std::int64_t FreeSpace() const { return m_free; }

    /// Bytes that are free on the volume of \a folder; negative when that cannot be told.
    static std::int64_t FreeSpaceIn(const QString& folder);

private:
    void Run(std::int64_t reserve, bool isCopied, const std::function<void()>& diskLow);

    QString m_path;
    int m_descriptor = -1;
    std::atomic<std::int64_t> m_free = -1;
    std::mutex m_mutex;
    std::condition_variable m_closing;
    bool m_isClosing = false;
    std::thread m_thread;
};

} // namespace Zentor::Capture
