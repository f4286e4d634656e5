// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QRect>

class QDateTimeEdit;

namespace Zentor::Desktop {

/// Where \a field, which has a calendar, shows the arrow that opens it.
QRect CalendarArrowOf(const QDateTimeEdit& field);

} // namespace Zentor::Desktop
