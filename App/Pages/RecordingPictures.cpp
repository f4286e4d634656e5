// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RecordingPictures.h"

#include <utility>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include "CoreInt/MakePrivateFolder.h"

namespace Zentor::Desktop {
namespace {

const QLatin1String Ending(".png");
const QLatin1String UnfinishedEnding(".part.png");

/// Of some tens of kilobytes each.
constexpr int MostPictures = 1000;
/// A file on a volume that hangs must not keep the others waiting for ever.
constexpr std::chrono::seconds Patience(30);
constexpr int EndMilliseconds = 2000;

} // namespace

RecordingPictures::RecordingPictures(QString recorder, const QString& folder, QObject* parent)
    : QObject(parent)
    , m_recorder(std::move(recorder))
    , m_folder(folder)
{
    m_nextTimer.setSingleShot(true);
    m_nextTimer.setInterval(0);
    m_patience.setSingleShot(true);
    m_patience.setInterval(Patience);
    m_process.setStandardOutputFile(QProcess::nullDevice());
    m_process.setStandardErrorFile(QProcess::nullDevice());
    connect(&m_nextTimer, &QTimer::timeout, this, &RecordingPictures::Next);
    connect(&m_patience, &QTimer::timeout, &m_process, &QProcess::kill);
    connect(&m_process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            [this](int code, QProcess::ExitStatus status) {
                Finish(status == QProcess::NormalExit && code == EXIT_SUCCESS);
            });
    connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            Finish(false);
        }
    });
}

RecordingPictures::~RecordingPictures()
{
    m_process.disconnect(this);
    if (m_process.state() != QProcess::NotRunning) {
        m_process.kill();
        m_process.waitForFinished(EndMilliseconds);
        QFile::remove(PathOf(m_current) + UnfinishedEnding);
    }
}

QString RecordingPictures::UsualFolder()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::CacheLocation))
        .filePath(QStringLiteral("pictures"));
}

void RecordingPictures::Want(const QList<Source>& sources)
{
    m_wanted = sources;
    m_nextTimer.start();
}

QString RecordingPictures::PathOf(const Source& source) const
{
    const QByteArray name =
        source.file.toUtf8() + '\0' + QByteArray::number(source.changed.toMSecsSinceEpoch());
    const QByteArray key = QCryptographicHash::hash(name, QCryptographicHash::Sha1).toHex();
    return QDir(m_folder).filePath(QString::fromLatin1(key));
}

/// One at a time: the window stays alive in between.
void RecordingPictures::Next()
{
    while (m_process.state() == QProcess::NotRunning && !m_wanted.isEmpty()) {
        const Source source = m_wanted.takeFirst();
        const QString key = PathOf(source);
        if (m_failed.contains(key)) {
            continue;
        }
        if (!Load(source)) {
            Make(source);
        }
        m_nextTimer.start();
        return;
    }
}

bool RecordingPictures::Load(const Source& source)
{
    const QImage picture(PathOf(source) + Ending);
    if (!picture.isNull()) {
        Q_EMIT Made(source.file, picture);
    }
    return !picture.isNull();
}

void RecordingPictures::Make(const Source& source)
{
    m_current = source;
    if (!Util::MakePrivateFolder(m_folder)) {
        Finish(false);
        return;
    }
    m_patience.start();
    // The recorder touches no file that is there, and a run that was killed may have left one.
    QFile::remove(PathOf(source) + UnfinishedEnding);
    m_process.start(m_recorder,
                    {QStringLiteral("--picture"), source.file, PathOf(source) + UnfinishedEnding},
                    QIODevice::NotOpen);
}

void RecordingPictures::Finish(bool isMade)
{
    m_patience.stop();
    const QString path = PathOf(m_current);
    if (isMade && QFile::rename(path + UnfinishedEnding, path + Ending)) {
        Load(m_current);
        Sweep();
    } else {
        m_failed.insert(path);
        QFile::remove(path + UnfinishedEnding);
    }
    m_nextTimer.start();
}

void RecordingPictures::Sweep() const
{
    QDir folder(m_folder);
    const QStringList newestFirst =
        folder.entryList({QLatin1Char('*') + Ending}, QDir::Files, QDir::Time);
    for (const QString& name : newestFirst.mid(MostPictures)) {
        folder.remove(name);
    }
}

} // namespace Zentor::Desktop
