// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RecordingTour.h"

#include <QDateTime>
#include <QDir>
#include <QFile>

#include "MainWindow.h"
#include "RecordingFooter.h"
#include "RecordingsList.h"
#include "RecordingsPage.h"
#include "ScreenshotTour.h"

namespace Zentor::Desktop {
namespace {

using namespace std::chrono_literals;

using Phase = Schedule::RunnerStatus::Phase;
using Schedule::Moment;
using Schedule::Outcome;
using Schedule::RunnerStatus;

/// The present of the tour: what the pictures show does not depend on when they are taken.
Moment Now()
{
    return Moment(std::chrono::seconds(QDateTime({2035, 3, 5}, {9, 29, 15}).toSecsSinceEpoch()));
}

struct Sample {
    const char* title;
    std::chrono::minutes start;
    std::chrono::seconds length;
    Outcome outcome;
    QString reason;
    /// Of its file; 0 for none.
    qint64 bytes;
};

std::vector<Sample> Samples()
{
    return {{"Lecture", -7 * 24h, 90min, Outcome::Complete, {}, 812'000'000},
            {"Night build", -6 * 24h, 8h, Outcome::Missed, Schedule::Why::NotRunning, 0},
            {"Town hall", -3 * 24h, 42min, Outcome::Partial, Schedule::Why::Late, 310'000'000},
            {"Interview", -26h, 30min, Outcome::Failed, QStringLiteral("no-encoder"), 0},
            {"Recording", -25h, 17min, Outcome::Stopped, Schedule::Why::User, 96'000'000}};
}

RunnerStatus NextTask()
{
    RunnerStatus status;
    PX::RecordTime task;
    task.title = QStringLiteral("Weekly design review");
    task.start = Now() + 45min;
    status.next = task;
    return status;
}

RunnerStatus RecordingOf(const QString& title, bool isPaused)
{
    RunnerStatus status = NextTask();
    status.phase = Phase::Recording;
    status.title = title;
    status.isTask = !title.isEmpty();
    status.isPaused = isPaused;
    status.start = Now() - 12min - 5s;
    status.end = Now() + 32min + 55s;
    status.progress.length = 12min + 5s;
    status.progress.bytes = 35'400'000;
    status.progress.freeBytes = 81'700'000'000;
    status.progress.droppedFrames = isPaused ? 3 : 0;
    return status;
}

RunnerStatus Countdown()
{
    RunnerStatus status = NextTask();
    status.phase = Phase::Countdown;
    status.action = PX::ShutDown;
    status.countdownEnd = Now() + 45s;
    return status;
}

void ShowFooter(ScreenshotTour& tour, MainWindow& window, const RunnerStatus& status,
                const QString& picture)
{
    tour.Do(picture, [&window, status] { window.Footer()->SetStatus(status, Now()); });
    tour.PointAway();
    tour.Picture(picture);
}

} // namespace

void AddSampleRecordings(Schedule::RecordingsList& list, const QString& folder)
{
    for (const Sample& sample : Samples()) {
        const QString title = QString::fromLatin1(sample.title);
        QFile file(QDir(folder).filePath(title + QStringLiteral(".mkv")));
        const bool hasFile =
            sample.bytes > 0 && file.open(QIODevice::WriteOnly) && file.resize(sample.bytes);
        const Moment start = Now() + sample.start;
        list.Add({title, start, start + sample.length, sample.outcome,
                  hasFile ? file.fileName() : QString(), sample.reason});
    }
}

void WriteRecordingTour(ScreenshotTour& tour, MainWindow& window)
{
    tour.ClickEntry(QStringLiteral("pageList"), RecordingsPage::PageId());
    tour.PointAway();
    tour.Picture(QStringLiteral("20-recordings"));
    ShowFooter(tour, window, NextTask(), QStringLiteral("21-next-task"));
    ShowFooter(tour, window, RecordingOf(QStringLiteral("Lecture"), false),
               QStringLiteral("22-task-is-recorded"));
    ShowFooter(tour, window, RecordingOf({}, true), QStringLiteral("23-paused"));
    ShowFooter(tour, window, Countdown(), QStringLiteral("24-countdown"));
}

} // namespace Zentor::Desktop
