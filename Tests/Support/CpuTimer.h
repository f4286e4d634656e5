// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <ctime>

namespace Zentor::Tests {

/// Measures the processor time that the test itself uses, whatever else the machine is doing.
class CpuTimer {
public:
    double Milliseconds() const
    {
        return 1000.0 * static_cast<double>(std::clock() - m_start) / CLOCKS_PER_SEC;
    }

private:
    std::clock_t m_start = std::clock();
};

} // namespace Zentor::Tests
