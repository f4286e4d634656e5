// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "IMachineClock.h"

namespace Zentor::Schedule {

/// The clocks of the operating system, rounded down to microseconds.
class MachineClock final : public IMachineClock {
public:
    Instant Now() const override;
};

} // namespace Zentor::Schedule
