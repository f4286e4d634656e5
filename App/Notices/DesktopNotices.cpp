// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "DesktopNotices.h"

#include <algorithm>
#include <utility>

namespace Zentor::Desktop {
namespace {

using Schedule::DesktopNotification;
using Schedule::Notice;

/// Notifications of which an action can still be chosen.
constexpr int MostTold = 100;

const QString CountdownKey = QStringLiteral("countdown");
const QString DefaultAction = QStringLiteral("default");

/// The names of actions, which the user does not see.
const std::pair<NoticeAction, QString> ActionKeys[] = {
    {NoticeAction::Skip, QStringLiteral("skip")},
    {NoticeAction::Keep, QStringLiteral("keep")},
    {NoticeAction::Open, QStringLiteral("open")},
    {NoticeAction::ShowInFolder, QStringLiteral("show-in-folder")},
    {NoticeAction::Cancel, QStringLiteral("cancel")},
    {NoticeAction::Now, QStringLiteral("now")},
};

QString KeyOfAction(NoticeAction action)
{
    return std::find_if(std::begin(ActionKeys), std::end(ActionKeys),
                        [&](const auto& named) { return named.first == action; })
        ->second;
}

/// The key of what is told about a task before it starts and when it does.
QString KeyOfTask(const QString& title)
{
    return QStringLiteral("task ") + title;
}

DesktopNotification NotificationOf(const NoticeText& text)
{
    DesktopNotification notification;
    notification.summary = text.title;
    notification.body = text.body;
    notification.actions.push_back({DefaultAction, DesktopNotices::tr("Show the window")});
    for (const NoticeAction action : text.actions) {
        notification.actions.push_back({KeyOfAction(action), ActionText(action)});
    }
    if (text.isUrgent) {
        notification.urgency = DesktopNotification::Urgency::Critical;
    }
    return notification;
}

} // namespace

DesktopNotices::DesktopNotices(Schedule::DesktopNotifier& notifier,
                               std::function<bool()> isWindowLookedAt, QObject* parent)
    : QObject(parent)
    , m_notifier(notifier)
    , m_isWindowLookedAt(std::move(isWindowLookedAt))
{
    connect(&notifier, &Schedule::DesktopNotifier::ActionInvoked, this,
            &DesktopNotices::TakeAction);
}

DesktopNotices::~DesktopNotices() = default;

void DesktopNotices::Tell(const Notice& notice)
{
    const NoticeText text = TextOf(notice);
    const QString key = KeyOf(notice);
    CloseOutdated(notice);
    if (notice.kind != Notice::Kind::Countdown && m_isWindowLookedAt()) {
        // An earlier one, which is replaced.
        m_notifier.Close(key);
        Q_EMIT Announced(text.body.isEmpty() ? text.title
                                             : tr("%1. %2").arg(text.title, text.body));
        return;
    }
    m_told.erase(std::remove_if(m_told.begin(), m_told.end(),
                                [&](const auto& told) { return told.first == key; }),
                 m_told.end());
    m_told.append({key, {notice.title, notice.entry.file}});
    if (m_told.size() > MostTold) {
        m_told.removeFirst();
    }
    m_notifier.Show(key, NotificationOf(text));
}

/// What was told of a task is replaced by what comes of it; ends of recordings stay side by side.
QString DesktopNotices::KeyOf(const Notice& notice)
{
    switch (notice.kind) {
    case Notice::Kind::Countdown:
        return CountdownKey;
    case Notice::Kind::StartsSoon:
    case Notice::Kind::Started:
    case Notice::Kind::GivingWay:
    case Notice::Kind::ScreenAwaited:
    case Notice::Kind::NoRoom:
        return KeyOfTask(notice.title);
    case Notice::Kind::LowDisk:
        return QStringLiteral("low-disk");
    default:
        return QStringLiteral("notice %1").arg(++m_lastNumber);
    }
}

void DesktopNotices::CloseOutdated(const Notice& notice)
{
    const bool isOver = notice.kind == Notice::Kind::Ended || notice.kind == Notice::Kind::Missed
        || notice.kind == Notice::Kind::Failed;
    if (isOver && !notice.title.isEmpty()) {
        m_notifier.Close(KeyOfTask(notice.title));
    }
    if (notice.kind == Notice::Kind::ActionRefused || notice.kind == Notice::Kind::ActionSkipped) {
        EndCountdown();
    }
}

void DesktopNotices::EndCountdown()
{
    m_notifier.Close(CountdownKey);
}

void DesktopNotices::TakeAction(const QString& key, const QString& action,
                                const QString& activationToken)
{
    const auto told = std::find_if(m_told.cbegin(), m_told.cend(),
                                   [&](const auto& other) { return other.first == key; });
    if (told == m_told.cend()) {
        return;
    }
    const Told about = told->second;
    if (action == DefaultAction) {
        Q_EMIT WindowRequested(activationToken);
    } else if (action == KeyOfAction(NoticeAction::Skip)) {
        Q_EMIT SkipRequested(about.title);
    } else if (action == KeyOfAction(NoticeAction::Keep)) {
        Q_EMIT KeepRequested();
    } else if (action == KeyOfAction(NoticeAction::Open)) {
        Q_EMIT OpenRequested(about.file);
    } else if (action == KeyOfAction(NoticeAction::ShowInFolder)) {
        Q_EMIT ShowInFolderRequested(about.file);
    } else if (action == KeyOfAction(NoticeAction::Cancel)) {
        Q_EMIT CancelRequested();
    } else if (action == KeyOfAction(NoticeAction::Now)) {
        Q_EMIT NowRequested();
    }
}

} // namespace Zentor::Desktop
