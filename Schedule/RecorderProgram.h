// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace Zentor::Schedule {

/// The absolute path of px-recorder, which lies beside the running program: where that is installed
/// and where it is built. Whether it is there has to be seen.
QString RecorderProgram();

} // namespace Zentor::Schedule
