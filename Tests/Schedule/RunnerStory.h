// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "FakePorts.h"
#include "ScheduleRunner.h"

namespace Zentor::Tests {

/// Tells a runner what happens, line by line:
///
///     task TITLE START SECONDS [SCREEN] [ACTION]   delete TITLE   on   off   screen N   no-screen
///     N at SECOND     time passes; the runner is woken when it wants to be, and not at the end
///     wake          it is woken now
///     sleep SECOND  time passes while the machine sleeps
///     clock SECOND  the wall clock is set
///     record SECONDS [ACTION]   stop   pause   resume   keep   skip TITLE   cancel   now   leave
///     countdown SECONDS   answer ACTION yes|no   refused ACTION   sleeping   shutdown yes|no
///     ready ID   recording ID   progress ID SECONDS   warning ID   finished ID REASON SECONDS
///     failed ID CODE [FILE]   died ID [FILE]   cancelled ID
///     status        restart         wakes: how often it was woken
///
/// Lines that begin with ">" are what follows: the runner's calls.
class RunnerStory {
public:
    RunnerStory();

    /// The lines of \a story that are not calls, each followed by the calls that it led to.
    QStringList Play(const QStringList& story);

private:
    void Do(const QStringList& words);
    bool DoSchedule(const QStringList& words);
    bool DoTime(const QStringList& words);
    bool DoUser(const QStringList& words);
    bool DoPower(const QStringList& words);
    bool DoRecorder(const QStringList& words);
    void AddTask(const QStringList& words);
    void SetSchedule();
    void PassTo(Schedule::Moment end);
    void Restart();
    QString Status() const;

    FakePorts m_ports;
    std::optional<Schedule::ScheduleRunner> m_runner;
    bool m_isEnabled = true;
    int m_wakeCount = 0;
};

} // namespace Zentor::Tests
