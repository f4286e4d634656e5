// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "SettingsStore.h"

#include <cerrno>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>

#include <glog/logging.h>

#include "../CoreInt/MakePrivateFolder.h"
#include "../CoreInt/Printable.h"

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

SettingsStore::SettingsStore(const QString& filePath, QObject* parent)
    : QObject(parent)
    , m_filePath(QFileInfo(filePath).absoluteFilePath())
{
    m_saveTimer.setSingleShot(true);
    m_retryTimer.setSingleShot(true);
    connect(&m_saveTimer, &QTimer::timeout, this, &SettingsStore::Flush);
    connect(&m_retryTimer, &QTimer::timeout, this, &SettingsStore::Flush);
    connect(qApp, &QCoreApplication::aboutToQuit, this, &SettingsStore::Flush);
}

SettingsStore::~SettingsStore()
{
    Flush();
}

void SettingsStore::AddSection(const SettingsSection& section)
{
    m_sections.push_back(section);
    m_settings = DefaultSettings(m_sections);
}

bool SettingsStore::Open(QString* error)
{
    QString reason = Lock();
    if (reason.isEmpty()) {
        reason = Load();
    }
    m_isOpen = reason.isEmpty();
    if (m_isOpen && m_lock->isLocked()) {
        Util::RemoveUnfinishedFiles(m_realPath);
    }
    if (!m_isOpen) {
        m_lock.reset();
        *error = reason;
    }
    return m_isOpen;
}

/// Takes the file for this store. Returns the reason of a failure, or nothing.
QString SettingsStore::Lock()
{
    m_realPath = Util::RealPath(m_filePath);
    m_lock = std::make_unique<QLockFile>(m_realPath + LockSuffix);
    const QFileInfo file(m_realPath);
    if (QFileInfo(m_filePath).fileName().isEmpty() || (file.exists() && !file.isFile())) {
        return Text(QT_TRANSLATE_NOOP("SettingsStore", "The settings file %1 is not a file."),
                    m_filePath);
    }
    if (!Util::MakePrivateFolder(file.path())) {
        return Text(QT_TRANSLATE_NOOP("SettingsStore",
                                      "The settings file %1 cannot be created: its folder is "
                                      "missing and cannot be created either."),
                    m_filePath);
    }
    if (TryLock()) {
        return {};
    }
    if (m_lock->error() == QLockFile::LockFailedError) {
        return Text(QT_TRANSLATE_NOOP("SettingsStore",
                                      "The settings file %1 is in use by another process."),
                    m_filePath);
    }
    if (file.exists()) {
        // In a folder that cannot be written to the file can be read still, and nobody else can
        // replace it either.
        return {};
    }
    return Text(QT_TRANSLATE_NOOP("SettingsStore",
                                  "The settings file %1 cannot be created: its folder cannot be "
                                  "written to."),
                m_filePath);
}

bool SettingsStore::TryLock()
{
    const bool isLocked = m_lock->tryLock(0);
    if (isLocked) {
        QFile::setPermissions(m_realPath + LockSuffix, QFile::ReadOwner | QFile::WriteOwner);
    }
    return isLocked;
}

/// Reads the file. Returns the reason of a failure, or nothing.
QString SettingsStore::Load()
{
    QString failure = Util::ReadFile(m_realPath, m_known);
    if (!failure.isEmpty()) {
        return Text(QT_TRANSLATE_NOOP("SettingsStore", "The settings file %1 cannot be read: %2"),
                    m_filePath, failure);
    }
    if (!m_known.exists) {
        return {};
    }
    const SettingsDocument document = ParseSettings(m_known.content, m_sections);
    if (!document.problems.isEmpty()) {
        failure = KeepDamaged(document);
        if (!failure.isEmpty()) {
            return failure;
        }
        m_isDirty = true;
        m_saveTimer.start();
    }
    m_settings = document.settings;
    m_fields = document.fields;
    return {};
}

/// Writes what was found in a damaged file beside it. Returns the reason of a failure, or nothing.
QString SettingsStore::KeepDamaged(const SettingsDocument& document)
{
    const QString keptPath = Util::FreePath(m_realPath, QStringLiteral(".damaged-"));
    const QString failure = Util::KeepFile(keptPath, m_known);
    if (!failure.isEmpty()) {
        return Text(
            QT_TRANSLATE_NOOP("SettingsStore",
                              "The settings file %1 is damaged, and it cannot be kept under "
                              "another name: %2"),
            m_filePath, failure);
    }
    LOG(WARNING) << "Zentor::PX::SettingsStore::Open: damaged=" << Util::Printable(m_filePath)
                 << "; kept=" << Util::Printable(keptPath)
                 << "; problems=" << Summary(document.problems);
    m_notices.push_back({document.isUnderstood ? SettingsNotice::Cause::PartlyUnusable
                                               : SettingsNotice::Cause::NotUnderstood,
                         keptPath, document.droppedTasks});
    return {};
}

/// Writes what another program has made of the file beside it. Returns the reason of a failure, or
/// nothing.
QString SettingsStore::KeepChanged()
{
    if (Util::IsUntouched(m_realPath, m_known)) {
        return {};
    }
    Util::FileVersion found;
    QString failure = Util::ReadFile(m_realPath, found);
    const bool isChanged = found.exists && (!m_known.exists || found.content != m_known.content);
    if (!failure.isEmpty() || !isChanged) {
        return failure;
    }
    const QString keptPath = Util::FreePath(m_realPath, QStringLiteral(".changed-"));
    failure = Util::KeepFile(keptPath, found);
    if (failure.isEmpty()) {
        // Once is enough, also when saving fails now.
        m_known = found;
        LOG(WARNING) << "Zentor::PX::SettingsStore::Flush: changed=" << Util::Printable(m_filePath)
                     << "; kept=" << Util::Printable(keptPath);
        m_notices.push_back({SettingsNotice::Cause::ChangedOutside, keptPath});
        Q_EMIT NoticeAdded();
    }
    return failure;
}

void SettingsStore::Change(const std::function<void(UserSettings&)>& change)
{
    change(m_settings);
    m_isDirty = true;
    m_saveTimer.start();
    Q_EMIT Changed();
}

QString SettingsStore::SaveProblem() const
{
    return m_failure.isEmpty()
        ? QString()
        : Text(QT_TRANSLATE_NOOP("SettingsStore", "%2: your changes are not saved in %1"),
               m_filePath, m_failure);
}

bool SettingsStore::Flush()
{
    if (!m_isOpen || !m_isDirty) {
        return !m_isDirty;
    }
    m_saveTimer.stop();
    m_retryTimer.stop();
    const QJsonObject fields = FieldsOf(m_settings, m_fields);
    const QByteArray content = QJsonDocument(fields).toJson();
    // After a failure nobody knows how much of it has reached the disk.
    if (m_failure.isEmpty() && m_known.exists && content == m_known.content
        && Util::IsUntouched(m_realPath, m_known)) {
        m_isDirty = false;
        return true;
    }
    const QString failure = Write(content);
    if (failure.isEmpty()) {
        // A task that is gone takes its unknown fields along.
        m_fields = fields;
        m_isDirty = false;
        m_failure.clear();
        Q_EMIT Saved();
        return true;
    }
    m_retryTimer.start(RetryInterval);
    if (failure != m_failure) {
        m_failure = failure;
        LOG(ERROR) << "Zentor::PX::SettingsStore::Flush: error=" << Util::Printable(failure)
                   << "; file=" << Util::Printable(m_filePath);
        Q_EMIT SaveFailed(SaveProblem());
    }
    return false;
}

/// Replaces the file by \a content. Returns the reason of a failure, or nothing.
QString SettingsStore::Write(const QByteArray& content)
{
    if (!m_lock->isLocked() && !TryLock()) {
        return LockProblem(m_lock->error());
    }
    const QString failure = KeepChanged();
    return failure.isEmpty() ? Util::ReplaceFile(m_realPath, content, m_known) : failure;
}

} // namespace Zentor::PX
