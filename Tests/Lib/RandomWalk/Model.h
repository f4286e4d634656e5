// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

/// \file
/// What the panel should show and store, in as few words as possible.
#pragma once

#include <vector>

#include <QDateTime>
#include <QStringList>

namespace Zentor::Tests::RandomWalk {

/// How a box is answered.
struct Answer {
    /// DontAdd and FollowLink are for the boxes that offer them; elsewhere they are a Cancel.
    enum Way { Accept, DontAdd, FollowLink, Cancel, Escape, Enter, Close } way = Cancel;
    /// Whether the check box is ticked before, where there is one.
    bool isTicked = false;
};

enum class Mode { None, Limited, Scheduled };
enum class Verdict { Fine, EmptyTitle, Duplicate, Overlap };

struct Task {
    QString title;
    /// In seconds since the epoch.
    qint64 start = 0;
    int seconds = 0;
    int screenIndex = -1;
    int finishAction = 0;
    /// The row as it was written, in the language of that time.
    QString row;
};

/// What the user has entered in the task form.
struct Entry {
    QString name;
    QDateTime start;
    QTime duration{0, 0, 5};
    bool isFullScreen = true;
    int screenIndex = 0;
    int finishAction = -1;
};

/// The rules of the panel. What it shows is compared with Shown() after each action.
class Model {
public:
    explicit Model(const QDateTime& moment) { Restart(moment); }

    /// A new panel gets what was stored.
    void Restart(const QDateTime& moment);

    void Choose(Mode next);
    void Show();
    void Hide() { isWindowShown = false; }

    void OpenForm();
    void GoBack();
    void Create();
    /// A visible form shows the verdict on what it holds.
    void Judge();
    /// The form's timer goes off.
    void Tick();
    /// The day of the form was chosen: its clock reading stays, as far as it is not over.
    void MoveToDate(const QDate& date);
    void CountScreens(int count);

    void Delete(int row);
    /// Whether a capture may start.
    bool Validate();

    bool IsFormVisible() const { return isWindowShown && mode == Mode::Scheduled && isFormOpen; }
    /// The next default name; empty when there is none.
    QString DefaultName() const;
    QStringList Shown() const;

    Mode mode = Mode::None;
    QTime limitedDuration{0, 0, 5};
    int limitedAction = 0;
    std::vector<Task> tasks;
    Entry entry;
    /// The form does not go back before this.
    QDateTime earliestStart;
    QDateTime now;
    int screenCount = 1;
    std::int64_t freeBytes = 0;
    bool isWindowShown = false;
    bool isFormOpen = false;
    bool isDeletionRemembered = false;
    bool isTranslated = false;
    int fileSettingsRequests = 0;

    /// The answers still to be given, and the boxes that were met with one.
    std::vector<Answer> answers;
    QStringList boxes;

private:
    Answer Ask(const char* box);
    bool SettleForm();
    void Add();
    Verdict CurrentVerdict() const;
    Task EnteredTask() const;
    QString Row(const Task& task) const;

    /// The verdict on display when the form was visible last.
    Verdict verdict = Verdict::Fine;
    QString limitedStyle;
    QString scheduledStyle;
};

/// The texts that both sides of the comparison are made of.
QString Text(const QTime& duration);
QString Text(const Entry& entry);
/// As it is stored.
QString Text(const Task& task);

} // namespace Zentor::Tests::RandomWalk
