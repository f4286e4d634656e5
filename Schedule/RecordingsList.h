// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include <QHash>
#include <QJsonObject>
#include <QObject>

#include "PXUserSettings/PrivateFile.h"
#include "RecordingEntry.h"

namespace Zentor::Schedule {

/// The recordings that were made, missed and failed, kept in a file beside the settings:
///
///     { "version": 1,
///       "recordings": [ { "title": "Lecture", "start": 1900000000000000, "end": 1900005400000000,
///                         "outcome": "complete", "file": "/home/user/Videos/Lecture ….mkv",
///                         "reason": "" } ] }
///
/// Newest last. Outcomes are "complete", "partial", "stopped", "missed", "failed" and "recording".
/// The file is replaced as a whole, at once with each change: what it says must survive a crash in
/// the next second. A file that cannot be understood is kept under another name beside it
/// (".damaged-", date and time added); single entries that cannot be used are dropped, with a copy
/// of the file kept the same way. Fields that are not known are kept. What another program has put
/// in the file's place meanwhile is kept as well (".changed-"), and replaced.
///
/// Only the process that has the settings file open may open the list beside it.
class RecordingsList final : public QObject {
    Q_OBJECT

public:
    /// Names an entry as long as the list lives; never reused.
    using Id = quint64;

    struct Item {
        Id id;
        RecordingEntry entry;
    };

    /// A list in \a filePath, which Open() reads.
    explicit RecordingsList(const QString& filePath, QObject* parent = nullptr);
    ~RecordingsList() override;

    /// The path of the list that belongs to \a settingsFile.
    static QString PathFor(const QString& settingsFile);

    /// Reads the file; where there is none the list is empty. Returns why the file cannot be used,
    /// for the user, or nothing. The list works in memory all the same, and is not saved then.
    QString Open();

    /// What Open() could not use of the file, and where that is kept, or why it could not be read
    /// at all: for the user. Empty when all could be used.
    const QString& Notice() const { return m_notice; }

    /// Newest last.
    const std::vector<Item>& Items() const { return m_items; }

    /// Adds \a entry as the newest and saves the list.
    Id Add(const RecordingEntry& entry);

    /// Replaces the entry called \a id, where it stands, and saves the list. Does nothing when
    /// there is none, or when it is \a entry already.
    void Update(Id id, const RecordingEntry& entry);

    /// Takes the entry called \a id out of the list and saves that. Its recording stays.
    void Remove(Id id);

    /// Whether there is an entry, missed ones left out, with \a title and a start in the span from
    /// \a from to \a to, both included.
    bool Contains(const QString& title, Moment from, Moment to) const;

    /// Why the list could not be saved last, for the user; empty when it could. It is tried again
    /// with the next change.
    const QString& SaveProblem() const { return m_saveProblem; }

Q_SIGNALS:
    /// Sent after a change of Items(), with the row that is concerned.
    void Added(int row);
    void Updated(int row);
    void Removed(int row);
    /// SaveProblem() is another one.
    void SaveProblemChanged();

private:
    int RowOf(Id id) const;
    QString Read();
    QString KeepDamaged(bool isUnderstood, const QStringList& problems);
    void Save();
    QString Write();
    QString KeepChanged();

    const QString m_filePath;
    /// Where it leads.
    QString m_realPath;
    std::vector<Item> m_items;
    Id m_lastId = 0;
    /// The file as it was read or written last.
    Util::FileVersion m_known;
    /// What the file holds beside the entries, and what single ones hold that is not known.
    QJsonObject m_fields;
    QHash<Id, QJsonObject> m_entryFields;
    bool m_isOpen = false;
    QString m_notice;
    QString m_saveProblem;
};

} // namespace Zentor::Schedule
