#include "SettingsStore.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include <glog/logging.h>

#include "PrivateFile.h"

namespace Zentor::PX {
namespace {

constexpr std::chrono::seconds RetryInterval(5);

QString Text(const char* text, const QString& path, const QString& reason = {})
{
    const QString translated = QCoreApplication::translate("SettingsStore", text);
    return reason.isEmpty() ? translated.arg(path) : translated.arg(path, reason);
}

bool WriteAll(QIODevice& device, QByteArray content)
{
    while (!content.isEmpty()) {
        const qint64 written = device.write(content);
        if (written <= 0) {
            return false;
        }
        content.remove(0, static_cast<int>(written));
    }
    return true;
}

/// Replaces the file as a whole. Returns the reason of a failure, or nothing.
QString ReplaceFile(const QString& path, const QByteArray& content)
{
    QSaveFile file(path);
    // Unbuffered: commit() would write what is left in a buffer and not notice when that fails.
    const bool isSaved = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)
        && WriteAll(file, content) && file.commit();
    return isSaved ? QString() : file.errorString();
}

/// A name beside \a path that no file has.
QString FreeDamagedPath(const QString& path)
{
    const QString stem = path + QLatin1String(".damaged-")
        + QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-hhmmss"));
    QString candidate = stem;
    for (int number = 2; QFileInfo::exists(candidate); ++number) {
        candidate = QStringLiteral("%1-%2").arg(stem).arg(number);
    }
    return candidate;
}

/// The problems in one line, the first few of them in words.
std::string Summary(const QStringList& problems)
{
    constexpr int inWords = 5;
    QString summary = QStringList(problems.mid(0, inWords)).join(QLatin1String(", "));
    if (problems.size() > inWords) {
        summary += QStringLiteral(" and %1 more").arg(problems.size() - inWords);
    }
    return summary.toStdString();
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
    m_lock = std::make_unique<QLockFile>(m_realPath + QLatin1String(".lock"));
    const QFileInfo file(m_realPath);
    if (QFileInfo(m_filePath).fileName().isEmpty() || (file.exists() && !file.isFile())) {
        return Text(QT_TRANSLATE_NOOP("SettingsStore", "The settings file %1 is not a file."),
                    m_filePath);
    }
    if (!QDir().mkpath(file.path())) {
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
    return m_lock->tryLock(0);
}

/// Reads the file. Returns the reason of a failure, or nothing.
QString SettingsStore::Load()
{
    Util::FileVersion found;
    QString failure = Util::ReadFile(m_realPath, found);
    if (!failure.isEmpty()) {
        return Text(QT_TRANSLATE_NOOP("SettingsStore", "The settings file %1 cannot be read: %2"),
                    m_filePath, failure);
    }
    if (!found.exists) {
        return {};
    }
    const SettingsDocument document = ParseSettings(found.content, m_sections);
    if (!document.problems.isEmpty()) {
        failure = KeepDamaged(found.content, document.problems);
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
QString SettingsStore::KeepDamaged(const QByteArray& content, const QStringList& problems) const
{
    const QString keptPath = FreeDamagedPath(m_realPath);
    const QString failure = ReplaceFile(keptPath, content);
    if (!failure.isEmpty()) {
        return Text(
            QT_TRANSLATE_NOOP("SettingsStore",
                              "The settings file %1 is damaged, and it cannot be kept under "
                              "another name: %2"),
            m_filePath, failure);
    }
    LOG(WARNING) << "Zentor::PX::SettingsStore::Open: damaged=" << m_filePath.toStdString()
                 << "; kept=" << keptPath.toStdString() << "; problems=" << Summary(problems);
    return {};
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
        : Text(QT_TRANSLATE_NOOP("SettingsStore", "The settings cannot be saved in %1: %2"),
               m_filePath, m_failure);
}

bool SettingsStore::Flush()
{
    if (!m_isOpen || !m_isDirty) {
        return !m_isDirty;
    }
    m_saveTimer.stop();
    m_retryTimer.stop();
    const QString failure = Write();
    if (failure.isEmpty()) {
        m_isDirty = false;
        m_failure.clear();
        Q_EMIT Saved();
        return true;
    }
    m_retryTimer.start(RetryInterval);
    if (failure != m_failure) {
        m_failure = failure;
        LOG(ERROR) << "Zentor::PX::SettingsStore::Flush: error=" << failure.toStdString()
                   << "; file=" << m_filePath.toStdString();
        Q_EMIT SaveFailed(SaveProblem());
    }
    return false;
}

/// Replaces the file. Returns the reason of a failure, or nothing.
QString SettingsStore::Write()
{
    if (!m_lock->isLocked() && !TryLock()) {
        return QCoreApplication::translate("SettingsStore", "its folder cannot be written to");
    }
    return ReplaceFile(m_realPath, FormatSettings(m_settings, m_fields));
}

} // namespace Zentor::PX
