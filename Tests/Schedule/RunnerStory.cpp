// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RunnerStory.h"

#include <algorithm>

#include <QtGlobal>

namespace Zentor::Tests {
namespace {

using namespace Schedule;

Length Seconds(const QString& text)
{
    constexpr double microsecondsPerSecond = 1e6;
    return Length(qRound64(text.toDouble() * microsecondsPerSecond));
}

Moment At(const QString& text)
{
    return FakePorts::Begin + Seconds(text);
}

} // namespace

RunnerStory::RunnerStory()
{
    Restart();
}

void RunnerStory::Restart()
{
    m_ports.SettleRunning();
    m_runner.emplace(RunnerPorts{m_ports, m_ports, m_ports, m_ports, m_ports, m_ports});
    SetSchedule();
}

void RunnerStory::SetSchedule()
{
    m_runner->SetSchedule(m_ports.tasks, m_isEnabled, m_ports.now);
}

QStringList RunnerStory::Play(const QStringList& story)
{
    for (const QString& line : story) {
        if (!line.startsWith('>')) {
            m_ports.log << line;
            Do(line.split(' '));
        }
    }
    return m_ports.log;
}

void RunnerStory::Do(const QStringList& words)
{
    if (!DoSchedule(words) && !DoTime(words) && !DoUser(words) && !DoPower(words)
        && !DoRecorder(words)) {
        m_ports.log << "> not understood";
    }
}

void RunnerStory::AddTask(const QStringList& words)
{
    PX::RecordTime task;
    task.title = words.at(1);
    task.start = At(words.at(2));
    task.duration = Seconds(words.at(3));
    task.screenIndex = words.value(4, "0").toInt();
    task.finishAction = FakePorts::ActionOf(words.value(5, "nothing"));
    auto& tasks = m_ports.tasks;
    tasks.erase(std::remove_if(tasks.begin(), tasks.end(),
                               [&](const auto& other) { return other.title == task.title; }),
                tasks.end());
    tasks.push_back(task);
    SetSchedule();
}

bool RunnerStory::DoSchedule(const QStringList& words)
{
    const QString& what = words.first();
    if (what == "task") {
        AddTask(words);
    } else if (what == "delete") {
        auto& tasks = m_ports.tasks;
        tasks.erase(std::remove_if(tasks.begin(), tasks.end(),
                                   [&](const auto& task) { return task.title == words.at(1); }),
                    tasks.end());
        SetSchedule();
    } else if (what == "on" || what == "off") {
        m_isEnabled = what == "on";
        SetSchedule();
    } else if (what == "screen") {
        m_ports.missingScreens.erase(words.at(1).toInt());
        m_runner->Evaluate(m_ports.now);
    } else if (what == "no-screen") {
        m_ports.missingScreens.insert(words.at(1).toInt());
        m_runner->Evaluate(m_ports.now);
    } else if (what == "restart") {
        Restart();
    } else {
        return false;
    }
    return true;
}

void RunnerStory::PassTo(Moment end)
{
    Instant& now = m_ports.now;
    for (;;) {
        const auto wake = m_runner->NextWake();
        const bool isWoken = wake && *wake <= end;
        const Length time = (isWoken ? *wake : end) - now.wall;
        now.wall += time;
        now.sinceBoot += time;
        if (!isWoken) {
            return;
        }
        ++m_wakeCount;
        m_runner->Evaluate(now);
    }
}

bool RunnerStory::DoTime(const QStringList& words)
{
    const QString& what = words.first();
    Instant& now = m_ports.now;
    if (what == "at") {
        PassTo(At(words.at(1)));
    } else if (what == "wake") {
        m_runner->Evaluate(now);
    } else if (what == "sleep") {
        const Length time = At(words.at(1)) - now.wall;
        now.wall += time;
        now.sinceBoot += time;
        m_runner->Evaluate(now);
    } else if (what == "clock") {
        now.wall = At(words.at(1));
        m_runner->Evaluate(now);
    } else if (what == "wakes") {
        m_ports.log << "> " + QString::number(m_wakeCount);
    } else if (what == "status") {
        m_ports.log << "> " + Status();
    } else {
        return false;
    }
    return true;
}

bool RunnerStory::DoUser(const QStringList& words)
{
    const QString& what = words.first();
    const Instant& now = m_ports.now;
    if (what == "record") {
        const auto action = FakePorts::ActionOf(words.value(2, "nothing"));
        if (!m_runner->StartByHand(Seconds(words.at(1)), action, now)) {
            m_ports.log << "> no";
        }
    } else if (what == "stop") {
        m_runner->Stop(now);
    } else if (what == "pause") {
        m_runner->Pause(now);
    } else if (what == "resume") {
        m_runner->Resume(now);
    } else if (what == "keep") {
        m_runner->KeepRecordingByHand(now);
    } else if (what == "skip") {
        m_runner->Skip(words.at(1), now);
    } else if (what == "cancel") {
        m_runner->CancelCountdown();
    } else if (what == "now") {
        m_runner->ActNow();
    } else if (what == "leave") {
        m_runner->Leave(now);
    } else {
        return false;
    }
    return true;
}

bool RunnerStory::DoPower(const QStringList& words)
{
    const QString& what = words.first();
    if (what == "countdown") {
        m_runner->SetCountdown(Seconds(words.at(1)));
    } else if (what == "answer") {
        const auto answer = words.at(2) == "yes" ? IPower::Answer::Yes : IPower::Answer::No;
        m_runner->OnPowerAnswer(FakePorts::ActionOf(words.at(1)), answer, m_ports.now);
    } else if (what == "refused") {
        m_runner->OnPowerRefused(FakePorts::ActionOf(words.at(1)), "as it is");
    } else if (what == "sleeping") {
        m_runner->OnSleep();
    } else if (what == "shutdown") {
        m_runner->OnShutDown(words.at(1) == "yes", m_ports.now);
    } else {
        return false;
    }
    return true;
}

bool RunnerStory::DoRecorder(const QStringList& words)
{
    const QString& what = words.first();
    const Instant& now = m_ports.now;
    const RecordingId id = words.value(1).toULongLong();
    if (what == "ready") {
        m_runner->OnReady(id, now);
    } else if (what == "recording") {
        m_runner->OnRecording(id, now.wall, "file" + words.at(1), now);
    } else if (what == "progress") {
        RecordingProgress progress;
        progress.length = Seconds(words.at(2));
        m_runner->OnProgress(id, progress);
    } else if (what == "warning") {
        m_runner->OnWarning(id, "no sound");
    } else if (what == "finished") {
        m_runner->OnFinished(id, {"file" + words.at(1), words.at(2), Seconds(words.at(3))}, now);
    } else if (what == "failed") {
        m_runner->OnFailed(id, words.at(2), words.value(3), now);
    } else if (what == "died") {
        m_runner->OnDied(id, words.value(2), now);
    } else if (what == "cancelled") {
        m_runner->OnCancelled(id, now);
    } else {
        return false;
    }
    return true;
}

QString RunnerStory::Status() const
{
    static const QStringList phases{"idle", "preparing", "recording", "closing", "countdown"};
    const RunnerStatus status = m_runner->Status();
    QStringList words{phases.at(int(status.phase))};
    if (!status.title.isEmpty()) {
        words << status.title;
    }
    if (status.phase == RunnerStatus::Phase::Countdown) {
        words << FakePorts::NameOf(status.action) << FakePorts::ToText(status.countdownEnd);
    } else if (status.phase != RunnerStatus::Phase::Idle) {
        words << "from" << FakePorts::ToText(status.start);
    }
    if (status.end) {
        words << "to" << FakePorts::ToText(*status.end);
    }
    words << (status.isPaused ? "paused" : "") << (status.isKept ? "kept" : "")
          << (m_runner->IsAtRest() ? "at rest" : "");
    if (status.next) {
        words << "next" << status.next->title << (status.isNextThere ? "" : "not there");
    }
    return words.join(' ').simplified();
}

} // namespace Zentor::Tests
