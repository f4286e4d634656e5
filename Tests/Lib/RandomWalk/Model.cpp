// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "Model.h"

#include <algorithm>

namespace Zentor::Tests::RandomWalk {
namespace {

QString StyleOf(bool isActive)
{
    return isActive ? QStringLiteral("Active") : QStringLiteral("Inactive");
}

const char* NameOf(Mode mode)
{
    switch (mode) {
    case Mode::None:
        return "none";
    case Mode::Limited:
        return "limited values";
    case Mode::Scheduled:
        break;
    }
    return "scheduled stack";
}

const char* NameOf(Verdict verdict)
{
    switch (verdict) {
    case Verdict::Fine:
        return "fine";
    case Verdict::EmptyTitle:
    case Verdict::Duplicate:
        return "name marked";
    case Verdict::Overlap:
        break;
    }
    return "start marked";
}

bool Overlap(const Task& left, const Task& right)
{
    return left.start < right.start + right.seconds && right.start < left.start + left.seconds;
}

} // namespace

QString Text(const QTime& duration)
{
    return duration.toString(QStringLiteral("hh:mm:ss.zzz"));
}

QString Text(const Entry& entry)
{
    return QStringLiteral("\"%1\" %2 for %3, screen %4 of %5, then %6")
        .arg(entry.name, entry.start.toString(Qt::ISODateWithMs), Text(entry.duration))
        .arg(entry.screenIndex)
        .arg(entry.isFullScreen ? "full" : "area")
        .arg(entry.finishAction);
}

QString Text(const Task& task)
{
    return QStringLiteral("\"%1\" %2+%3 screen %4 then %5")
        .arg(task.title)
        .arg(task.start)
        .arg(task.seconds)
        .arg(task.screenIndex)
        .arg(task.finishAction);
}

void Model::Restart(const QDateTime& moment)
{
    now = moment;
    entry = {};
    entry.start = now;
    earliestStart = now;
    isFormOpen = false;
    verdict = Verdict::Fine;
    fileSettingsRequests = 0;
    if (mode == Mode::Scheduled && tasks.empty()) {
        // Without a task there is nothing that would store this mode.
        mode = Mode::None;
    }
    limitedStyle = mode == Mode::Limited ? StyleOf(true) : QString();
    scheduledStyle = mode == Mode::Scheduled ? StyleOf(true) : QString();
    for (Task& task : tasks) {
        task.row = Row(task);
    }
}

Answer Model::Ask(const char* box)
{
    boxes << QString::fromLatin1(box);
    const Answer answer = answers.front();
    answers.erase(answers.begin());
    return answer;
}

void Model::Choose(Mode next)
{
    if (next == mode) {
        return;
    }
    if (mode == Mode::Scheduled && !tasks.empty()) {
        if (Ask("leave").way != Answer::Accept) {
            if (next == Mode::Limited) {
                limitedStyle = StyleOf(false);
            }
            return;
        }
        tasks.clear();
    }
    if (mode == Mode::Limited || next == Mode::Limited) {
        limitedStyle = StyleOf(next == Mode::Limited);
    }
    if (mode == Mode::Scheduled || next == Mode::Scheduled) {
        scheduledStyle = StyleOf(next == Mode::Scheduled);
    }
    mode = next;
}

void Model::Show()
{
    isWindowShown = true;
    isFormOpen = false;
}

QString Model::DefaultName() const
{
    const QString prefix = QLatin1String(isTranslated ? "~Task " : "Task ");
    qulonglong highest = 0;
    for (const Task& task : tasks) {
        const QString rest = task.title.mid(prefix.size());
        const bool isNumbered = task.title.startsWith(prefix) && !rest.isEmpty()
            && std::all_of(rest.begin(), rest.end(), [](QChar digit) { return digit.isDigit(); });
        if (isNumbered) {
            // A leading zero makes an octal number; 09 is none.
            bool isNumber = false;
            highest = std::max(highest, rest.toULongLong(&isNumber, 0));
            if (!isNumber) {
                return {};
            }
        }
    }
    return prefix + QString::number(highest + 1);
}

void Model::OpenForm()
{
    isFormOpen = true;
    entry.name = DefaultName();
    entry.isFullScreen = true;
    entry.screenIndex = 0;
    entry.finishAction = 0;
}

Task Model::EnteredTask() const
{
    Task task;
    task.title = entry.name.trimmed();
    // A start later than this, in the year 2106, cannot be told apart from it.
    task.start = std::min<qint64>(entry.start.toSecsSinceEpoch(), 0xffffffff);
    task.seconds = QTime(0, 0).secsTo(entry.duration);
    task.screenIndex = entry.isFullScreen ? entry.screenIndex : -1;
    task.finishAction = entry.finishAction;
    task.row = Row(task);
    return task;
}

QString Model::Row(const Task& task) const
{
    const auto start = QDateTime::fromSecsSinceEpoch(task.start);
    const QString timeFormat = isTranslated ? "hh.mm.ss" : "hh:mm:ss";
    return QStringList({task.title, start.toString(isTranslated ? "yyyy-MM-dd" : "dd.MM.yyyy"),
                        start.toString(timeFormat),
                        QTime(0, 0).addSecs(task.seconds).toString(timeFormat)})
        .join('|');
}

Verdict Model::CurrentVerdict() const
{
    const Task entered = EnteredTask();
    const auto any = [this](auto condition) {
        return std::any_of(tasks.begin(), tasks.end(), condition);
    };
    if (entered.title.isEmpty()) {
        return Verdict::EmptyTitle;
    }
    if (any([&](const Task& task) { return task.title == entered.title; })) {
        return Verdict::Duplicate;
    }
    if (any([&](const Task& task) { return Overlap(task, entered); })) {
        return Verdict::Overlap;
    }
    return Verdict::Fine;
}

void Model::Judge()
{
    if (IsFormVisible()) {
        verdict = CurrentVerdict();
    }
}

void Model::Tick()
{
    if (entry.start < now) {
        entry.start = now.addSecs(10);
        earliestStart = now;
    }
}

void Model::MoveToDate(const QDate& date)
{
    if (date != entry.start.date()) {
        entry.start = std::max(QDateTime(date, entry.start.time()), earliestStart);
    }
}

void Model::CountScreens(int count)
{
    screenCount = count;
    entry.screenIndex = 0;
}

void Model::Add()
{
    const Task task = EnteredTask();
    const auto isEarlier = [](const Task& left, const Task& right) {
        return left.start < right.start;
    };
    tasks.insert(std::upper_bound(tasks.begin(), tasks.end(), task, isEarlier), task);
    isFormOpen = false;
}

void Model::Create()
{
    if (CurrentVerdict() == Verdict::Fine) {
        Add();
    }
}

bool Model::SettleForm()
{
    const auto way = Ask("unsaved").way;
    if (way != Answer::Accept) {
        return way == Answer::DontAdd;
    }
    if (CurrentVerdict() != Verdict::Fine) {
        return false;
    }
    Add();
    return true;
}

void Model::GoBack()
{
    if (SettleForm()) {
        isFormOpen = false;
    }
}

bool Model::Validate()
{
    if (mode != Mode::Scheduled) {
        return true;
    }
    if (isFormOpen && !SettleForm()) {
        return false;
    }
    if (freeBytes > 1000000000) {
        return true;
    }
    const auto way = Ask("disk").way;
    if (way == Answer::Accept || way == Answer::FollowLink) {
        ++fileSettingsRequests;
    }
    return false;
}

void Model::Delete(int row)
{
    if (!isDeletionRemembered) {
        const Answer answer = Ask("delete");
        if (answer.way != Answer::Accept) {
            return;
        }
        isDeletionRemembered = answer.isTicked;
    }
    tasks.erase(tasks.begin() + row);
}

QStringList Model::Shown() const
{
    constexpr int headerHeight = 20;
    constexpr int rowHeight = 20;
    constexpr int mostRows = 2;
    const int rowCount = int(tasks.size());
    QStringList rows;
    QStringList stored;
    for (const Task& task : tasks) {
        rows << task.row;
        stored << Text(task);
    }
    const auto yesNo = [](bool value) { return QLatin1String(value ? "yes" : "no"); };
    return {
        "mode: " + QString::fromLatin1(NameOf(mode)),
        "styles: " + limitedStyle + '/' + scheduledStyle,
        "page: " + QString(isFormOpen ? "form" : "table"),
        "values: " + Text(limitedDuration) + " then " + QString::number(limitedAction),
        "rows: " + (rows.isEmpty() ? "placeholder" : rows.join(", ")),
        "height: " + QString::number(headerHeight + rowHeight * qBound(1, rowCount, mostRows)),
        "stored: limited " + yesNo(mode == Mode::Limited) + " for " + Text(limitedDuration)
            + " then " + QString::number(limitedAction) + ", scheduled " + yesNo(rowCount > 0) + ' '
            + stored.join(", "),
        "deletion remembered: " + yesNo(isDeletionRemembered),
        "form: " + Text(entry),
        "screens: " + QString::number(screenCount) + " shown " + yesNo(screenCount > 1)
            + " enabled " + yesNo(entry.isFullScreen),
        "verdict: " + QString::fromLatin1(NameOf(verdict)),
        "translated: " + yesNo(isTranslated),
        "file settings requested: " + QString::number(fileSettingsRequests),
    };
}

} // namespace Zentor::Tests::RandomWalk
