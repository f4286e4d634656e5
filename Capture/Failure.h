// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLatin1String>
#include <QString>

namespace Zentor::Capture {

/// Why something could not be done: a code of the protocol, and one sentence without a full stop
/// for whoever reads it.
struct Failure {
    QLatin1String code;
    QString text;
};

} // namespace Zentor::Capture
