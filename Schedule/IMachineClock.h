// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "Moment.h"

namespace Zentor::Schedule {

/// Tells the present. A test puts one in its place whose time it sets.
class IMachineClock {
public:
    virtual ~IMachineClock() = default;

    virtual Instant Now() const = 0;
};

} // namespace Zentor::Schedule
