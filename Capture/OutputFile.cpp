// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "OutputFile.h"

#include <cerrno>
#include <chrono>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include "Protocol.h"

namespace Zentor::Capture {
namespace {

using namespace std::chrono_literals;
constexpr auto WatchInterval = 250ms;
constexpr auto SyncInterval = 1s;

QString Tr(const char* text)
{
    return QCoreApplication::translate("OutputFile", text);
}

Failure FailureOf(int error, const QString& path)
{
    const QString reason = QString::fromLocal8Bit(std::strerror(error));
    switch (error) {
    case EEXIST:
        return {Code::Exists, Tr("%1 exists already").arg(path)};
    case ENOENT:
    case ENOTDIR:
        return {Code::NoFolder, Tr("the folder of %1 does not exist").arg(path)};
    case ENOSPC:
    case EDQUOT:
        return {Code::DiskFull, Tr("no space is left for %1").arg(path)};
    default:
        return {Code::NotWritable, Tr("%1 cannot be created: %2").arg(path, reason)};
    }
}

std::int64_t FreeSpaceOf(const struct statvfs& volume)
{
    return static_cast<std::int64_t>(volume.f_bavail) * static_cast<std::int64_t>(volume.f_frsize);
}

} // namespace

OutputFile::OutputFile() = default;

OutputFile::~OutputFile()
{
    Close();
}

std::optional<Failure> OutputFile::Create(const QString& path)
{
    constexpr mode_t mode = 0666;
    m_descriptor = open(QFile::encodeName(path).constData(),
                        O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC | O_NOCTTY, mode);
    if (m_descriptor < 0) {
        return FailureOf(errno, path);
    }
    m_path = path;
    return std::nullopt;
}

QString OutputFile::Location() const
{
    return QStringLiteral("/proc/self/fd/%1").arg(m_descriptor);
}

std::int64_t OutputFile::FreeSpaceIn(const QString& folder)
{
    struct statvfs volume { };
    const int result = statvfs(QFile::encodeName(folder).constData(), &volume);
    return result == 0 ? FreeSpaceOf(volume) : -1;
}

std::int64_t OutputFile::Size() const
{
    struct stat status { };
    return m_descriptor >= 0 && fstat(m_descriptor, &status) == 0 ? status.st_size
                                                                  : QFileInfo(m_path).size();
}

void OutputFile::Watch(std::int64_t reserve, bool isCopied, std::function<void()> diskLow)
{
    m_thread = std::thread([this, reserve, isCopied, diskLow = std::move(diskLow)] {
        Run(reserve, isCopied, diskLow);
    });
}

void OutputFile::Run(std::int64_t reserve, bool isCopied, const std::function<void()>& diskLow)
{
    auto nextSync = std::chrono::steady_clock::now() + SyncInterval;
    bool isLow = false;
    std::unique_lock lock(m_mutex);
    while (!m_isClosing) {
        lock.unlock();
        struct statvfs volume { };
        if (fstatvfs(m_descriptor, &volume) == 0) {
            m_free = FreeSpaceOf(volume);
            if (!isLow && m_free < reserve + (isCopied ? Size() : 0)) {
                isLow = true;
                diskLow();
            }
        }
        if (std::chrono::steady_clock::now() >= nextSync) {
            fdatasync(m_descriptor);
            nextSync += SyncInterval;
        }
        lock.lock();
        m_closing.wait_for(lock, WatchInterval, [this] { return m_isClosing; });
    }
}

bool OutputFile::Close()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isClosing = true;
    }
    m_closing.notify_all();
    if (m_thread.joinable()) {
        m_thread.join();
    }
    if (m_descriptor < 0) {
        return true;
    }
    const bool isSynced = fsync(m_descriptor) == 0;
    close(m_descriptor);
    m_descriptor = -1;
    return isSynced;
}

void OutputFile::Remove()
{
    Close();
    if (!m_path.isEmpty()) {
        QFile::remove(m_path);
    }
}

} // namespace Zentor::Capture
