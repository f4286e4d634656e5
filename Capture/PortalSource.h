// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusUnixFileDescriptor>

#include "CaptureSource.h"
#include "PortalSession.h"

namespace Zentor::Capture {

/// A screen of a Wayland desktop, which its user has chosen in the portal. A picture that stands
/// still delivers no frames.
class PortalSource final : public CaptureSource {
    Q_OBJECT

public:
    /// \a area is in the pixels of the picture; nothing: all of it.
    PortalSource(const std::optional<QRect>& area, bool isPointerVisible, int framesPerSecond);

    void Open() override;

private:
    void Connect(const QDBusUnixFileDescriptor& remote, uint node);

    const std::optional<QRect> m_part;
    QDBusUnixFileDescriptor m_remote;
    PortalSession m_session;
};

} // namespace Zentor::Capture
