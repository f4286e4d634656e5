// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

/// The rows of the window's list of pages.
namespace Zentor::Tests::PageRow {

constexpr int Schedule = 0;
constexpr int Recording = 1;
constexpr int Files = 2;
constexpr int Recordings = 3;
constexpr int General = 4;

} // namespace Zentor::Tests::PageRow
