// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "FileNames.h"

#include <algorithm>

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QTextBoundaryFinder>

namespace Zentor::Schedule {
namespace {

// In bytes. While it is converted or repaired, a file is called after its process, too.
constexpr int LongestName = 255;
constexpr int RoomForConversion = 16;

/// Whether a common file system, or the encoding of file names, refuses \a character.
bool IsRefused(QChar character)
{
    static const QString refused = QStringLiteral("\\/:*?\"<>|");
    return refused.contains(character) || character.category() == QChar::Other_Control
        || character == QChar::LineSeparator || character == QChar::ParagraphSeparator;
}

QString Usable(const QString& title)
{
    // Halves of a character that lack the other one become question marks.
    const QByteArray encoded = title.trimmed().toUtf8();
    QString usable = QString::fromUtf8(encoded.constData(), encoded.size());
    std::replace_if(usable.begin(), usable.end(), IsRefused, QLatin1Char('_'));
    if (usable.startsWith(QLatin1Char('.'))) {
        usable.replace(0, 1, QLatin1Char('_'));
    }
    return usable.isEmpty() ? QStringLiteral("Recording") : usable;
}

/// The beginning of \a text that takes at most \a bytes.
QString CutToBytes(const QString& text, qint64 bytes)
{
    if (text.toUtf8().size() <= bytes) {
        return text;
    }
    QTextBoundaryFinder letters(QTextBoundaryFinder::Grapheme, text);
    qint64 used = 0;
    auto begin = letters.position();
    for (auto end = letters.toNextBoundary(); end > 0; end = letters.toNextBoundary()) {
        used += text.mid(begin, end - begin).toUtf8().size();
        if (used > bytes) {
            break;
        }
        begin = end;
    }
    return text.left(begin).trimmed();
}

/// A link that leads nowhere is in the way of a new file, too.
bool IsTaken(const QString& path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

} // namespace

QString RecordingFilePath(const QString& folder, const QString& title, Moment start,
                          const QString& container)
{
    const auto milliseconds =
        std::chrono::floor<std::chrono::milliseconds>(start.time_since_epoch()).count();
    const QString time = QDateTime::fromMSecsSinceEpoch(milliseconds)
                             .toString(QStringLiteral(" yyyy-MM-dd hh-mm-ss"));
    const QString usable = Usable(title);
    const QDir place(folder);
    for (int number = 1;; ++number) {
        const QString rest = number == 1 ? time : QStringLiteral("%1 (%2)").arg(time).arg(number);
        const auto room = LongestName - RoomForConversion - (rest + container).toUtf8().size() - 1;
        const QString path = place.absoluteFilePath(CutToBytes(usable, room) + rest);
        if (!IsTaken(path + QLatin1Char('.') + container)
            && !IsTaken(path + QLatin1String(".mkv"))) {
            return path + QLatin1Char('.') + container;
        }
    }
}

} // namespace Zentor::Schedule
