// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include <QDateTime>
#include <QHash>
#include <QObject>
#include <QSet>
#include <QStringList>
#include <QThreadPool>

namespace Zentor::Desktop {

/// What is known of the files of recordings, which may be many and lie on a slow volume: they are
/// looked at in a thread, and only those that are asked for.
class RecordingFiles final : public QObject {
    Q_OBJECT

public:
    struct Facts {
        bool exists = false;
        qint64 bytes = 0;
        /// When it was changed last.
        QDateTime changed;
    };

    explicit RecordingFiles(QObject* parent = nullptr);
    /// Waits for the file that is being looked at.
    ~RecordingFiles() override;

    /// What was found out last; nothing where \a path has not been looked at.
    std::optional<Facts> FactsOf(const QString& path) const;

    /// Looks at those of \a paths that have not been looked at since Forget().
    void Look(const QStringList& paths);

    /// Has all files looked at anew when they are asked for. What is known counts until then.
    void Forget();

Q_SIGNALS:
    /// \a path has been looked at, and something is different from before.
    void Changed(const QString& path);

private:
    void TakeOver(const QString& path, const Facts& facts);

    QHash<QString, Facts> m_facts;
    /// Looked at, or about to be.
    QSet<QString> m_lookedAt;
    QThreadPool m_pool;
};

} // namespace Zentor::Desktop
