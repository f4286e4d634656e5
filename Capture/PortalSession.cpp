// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "PortalSession.h"

#include <algorithm>

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QRandomGenerator>

#include "PortalCastInterface.h"
#include "PortalRequestInterface.h"
#include "Protocol.h"
#include "RestoreToken.h"
#include "ScreenCastPortalInterface.h"

namespace Zentor::Capture {
namespace {

constexpr uint Monitors = 1;
constexpr uint UntilRevoked = 2;
constexpr uint PointerHidden = 1;
constexpr uint PointerInPicture = 2;

QString Service()
{
    return QStringLiteral("org.freedesktop.portal.Desktop");
}

QString NewToken()
{
    return QStringLiteral("px%1").arg(QRandomGenerator::global()->generate());
}

/// Where the answer to a request with \a token comes from.
QString RequestPath(const QString& token)
{
    QString sender = QDBusConnection::sessionBus().baseService().mid(1);
    sender.replace(QLatin1Char('.'), QLatin1Char('_'));
    return QStringLiteral("/org/freedesktop/portal/desktop/request/%1/%2").arg(sender, token);
}

/// The node of the first stream; 0 when there is none.
uint FirstNode(const QVariant& streams)
{
    uint node = 0;
    const auto argument = streams.value<QDBusArgument>();
    if (argument.currentType() != QDBusArgument::ArrayType) {
        return node;
    }
    argument.beginArray();
    if (!argument.atEnd()) {
        QVariantMap properties;
        argument.beginStructure();
        argument >> node >> properties;
        argument.endStructure();
    }
    argument.endArray();
    return node;
}

} // namespace

PortalSession::PortalSession(bool isPointerVisible)
    : m_isPointerVisible(isPointerVisible)
{
}

PortalSession::~PortalSession()
{
    if (m_session != nullptr) {
        m_session->Close();
    }
}

void PortalSession::Open()
{
    m_portal = std::make_unique<OrgFreedesktopPortalScreenCastInterface>(
        Service(), QStringLiteral("/org/freedesktop/portal/desktop"),
        QDBusConnection::sessionBus());
    if (!m_portal->isValid()) {
        Fail(tr("this desktop has no portal for screen casts"));
        return;
    }
    QVariantMap options = OptionsWithAnswerTo(&PortalSession::SelectSources);
    options.insert(QStringLiteral("session_handle_token"), NewToken());
    FailUnlessSent(m_portal->CreateSession(options));
}

QVariantMap PortalSession::OptionsWithAnswerTo(Next next)
{
    const QString token = NewToken();
    // It is listened to before the request is sent: the answer may be the faster one.
    auto* request = new OrgFreedesktopPortalRequestInterface(Service(), RequestPath(token),
                                                             QDBusConnection::sessionBus(), this);
    connect(request, &OrgFreedesktopPortalRequestInterface::Response, this,
            [this, next, request](uint response, const QVariantMap& results) {
                request->deleteLater();
                if (response == 0) {
                    (this->*next)(results);
                } else {
                    Q_EMIT Failed({Code::Refused, tr("the desktop does not allow the recording")});
                }
            });
    return {{QStringLiteral("handle_token"), token}};
}

void PortalSession::FailUnlessSent(const QDBusPendingCall& call)
{
    auto* watcher = new QDBusPendingCallWatcher(call, this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        if (watcher->isError()) {
            Fail(tr("the desktop's portal has failed: %1").arg(watcher->error().message()));
        }
    });
}

void PortalSession::SelectSources(const QVariantMap& results)
{
    const QString path = results.value(QStringLiteral("session_handle")).toString();
    m_session = std::make_unique<OrgFreedesktopPortalSessionInterface>(
        Service(), path, QDBusConnection::sessionBus());
    connect(m_session.get(), &OrgFreedesktopPortalSessionInterface::Closed, this,
            &PortalSession::Closed);
    QVariantMap options = OptionsWithAnswerTo(&PortalSession::StartCast);
    options.insert(QStringLiteral("types"), Monitors);
    options.insert(QStringLiteral("multiple"), false);
    options.insert(QStringLiteral("persist_mode"), UntilRevoked);
    const uint pointer = m_isPointerVisible ? PointerInPicture : PointerHidden;
    if ((m_portal->availableCursorModes() & pointer) != 0) {
        options.insert(QStringLiteral("cursor_mode"), pointer);
    }
    const QString restoreToken = RestoreToken::Load();
    if (!restoreToken.isEmpty()) {
        options.insert(QStringLiteral("restore_token"), restoreToken);
    }
    FailUnlessSent(m_portal->SelectSources(QDBusObjectPath(path), options));
}

void PortalSession::StartCast(const QVariantMap& /*results*/)
{
    const QVariantMap options = OptionsWithAnswerTo(&PortalSession::OpenRemote);
    FailUnlessSent(m_portal->Start(QDBusObjectPath(m_session->path()), QString(), options));
}

void PortalSession::OpenRemote(const QVariantMap& results)
{
    // The old one has been used up. The new one is kept before anything else can go wrong.
    RestoreToken::Store(results.value(QStringLiteral("restore_token")).toString());
    const uint node = FirstNode(results.value(QStringLiteral("streams")));
    if (node == 0) {
        Fail(tr("the desktop's portal offers no picture"));
        return;
    }
    auto* watcher = new QDBusPendingCallWatcher(
        m_portal->OpenPipeWireRemote(QDBusObjectPath(m_session->path()), {}), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, node] {
        watcher->deleteLater();
        const QDBusPendingReply<QDBusUnixFileDescriptor> reply = *watcher;
        if (reply.isError()) {
            Fail(tr("the desktop's portal has failed: %1").arg(reply.error().message()));
        } else {
            Q_EMIT Opened(reply.value(), node);
        }
    });
}

void PortalSession::Fail(const QString& text)
{
    Q_EMIT Failed({Code::NoDisplay, text});
}

} // namespace Zentor::Capture
