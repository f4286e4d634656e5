// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RecordingsList.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include <glog/logging.h>

#include "CoreInt/Printable.h"
#include "PXUserSettings/DuplicateKeys.h"
#include "PXUserSettings/SectionReader.h"

namespace Zentor::Schedule {
namespace {

constexpr int CurrentVersion = 1;

namespace Key {

const QLatin1String Version("version");
const QLatin1String Recordings("recordings");
const QLatin1String Title("title");
const QLatin1String Start("start");
const QLatin1String End("end");
const QLatin1String Outcome("outcome");
const QLatin1String File("file");
const QLatin1String Reason("reason");

} // namespace Key

std::optional<Moment> ToMoment(const QJsonValue& value)
{
    const auto integer = PX::ToInteger(value);
    return integer ? std::make_optional(Moment(Length(*integer))) : std::nullopt;
}

QJsonValue FromMoment(Moment moment)
{
    return PX::FromInteger(moment.time_since_epoch().count());
}

std::optional<Outcome> ToOutcome(const QJsonValue& value)
{
    return OutcomeOf(value.toString());
}

/// A relative path would name another file in each folder that the program is started in.
std::optional<QString> ToFile(const QJsonValue& value)
{
    const auto path = PX::ToText(value);
    const bool isUsable = path && (path->isEmpty() || QDir::isAbsolutePath(*path));
    return isUsable ? path : std::nullopt;
}

std::optional<RecordingEntry> ParseEntry(const PX::SectionReader& reader)
{
    RecordingEntry entry;
    const bool isRead = reader.ReadRequired(Key::Title, entry.title, PX::ToText)
        && reader.ReadRequired(Key::Start, entry.start, ToMoment);
    entry.end = entry.start;
    const bool isUsable = isRead && reader.Read(Key::End, entry.end, ToMoment)
        && reader.ReadRequired(Key::Outcome, entry.outcome, ToOutcome)
        && reader.Read(Key::File, entry.file, ToFile)
        && reader.Read(Key::Reason, entry.reason, PX::ToText);
    return isUsable ? std::make_optional(entry) : std::nullopt;
}

/// The fields of \a entry, those of \a otherFields included.
QJsonObject FieldsOf(const RecordingEntry& entry, QJsonObject otherFields)
{
    otherFields.insert(Key::Title, entry.title);
    otherFields.insert(Key::Start, FromMoment(entry.start));
    otherFields.insert(Key::End, FromMoment(entry.end));
    otherFields.insert(Key::Outcome, NameOf(entry.outcome));
    otherFields.insert(Key::File, entry.file);
    otherFields.insert(Key::Reason, entry.reason);
    return otherFields;
}

/// Those of \a fields that ParseEntry() does not read.
QJsonObject OtherFields(QJsonObject fields)
{
    const QStringList known{Key::Title, Key::Start, Key::End, Key::Outcome, Key::File, Key::Reason};
    for (const QString& key : known) {
        fields.remove(key);
    }
    return fields;
}

/// What was found in a file.
struct Document {
    bool isUnderstood = false;
    /// For the log.
    QStringList problems;
    /// With the fields that are not known.
    std::vector<std::pair<RecordingEntry, QJsonObject>> entries;
    QJsonObject fields;
};

void ParseEntries(Document& document)
{
    const QJsonValue recordings = document.fields.take(Key::Recordings);
    if (!recordings.isUndefined() && !recordings.isArray()) {
        document.problems << QStringLiteral("recordings: not an array");
    }
    const QJsonArray values = recordings.toArray();
    document.entries.reserve(static_cast<std::size_t>(values.size()));
    int number = 0;
    for (const QJsonValue& value : values) {
        const PX::SectionReader reader(
            value.toObject(), QStringLiteral("recording %1").arg(++number), document.problems);
        if (auto entry = ParseEntry(reader)) {
            document.entries.emplace_back(*std::move(entry), OtherFields(reader.Fields()));
        }
    }
}

Document Parse(const QByteArray& json)
{
    Document document;
    QJsonParseError error;
    document.fields = QJsonDocument::fromJson(json, &error).object();
    const auto version = PX::ToInteger(document.fields.value(Key::Version));
    if (error.error != QJsonParseError::NoError) {
        document.problems
            << QStringLiteral("not JSON at byte %1: %2").arg(error.offset).arg(error.errorString());
    } else if (!version || *version < 1) {
        document.problems << QStringLiteral("no version that is known");
    } else if (*version > CurrentVersion) {
        document.problems << QStringLiteral("written by a newer version: %1").arg(*version);
    } else {
        document.isUnderstood = true;
        ParseEntries(document);
        const QStringList duplicates = PX::DuplicateKeys(json);
        for (const QString& key : duplicates) {
            document.problems << key + QLatin1String(": given more than once");
        }
    }
    if (!document.isUnderstood) {
        document.fields = {};
    }
    return document;
}

bool AreEqual(const RecordingEntry& left, const RecordingEntry& right)
{
    return left.title == right.title && left.start == right.start && left.end == right.end
        && left.outcome == right.outcome && left.file == right.file && left.reason == right.reason;
}

} // namespace

RecordingsList::RecordingsList(const QString& filePath, QObject* parent)
    : QObject(parent)
    , m_filePath(QFileInfo(filePath).absoluteFilePath())
{
}

RecordingsList::~RecordingsList() = default;

QString RecordingsList::PathFor(const QString& settingsFile)
{
    return QFileInfo(settingsFile).absoluteDir().filePath(QStringLiteral("recordings.json"));
}

QString RecordingsList::Open()
{
    m_realPath = Util::RealPath(m_filePath);
    QString failure = Read();
    m_isOpen = failure.isEmpty();
    if (m_isOpen) {
        Util::RemoveUnfinishedFiles(m_realPath);
    } else {
        m_notice = failure;
        LOG(ERROR) << "Zentor::Schedule::RecordingsList::Open: error=" << Util::Printable(failure);
    }
    return failure;
}

/// Reads the file. Returns the reason of a failure, or nothing.
QString RecordingsList::Read()
{
    QString failure = Util::ReadFile(m_realPath, m_known);
    if (!failure.isEmpty()) {
        return tr("The list of recordings %1 cannot be read: %2")
            .arg(Util::PrintableText(m_filePath), failure);
    }
    if (!m_known.exists) {
        return {};
    }
    const Document document = Parse(m_known.content);
    if (!document.problems.isEmpty()) {
        failure = KeepDamaged(document.isUnderstood, document.problems);
        if (!failure.isEmpty()) {
            return failure;
        }
    }
    m_fields = document.fields;
    m_items.reserve(document.entries.size());
    for (const auto& [entry, otherFields] : document.entries) {
        m_items.push_back({++m_lastId, entry});
        if (!otherFields.isEmpty()) {
            m_entryFields.insert(m_lastId, otherFields);
        }
    }
    return {};
}

/// Writes what was found in a damaged file beside it. Returns the reason of a failure, or nothing.
QString RecordingsList::KeepDamaged(bool isUnderstood, const QStringList& problems)
{
    constexpr int inWords = 5;
    const QString keptPath = Util::FreePath(m_realPath, QStringLiteral(".damaged-"));
    const QString failure = Util::KeepFile(keptPath, m_known);
    if (!failure.isEmpty()) {
        return tr("The list of recordings %1 is damaged, and it cannot be kept under another "
                  "name: %2")
            .arg(Util::PrintableText(m_filePath), failure);
    }
    LOG(WARNING) << "Zentor::Schedule::RecordingsList::Open: damaged="
                 << Util::Printable(m_filePath) << "; kept=" << Util::Printable(keptPath)
                 << "; problems=" << problems.size() << ": "
                 << Util::Printable(
                        QStringList(problems.mid(0, inWords)).join(QLatin1String(", ")));
    m_notice = (isUnderstood ? tr("Some entries of the list of recordings could not be used. What "
                                  "the file held is kept in %1.")
                             : tr("The list of recordings could not be understood, so it begins "
                                  "anew. What it held is kept in %1."))
                   .arg(Util::PrintableText(keptPath));
    return {};
}

RecordingsList::Id RecordingsList::Add(const RecordingEntry& entry)
{
    const Id id = ++m_lastId;
    m_items.push_back({id, entry});
    Save();
    Q_EMIT Added(static_cast<int>(m_items.size()) - 1);
    return id;
}

void RecordingsList::Update(Id id, const RecordingEntry& entry)
{
    const int row = RowOf(id);
    if (row < 0 || AreEqual(m_items[static_cast<std::size_t>(row)].entry, entry)) {
        return;
    }
    m_items[static_cast<std::size_t>(row)].entry = entry;
    Save();
    Q_EMIT Updated(row);
}

void RecordingsList::Remove(Id id)
{
    const int row = RowOf(id);
    if (row < 0) {
        return;
    }
    m_items.erase(m_items.begin() + row);
    m_entryFields.remove(id);
    Save();
    Q_EMIT Removed(row);
}

bool RecordingsList::Contains(const QString& title, Moment from, Moment to) const
{
    return std::any_of(m_items.rbegin(), m_items.rend(), [&](const Item& item) {
        const RecordingEntry& entry = item.entry;
        return entry.start >= from && entry.start <= to && entry.outcome != Outcome::Missed
            && entry.title == title;
    });
}

/// The row of the entry called \a id, or -1. Ids only grow towards the end.
int RecordingsList::RowOf(Id id) const
{
    const auto found =
        std::lower_bound(m_items.begin(), m_items.end(), id,
                         [](const Item& item, Id wanted) { return item.id < wanted; });
    return found != m_items.end() && found->id == id
        ? static_cast<int>(std::distance(m_items.begin(), found))
        : -1;
}

void RecordingsList::Save()
{
    if (!m_isOpen) {
        return;
    }
    QString problem = Write();
    if (!problem.isEmpty()) {
        problem = tr("%1: the list of recordings is not saved in %2")
                      .arg(problem, Util::PrintableText(m_filePath));
    }
    if (problem == m_saveProblem) {
        return;
    }
    m_saveProblem = problem;
    LOG_IF(ERROR, !problem.isEmpty())
        << "Zentor::Schedule::RecordingsList::Save: error=" << Util::Printable(problem);
    Q_EMIT SaveProblemChanged();
}

/// Replaces the file by the list. Returns the reason of a failure, or nothing.
QString RecordingsList::Write()
{
    QString failure = KeepChanged();
    if (!failure.isEmpty()) {
        return failure;
    }
    QJsonArray recordings;
    for (const Item& item : m_items) {
        recordings.append(FieldsOf(item.entry, m_entryFields.value(item.id)));
    }
    QJsonObject fields = m_fields;
    fields.insert(Key::Version, CurrentVersion);
    fields.insert(Key::Recordings, recordings);
    return Util::ReplaceFile(m_realPath, QJsonDocument(fields).toJson(), m_known);
}

/// Keeps what another program has put in the file's place. Returns the reason of a failure, or
/// nothing.
QString RecordingsList::KeepChanged()
{
    Util::FileVersion found;
    if (Util::IsUntouched(m_realPath, m_known)) {
        return {};
    }
    QString failure = Util::ReadFile(m_realPath, found);
    if (!failure.isEmpty() || !found.exists
        || (m_known.exists && found.content == m_known.content)) {
        return failure;
    }
    const QString keptPath = Util::FreePath(m_realPath, QStringLiteral(".changed-"));
    failure = Util::KeepFile(keptPath, found);
    if (failure.isEmpty()) {
        // Once is enough, also when saving fails now.
        m_known = found;
        LOG(WARNING) << "Zentor::Schedule::RecordingsList::Save: changed="
                     << Util::Printable(m_filePath) << "; kept=" << Util::Printable(keptPath);
    }
    return failure;
}

} // namespace Zentor::Schedule
