// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "CrashCheck.h"

#include <algorithm>
#include <optional>
#include <vector>

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include "RecordingsList.h"

namespace Zentor::Schedule {
namespace {

// The elements of Matroska that lead to a frame (RFC 9559).
constexpr quint32 Header = 0x1A45DFA3;
constexpr quint32 Segment = 0x18538067;
constexpr quint32 Cluster = 0x1F43B675;
constexpr quint32 SimpleBlock = 0xA3;
constexpr quint32 BlockGroup = 0xA0;

/// Frames come after a few elements; this bounds the reading of a file that is something else.
constexpr int MostElements = 1000;

struct Element {
    quint32 id = 0;
    /// Of its content; nothing for one that is not closed.
    std::optional<qint64> size;
};

/// Reads a number of variable length: the zeros before the first set bit tell how many bytes
/// follow the first one. That bit stays in where \a keepsMarker.
std::optional<quint64> ReadNumber(QFile& file, int mostBytes, bool keepsMarker, bool* isUnknown)
{
    char first = 0;
    if (!file.getChar(&first)) {
        return std::nullopt;
    }
    const auto byte = static_cast<quint8>(first);
    int length = 1;
    while (length <= mostBytes && (byte & (0x100U >> static_cast<unsigned>(length))) == 0) {
        ++length;
    }
    const QByteArray rest = length <= mostBytes ? file.read(length - 1) : QByteArray();
    if (length > mostBytes || rest.size() != length - 1) {
        return std::nullopt;
    }
    const quint64 marker = 0x100U >> static_cast<unsigned>(length);
    quint64 number = keepsMarker ? byte : byte & (marker - 1);
    bool isAllOnes = (byte & (marker - 1)) == marker - 1;
    for (const char next : rest) {
        number = number << 8U | static_cast<quint8>(next);
        isAllOnes = isAllOnes && static_cast<quint8>(next) == 0xFF;
    }
    *isUnknown = isAllOnes;
    return number;
}

std::optional<Element> ReadElement(QFile& file)
{
    constexpr int idBytes = 4;
    constexpr int sizeBytes = 8;
    bool isUnknown = false;
    const auto id = ReadNumber(file, idBytes, true, &isUnknown);
    const auto size = id ? ReadNumber(file, sizeBytes, false, &isUnknown) : std::nullopt;
    if (!size) {
        return std::nullopt;
    }
    return Element{static_cast<quint32>(*id),
                   isUnknown ? std::nullopt : std::optional(static_cast<qint64>(*size))};
}

/// Whether all of \a element is in \a file, which stands at its content, which is left out.
bool Skip(QFile& file, const Element& element)
{
    const qint64 end = file.pos() + element.size.value_or(0);
    return element.size && end <= file.size() && file.seek(end);
}

/// The ".mkv" that \a file is made from, or \a file where that is not there.
QString AsRecorded(const QString& file)
{
    const QFileInfo info(file);
    const QString recorded =
        info.path() + QLatin1Char('/') + info.completeBaseName() + QLatin1String(".mkv");
    return !file.isEmpty() && QFileInfo::exists(recorded) ? recorded : file;
}

/// A conversion that is complete has deleted what it was made from.
bool IsConverted(const QString& file)
{
    const QFileInfo info(file);
    return info.suffix().compare(QLatin1String("mp4"), Qt::CaseInsensitive) == 0 && info.size() > 0;
}

} // namespace

bool HasFrames(const QString& path)
{
    QFile file(path);
    // What is no file, such as a pipe, must not keep us waiting.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        return false;
    }
    auto element = ReadElement(file);
    if (!element || element->id != Header || !Skip(file, *element)) {
        return false;
    }
    for (int count = 0; count < MostElements; ++count) {
        element = ReadElement(file);
        if (!element) {
            return false;
        }
        const bool isBlock = element->id == SimpleBlock || element->id == BlockGroup;
        const bool isFolder = element->id == Segment || element->id == Cluster;
        if (!isFolder && !Skip(file, *element)) {
            return false;
        }
        if (isBlock) {
            return true;
        }
    }
    return false;
}

RecordingEntry AfterCrash(RecordingEntry entry)
{
    entry.file = AsRecorded(entry.file);
    const QFileInfo file(entry.file);
    const bool isRecorded = HasFrames(entry.file) || IsConverted(entry.file);
    entry.outcome = isRecorded ? Outcome::Partial : Outcome::Failed;
    entry.reason = Why::ProgramDied;
    const QDateTime changed = file.lastModified();
    if (isRecorded && changed.isValid()) {
        entry.end = Moment(std::chrono::milliseconds(changed.toMSecsSinceEpoch()));
    }
    entry.end = std::max(entry.end, entry.start);
    return entry;
}

void CheckAfterCrash(RecordingsList& list)
{
    std::vector<RecordingsList::Item> items = list.Items();
    for (RecordingsList::Item& item : items) {
        if (item.entry.outcome == Outcome::Recording) {
            list.Update(item.id, AfterCrash(std::move(item.entry)));
        }
    }
}

} // namespace Zentor::Schedule
