#pragma once

#include "CaptureSource.h"
#include "DisplayLoss.h"

namespace Zentor::Capture {

/// A part of the X display in DISPLAY. It keeps its size when the screen is resized meanwhile.
class X11Source final : public CaptureSource {
    Q_OBJECT

public:
    /// \a area lies within the display, with an even width and height.
    X11Source(const QRect& area, bool isPointerVisible, int framesPerSecond);

    void Open() override;
    void Close() override;

private:
    void NoteLoss();

    const QRect m_place;
    const bool m_isPointerVisible;
    DisplayLoss m_loss;
    const int m_earlierLosses;
};

} // namespace Zentor::Capture
