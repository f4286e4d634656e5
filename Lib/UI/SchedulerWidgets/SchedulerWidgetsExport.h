// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

/// \file
/// The export of the library.
#pragma once

#include <QtGlobal>

/// \def PXUISCHEDULERWIDGETS_API
/// Export of the library's public class. By default it is a shared library that is used; the CMake
/// target of the static one defines `PXUISCHEDULERWIDGETS_STATIC`, and
/// `PXUISCHEDULERWIDGETS_LIBRARY` is defined while the library itself is compiled.
#if defined(PXUISCHEDULERWIDGETS_STATIC)
#define PXUISCHEDULERWIDGETS_API
#elif defined(PXUISCHEDULERWIDGETS_LIBRARY)
#define PXUISCHEDULERWIDGETS_API Q_DECL_EXPORT
#else
#define PXUISCHEDULERWIDGETS_API Q_DECL_IMPORT
#endif
