// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <QDBusUnixFileDescriptor>
#include <QObject>
#include <QVariantMap>

#include "Failure.h"

class OrgFreedesktopPortalRequestInterface;
class OrgFreedesktopPortalScreenCastInterface;
class OrgFreedesktopPortalSessionInterface;
class QDBusPendingCall;

namespace Zentor::Capture {

/// Asks the desktop's portal for the picture of a screen. The desktop asks its user the first time
/// only.
class PortalSession final : public QObject {
    Q_OBJECT

public:
    explicit PortalSession(bool isPointerVisible);
    /// Ends the session.
    ~PortalSession() override;

    void Open();

Q_SIGNALS:
    /// The picture is the node \a node of the PipeWire connection \a remote.
    void Opened(const QDBusUnixFileDescriptor& remote, uint node);
    void Failed(const Failure& failure);
    /// The desktop has ended the session.
    void Closed();

private:
    using Next = void (PortalSession::*)(const QVariantMap& results);

    QVariantMap OptionsWithAnswerTo(Next next);
    void FailUnlessSent(const QDBusPendingCall& call);
    void SelectSources(const QVariantMap& results);
    void StartCast(const QVariantMap& results);
    void OpenRemote(const QVariantMap& results);
    void Fail(const QString& text);

    const bool m_isPointerVisible;
    std::unique_ptr<OrgFreedesktopPortalScreenCastInterface> m_portal;
    std::unique_ptr<OrgFreedesktopPortalSessionInterface> m_session;
};

} // namespace Zentor::Capture
