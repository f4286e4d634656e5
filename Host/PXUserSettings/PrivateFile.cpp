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
    return {};
}

} // namespace Zentor::Util
