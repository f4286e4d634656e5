// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace Zentor::Schedule {

/// Where systemd-logind is on the system bus.
namespace LoginService {
const inline QString Name = QStringLiteral("org.freedesktop.login1");
const inline QString Path = QStringLiteral("/org/freedesktop/login1");
const inline QString Interface = QStringLiteral("org.freedesktop.login1.Manager");
} // namespace LoginService

} // namespace Zentor::Schedule
