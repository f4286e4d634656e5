// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#if defined(PXUISCHEDULERWIDGETS_STATIC)
#define PXUISCHEDULERWIDGETS_API
#elif defined(PXUISCHEDULERWIDGETS_LIBRARY)
#define PXUISCHEDULERWIDGETS_API Q_DECL_EXPORT
#else
#define PXUISCHEDULERWIDGETS_API Q_DECL_IMPORT
#endif
