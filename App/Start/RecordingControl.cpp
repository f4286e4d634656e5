// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RecordingControl.h"

#include <utility>

#include <QApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QPushButton>
#include <QTimer>
#include <QUrl>

#include "DesktopEntryName.h"
#include "FooterState.h"
#include "HostInterfaces.h"
#include "Instance.h"
#include "MainWindow.h"
#include "RecorderProgram.h"
#include "RecordingFooter.h"
#include "ShowInFolder.h"
#include "System/MachineClock.h"
#include "TrayIcon.h"

namespace Zentor::Desktop {
namespace {

using Schedule::Notice;
using Schedule::RecordingService;
using Schedule::RunnerStatus;

Schedule::Moment Now()
{
    return Schedule::MachineClock().Now().wall;
}

/// As the panel asks for it.
qint64 FreeBytesAt(const QString& folder)
{
    ioPath path;
    path = folder.toStdString();
    return Util::GetAvailableDiskSpace(path);
}

} // namespace

RecordingControl::RecordingControl(const std::shared_ptr<PX::SettingsStore>& store,
                                   const std::shared_ptr<Schedule::RecordingsList>& recordings,
                                   MainWindow& window, TrayIcon& tray, Instance& instance)
    : m_window(window)
    , m_tray(tray)
    , m_recordings(recordings)
    , m_screens(std::make_shared<DesktopScreens>(store))
    , m_service({store, recordings, m_screens, std::make_shared<Schedule::MachineClock>(),
                 Schedule::RecorderProgram(), FreeBytesAt})
    , m_notifier(DesktopEntryName())
    , m_notices(m_notifier, [&window] { return window.isActiveWindow(); })
    , m_guard(window.Footer()->NowButton())
{
    ConnectService();
    ConnectWindow();
    ConnectInstance(instance);
    ConnectNotices();
    ShowStatus();
}

RecordingControl::~RecordingControl() = default;

void RecordingControl::ConnectService()
{
    connect(m_screens.get(), &DesktopScreens::Changed, &m_service,
            &RecordingService::OnScreensChanged);
    connect(&m_service, &RecordingService::StatusChanged, this, &RecordingControl::ShowStatus);
    connect(&m_service, &RecordingService::Progressed, this, [this] {
        if (m_window.isVisible()) {
            m_window.Footer()->SetStatus(m_service.Status(), Now());
        }
    });
    connect(&m_service, &RecordingService::Noticed, &m_notices, &DesktopNotices::Tell);
    connect(&m_service, &RecordingService::TaskOver, &m_window, &MainWindow::RemoveTask);
    connect(&m_service, &RecordingService::QuitRequested, this, &RecordingControl::End);
    connect(&m_service, &RecordingService::AtRest, &m_window, [this] {
        const bool isSaved =
            (m_isClosed || m_window.SaveUnattended()) && m_recordings->SaveProblem().isEmpty();
        QCoreApplication::exit(isSaved ? EXIT_SUCCESS : EXIT_FAILURE);
    });
}

void RecordingControl::ConnectWindow()
{
    const RecordingFooter* footer = m_window.Footer();
    connect(&m_window, &MainWindow::RecordingRequested, this, &RecordingControl::StartByHand);
    connect(&m_window, &MainWindow::Closed, this, [this] {
        m_isClosed = true;
        End();
    });
    connect(&m_window, &MainWindow::Shown, this, &RecordingControl::ShowStatus);
    connect(&m_window, &MainWindow::LanguageChanged, this, &RecordingControl::ShowStatus);
    connect(footer, &RecordingFooter::StopRequested, &m_service, &RecordingService::Stop);
    connect(footer, &RecordingFooter::PauseRequested, &m_service, &RecordingService::TogglePause);
    connect(footer, &RecordingFooter::SkipRequested, &m_service, &RecordingService::Skip);
    connect(footer, &RecordingFooter::KeepRequested, &m_service,
            &RecordingService::KeepRecordingByHand);
    connect(footer, &RecordingFooter::CancelRequested, &m_service,
            &RecordingService::CancelCountdown);
    connect(footer, &RecordingFooter::NowRequested, &m_service, &RecordingService::ActNow);
    connect(&m_guard, &CountdownGuard::Cancelled, &m_service, &RecordingService::CancelCountdown);
}

void RecordingControl::ConnectInstance(const Instance& instance)
{
    connect(&instance, &Instance::StartRequested, &m_window, &MainWindow::StartRecording);
    connect(&instance, &Instance::StopRequested, &m_service, &RecordingService::Stop);
    connect(&instance, &Instance::PauseRequested, &m_service, &RecordingService::TogglePause);
    connect(&instance, &Instance::QuitRequested, this, &RecordingControl::End);
}

void RecordingControl::ConnectNotices()
{
    connect(&m_notifier, &Schedule::DesktopNotifier::Unavailable, this, [this] {
        m_isNotifierMissing = true;
        TellOfMissingNotifier();
    });
    connect(&m_window, &MainWindow::Shown, this, &RecordingControl::TellOfMissingNotifier);
    connect(&m_notices, &DesktopNotices::Announced, &m_window, &MainWindow::Tell);
    connect(&m_notices, &DesktopNotices::SkipRequested, &m_service, &RecordingService::Skip);
    connect(&m_notices, &DesktopNotices::KeepRequested, &m_service,
            &RecordingService::KeepRecordingByHand);
    connect(&m_notices, &DesktopNotices::CancelRequested, &m_service,
            &RecordingService::CancelCountdown);
    connect(&m_notices, &DesktopNotices::NowRequested, &m_service, &RecordingService::ActNow);
    connect(&m_notices, &DesktopNotices::OpenRequested, this, &RecordingControl::Open);
    connect(&m_notices, &DesktopNotices::ShowInFolderRequested, this,
            [this](const QString& file) { ShowInFolder(file, this); });
    connect(&m_notices, &DesktopNotices::WindowRequested, this, &RecordingControl::WindowRequested);
    connect(&m_window, &MainWindow::HiddenInTray, this, [this] {
        Notice notice;
        notice.kind = Notice::Kind::RunsOn;
        m_notices.Tell(notice);
    });
}

PendingWork RecordingControl::Work() const
{
    return {m_service.IsRecording(), m_service.PendingTasks()};
}

void RecordingControl::End()
{
    m_service.Leave();
}

void RecordingControl::StartByHand()
{
    m_startsAfterClosing = m_service.Status().phase == RunnerStatus::Phase::Closing;
    if (!m_startsAfterClosing && !m_service.StartByHand() && !m_service.IsRecording()) {
        m_window.Tell(tr("A task is about to start."));
    }
}

void RecordingControl::TellOfMissingNotifier()
{
    if (m_window.isVisible() && std::exchange(m_isNotifierMissing, false)) {
        m_window.Tell(tr("The desktop shows no notifications. The page \"Recordings\" tells what "
                         "was recorded, and what was not."));
    }
}

void RecordingControl::Open(const QString& file)
{
    if (!QFileInfo(file).isFile() || !QDesktopServices::openUrl(QUrl::fromLocalFile(file))) {
        ShowInFolder(file, this);
    }
}

void RecordingControl::ShowStatus()
{
    const RunnerStatus status = m_service.Status();
    m_window.Footer()->SetStatus(status, Now());
    ShowTray(status);
    ShowCountdown(status.phase == RunnerStatus::Phase::Countdown);
    if (m_startsAfterClosing && status.phase != RunnerStatus::Phase::Closing) {
        m_startsAfterClosing = false;
        // Later: the service is telling of the end.
        QTimer::singleShot(0, this, &RecordingControl::StartByHand);
    }
}

void RecordingControl::ShowTray(const RunnerStatus& status)
{
    using Phase = RunnerStatus::Phase;
    TrayState state;
    state.text = EventText(FooterStateOf(status, Now()));
    state.isRecording = status.phase == Phase::Recording;
    state.isPaused = status.isPaused;
    state.canStart = status.phase == Phase::Idle || status.phase == Phase::Countdown;
    state.canStop = status.phase == Phase::Preparing || status.phase == Phase::Recording;
    state.canPause = status.phase == Phase::Recording;
    m_tray.SetState(state);
}

void RecordingControl::ShowCountdown(bool isCountingDown)
{
    if (isCountingDown == m_isCountingDown) {
        return;
    }
    m_isCountingDown = isCountingDown;
    m_guard.SetArmed(isCountingDown);
    if (isCountingDown) {
        m_window.Raise();
    } else {
        m_notices.EndCountdown();
    }
}

} // namespace Zentor::Desktop
