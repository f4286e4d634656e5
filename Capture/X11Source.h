// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QTimer>

#include "CaptureSource.h"
#include "DisplayLoss.h"
#include "Screens.h"

namespace Zentor::Capture {

/// The X display in DISPLAY, or a part of it. When the display is resized meanwhile, all of it is
/// scaled to the size of the first frame, and a part stands still while it is not all there.
class X11Source final : public CaptureSource {
    Q_OBJECT

public:
    /// \a area lies within the display, with an even width and height.
    X11Source(const QRect& area, bool isPointerVisible, int framesPerSecond);

    void Open() override;
    void Close() override;

protected:
    bool IsFrameValid() override;

private:
    void NoteLoss();

    const QRect m_place;
    const bool m_isPointerVisible;
    DisplayLoss m_loss;
    const int m_earlierLosses;
    DisplayConnection m_display;
    const bool m_isWholeDisplay;
    bool m_isPartMissing = false;
    QTimer m_openingLimit;
};

} // namespace Zentor::Capture
