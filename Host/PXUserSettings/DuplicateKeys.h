// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QStringList>

#include "HostData.h"

namespace Zentor::PX {

/// The keys that an object in \a json, which must be valid, has more than once. Of the values of
/// such a key Qt's parser keeps the last, without a word. A key is named with those of the objects
/// around it, as in "paths.resultsFolder".
ZENTOR_HOST_API QStringList DuplicateKeys(const QByteArray& json);

} // namespace Zentor::PX
