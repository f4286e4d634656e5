// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

/// \file
/// What Qt 5 and Qt 6 have under different names.
#pragma once

#include <QGuiApplication>
#include <QKeySequence>
#include <QLibraryInfo>
#include <QMouseEvent>

namespace Zentor::Desktop {

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)

/// Has windows grow with the scale of their screen. Before the application is constructed.
inline void FollowScreenScale()
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
}

/// Keeps Qt from closing the windows when the session of the desktop ends.
inline void KeepWindowsInSession()
{
    QGuiApplication::setFallbackSessionManagementEnabled(false);
}

/// The folder of Qt's own translations.
inline QString QtTranslationsFolder()
{
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
}

/// The first key of \a sequence without its modifiers.
inline int FirstKey(const QKeySequence& sequence)
{
    return sequence[0] & ~int(Qt::KeyboardModifierMask);
}

/// Where on the desktop the mouse was.
inline QPoint GlobalPosition(const QMouseEvent& event)
{
    return event.globalPos();
}

#else

inline void FollowScreenScale()
{
    // They always do.
}

inline void KeepWindowsInSession()
{
    // Never closes them.
}

inline QString QtTranslationsFolder()
{
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
}

inline int FirstKey(const QKeySequence& sequence)
{
    return sequence[0].key();
}

inline QPoint GlobalPosition(const QMouseEvent& event)
{
    return event.globalPosition().toPoint();
}

#endif

} // namespace Zentor::Desktop
