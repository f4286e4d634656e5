// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RecordingsModel.h"

#include <algorithm>

#include "RecordingTexts.h"
#include "SizeText.h"

namespace Zentor::Desktop {

using Schedule::Outcome;
using Schedule::RecordingEntry;
using Schedule::RecordingsList;

namespace {

constexpr int MostPictures = 200;

bool HasLength(const RecordingEntry& entry)
{
    const bool isRecorded = entry.outcome == Outcome::Complete || entry.outcome == Outcome::Partial
        || entry.outcome == Outcome::Stopped;
    return isRecorded && entry.end > entry.start;
}

bool IsProblem(const RecordingEntry& entry)
{
    return entry.outcome == Outcome::Partial || entry.outcome == Outcome::Missed
        || entry.outcome == Outcome::Failed;
}

} // namespace

RecordingsModel::RecordingsModel(QObject* parent)
    : QAbstractListModel(parent)
    , m_pictures(MostPictures)
{
    connect(&m_files, &RecordingFiles::Changed, this, [this](const QString& file) {
        m_pictures.remove(file);
        ShowChangeOf(file);
    });
}

RecordingsModel::~RecordingsModel() = default;

void RecordingsModel::SetList(std::shared_ptr<RecordingsList> list)
{
    beginResetModel();
    m_list = std::move(list);
    m_items = m_list->Items();
    endResetModel();
    Follow(*m_list);
}

void RecordingsModel::Follow(const RecordingsList& list)
{
    connect(&list, &RecordingsList::Added, this, [this, &list](int row) {
        const int inserted = rowCount() - row;
        beginInsertRows({}, inserted, inserted);
        m_items.insert(m_items.begin() + row, list.Items()[static_cast<std::size_t>(row)]);
        endInsertRows();
    });
    connect(&list, &RecordingsList::Updated, this, [this, &list](int row) {
        const auto place = static_cast<std::size_t>(row);
        m_items[place] = list.Items()[place];
        const QModelIndex changed = index(RowOfListRow(row));
        Q_EMIT dataChanged(changed, changed);
    });
    connect(&list, &RecordingsList::Removed, this, [this](int row) {
        beginRemoveRows({}, RowOfListRow(row), RowOfListRow(row));
        m_items.erase(m_items.begin() + row);
        endRemoveRows();
    });
}

int RecordingsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_items.size());
}

/// Newest first here, newest last there.
int RecordingsModel::RowOfListRow(int listRow) const
{
    return rowCount() - 1 - listRow;
}

const RecordingsList::Item& RecordingsModel::ItemAt(int row) const
{
    return m_items[static_cast<std::size_t>(RowOfListRow(row))];
}

int RecordingsModel::RowOf(RecordingsList::Id id) const
{
    const auto found = std::find_if(m_items.rbegin(), m_items.rend(),
                                    [&](const auto& item) { return item.id == id; });
    return found == m_items.rend() ? -1 : static_cast<int>(found - m_items.rbegin());
}

std::optional<RecordingFiles::Facts> RecordingsModel::FactsAt(int row) const
{
    return m_files.FactsOf(ItemAt(row).entry.file);
}

QVariant RecordingsModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const RecordingEntry& entry = ItemAt(index.row()).entry;
    switch (role) {
    case Qt::DisplayRole:
        return entry.title;
    case DetailsRole:
        return DetailsOf(entry);
    case OutcomeRole:
        return OutcomeText(entry);
    case IsProblemRole:
        return IsProblem(entry);
    case PictureRole:
        return PictureOf(entry.file);
    case Qt::AccessibleTextRole:
        return QStringList{entry.title, OutcomeText(entry), DetailsOf(entry)}.join(
            QLatin1String(", "));
    case Qt::ToolTipRole:
        return (entry.file.isEmpty() ? entry.title : entry.file).toHtmlEscaped();
    default:
        return {};
    }
}

QImage RecordingsModel::PictureOf(const QString& file) const
{
    const QImage* picture = m_pictures.object(file);
    return picture != nullptr ? *picture : QImage();
}

QString RecordingsModel::DetailsOf(const RecordingEntry& entry) const
{
    QStringList details{MomentText(entry.start)};
    if (HasLength(entry)) {
        details << LengthText(entry.end - entry.start);
    }
    const QString file = FileText(entry, m_files.FactsOf(entry.file));
    if (!file.isEmpty()) {
        details << file;
    }
    return details.join(QStringLiteral("  \u00b7  "));
}

QString RecordingsModel::FileText(const RecordingEntry& entry,
                                  const std::optional<RecordingFiles::Facts>& facts)
{
    // A file that grows has no size worth telling.
    if (!facts || entry.outcome == Outcome::Recording) {
        return {};
    }
    return facts->exists ? SizeText(facts->bytes) : tr("the file is gone");
}

void RecordingsModel::LookAt(int first, int last)
{
    m_firstRow = std::max(first, 0);
    m_lastRow = std::min(last, rowCount() - 1);
    QStringList files;
    for (int row = m_firstRow; row <= m_lastRow; ++row) {
        files << ItemAt(row).entry.file;
    }
    m_files.Look(files);
}

void RecordingsModel::ForgetFiles()
{
    m_files.Forget();
}

/// Rows that were scrolled away meanwhile show it when they are back.
void RecordingsModel::ShowChangeOf(const QString& file)
{
    for (int row = m_firstRow; row <= std::min(m_lastRow, rowCount() - 1); ++row) {
        if (ItemAt(row).entry.file == file) {
            Q_EMIT dataChanged(index(row), index(row));
        }
    }
}

void RecordingsModel::SetPicture(const QString& file, const QImage& picture)
{
    m_pictures.insert(file, new QImage(picture));
    ShowChangeOf(file);
}

void RecordingsModel::Retranslate()
{
    if (rowCount() > 0) {
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
    }
}

} // namespace Zentor::Desktop
