// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "SettingsStore.h"

#include <cerrno>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QLockFile>
#include <QTimer>

#include <glog/logging.h>

#include "../CoreInt/MakePrivateFolder.h"
#include "../CoreInt/Printable.h"
#include "PrivateFile.h"
#include "SettingsFormat.h"

namespace Zentor::PX {
namespace {

constexpr std::chrono::seconds RetryInterval(5);
const QLatin1String LockSuffix(".lock");

QString Text(const char* text, const QString& path, const QString& reason = {})
{
    const QString translated = QCoreApplication::translate("SettingsStore", text);
    const QString printable = Util::PrintableText(path);
    return reason.isEmpty() ? translated.arg(printable) : translated.arg(printable, reason);
}

QString LockProblem(QLockFile::LockError error)
{
    switch (error) {
    case QLockFile::LockFailedError:
        return QCoreApplication::translate("SettingsStore",
                                           "The file is in use by another process");
    case QLockFile::PermissionError:
        return QCoreApplication::translate("SettingsStore", "The folder cannot be written to");
    default:
        // What Qt names as the cause when the lock can be created but not written.
        return qt_error_string(ENOSPC);
    }
}

/// The problems in one line, the first few of them in words.
std::string Summary(const QStringList& problems)
{
    constexpr int inWords = 5;
    QString summary = QStringList(problems.mid(0, inWords)).join(QLatin1String(", "));
    if (problems.size() > inWords) {
        summary += QStringLiteral(" and %1 more").arg(problems.size() - inWords);
    }
    return Util::Printable(summary);
}

} // namespace

struct Q_DECL_HIDDEN SettingsStore::Private {
    Private(SettingsStore* owner, const QString& path)
        : store(owner)
        , filePath(path)
    {
    }

    QString Lock();
    bool TryLock();
    QString Load();
    QString KeepDamaged(const SettingsDocument& document);
    QString KeepChanged();
    QString Write(const QByteArray& content);

    SettingsStore* const store;
    const QString filePath;
    /// Where it leads.
    QString realPath;
    std::unique_ptr<QLockFile> lock;
    std::vector<SettingsSection> sections;
    UserSettings settings;
    /// The file as it was read or written last.
    Util::FileVersion known;
    /// What the file holds beside the settings that are known.
    QJsonObject fields;
    /// Fires in the next pass of the event loop after a change.
    QTimer saveTimer;
    /// Fires some time after a failure.
    QTimer retryTimer;
    bool isOpen = false;
    bool isDirty = false;
    /// Why saving failed last; empty after a success.
    QString saveFailure;
    std::vector<SettingsNotice> notices;
};

SettingsStore::SettingsStore(const QString& filePath, QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Private>(this, QFileInfo(filePath).absoluteFilePath()))
{
    d->saveTimer.setSingleShot(true);
    d->retryTimer.setSingleShot(true);
    connect(&d->saveTimer, &QTimer::timeout, this, &SettingsStore::Flush);
    connect(&d->retryTimer, &QTimer::timeout, this, &SettingsStore::Flush);
    connect(qApp, &QCoreApplication::aboutToQuit, this, &SettingsStore::Flush);
}

SettingsStore::~SettingsStore()
{
    Flush();
}

void SettingsStore::AddSection(const SettingsSection& section)
{
    d->sections.push_back(section);
    d->settings = DefaultSettings(d->sections);
}

bool SettingsStore::Open(QString* error)
{
    QString reason = d->Lock();
    if (reason.isEmpty()) {
        reason = d->Load();
    }
    d->isOpen = reason.isEmpty();
    if (d->isOpen && d->lock->isLocked()) {
        Util::RemoveUnfinishedFiles(d->realPath);
    }
    if (!d->isOpen) {
        d->lock.reset();
        *error = reason;
    }
    return d->isOpen;
}

/// Takes the file for this store. Returns the reason of a failure, or nothing.
QString SettingsStore::Private::Lock()
{
    realPath = Util::RealPath(filePath);
    lock = std::make_unique<QLockFile>(realPath + LockSuffix);
    const QFileInfo file(realPath);
    if (QFileInfo(filePath).fileName().isEmpty() || (file.exists() && !file.isFile())) {
        return Text(QT_TRANSLATE_NOOP("SettingsStore", "The settings file %1 is not a file."),
                    filePath);
    }
    if (!Util::MakePrivateFolder(file.path())) {
        return Text(QT_TRANSLATE_NOOP("SettingsStore",
                                      "The settings file %1 cannot be created: its folder is "
                                      "missing and cannot be created either."),
                    filePath);
    }
    if (TryLock()) {
        return {};
    }
    if (lock->error() == QLockFile::LockFailedError) {
        return Text(QT_TRANSLATE_NOOP("SettingsStore",
                                      "The settings file %1 is in use by another process."),
                    filePath);
    }
    if (file.exists()) {
        // In a folder that cannot be written to the file can be read still, and nobody else can
        // replace it either.
        return {};
    }
    return Text(QT_TRANSLATE_NOOP("SettingsStore",
                                  "The settings file %1 cannot be created: its folder cannot be "
                                  "written to."),
                filePath);
}

bool SettingsStore::Private::TryLock()
{
    const bool isLocked = lock->tryLock(0);
    if (isLocked) {
        QFile::setPermissions(realPath + LockSuffix, QFile::ReadOwner | QFile::WriteOwner);
    }
    return isLocked;
}

/// Reads the file. Returns the reason of a failure, or nothing.
QString SettingsStore::Private::Load()
{
    QString failure = Util::ReadFile(realPath, known);
    if (!failure.isEmpty()) {
        return Text(QT_TRANSLATE_NOOP("SettingsStore", "The settings file %1 cannot be read: %2"),
                    filePath, failure);
    }
    if (!known.exists) {
        return {};
    }
    const SettingsDocument document = ParseSettings(known.content, sections);
    if (!document.problems.isEmpty()) {
        failure = KeepDamaged(document);
        if (!failure.isEmpty()) {
            return failure;
        }
        isDirty = true;
        saveTimer.start();
    }
    settings = document.settings;
    fields = document.fields;
    return {};
}

/// Writes what was found in a damaged file beside it. Returns the reason of a failure, or nothing.
QString SettingsStore::Private::KeepDamaged(const SettingsDocument& document)
{
    const QString keptPath = Util::FreePath(realPath, QStringLiteral(".damaged-"));
    const QString failure = Util::KeepFile(keptPath, known);
    if (!failure.isEmpty()) {
        return Text(
            QT_TRANSLATE_NOOP("SettingsStore",
                              "The settings file %1 is damaged, and it cannot be kept under "
                              "another name: %2"),
            filePath, failure);
    }
    LOG(WARNING) << "Zentor::PX::SettingsStore::Open: damaged=" << Util::Printable(filePath)
                 << "; kept=" << Util::Printable(keptPath)
                 << "; problems=" << Summary(document.problems);
    notices.push_back({document.isUnderstood ? SettingsNotice::Cause::PartlyUnusable
                                             : SettingsNotice::Cause::NotUnderstood,
                       keptPath, document.droppedTasks});
    return {};
}

/// Writes what another program has made of the file beside it. Returns the reason of a failure, or
/// nothing.
QString SettingsStore::Private::KeepChanged()
{
    if (Util::IsUntouched(realPath, known)) {
        return {};
    }
    Util::FileVersion found;
    QString failure = Util::ReadFile(realPath, found);
    const bool isChanged = found.exists && (!known.exists || found.content != known.content);
    if (!failure.isEmpty() || !isChanged) {
        return failure;
    }
    const QString keptPath = Util::FreePath(realPath, QStringLiteral(".changed-"));
    failure = Util::KeepFile(keptPath, found);
    if (failure.isEmpty()) {
        // Once is enough, also when saving fails now.
        known = found;
        LOG(WARNING) << "Zentor::PX::SettingsStore::Flush: changed=" << Util::Printable(filePath)
                     << "; kept=" << Util::Printable(keptPath);
        notices.push_back({SettingsNotice::Cause::ChangedOutside, keptPath});
        Q_EMIT store->NoticeAdded();
    }
    return failure;
}

const QString& SettingsStore::FilePath() const
{
    return d->filePath;
}

const UserSettings& SettingsStore::Settings() const
{
    return d->settings;
}

const std::vector<SettingsNotice>& SettingsStore::Notices() const
{
    return d->notices;
}

void SettingsStore::Change(const std::function<void(UserSettings&)>& change)
{
    change(d->settings);
    d->isDirty = true;
    d->saveTimer.start();
    Q_EMIT Changed();
}

QString SettingsStore::SaveProblem() const
{
    return d->saveFailure.isEmpty()
        ? QString()
        : Text(QT_TRANSLATE_NOOP("SettingsStore", "%2: your changes are not saved in %1"),
               d->filePath, d->saveFailure);
}

bool SettingsStore::Flush()
{
    if (!d->isOpen || !d->isDirty) {
        return !d->isDirty;
    }
    d->saveTimer.stop();
    d->retryTimer.stop();
    const QJsonObject fields = FieldsOf(d->settings, d->fields);
    const QByteArray content = QJsonDocument(fields).toJson();
    // After a failure nobody knows how much of it has reached the disk.
    if (d->saveFailure.isEmpty() && d->known.exists && content == d->known.content
        && Util::IsUntouched(d->realPath, d->known)) {
        d->isDirty = false;
        return true;
    }
    const QString failure = d->Write(content);
    if (failure.isEmpty()) {
        // A task that is gone takes its unknown fields along.
        d->fields = fields;
        d->isDirty = false;
        d->saveFailure.clear();
        Q_EMIT Saved();
        return true;
    }
    d->retryTimer.start(RetryInterval);
    if (failure != d->saveFailure) {
        d->saveFailure = failure;
        LOG(ERROR) << "Zentor::PX::SettingsStore::Flush: error=" << Util::Printable(failure)
                   << "; file=" << Util::Printable(d->filePath);
        Q_EMIT SaveFailed(SaveProblem());
    }
    return false;
}

/// Replaces the file by \a content. Returns the reason of a failure, or nothing.
QString SettingsStore::Private::Write(const QByteArray& content)
{
    if (!lock->isLocked() && !TryLock()) {
        return LockProblem(lock->error());
    }
    const QString failure = KeepChanged();
    return failure.isEmpty() ? Util::ReplaceFile(realPath, content, known) : failure;
}

} // namespace Zentor::PX
