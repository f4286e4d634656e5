// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <QObject>

#include "CloseDecision.h"
#include "CountdownGuard.h"
#include "DesktopNotices.h"
#include "DesktopScreens.h"
#include "RecordingService.h"

namespace Zentor::Desktop {

class Instance;
class MainWindow;
class TrayIcon;

/// Steers what records by what the user does in the window, in the tray, in notifications and on
/// other command lines, and shows there what it does.
class RecordingControl final : public QObject {
    Q_OBJECT

public:
    /// \a store and \a recordings have been opened, and \a window, \a tray and \a instance outlive
    /// the control.
    RecordingControl(const std::shared_ptr<PX::SettingsStore>& store,
                     const std::shared_ptr<Schedule::RecordingsList>& recordings,
                     MainWindow& window, TrayIcon& tray, Instance& instance);
    ~RecordingControl() override;

    /// Keeps the schedule from now on.
    void Begin() { m_service.Begin(); }

    /// What is lost when the program ends now.
    PendingWork Work() const;

    /// Closes what is recorded, saves everything without a question, and ends the program. Its exit
    /// code is 0 when everything is saved.
    void End();

Q_SIGNALS:
    /// The window is to come to the front; \a activationToken, which may be empty, allows it.
    void WindowRequested(const QString& activationToken);

private:
    void ConnectService();
    void ConnectWindow();
    void ConnectInstance(const Instance& instance);
    void ConnectNotices();
    void StartByHand();
    /// In the window, as soon as that is shown: there is no other place.
    void TellOfMissingNotifier();
    void Open(const QString& file);
    void ShowStatus();
    void ShowTray(const Schedule::RunnerStatus& status);
    /// Brings the window up for a countdown, which any key or click in it cancels.
    void ShowCountdown(bool isCountingDown);

    MainWindow& m_window;
    TrayIcon& m_tray;
    const std::shared_ptr<const Schedule::RecordingsList> m_recordings;
    const std::shared_ptr<DesktopScreens> m_screens;
    Schedule::RecordingService m_service;
    Schedule::DesktopNotifier m_notifier;
    DesktopNotices m_notices;
    CountdownGuard m_guard;
    bool m_isCountingDown = false;
    /// A recording was asked for while the last one is being closed.
    bool m_startsAfterClosing = false;
    /// The desktop shows no notifications, and the user has not been told yet.
    bool m_isNotifierMissing = false;
    /// The window was closed, with all that it had to ask.
    bool m_isClosed = false;
};

} // namespace Zentor::Desktop
