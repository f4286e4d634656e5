// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

namespace Zentor::Tests {

/// Milliseconds that a test waits for something that happens: a loaded machine takes long.
constexpr int Patience = 60'000;

} // namespace Zentor::Tests
