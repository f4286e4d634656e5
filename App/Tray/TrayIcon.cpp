// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "TrayIcon.h"

#include <QEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QSystemTrayIcon>

#include "Theme.h"

namespace Zentor::Desktop {
namespace {

QIcon IconOf(const TrayState& state)
{
    if (!state.isRecording) {
        return ThemedIcon(QStringLiteral("px-scheduler"));
    }
    return ThemedIcon(state.isPaused ? QStringLiteral("tray-paused")
                                     : QStringLiteral("tray-recording"));
}

/// \a text for a menu, in which "&" marks a key.
QString WithoutKey(QString text)
{
    return text.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

} // namespace

TrayIcon::TrayIcon(QObject* parent)
    : QObject(parent)
{
    if (QGuiApplication::platformName() == QLatin1String("xcb")) {
        m_xEmbedTray = std::make_unique<XEmbedTray>();
        connect(m_xEmbedTray.get(), &XEmbedTray::Changed, this, &TrayIcon::CreateIcon);
    }
    connect(&m_statusNotifierTray, &StatusNotifierTray::Changed, this, &TrayIcon::CreateIcon);
    CreateMenu();
    Retranslate();
    CreateIcon();
}

TrayIcon::~TrayIcon() = default;

void TrayIcon::CreateMenu()
{
    m_menu = std::make_unique<QMenu>();
    m_menu->setObjectName(QStringLiteral("trayMenu"));
    m_stateAction = m_menu->addAction(QString());
    m_stateAction->setEnabled(false);
    m_menu->addSeparator();
    const auto add = [this](const char* objectName, void (TrayIcon::*wanted)()) {
        QAction* action = m_menu->addAction(QString(), this, wanted);
        action->setObjectName(QLatin1String(objectName));
        return action;
    };
    m_startAction = add("startAction", &TrayIcon::StartRequested);
    m_stopAction = add("stopAction", &TrayIcon::StopRequested);
    m_pauseAction = add("pauseAction", &TrayIcon::PauseRequested);
    m_menu->addSeparator();
    m_showAction = add("showAction", &TrayIcon::ShowRequested);
    m_quitAction = add("quitAction", &TrayIcon::QuitRequested);
    m_menu->installEventFilter(this);
}

void TrayIcon::CreateIcon()
{
    const bool isOnDisplay = m_xEmbedTray != nullptr && m_xEmbedTray->IsThere();
    // Qt settles for one kind of tray the first time that it is asked for an icon. The one on the
    // bus is preferred, so that its answer is waited for.
    if (m_icon != nullptr || !m_statusNotifierTray.IsKnown()
        || (!m_statusNotifierTray.IsThere() && !isOnDisplay)) {
        return;
    }
    m_isOnBus = m_statusNotifierTray.IsThere();
    m_icon = std::make_unique<QSystemTrayIcon>(this);
    m_icon->setContextMenu(m_menu.get());
    connect(m_icon.get(), &QSystemTrayIcon::activated, this,
            [this](QSystemTrayIcon::ActivationReason reason) {
                if (reason == QSystemTrayIcon::Trigger) {
                    Q_EMIT ShowRequested();
                }
            });
    ShowState();
    m_icon->show();
}

bool TrayIcon::IsAvailable() const
{
    return m_icon != nullptr
        && (m_isOnBus ? m_statusNotifierTray.IsThere() : m_xEmbedTray->IsThere());
}

void TrayIcon::SetState(const TrayState& state)
{
    m_state = state;
    ShowState();
}

void TrayIcon::Retranslate()
{
    m_startAction->setText(tr("&Start recording"));
    m_stopAction->setText(tr("S&top"));
    m_showAction->setText(tr("Show &window"));
    m_quitAction->setText(tr("&Quit"));
    ShowState();
}

void TrayIcon::ShowState()
{
    const QString shortText = !m_state.isRecording ? tr("Not recording")
        : m_state.isPaused                         ? tr("Paused")
                                                   : tr("Recording");
    const QString text = m_state.text.isEmpty() ? shortText : m_state.text;
    m_stateAction->setText(WithoutKey(text));
    m_pauseAction->setText(m_state.isPaused ? tr("&Resume") : tr("&Pause"));
    m_startAction->setVisible(!m_state.isRecording);
    m_startAction->setEnabled(m_state.canStart);
    m_stopAction->setVisible(m_state.isRecording);
    m_stopAction->setEnabled(m_state.canStop);
    m_pauseAction->setVisible(m_state.isRecording);
    m_pauseAction->setEnabled(m_state.canPause);
    if (m_icon != nullptr) {
        m_icon->setIcon(IconOf(m_state));
        m_icon->setToolTip(tr("%1: %2").arg(QGuiApplication::applicationDisplayName(), text));
    }
}

bool TrayIcon::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        Retranslate();
    } else if (event->type() == QEvent::PaletteChange) {
        ShowState();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace Zentor::Desktop
