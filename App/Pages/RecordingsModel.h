// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <vector>

#include <QAbstractListModel>
#include <QCache>
#include <QImage>

#include "RecordingFiles.h"
#include "RecordingsList.h"

namespace Zentor::Desktop {

/// The recordings, newest first. What is asked for costs no look at a file: those are looked at by
/// LookAt(), for the rows on screen.
class RecordingsModel final : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role {
        /// When, how long and how large, in a line.
        DetailsRole = Qt::UserRole,
        /// How it ended, and why.
        OutcomeRole,
        /// Whether something went wrong.
        IsProblemRole,
        /// A QImage, null where there is none.
        PictureRole
    };

    explicit RecordingsModel(QObject* parent = nullptr);
    ~RecordingsModel() override;

    void SetList(std::shared_ptr<Schedule::RecordingsList> list);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    /// The entry in \a row, which there is.
    const Schedule::RecordingsList::Item& ItemAt(int row) const;
    /// The row of the entry called \a id, or -1.
    int RowOf(Schedule::RecordingsList::Id id) const;

    /// What is known of the file in \a row.
    std::optional<RecordingFiles::Facts> FactsAt(int row) const;

    /// Looks at the files in the rows from \a first to \a last that have not been looked at.
    void LookAt(int first, int last);
    /// Has files looked at anew by LookAt().
    void ForgetFiles();

    /// Shows \a picture with the recordings in \a file.
    void SetPicture(const QString& file, const QImage& picture);

    /// Shows texts in the language in use.
    void Retranslate();

private:
    int RowOfListRow(int listRow) const;
    void Follow(const Schedule::RecordingsList& list);
    void ShowChangeOf(const QString& file);
    QImage PictureOf(const QString& file) const;
    QString DetailsOf(const Schedule::RecordingEntry& entry) const;
    static QString FileText(const Schedule::RecordingEntry& entry,
                            const std::optional<RecordingFiles::Facts>& facts);

    std::shared_ptr<Schedule::RecordingsList> m_list;
    /// As in the list, newest last: what views were told of. The list tells of changes afterwards.
    std::vector<Schedule::RecordingsList::Item> m_items;
    RecordingFiles m_files;
    /// By file; many more than are on screen at once.
    QCache<QString, QImage> m_pictures;
    /// The rows that LookAt() was called for.
    int m_firstRow = 0;
    int m_lastRow = -1;
};

} // namespace Zentor::Desktop
