// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

#include <QString>

namespace Zentor::Desktop {

/// \a text for a sentence, in which it keeps the order of its own writing direction.
QString Isolated(const QString& text);

/// \a bytes in a unit that fits, isolated: in RTL layouts a number and a Latin unit would change
/// places.
QString SizeText(std::int64_t bytes);

/// The same of an estimate: with two digits that count.
QString RoundSizeText(std::int64_t bytes);

} // namespace Zentor::Desktop
