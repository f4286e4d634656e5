// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

/// \file
/// The settings file.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QObject>
#include <QString>

#include "SettingsNotice.h"
#include "SettingsSection.h"
#include "UserSettings.h"

namespace Zentor::PX {

/// Keeps the user's settings in a file.
///
/// The file is replaced as a whole, so that at any moment it holds either the old settings or the
/// new ones. Changes are gathered: those of one pass of the event loop are one write, and none when
/// the settings are again what the file holds. What cannot
/// be saved stays in memory and is tried again with the next change, every few seconds, and at the
/// end of the application; a disk that does not confirm that it has the new file counts as a
/// failure. What a killed process left half-written is removed by the next Open().
///
/// What another program has put in the file's place meanwhile (a restore, a synchronization, an
/// editor) is not read; it is kept under another name beside it (its own with ".changed-", date and
/// time added) before the settings are saved; the log says so in one line. A file that was deleted
/// is written again.
///
/// The file, its lock and what is kept of it are the user's alone (0600), and so are folders that
/// the store creates (0700). A file that others could read is the user's alone from the next save
/// on; folders that are there keep their rights.
///
/// A second store, also one of another process, cannot open the file meanwhile. Symbolic links are
/// followed: what counts is the file that they lead to, beside which its lock lies, and they stay
/// links.
///
/// It needs a QCoreApplication, and is used on one thread, whose event loop runs. Its functions do
/// not throw, save what they pass on of those that they are given.
class ZENTOR_HOST_API SettingsStore final : public QObject {
    Q_OBJECT

public:
    /// A store that keeps its settings in \a filePath, which is taken from the present folder when
    /// it is relative. Open() starts it; until then the settings are the defaults and nothing is
    /// saved. \a parent owns it; leave it null where a std::shared_ptr does.
    explicit SettingsStore(const QString& filePath, QObject* parent = nullptr);

    /// Saves what has not been saved yet, and frees the file for others.
    ~SettingsStore() override;

    /// Adds \a section, which another part of the program keeps in the file, and reads and changes
    /// in UserSettings::sections. Call it before Open(): it resets the settings to the defaults.
    void AddSection(const SettingsSection& section);

    /// Reads the file, and locks it for as long as the store lives. Where there is none the
    /// defaults count; folders that are missing are created.
    ///
    /// A file that cannot be understood, or of which some values are unusable, is first kept under
    /// another name beside it (its own with ".damaged-", date and time added); the log says so in
    /// one line, and Notices() to the user.
    ///
    /// Returns false, with the reason for the user in \a error, which must not be null, when the
    /// file can be neither read nor created, when another store has it open, and when a damaged one
    /// cannot be kept. A file that is there but cannot be read, or not to its end, is left as it
    /// is. After a failure nothing is saved; Open() may be tried again.
    bool Open(QString* error);

    /// The file as it was named, also where that is a link.
    const QString& FilePath() const;

    /// The settings as they are now, whether or not they have been saved. The reference is valid as
    /// long as the store, and shows later changes.
    const UserSettings& Settings() const;

    /// Alters the settings by \a change, which is called at once and must not call Change() itself,
    /// sends Changed(), and saves them in the next pass of the event loop.
    void Change(const std::function<void(UserSettings&)>& change);

    /// Why the settings could not be saved last, in the language in use: the reason first, then the
    /// file. Empty when they could.
    QString SaveProblem() const;

    /// What the user should be told of, oldest first: what Open() could not use, and what another
    /// program did to the file since.
    const std::vector<SettingsNotice>& Notices() const;

    /// Saves now what has not been saved yet. Returns whether everything is saved; otherwise
    /// SaveProblem() says why not, and it is tried again by itself.
    bool Flush();

Q_SIGNALS:
    /// The settings were altered by Change(), maybe to what they were. Not sent by Open().
    void Changed();
    /// The file was written. Not sent when it held the settings already.
    void Saved();
    /// The settings cannot be saved, as \a problem, which is SaveProblem(), says. Not sent
    /// again when trying once more fails for the same reason.
    void SaveFailed(const QString& problem);
    /// There is one more at the end of Notices(). Not sent by Open().
    void NoticeAdded();

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Zentor::PX
