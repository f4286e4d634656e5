// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QWidget>

/// Mouse and keys as the window system sends them: the window finds out who is meant, so a covered
/// widget, one behind a modal box or one without the keyboard gets nothing.
namespace Zentor::Tests::UserInput {

/// Clicks \a widget, which must be on screen: the indicator of a radio button, which takes clicks
/// there only when it has no text, and the middle of anything else.
void Click(QWidget* widget);

/// Presses \a key for whoever has the keyboard in \a window.
void Press(QWidget* window, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

/// Types \a text for whoever has the keyboard in \a window.
void Type(QWidget* window, const QString& text);

} // namespace Zentor::Tests::UserInput
