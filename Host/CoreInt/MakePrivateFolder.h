// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include "HostData.h"

namespace Zentor::Util {

/// Creates the folder \a path, and those above it, where they are missing: for the user alone. One
/// that is there keeps its rights. Whether the folder is there now.
ZENTOR_HOST_API bool MakePrivateFolder(const QString& path);

} // namespace Zentor::Util
