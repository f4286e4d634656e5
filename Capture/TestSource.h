// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "CaptureSource.h"

namespace Zentor::Capture {

/// A moving picture that needs no display: a ball on black. It tries encoder, disk and sound.
class TestSource final : public CaptureSource {
    Q_OBJECT

public:
    TestSource(const QSize& size, int framesPerSecond);

    void Open() override;

private:
    const QSize m_size;
};

} // namespace Zentor::Capture
