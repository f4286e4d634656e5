// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <QObject>
#include <QString>

#include "StatusNotifierTray.h"
#include "XEmbedTray.h"

class QAction;
class QMenu;
class QSystemTrayIcon;

namespace Zentor::Desktop {

/// What the tray tells and offers.
struct TrayState {
    /// What the program is doing, in the language in use, such as when the next task starts; where
    /// it is empty, whether it records.
    QString text;
    bool isRecording = false;
    /// Only while it records.
    bool isPaused = false;
    bool canStart = true;
    bool canStop = true;
    bool canPause = true;
};

/// The program in the desktop's tray: an icon that shows whether it records, and a menu.
///
/// Where the desktop has no tray there is no icon; it appears when a tray comes. A click on it asks
/// for the window.
class TrayIcon final : public QObject {
    Q_OBJECT

public:
    explicit TrayIcon(QObject* parent = nullptr);
    ~TrayIcon() override;

    /// Shows \a state. Set it anew in another language.
    void SetState(const TrayState& state);

    /// Whether the icon is in a tray now.
    bool IsAvailable() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The user wants the window.
    void ShowRequested();
    void StartRequested();
    void StopRequested();
    /// The recording is to be paused or, when it is paused, resumed.
    void PauseRequested();
    /// The program is to end, as far as the user agrees.
    void QuitRequested();

private:
    void CreateMenu();
    /// Creates the icon when there is a tray to put it in.
    void CreateIcon();
    void Retranslate();
    void ShowState();

    StatusNotifierTray m_statusNotifierTray;
    /// On X displays.
    std::unique_ptr<XEmbedTray> m_xEmbedTray;
    TrayState m_state;
    std::unique_ptr<QMenu> m_menu;
    QAction* m_stateAction = nullptr;
    QAction* m_startAction = nullptr;
    QAction* m_stopAction = nullptr;
    QAction* m_pauseAction = nullptr;
    QAction* m_showAction = nullptr;
    QAction* m_quitAction = nullptr;
    /// Whether the icon is in a tray on the session bus rather than on an X display.
    bool m_isOnBus = false;
    /// Goes before its menu.
    std::unique_ptr<QSystemTrayIcon> m_icon;
};

} // namespace Zentor::Desktop
