// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "FakePorts.h"

#include <algorithm>

namespace Zentor::Tests {

using namespace Schedule;

QString FakePorts::ToText(Moment moment)
{
    return ToText(moment - Begin);
}

QString FakePorts::ToText(Length length)
{
    constexpr double microsecondsPerSecond = 1e6;
    constexpr int digits = 12;
    return QString::number(double(length.count()) / microsecondsPerSecond, 'g', digits);
}

QString FakePorts::NameOf(PX::PowerAction action)
{
    static const QStringList names{"nothing", "quit", "sleep", "hibernate", "restart", "shutdown"};
    return names.at(action);
}

PX::PowerAction FakePorts::ActionOf(const QString& name)
{
    int action = PX::DoNothing;
    while (NameOf(PX::PowerAction(action)) != name) {
        ++action;
    }
    return PX::PowerAction(action);
}

QString FakePorts::ToText(const RecordingEntry& entry)
{
    const QStringList parts{entry.title, ToText(entry.start) + ".." + ToText(entry.end),
                            Schedule::NameOf(entry.outcome), entry.reason, entry.file};
    return parts.join(' ').simplified();
}

void FakePorts::Log(const QString& text)
{
    log << "> " + ToText(now.wall) + ' ' + text.simplified();
}

void FakePorts::SettleRunning()
{
    for (RecordingEntry& entry : m_entries) {
        if (entry.outcome == Outcome::Recording) {
            entry.outcome = Outcome::Partial;
        }
    }
}

void FakePorts::Prepare(RecordingId id, const RecordingPlan& plan)
{
    const QString what =
        plan.isTask ? plan.title + " screen " + QString::number(plan.screenIndex) : "by hand";
    Log("prepare " + QString::number(id) + ' ' + what + " of " + ToText(plan.start));
}

void FakePorts::Start(RecordingId id, std::optional<Moment> at, Length length)
{
    Log("start " + QString::number(id) + (at ? " at " + ToText(*at) : " now") + " for "
        + ToText(length));
}

void FakePorts::Stop(RecordingId id)
{
    Log("stop " + QString::number(id));
}

void FakePorts::Pause(RecordingId id)
{
    Log("pause " + QString::number(id));
}

void FakePorts::Resume(RecordingId id)
{
    Log("resume " + QString::number(id));
}

void FakePorts::Cancel(RecordingId id)
{
    Log("cancel " + QString::number(id));
}

IRecordings::EntryId FakePorts::Add(const RecordingEntry& entry)
{
    m_entries.push_back(entry);
    Log("list " + QString::number(m_entries.size()) + ' ' + ToText(entry));
    return m_entries.size();
}

void FakePorts::Update(EntryId id, const RecordingEntry& entry)
{
    m_entries.at(id - 1) = entry;
    Log("update " + QString::number(id) + ' ' + ToText(entry));
}

bool FakePorts::Contains(const QString& title, Moment from, Moment to) const
{
    return std::any_of(m_entries.begin(), m_entries.end(), [&](const RecordingEntry& entry) {
        return entry.title == title && entry.outcome != Outcome::Missed && entry.start >= from
            && entry.start <= to;
    });
}

void FakePorts::RemoveTask(const PX::RecordTime& task)
{
    tasks.erase(std::remove_if(tasks.begin(), tasks.end(),
                               [&](const auto& other) { return other.title == task.title; }),
                tasks.end());
    Log("remove " + task.title);
}

void FakePorts::Ask(PX::PowerAction action)
{
    Log("ask for " + NameOf(action));
}

void FakePorts::Perform(PX::PowerAction action)
{
    Log("perform " + NameOf(action));
}

void FakePorts::SetHeldAwake(bool isHeld)
{
    Log(isHeld ? "hold awake" : "let sleep");
}

void FakePorts::Tell(const Notice& notice)
{
    using Kind = Notice::Kind;
    static const std::map<Kind, QString> names{{Kind::StartsSoon, "starts soon"},
                                               {Kind::Started, "started"},
                                               {Kind::Ended, "ended"},
                                               {Kind::Missed, "missed"},
                                               {Kind::Failed, "failed"},
                                               {Kind::GivingWay, "giving way to"},
                                               {Kind::ScreenAwaited, "screen awaited by"},
                                               {Kind::Countdown, "countdown to"},
                                               {Kind::ActionSkipped, "skipped"},
                                               {Kind::ActionRefused, "refused"},
                                               {Kind::Warning, "warning"}};
    const bool isOfAction = notice.action != PX::DoNothing;
    const bool isCountdown = notice.kind == Kind::Countdown;
    const QStringList parts{"tell",
                            names.at(notice.kind),
                            isOfAction ? NameOf(notice.action) : QString(),
                            notice.title,
                            isCountdown ? ToText(notice.when) : QString(),
                            notice.goesOn ? "goes on" : "",
                            notice.text};
    Log(parts.join(' '));
}

} // namespace Zentor::Tests
