#include "PrivateFile.h"

#include <cerrno>
#include <filesystem>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>

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

/// Writes \a content to the disk itself, not only towards it. False, with errno set, when that
/// fails.
bool WriteToDisk(const Descriptor& file, const QByteArray& content, FileVersion& written)
{
    struct stat status { };
    if (!file.IsOpen() || !WriteAll(file.Number(), content) || ::fdatasync(file.Number()) != 0
        || ::fstat(file.Number(), &status) != 0) {
        return false;
    }
    written = {true, content, StampOf(status)};
    return true;
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
        return errno == ENOENT ? QString() : qt_error_string(errno);
    }
    if (::fstat(file.Number(), &status) != 0 || !ReadAll(file.Number(), found.content)) {
        return qt_error_string(errno);
    }
    if (found.content.size() < status.st_size) {
        return QCoreApplication::translate("SettingsStore", "only a part of it could be read");
    }
    found.exists = true;
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
    if (::faccessat(AT_FDCWD, name.constData(), W_OK, AT_EACCESS) != 0 && errno != ENOENT) {
        return qt_error_string(errno);
    }
    QByteArray unfinished = name + ".saving-XXXXXX";
    const Descriptor file(::mkostemp(unfinished.data(), O_CLOEXEC));
    FileVersion version;
    if (!WriteToDisk(file, content, version)
        || ::rename(unfinished.constData(), name.constData()) != 0) {
        const int error = errno;
        if (file.IsOpen()) {
            ::unlink(unfinished.constData());
        }
        return qt_error_string(error);
    }
    written = version;
    return {};
}

} // namespace Zentor::Util
