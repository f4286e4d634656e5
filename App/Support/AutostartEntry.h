// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QString>

namespace Zentor::Desktop {

/// The entry by which the desktop starts the program, without a window, when the user logs in:
/// autostart/org.zentor.PxScheduler.desktop in the platform's configuration folder.
///
/// It is one of the desktop's, which may switch it off in its own settings.
class AutostartEntry {
    Q_DECLARE_TR_FUNCTIONS(AutostartEntry)

public:
    /// The entry for \a program, an absolute path, on \a settingsFile.
    AutostartEntry(const QString& program, const QString& settingsFile);

    /// The entry for the running program on \a settingsFile.
    static AutostartEntry OfThisProgram(const QString& settingsFile);

    /// Where the entry is, whether set or not.
    static QString FilePath();

    /// Whether the desktop starts the program. An entry that the desktop or the user has switched
    /// off counts as none.
    static bool IsSet();

    /// Writes the entry anew, or removes it. Returns why that failed, for the user, or nothing.
    QString Set(bool isWanted) const;

    /// The command of the entry, with everything escaped that the Desktop Entry format asks for.
    /// The settings file is left out where it is the default one.
    QString Command() const;

private:
    QString Write() const;

    QString m_program;
    QString m_settingsFile;
};

} // namespace Zentor::Desktop
