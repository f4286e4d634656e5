// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RecordingService.h"

#include <algorithm>

#include <glog/logging.h>

#include "CoreInt/Printable.h"
#include "CountPendingTasks.h"
#include "CrashCheck.h"
#include "RecordingSettings.h"

namespace Zentor::Schedule {
namespace {

bool IsSame(const PX::RecordTime& left, const PX::RecordTime& right)
{
    return left.title == right.title && left.start == right.start
        && left.duration == right.duration;
}

bool Holds(const std::vector<PX::RecordTime>& tasks, const PX::RecordTime& task)
{
    return std::any_of(tasks.begin(), tasks.end(),
                       [&](const auto& other) { return IsSame(task, other); });
}

/// Takes \a tasks out of the settings.
void RemoveTasks(PX::SettingsStore& store, const std::vector<PX::RecordTime>& tasks)
{
    store.Change([&](PX::UserSettings& settings) {
        auto& schedule = settings.schedule;
        schedule.erase(std::remove_if(schedule.begin(), schedule.end(),
                                      [&](const auto& task) { return Holds(tasks, task); }),
                       schedule.end());
    });
}

void LogEntry(const RecordingEntry& entry)
{
    LOG(INFO) << "Zentor::Schedule::RecordingService: outcome="
              << NameOf(entry.outcome).toStdString() << "; reason=" << entry.reason.toStdString()
              << "; title=" << Util::Printable(entry.title);
}

} // namespace

RecordingService::RecordingService(ServiceParts parts, QObject* parent)
    : QObject(parent)
    , m_parts(std::move(parts))
    , m_recorders(m_parts.recorderProgram, m_parts.store, *m_parts.screens, m_parts.freeBytes)
    , m_runner({m_recorders, *m_parts.screens, *this, *this, *this, *this})
{
    m_scheduleTimer.setSingleShot(true);
    m_scheduleTimer.setInterval(0);
    ConnectRecorders();
    ConnectEnds();
    ConnectMachine();
}

RecordingService::~RecordingService() = default;

void RecordingService::ConnectRecorders()
{
    connect(&m_recorders, &RecorderPool::Ready, this, [this](RecordingId id) {
        m_runner.OnReady(id, Now());
        Follow();
    });
    connect(&m_recorders, &RecorderPool::Recording, this,
            [this](RecordingId id, Moment firstFrame, const QString& file) {
                m_titleWithoutRoom.clear();
                m_runner.OnRecording(id, firstFrame, file, Now());
                Follow();
                TellBudget();
            });
    connect(&m_recorders, &RecorderPool::Progressed, this,
            [this](RecordingId id, const RecordingProgress& progress) {
                m_runner.OnProgress(id, progress);
                Q_EMIT Progressed();
            });
    connect(&m_recorders, &RecorderPool::Warned, this, [this](RecordingId id, const QString& text) {
        m_runner.OnWarning(id, text);
        Follow();
    });
    connect(&m_recorders, &RecorderPool::NoRoomFound, this,
            [this](const QString& title, qint64 freeBytes) {
                // It is tried again and again, and told once.
                if (title == m_titleWithoutRoom) {
                    return;
                }
                m_titleWithoutRoom = title;
                Notice notice;
                notice.kind = Notice::Kind::NoRoom;
                notice.title = title;
                notice.freeBytes = freeBytes;
                Q_EMIT Noticed(notice);
            });
}

void RecordingService::ConnectEnds()
{
    connect(&m_recorders, &RecorderPool::Finished, this,
            [this](RecordingId id, const RecordingResult& result) {
                m_runner.OnFinished(id, result, Now());
                Follow();
            });
    connect(&m_recorders, &RecorderPool::Failed, this,
            [this](RecordingId id, const QString& code, const QString& file) {
                m_runner.OnFailed(id, code, file, Now());
                Follow();
            });
    connect(&m_recorders, &RecorderPool::Died, this, [this](RecordingId id, const QString& file) {
        m_runner.OnDied(id, file, Now());
        Follow();
    });
    connect(&m_recorders, &RecorderPool::Cancelled, this, [this](RecordingId id) {
        m_runner.OnCancelled(id, Now());
        Follow();
    });
}

void RecordingService::ConnectMachine()
{
    connect(&m_alarm, &WallClockTimer::Reached, this, &RecordingService::Wake);
    connect(&m_alarm, &WallClockTimer::ClockSet, this, &RecordingService::Wake);
    connect(m_parts.store.get(), &PX::SettingsStore::Changed, &m_scheduleTimer,
            qOverload<>(&QTimer::start));
    connect(&m_scheduleTimer, &QTimer::timeout, this, &RecordingService::TakeSchedule);
    connect(&m_login, &LoginManager::Answered, this,
            [this](PX::PowerAction action, bool isPossible) {
                m_runner.OnPowerAnswer(
                    action, isPossible ? IPower::Answer::Yes : IPower::Answer::No, Now());
                Follow();
            });
    connect(&m_login, &LoginManager::Refused, this,
            [this](PX::PowerAction action, const QString& reason) {
                m_runner.OnPowerRefused(action, reason);
                Follow();
            });
    connect(&m_login, &LoginManager::AboutToSleep, this, [this](bool isGoing) {
        if (isGoing) {
            m_runner.OnSleep();
        }
        Wake();
    });
    connect(&m_login, &LoginManager::AboutToShutDown, this, [this](bool isGoing) {
        m_runner.OnShutDown(isGoing, Now());
        Follow();
    });
    connect(&m_inhibitors, &Inhibitors::Unavailable, this, &RecordingService::TellUnavailable);
}

void RecordingService::Begin()
{
    CheckAfterCrash(*m_parts.recordings);
    TakeSchedule();
}

void RecordingService::Wake()
{
    m_runner.Evaluate(Now());
    Follow();
}

void RecordingService::TakeSchedule()
{
    const PX::UserSettings& settings = m_parts.store->Settings();
    m_runner.SetCountdown(
        std::chrono::seconds(RecordingSettingsIn(*m_parts.store).countdownSeconds));
    const auto isDone = [&](const auto& task) { return Holds(m_doneTasks, task); };
    if (std::any_of(settings.schedule.begin(), settings.schedule.end(), isDone)) {
        RemoveTasks(*m_parts.store, m_doneTasks);
    }
    m_runner.SetSchedule(settings.schedule, settings.scheduledCaptureEnabled, Now());
    Follow();
    const int tasks = PendingTasks();
    if (tasks > std::exchange(m_budgetedTasks, tasks)) {
        TellBudget();
    }
}

void RecordingService::Follow()
{
    if (const auto wake = m_runner.NextWake()) {
        m_alarm.Arm(*wake);
    } else {
        m_alarm.Disarm();
    }
    TellOutside();
    Q_EMIT StatusChanged();
    if (m_isLeaving && m_runner.IsAtRest()) {
        Q_EMIT AtRest();
    }
}

void RecordingService::TellOutside()
{
    const auto removedTasks = std::exchange(m_removedTasks, {});
    for (const PX::RecordTime& task : removedTasks) {
        Q_EMIT TaskOver(task);
    }
    if (!removedTasks.empty()) {
        RemoveTasks(*m_parts.store, removedTasks);
    }
    for (const Notice& notice : std::exchange(m_notices, {})) {
        Q_EMIT Noticed(notice);
    }
    if (std::exchange(m_isQuitAsked, false)) {
        Q_EMIT QuitRequested();
    }
}

int RecordingService::PendingTasks() const
{
    return CountPendingTasks(m_parts.store->Settings(), Now().wall);
}

DiskBudget RecordingService::Budget() const
{
    const PX::UserSettings& settings = m_parts.store->Settings();
    const RecordingSettings recording = RecordingSettingsIn(*m_parts.store);
    const Moment now = Now().wall;
    std::vector<PlannedRecording> planned;
    for (const PX::RecordTime& task : settings.schedule) {
        const Length left = std::min(task.duration, task.start + task.duration - now);
        if (settings.scheduledCaptureEnabled && left > Length::zero()) {
            planned.push_back(
                {ShapeOf(recording, m_parts.screens->SizeOf(task.screenIndex)), left});
        }
    }
    return BudgetOf(planned, m_parts.freeBytes(settings.resultsFolderPath), recording.reserveBytes,
                    m_recorders.Made());
}

void RecordingService::TellBudget()
{
    const DiskBudget budget = Budget();
    if (!budget.FitsTypically()) {
        Notice notice;
        notice.kind = Notice::Kind::LowDisk;
        notice.neededBytes = budget.typicalBytes;
        notice.freeBytes = budget.availableBytes;
        Q_EMIT Noticed(notice);
    }
}

void RecordingService::TellUnavailable(const QString& text)
{
    Notice notice;
    notice.kind = Notice::Kind::Unavailable;
    notice.text = text;
    Q_EMIT Noticed(notice);
}

bool RecordingService::StartByHand()
{
    const PX::UserSettings& settings = m_parts.store->Settings();
    // The schedule counts when both are on.
    const bool isLimited = settings.limitedCaptureEnabled && !settings.scheduledCaptureEnabled;
    const bool isStarted =
        m_runner.StartByHand(isLimited ? settings.limitedCaptureDuration : Length::zero(),
                             isLimited ? settings.captureFinishAction : PX::DoNothing, Now());
    Follow();
    return isStarted;
}

void RecordingService::Stop()
{
    m_runner.Stop(Now());
    Follow();
}

void RecordingService::TogglePause()
{
    if (m_runner.Status().isPaused) {
        m_runner.Resume(Now());
    } else {
        m_runner.Pause(Now());
    }
    Follow();
}

void RecordingService::KeepRecordingByHand()
{
    m_runner.KeepRecordingByHand(Now());
    Follow();
}

void RecordingService::Skip(const QString& title)
{
    m_runner.Skip(title, Now());
    Follow();
}

void RecordingService::CancelCountdown()
{
    m_runner.CancelCountdown();
    Wake();
}

void RecordingService::ActNow()
{
    m_runner.ActNow();
    Wake();
}

void RecordingService::Leave()
{
    m_isLeaving = true;
    m_runner.Leave(Now());
    Follow();
}

// The ports of the runner.

void RecordingService::RemoveTask(const PX::RecordTime& task)
{
    m_doneTasks.push_back(task);
    m_removedTasks.push_back(task);
}

IRecordings::EntryId RecordingService::Add(const RecordingEntry& entry)
{
    LogEntry(entry);
    return m_parts.recordings->Add(entry);
}

void RecordingService::Update(IRecordings::EntryId id, const RecordingEntry& entry)
{
    LogEntry(entry);
    m_parts.recordings->Update(id, entry);
}

bool RecordingService::Contains(const QString& title, Moment from, Moment to) const
{
    return m_parts.recordings->Contains(title, from, to);
}

void RecordingService::Ask(PX::PowerAction action)
{
    m_login.Ask(action);
}

void RecordingService::Perform(PX::PowerAction action)
{
    if (action == PX::QuitApplication) {
        m_isQuitAsked = true;
    } else {
        m_login.Perform(action);
    }
}

void RecordingService::SetHeldAwake(bool isHeld)
{
    m_inhibitors.SetHeld(isHeld);
}

void RecordingService::Tell(const Notice& notice)
{
    m_notices.push_back(notice);
}

} // namespace Zentor::Schedule
