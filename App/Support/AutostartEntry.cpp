// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "AutostartEntry.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

#include "CoreInt/Printable.h"
#include "DefaultSettingsFile.h"
#include "DesktopEntryName.h"
#include "PXUserSettings/PrivateFile.h"

namespace Zentor::Desktop {
namespace {

/// \a argument for the key Exec. It is quoted as for a shell, then escaped like every text of an
/// entry, which is why a backslash comes out as four.
QString Quoted(const QString& argument)
{
    QString quoted;
    for (const QChar character : argument) {
        if (QStringLiteral("\"`$\\").contains(character)) {
            quoted += QLatin1Char('\\');
        } else if (character == QLatin1Char('%')) {
            quoted += character;
        }
        quoted += character;
    }
    quoted.replace(QLatin1Char('\\'), QStringLiteral("\\\\"));
    quoted.replace(QLatin1Char('\n'), QStringLiteral("\\n"));
    quoted.replace(QLatin1Char('\r'), QStringLiteral("\\r"));
    quoted.replace(QLatin1Char('\t'), QStringLiteral("\\t"));
    return QStringLiteral("\"%1\"").arg(quoted);
}

QString RealPath(const QString& file)
{
    return Util::RealPath(QFileInfo(file).absoluteFilePath());
}

/// The value of \a line, when it has the form of an entry's line with \a key.
QString ValueIn(const QString& line, const char* key)
{
    const auto separator = line.indexOf(QLatin1Char('='));
    return separator >= 0 && line.left(separator).trimmed() == QLatin1String(key)
        ? line.mid(separator + 1).trimmed()
        : QString();
}

/// Whether \a line keeps the desktop from starting the program.
bool IsSwitchOff(const QString& line)
{
    return ValueIn(line, "Hidden") == QLatin1String("true")
        || ValueIn(line, "X-GNOME-Autostart-enabled") == QLatin1String("false");
}

QString PathAndReason(const QString& path, const QString& reason)
{
    return QStringLiteral("%1: %2").arg(Util::PrintableText(QDir::toNativeSeparators(path)),
                                        reason);
}

} // namespace

AutostartEntry::AutostartEntry(const QString& program, const QString& settingsFile)
    : m_program(program)
    , m_settingsFile(RealPath(settingsFile) == RealPath(DefaultSettingsFile())
                         ? QString()
                         : QFileInfo(settingsFile).absoluteFilePath())
{
}

AutostartEntry AutostartEntry::OfThisProgram(const QString& settingsFile)
{
    return {QCoreApplication::applicationFilePath(), settingsFile};
}

QString AutostartEntry::FilePath()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation))
        .filePath(QStringLiteral("autostart/%1.desktop").arg(DesktopEntryName()));
}

bool AutostartEntry::IsSet()
{
    QFile file(FilePath());
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    bool isInEntry = false;
    bool hasCommand = false;
    const auto lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        if (line.startsWith(QLatin1Char('['))) {
            isInEntry = line.trimmed() == QLatin1String("[Desktop Entry]");
        } else if (isInEntry && IsSwitchOff(line)) {
            return false;
        } else if (isInEntry && !ValueIn(line, "Exec").isEmpty()) {
            hasCommand = true;
        }
    }
    return hasCommand;
}

QString AutostartEntry::Set(bool isWanted) const
{
    if (isWanted) {
        return Write();
    }
    QFile file(FilePath());
    return !file.exists() || file.remove()
        ? QString()
        : tr("Cannot delete %1").arg(PathAndReason(FilePath(), file.errorString()));
}

QString AutostartEntry::Write() const
{
    QSaveFile file(FilePath());
    QDir().mkpath(QFileInfo(FilePath()).path());
    const QString text = QStringLiteral("[Desktop Entry]\n"
                                        "Type=Application\n"
                                        "Name=Recording Scheduler\n"
                                        "Icon=px-scheduler\n"
                                        "Terminal=false\n"
                                        "Exec=%1\n")
                             .arg(Command());
    const QByteArray bytes = text.toUtf8();
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    return isWritten && file.commit()
        ? QString()
        : tr("Cannot write %1").arg(PathAndReason(FilePath(), file.errorString()));
}

QString AutostartEntry::Command() const
{
    const QString command = Quoted(m_program) + QStringLiteral(" --hidden");
    return m_settingsFile.isEmpty()
        ? command
        : command + QStringLiteral(" --settings ") + Quoted(m_settingsFile);
}

} // namespace Zentor::Desktop
