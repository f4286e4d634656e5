// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "PrivateFile.h"

#include <cerrno>
#include <filesystem>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace Zentor::Util {
namespace {

/// An open file, closed at the end.
class Descriptor {
public:
    explicit Descriptor(int number)
        : m_number(number)
    {
    }
    ~Descriptor()
    {
        if (IsOpen()) {
            ::close(m_number);
        }
    }
    Q_DISABLE_COPY(Descriptor)

    bool IsOpen() const { return m_number >= 0; }
    int Number() const { return m_number; }

private:
    const int m_number;
};

/// What is wrong, in the language in use where Qt has a translation.
QString ErrorText(int error)
{
    // Qt knows this one under another name than the system's.
    static const char* const isDirectory = "Filename refers to a directory";
    return error == EISDIR ? QCoreApplication::translate("QSaveFile", isDirectory)
                           : qt_error_string(error);
}

/// Reads on to the end. False, with errno set, when that fails.
bool ReadAll(int descriptor, QByteArray& content)
{
    QByteArray buffer(64 * 1024, Qt::Uninitialized);
    ssize_t size = 0;
    do {
        size = ::read(descriptor, buffer.data(), static_cast<std::size_t>(buffer.size()));
        if (size > 0) {
            content.append(buffer.constData(), static_cast<int>(size));
        }
    } while (size > 0 || (size < 0 && errno == EINTR));
    return size == 0;
}

bool WriteAll(int descriptor, const QByteArray& content)
{
    for (int done = 0; done < content.size();) {
        const ssize_t size = ::write(descriptor, content.constData() + done,
                                     static_cast<std::size_t>(content.size() - done));
        if (size < 0 && errno != EINTR) {
            return false;
        }
        done += static_cast<int>(qMax(size, ssize_t(0)));
    }
    return true;
}

std::array<std::int64_t, 5> StampOf(const struct stat& status)
{
    return {static_cast<std::int64_t>(status.st_dev), static_cast<std::int64_t>(status.st_ino),
            status.st_size, status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
}

/// Writes \a written to the disk itself, not only towards it. False, with errno set, when that
/// fails.
bool WriteToDisk(const Descriptor& file, FileVersion& written)
{
    struct stat status { };
    if (!file.IsOpen() || ::fchmod(file.Number(), written.permissions) != 0
        || !WriteAll(file.Number(), written.content) || ::fdatasync(file.Number()) != 0
        || ::fstat(file.Number(), &status) != 0) {
        return false;
    }
    written.exists = true;
    written.stamp = StampOf(status);
    return true;
}

/// Has the disk keep the names in the folder of \a path. False, with errno set, when that fails.
bool SyncFolderOf(const QString& path)
{
    const QByteArray name = QFile::encodeName(QFileInfo(path).path());
    const Descriptor folder(::open(name.constData(), O_RDONLY | O_CLOEXEC | O_DIRECTORY));
    // Some file systems cannot be asked for that, and some folders may not be opened.
    return !folder.IsOpen() || ::fsync(folder.Number()) == 0 || errno == EINVAL;
}

/// Writes \a version into \a path.
QString Write(const QString& path, FileVersion version, FileVersion& written)
{
    const QByteArray name = QFile::encodeName(path);
    QByteArray unfinished = name + ".saving-XXXXXX";
    const Descriptor file(::mkostemp(unfinished.data(), O_CLOEXEC));
    if (!WriteToDisk(file, version) || ::rename(unfinished.constData(), name.constData()) != 0) {
        const int error = errno;
        if (file.IsOpen()) {
            ::unlink(unfinished.constData());
        }
        return ErrorText(error);
    }
    written = version;
    return SyncFolderOf(path) ? QString() : ErrorText(errno);
}

} // namespace

QString RealPath(const QString& path)
{
    namespace fs = std::filesystem;
    constexpr int MostLinks = 40; // as many as the kernel follows
    std::error_code error;
    // What is missing is taken by its name, so that a link to it is still a link.
    fs::path real = fs::weakly_canonical(QFile::encodeName(path).toStdString(), error);
    for (int links = 0; !error && fs::is_symlink(real); ++links) {
        const fs::path target = fs::read_symlink(real, error);
        if (error || links == MostLinks) {
            return path;
        }
        real = fs::weakly_canonical(real.parent_path() / target, error);
    }
    return error ? path : QFile::decodeName(real.c_str());
}

QString ReadFile(const QString& path, FileVersion& found)
{
    found = {};
    // O_NONBLOCK: what is no file, such as a pipe, must not keep us waiting.
    const Descriptor file(
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status { };
    if (!file.IsOpen()) {
        return errno == ENOENT ? QString() : ErrorText(errno);
    }
    if (::fstat(file.Number(), &status) != 0 || !ReadAll(file.Number(), found.content)) {
        return ErrorText(errno);
    }
    if (found.content.size() < status.st_size) {
        return QCoreApplication::translate("SettingsStore",
                                           "Only a part of the file could be read");
    }
    found.exists = true;
    found.permissions = status.st_mode & (S_IRUSR | S_IWUSR);
    found.stamp = StampOf(status);
    return {};
}

bool IsUntouched(const QString& path, const FileVersion& known)
{
    struct stat status { };
    const bool exists = ::stat(QFile::encodeName(path).constData(), &status) == 0;
    return exists == known.exists && (!exists || StampOf(status) == known.stamp);
}

QString ReplaceFile(const QString& path, const QByteArray& content, FileVersion& written)
{
    const QByteArray name = QFile::encodeName(path);
    // A file that its user has protected can be renamed away, too.
    if (::faccessat(AT_FDCWD, name.constData(), W_OK, AT_EACCESS) != 0 && errno != ENOENT) {
        return ErrorText(errno);
    }
    FileVersion version;
    version.content = content;
    version.permissions = S_IRUSR | S_IWUSR;
    return Write(path, version, written);
}

QString KeepFile(const QString& path, const FileVersion& version)
{
    FileVersion written;
    return Write(path, version, written);
}

QString FreePath(const QString& path, const QString& suffix)
{
    const QString stem =
        path + suffix + QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-hhmmss"));
    QString candidate = stem;
    for (int number = 2; QFileInfo::exists(candidate); ++number) {
        candidate = QStringLiteral("%1-%2").arg(stem).arg(number);
    }
    return candidate;
}

void RemoveUnfinishedFiles(const QString& path)
{
    const QFileInfo info(path);
    QDir folder(info.path());
    const QRegularExpression unfinished(QRegularExpression::anchoredPattern(
        QRegularExpression::escape(info.fileName())
        + QStringLiteral("(\\.(damaged|changed)-[0-9-]+)?\\.saving-[0-9A-Za-z]{6}")));
    const QStringList names = folder.entryList(QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    for (const QString& name : names) {
        if (unfinished.match(name).hasMatch()) {
            folder.remove(name);
        }
    }
}

} // namespace Zentor::Util
