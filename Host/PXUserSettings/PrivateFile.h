/// \file
/// Reading and replacing files that are the user's alone. A failure is told as a reason for the
/// user, such as "No space left on device", or as nothing when there was none.
#pragma once

#include <QByteArray>
#include <QString>

namespace Zentor::Util {

/// A file as it was at one moment.
struct FileVersion {
    bool exists = false;
    QByteArray content;
};

/// Where \a path leads, symbolic links of it and of its folders followed, whether or not there is
/// anything; \a path where that cannot be told.
QString RealPath(const QString& path);

/// Reads \a path into \a found. That there is no such file is no failure.
QString ReadFile(const QString& path, FileVersion& found);

} // namespace Zentor::Util
