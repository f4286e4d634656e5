// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDateTime>
#include <QHash>
#include <QImage>
#include <QObject>
#include <QProcess>
#include <QSet>
#include <QTimer>

namespace Zentor::Desktop {

/// Small pictures of recordings. px-recorder makes them, one after the other; they are kept in a
/// folder from one run to the next, by the file's path and last change.
class RecordingPictures final : public QObject {
    Q_OBJECT

public:
    /// What a picture is of.
    struct Source {
        QString file;
        QDateTime changed;
    };

    /// \a recorder is the program; \a folder is created when the first picture is made.
    RecordingPictures(QString recorder, const QString& folder, QObject* parent = nullptr);
    /// Stops the recorder.
    ~RecordingPictures() override;

    /// Where pictures are kept usually.
    static QString UsualFolder();

    /// Has pictures of \a sources made, in this order, instead of those that were wanted before and
    /// have not been begun. One that could not be made is not tried again before the file changes.
    void Want(const QList<Source>& sources);

Q_SIGNALS:
    void Made(const QString& file, const QImage& picture);

private:
    void Next();
    bool Load(const Source& source);
    void Make(const Source& source);
    void Finish(bool isMade);
    void Sweep() const;
    QString PathOf(const Source& source) const;

    const QString m_recorder;
    const QString m_folder;
    QList<Source> m_wanted;
    /// In this run.
    QSet<QString> m_failed;
    Source m_current;
    QProcess m_process;
    QTimer m_nextTimer;
    QTimer m_patience;
};

} // namespace Zentor::Desktop
