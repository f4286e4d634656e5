// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "DesktopTheme.h"

#include <QApplication>

#include "SettingsPortal.h"

namespace Zentor::Desktop {
namespace {

/// How long the start of the application may wait for a portal that does not answer.
constexpr int PortalTimeoutMilliseconds = 300;

QString Group()
{
    return QStringLiteral("org.freedesktop.appearance");
}

QString Key()
{
    return QStringLiteral("color-scheme");
}

/// The number in \a value. Some portals wrap it twice.
unsigned NumberIn(const QDBusVariant& value)
{
    const QVariant inner = value.variant();
    return inner.canConvert<QDBusVariant>() ? NumberIn(inner.value<QDBusVariant>())
                                            : inner.toUInt();
}

} // namespace

DesktopTheme::DesktopTheme()
    : m_ofPalette(ThemeOf(QApplication::palette()))
    , m_current(m_ofPalette)
{
    if (QDBusConnection::sessionBus().isConnected()) {
        Connect();
    }
}

DesktopTheme::~DesktopTheme() = default;

void DesktopTheme::Connect()
{
    m_portal = std::make_unique<OrgFreedesktopPortalSettingsInterface>(
        QStringLiteral("org.freedesktop.portal.Desktop"),
        QStringLiteral("/org/freedesktop/portal/desktop"), QDBusConnection::sessionBus());
    connect(m_portal.get(), &OrgFreedesktopPortalSettingsInterface::SettingChanged, this,
            [this](const QString& group, const QString& key, const QDBusVariant& value) {
                if (group == Group() && key == Key()) {
                    TakeOver(NumberIn(value));
                }
            });
    Ask();
}

void DesktopTheme::Ask()
{
    m_portal->setTimeout(PortalTimeoutMilliseconds);
    QDBusPendingReply<QDBusVariant> reply = m_portal->Read(Group(), Key());
    reply.waitForFinished();
    if (reply.isValid()) {
        TakeOver(NumberIn(reply.value()));
    } else if (reply.error().type() == QDBusError::NoReply
               || reply.error().type() == QDBusError::Timeout) {
        // It is still starting, as after log-in.
        AskPatiently();
    }
}

void DesktopTheme::AskPatiently()
{
    constexpr int usual = -1;
    m_portal->setTimeout(usual);
    auto* watcher = new QDBusPendingCallWatcher(m_portal->Read(Group(), Key()), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        if (reply.isValid()) {
            TakeOver(NumberIn(reply.value()));
        }
        watcher->deleteLater();
    });
}

void DesktopTheme::TakeOver(unsigned preference)
{
    constexpr unsigned dark = 1;
    constexpr unsigned light = 2;
    const Theme before = m_current;
    m_current = preference == dark ? Theme::Dark : preference == light ? Theme::Light : m_ofPalette;
    if (m_current != before) {
        Q_EMIT Changed();
    }
}

} // namespace Zentor::Desktop
