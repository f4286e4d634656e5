// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <deque>

#include "RandomWalk/RunnerModel.h"
#include "RandomWalk/RunnerWorld.h"
#include "ScheduleRunner.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

using namespace Schedule;
using std::chrono::hours;
using std::chrono::microseconds;
using std::chrono::milliseconds;
using std::chrono::minutes;
using std::chrono::seconds;

#ifdef SCHEDULER_SANITIZED
constexpr int EventCount = 100'000;
#else
constexpr int EventCount = 1'000'000;
#endif
constexpr int WalkCount = 10;
constexpr std::size_t MostTasks = 6;

/// A runner's state in the words of RunnerModel::State().
QString StateOf(const RunnerStatus& status)
{
    using Phase = RunnerStatus::Phase;
    QString state = status.next ? status.next->title : QString();
    switch (status.phase) {
    case Phase::Idle:
        return state;
    case Phase::Countdown:
        return state + "|countdown|" + QString::number(status.action);
    case Phase::Preparing:
        state += "|preparing|";
        break;
    case Phase::Recording:
        state += "|recording|";
        break;
    case Phase::Closing:
        state += "|closing|";
        break;
    }
    return state + status.title + (status.isKept ? "|kept" : "")
        + (status.isPaused ? "|paused" : "");
}

/// A runner in a world in which everything happens that can, at random, beside a model of what it
/// has to do. The same seed makes the same walk.
class Walk {
public:
    explicit Walk(quint32 seed)
        : m_world(seed)
    {
        Restart();
    }

    /// Goes one step, which are some events or none.
    void Step();
    int Events() const { return m_events; }
    /// What went wrong first; empty when nothing did.
    const QString& Problem() const { return m_problem; }
    /// The last events, and what the runner did.
    QString History() const;

private:
    /// An event, and the calls that followed.
    struct Entry {
        const char* event;
        qint64 number;
        Instant now;
        std::vector<RunnerCall> calls;
    };

    template <typename Act> void Do(const char* event, qint64 number, const Act& act);
    template <typename Act, typename ModelAct>
    void Do(const char* event, qint64 number, const Act& act, const ModelAct& modelAct);
    void Compare();
    void CompareNextWake();
    void Complain(const QString& text);
    void Evaluate();
    void SetSchedule();

    // The steps.
    void StepOfTime(int choice);
    void StepOfUser(int choice);
    void StepOfMachine(int choice);
    void PassToWake(Length before);
    void Pass(Length time);
    void Suspend();
    void SetClock();
    void AddTask();
    std::optional<PX::RecordTime> NewTask();
    void DeleteTask();
    void ReplaceTask();
    void ToggleMode();
    void ToggleScreen();
    void StartByHand();
    void AnswerPower();
    void ToggleShutDown();
    void Restart();
    void Leave();
    void TellUnknown();
    void TellProgress();
    void ChooseAction();

    void TakeRecorderEvent();
    void Tell(const RecorderEvent& event);

    RunnerWorld m_world;
    std::optional<ScheduleRunner> m_runner;
    std::optional<RunnerModel> m_model;
    bool m_isShuttingDown = false;
    int m_lastTitle = 0;
    int m_events = 0;
    QString m_problem;
    std::deque<Entry> m_history;
};

// What happens is told to the model, then to the runner, and compared.

template <typename Act> void Walk::Do(const char* event, qint64 number, const Act& act)
{
    Do(event, number, act, act);
}

template <typename Act, typename ModelAct>
void Walk::Do(const char* event, qint64 number, const Act& act, const ModelAct& modelAct)
{
    if (!m_problem.isEmpty()) {
        return;
    }
    ++m_events;
    constexpr std::size_t longest = 40;
    if (m_history.size() == longest) {
        m_history.pop_front();
    }
    m_world.calls.clear();
    m_model->calls.clear();
    modelAct(*m_model);
    act(*m_runner);
    m_history.push_back({event, number, m_world.now, m_world.calls});
    Compare();
}

void Walk::Complain(const QString& text)
{
    if (m_problem.isEmpty()) {
        m_problem = text;
    }
}

void Walk::Compare()
{
    if (m_world.calls != m_model->calls) {
        // In which order things are done within one moment is up to the runner.
        std::sort(m_world.calls.begin(), m_world.calls.end());
        std::sort(m_model->calls.begin(), m_model->calls.end());
    }
    if (m_world.calls != m_model->calls) {
        QString text = "calls differ; expected were";
        for (const RunnerCall& call : m_model->calls) {
            text += "\n        " + ToText(call);
        }
        Complain(text);
    }
    const QString state = StateOf(m_runner->Status());
    if (state != m_model->State()) {
        Complain("the state is " + state + ", not " + m_model->State());
    }
    if (!m_world.problem.isEmpty()) {
        Complain(m_world.problem);
    }
    if (m_runner->IsAtRest() != m_world.IsQuiet()) {
        Complain("a recording is forgotten");
    }
    CompareNextWake();
}

/// Nothing may be owed before the next wake-up.
void Walk::CompareNextWake()
{
    const auto wake = m_runner->NextWake();
    const Instant& now = m_model->Now();
    if (wake && *wake <= now.wall) {
        Complain("the next wake-up is not to come");
    }
    constexpr int often = 32;
    if (m_events % often == 0) {
        RunnerModel model = *m_model;
        model.calls.clear();
        const Length wait = wake ? *wake - now.wall - microseconds(1) : Length(hours(24 * 366));
        model.Evaluate({now.wall + wait, now.sinceBoot + wait});
        if (!model.calls.empty()) {
            Complain("before the next wake-up was to do: " + ToText(model.calls.front()));
        }
    }
}

QString Walk::History() const
{
    QString text;
    for (const Entry& entry : m_history) {
        text += QStringLiteral("\n    %1 %2 %3 (%4)")
                    .arg(entry.now.wall.time_since_epoch().count())
                    .arg(QString::fromLatin1(entry.event))
                    .arg(entry.number)
                    .arg(entry.now.sinceBoot.count());
        for (const RunnerCall& call : entry.calls) {
            text += "\n        " + ToText(call);
        }
    }
    return text;
}

void Walk::Evaluate()
{
    Do("Evaluate", 0, [&](auto& side) { side.Evaluate(m_world.now); });
}

void Walk::SetSchedule()
{
    const auto tasks = m_world.tasks;
    Do("SetSchedule", m_world.isEnabled,
       [&](auto& side) { side.SetSchedule(tasks, m_world.isEnabled, m_world.now); });
}

// Time.

void Walk::Pass(Length time)
{
    const Length end = m_world.now.sinceBoot + time;
    while (m_problem.isEmpty()) {
        const Length left = end - m_world.now.sinceBoot;
        const auto wake = m_runner->NextWake();
        const auto event = m_world.NextEvent();
        const Length toWake = wake ? *wake - m_world.now.wall : Length::max();
        const Length toEvent =
            event ? std::max(*event - m_world.awake, Length::zero()) : Length::max();
        const Length next = std::min({left, toWake, toEvent});
        m_world.now.wall += next;
        m_world.now.sinceBoot += next;
        m_world.awake += next;
        if (next == toEvent) {
            TakeRecorderEvent();
        } else if (next == toWake) {
            Evaluate();
        } else {
            return;
        }
    }
}

void Walk::TakeRecorderEvent()
{
    Tell(m_world.TakeEvent());
}

void Walk::Tell(const RecorderEvent& event)
{
    using Kind = RecorderEvent::Kind;
    const Instant& now = m_world.now;
    const auto id = event.id;
    switch (event.kind) {
    case Kind::Ready:
        return Do("OnReady", qint64(id), [&](auto& side) { side.OnReady(id, now); });
    case Kind::FirstFrame:
        return Do("OnRecording", qint64(id),
                  [&](auto& side) { side.OnRecording(id, now.wall, event.file, now); });
    case Kind::Finished:
        return Do(
            "OnFinished", qint64(id),
            [&](ScheduleRunner& runner) {
                runner.OnFinished(id, {event.file, event.reason, event.length}, now);
            },
            [&](RunnerModel& model) {
                model.OnFinished(id, event.reason, event.length, event.file, now);
            });
    case Kind::Failed:
        return Do("OnFailed", qint64(id),
                  [&](auto& side) { side.OnFailed(id, event.reason, {}, now); });
    case Kind::Died:
        return Do("OnDied", qint64(id), [&](auto& side) { side.OnDied(id, event.file, now); });
    case Kind::Cancelled:
        return Do("OnCancelled", qint64(id), [&](auto& side) { side.OnCancelled(id, now); });
    }
}

void Walk::PassToWake(Length before)
{
    const auto wake = m_runner->NextWake();
    if (!wake) {
        return Pass(m_world.Between(seconds(1), minutes(10)));
    }
    Pass(std::max(*wake - m_world.now.wall - before, Length::zero()));
    if (before > Length::zero()) {
        Evaluate();
    }
}

/// Recorders stand still in it, and nobody wakes.
void Walk::Suspend()
{
    if (m_world.Chance(90)) {
        Do("OnSleep", 0, [](auto& side) { side.OnSleep(); });
    }
    const Length time =
        m_world.Between(seconds(1), m_world.Chance(50) ? Length(minutes(2)) : Length(hours(1)));
    m_world.now.wall += time;
    m_world.now.sinceBoot += time;
    if (m_world.Chance(70)) {
        Evaluate();
    }
}

void Walk::SetClock()
{
    const Length limits[] = {milliseconds(10), milliseconds(50), seconds(4),
                             seconds(30),      minutes(10),      hours(2)};
    const Length limit = limits[m_world.Below(int(std::size(limits)))];
    const Length hour = hours(m_world.Chance(50) ? 1 : -1);
    m_world.now.wall += m_world.Chance(10) ? hour : m_world.Between(-limit, limit);
    if (m_world.Chance(80)) {
        Evaluate();
    }
}

// The user.

std::optional<PX::RecordTime> Walk::NewTask()
{
    PX::RecordTime task;
    task.title = QStringLiteral("T%1").arg(++m_lastTitle % 500);
    const Moment now{std::chrono::duration_cast<seconds>(m_world.now.wall.time_since_epoch())};
    task.start = now + seconds(m_world.Below(m_world.Chance(60) ? 120 : 1500) - 20);
    task.duration = seconds(5 + m_world.Below(m_world.Chance(50) ? 20 : 900));
    if (!m_world.tasks.empty() && m_world.Chance(40)) {
        const auto& before = m_world.tasks[std::size_t(m_world.Below(int(m_world.tasks.size())))];
        task.start = before.start + before.duration;
    }
    task.screenIndex = m_world.Below(3) - 1;
    task.finishAction = m_world.Chance(50) ? PX::DoNothing : PX::PowerAction(m_world.Below(6));
    for (const auto& other : m_world.tasks) {
        if (other.title == task.title
            || (other.start < task.start + task.duration
                && task.start < other.start + other.duration)) {
            return std::nullopt;
        }
    }
    return task;
}

void Walk::AddTask()
{
    if (m_world.tasks.size() < MostTasks) {
        if (const auto task = NewTask()) {
            m_world.AddTask(*task);
            SetSchedule();
        }
    }
}

void Walk::DeleteTask()
{
    if (!m_world.tasks.empty()) {
        const int index = m_world.Below(int(m_world.tasks.size()));
        m_world.DeleteTask(QString(m_world.tasks[std::size_t(index)].title));
        SetSchedule();
    }
}

void Walk::ReplaceTask()
{
    if (m_world.tasks.empty()) {
        return;
    }
    if (auto task = NewTask()) {
        const auto index = std::size_t(m_world.Below(int(m_world.tasks.size())));
        task->title = m_world.tasks[index].title;
        m_world.ReplaceTask(index, *task);
        SetSchedule();
    }
}

void Walk::ToggleMode()
{
    if (!m_world.isEnabled || m_world.Chance(30)) {
        m_world.isEnabled = !m_world.isEnabled;
        SetSchedule();
    }
}

void Walk::StartByHand()
{
    const Length length =
        m_world.Chance(50) ? Length::zero() : m_world.Between(seconds(5), minutes(5));
    const auto action = PX::PowerAction(m_world.Below(6));
    bool isStarted = false;
    bool isExpected = false;
    Do(
        "StartByHand", length.count(),
        [&](ScheduleRunner& runner) {
            isStarted = runner.StartByHand(length, action, m_world.now);
        },
        [&](RunnerModel& model) { isExpected = model.StartByHand(length, action, m_world.now); });
    if (isStarted != isExpected) {
        Complain("a start by hand is refused or not");
    }
}

void Walk::ChooseAction()
{
    if (m_world.Chance(50)) {
        return Do("CancelCountdown", 0, [](auto& side) { side.CancelCountdown(); });
    }
    m_world.isActionWanted = true;
    Do("ActNow", 0, [](auto& side) { side.ActNow(); });
    m_world.isActionWanted = false;
}

// The machine.

void Walk::ToggleScreen()
{
    bool& isThere = m_world.screens[std::size_t(m_world.Below(3))];
    isThere = !isThere;
    if (!isThere && m_world.Chance(60)) {
        isThere = true;
    }
    Evaluate();
}

void Walk::AnswerPower()
{
    auto action = PX::PowerAction(m_world.Below(6));
    if (!m_world.questions.empty()) {
        action = m_world.questions.front();
        m_world.questions.erase(m_world.questions.begin());
    } else if (m_world.Chance(80)) {
        return Do("OnPowerRefused", action,
                  [&](auto& side) { side.OnPowerRefused(action, "text"); });
    }
    const Length countdown = seconds(m_world.Chance(80) ? 60 : m_world.Below(3601));
    const bool isPossible = m_world.Chance(75);
    Do(
        "OnPowerAnswer", action,
        [&](ScheduleRunner& runner) {
            runner.SetCountdown(countdown);
            runner.OnPowerAnswer(action, isPossible ? IPower::Answer::Yes : IPower::Answer::No,
                                 m_world.now);
        },
        [&](RunnerModel& model) {
            model.SetCountdown(countdown);
            model.OnPowerAnswer(action, isPossible, m_world.now);
        });
}

void Walk::ToggleShutDown()
{
    m_isShuttingDown = !m_isShuttingDown;
    Do("OnShutDown", m_isShuttingDown,
       [&](auto& side) { side.OnShutDown(m_isShuttingDown, m_world.now); });
    if (m_isShuttingDown && m_world.Chance(50)) {
        Pass(m_world.Between(seconds(0), seconds(30)));
        Restart();
    }
}

/// The program is gone for a while, and begins anew.
void Walk::Restart()
{
    m_world.Die();
    m_world.book.SettleRunning(m_world.Chance(80) ? Outcome::Partial : Outcome::Failed);
    if (m_world.Chance(50)) {
        const Length time = m_world.Between(seconds(0), minutes(m_world.Chance(80) ? 1 : 60));
        m_world.now.wall += time;
        m_world.now.sinceBoot += time;
        m_world.awake += time;
    }
    m_isShuttingDown = false;
    m_runner.emplace(RunnerPorts{m_world, m_world, m_world, m_world, m_world, m_world});
    m_model.emplace(m_world.book, m_world);
    SetSchedule();
}

void Walk::Leave()
{
    Do("Leave", 0, [&](auto& side) { side.Leave(m_world.now); });
    Pass(m_world.Between(seconds(0), minutes(2)));
    if (m_problem.isEmpty() && m_world.IsQuiet() && m_world.book.IsRunning()) {
        Complain("an entry says of a recording that is over that it runs");
    }
    Restart();
}

void Walk::TellUnknown()
{
    RecorderEvent event;
    event.kind = RecorderEvent::Kind(m_world.Below(6));
    event.id = 1'000'000'000;
    event.file = "unknown";
    event.reason = "duration";
    Tell(event);
}

void Walk::TellProgress()
{
    for (const RecordingId id : m_world.Recordings()) {
        RecordingProgress progress;
        progress.length = m_world.RecordedBy(id);
        Do(
            "OnProgress", qint64(id),
            [&](ScheduleRunner& runner) { runner.OnProgress(id, progress); },
            [&](RunnerModel& model) { model.OnProgress(id, progress.length); });
        Do("OnWarning", qint64(id), [&](auto& side) { side.OnWarning(id, "text"); });
    }
}

// One step.

void Walk::StepOfTime(int choice)
{
    if (choice < 30) {
        PassToWake(Length::zero());
    } else if (choice < 36) {
        PassToWake(m_world.Between(microseconds(1), seconds(2)));
    } else if (choice < 52) {
        Pass(m_world.Between(microseconds(0),
                             m_world.Chance(50) ? Length(milliseconds(100)) : Length(seconds(10))));
    } else if (choice < 55) {
        Pass(m_world.Between(seconds(1), minutes(20)));
    } else if (choice < 57) {
        Suspend();
    } else {
        SetClock();
    }
}

void Walk::StepOfUser(int choice)
{
    const Instant& now = m_world.now;
    if (choice < 12) {
        AddTask();
    } else if (choice < 13) {
        DeleteTask();
    } else if (choice < 14) {
        ReplaceTask();
    } else if (choice < 15) {
        ToggleMode();
    } else if (choice < 18) {
        StartByHand();
    } else if (choice < 19) {
        Do("Stop", 0, [&](auto& side) { side.Stop(now); });
    } else if (choice < 21) {
        Do("Pause", 0, [&](auto& side) { side.Pause(now); });
    } else if (choice < 23) {
        Do("Resume", 0, [&](auto& side) { side.Resume(now); });
    } else if (choice < 24) {
        Do("KeepRecordingByHand", 0, [&](auto& side) { side.KeepRecordingByHand(now); });
    } else if (choice < 25) {
        const QString title = m_world.tasks.empty() ? QString("none") : m_world.tasks.front().title;
        Do("Skip", 0, [&](auto& side) { side.Skip(title, now); });
    } else {
        ChooseAction();
    }
}

void Walk::StepOfMachine(int choice)
{
    if (choice < 4) {
        AnswerPower();
    } else if (choice < 6) {
        ToggleScreen();
    } else if (choice < 9) {
        TellProgress();
    } else if (choice < 10) {
        TellUnknown();
    } else if (choice < 11 && (m_isShuttingDown || m_world.Chance(30))) {
        ToggleShutDown();
    } else if (choice < 12 && m_world.Chance(30)) {
        m_world.Chance(50) ? Restart() : Leave();
    } else {
        Evaluate();
    }
}

void Walk::Step()
{
    const int choice = m_world.Below(100);
    if (choice < 59) {
        StepOfTime(choice);
    } else if (choice < 86) {
        StepOfUser(choice - 59);
    } else {
        StepOfMachine(choice - 86);
    }
}

int FromEnvironment(const char* name, int otherwise)
{
    bool isNumber = false;
    const int value = qEnvironmentVariableIntValue(name, &isNumber);
    return isNumber ? value : otherwise;
}

} // namespace

/// Walks through everything that can happen to a runner, at random.
///
/// A failure tells its seed. RUNNER_WALK_SEED walks that way alone, RUNNER_WALK_EVENTS says how
/// far.
class tst_RunnerWalk : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void doesWhatItShould_data()
    {
        QTest::addColumn<int>("seed");
        const int only = FromEnvironment("RUNNER_WALK_SEED", -1);
        for (int seed = 1; seed <= WalkCount; ++seed) {
            if (only < 0) {
                QTest::addRow("seed %d", seed) << seed;
            }
        }
        if (only >= 0) {
            QTest::addRow("seed %d", only) << only;
        }
    }

    void doesWhatItShould()
    {
        QFETCH(int, seed);
        const int eventCount = FromEnvironment("RUNNER_WALK_EVENTS", EventCount / WalkCount);
        Walk walk{quint32(seed)};
        while (walk.Events() < eventCount && walk.Problem().isEmpty()) {
            walk.Step();
        }
        if (!walk.Problem().isEmpty()) {
            QFAIL(qPrintable(QStringLiteral("RUNNER_WALK_SEED=%1, event %2: %3%4")
                                 .arg(seed)
                                 .arg(walk.Events())
                                 .arg(walk.Problem(), walk.History())));
        }
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_RunnerWalk)

#include "tst_RunnerWalk.moc"
