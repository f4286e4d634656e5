// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include <QObject>

#include "NoticeText.h"
#include "System/DesktopNotifier.h"

namespace Zentor::Desktop {

/// Tells notices by notifications of the desktop, and what the user does about them.
///
/// While the user looks at the window only the countdown is told so; the window announces the
/// others. A notification that is out of date is taken from the screen, or replaced.
class DesktopNotices final : public QObject {
    Q_OBJECT

public:
    /// \a isWindowLookedAt is asked for each notice. \a notifier outlives this object.
    DesktopNotices(Schedule::DesktopNotifier& notifier, std::function<bool()> isWindowLookedAt,
                   QObject* parent = nullptr);
    ~DesktopNotices() override;

    void Tell(const Schedule::Notice& notice);

    /// The countdown is over, whatever ended it.
    void EndCountdown();

Q_SIGNALS:
    /// \a text is for the window, as the user looks at it.
    void Announced(const QString& text);
    /// The task called \a title is not to be recorded.
    void SkipRequested(const QString& title);
    void KeepRequested();
    void OpenRequested(const QString& file);
    void ShowInFolderRequested(const QString& file);
    void CancelRequested();
    void NowRequested();
    /// The user has clicked a notification. \a activationToken lets the window come to the front;
    /// it may be empty.
    void WindowRequested(const QString& activationToken);

private:
    /// What is needed when an action of a notification is chosen.
    struct Told {
        QString title;
        QString file;
    };

    void CloseOutdated(const Schedule::Notice& notice);
    QString KeyOf(const Schedule::Notice& notice);
    void TakeAction(const QString& key, const QString& action, const QString& activationToken);

    Schedule::DesktopNotifier& m_notifier;
    const std::function<bool()> m_isWindowLookedAt;
    /// By key; few, as the oldest are forgotten.
    QList<QPair<QString, Told>> m_told;
    int m_lastNumber = 0;
};

} // namespace Zentor::Desktop
