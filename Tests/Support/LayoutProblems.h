// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

class QWidget;

namespace Zentor::Tests {

/// What is wrong with the places of all that is on screen, one line for each problem: text that has
/// less room than it needs, widgets that lie on one another, and widgets that reach out of the one
/// they are in. A title of the user's may be shortened where a tool tip has the whole of it.
QStringList LayoutProblems();

/// The controls of \a window that the keyboard reaches, but that cannot be scrolled into view, one
/// line for each.
QStringList UnreachableControls(const QWidget& window);

/// What is wrong when a part of \a control cannot be seen, or when one that is larger than the view
/// does not fill half of it; empty when all is well.
QStringList HiddenPart(const QWidget& control);

} // namespace Zentor::Tests
