// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "PortalSource.h"

#include "Pipeline.h"
#include "Protocol.h"

namespace Zentor::Capture {

PortalSource::PortalSource(const std::optional<QRect>& area, bool isPointerVisible,
                           int framesPerSecond)
    : CaptureSource(framesPerSecond)
    , m_part(area)
    , m_session(isPointerVisible)
{
    connect(&m_session, &PortalSession::Failed, this, &PortalSource::Failed);
    connect(&m_session, &PortalSession::Opened, this, &PortalSource::Connect);
    connect(&m_session, &PortalSession::Closed, this, [this] {
        Q_EMIT Failed({Code::NoDisplay, tr("the desktop has ended the cast")});
    });
}

void PortalSource::Open()
{
    m_session.Open();
}

void PortalSource::Connect(const QDBusUnixFileDescriptor& remote, uint node)
{
    m_remote = remote;
    if (!Create(QStringLiteral("pipewiresrc name=screen do-timestamp=true always-copy=true"))) {
        return;
    }
    g_object_set(Elements().Element("screen"), "fd", m_remote.fileDescriptor(), "path",
                 QByteArray::number(node).constData(), nullptr);
    CutFromFirstSize(m_part);
    Play();
}

} // namespace Zentor::Capture
