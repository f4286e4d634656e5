// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include <QSize>

#include "AppWindow.h"

namespace Zentor::Tests {

/// Looks at the application, of which the state called \a scene is on screen.
using SceneVisitor = std::function<void(const QString& scene, const AppWindow& app)>;

/// Brings every state of the application that a user can see on screen, one after another, in
/// windows of \a size (an empty one leaves them the size they open with), and lets \a visit look at
/// it. Fails the running test where a state cannot be reached.
///
/// Needs a theme in use, and Qt5::GuiPrivate for the screens of some scenes.
void VisitAppScenes(const QSize& size, const SceneVisitor& visit);

/// Lets everything that is visible find its place, and what is deleted later go.
void Settle();

/// What is on screen in the scenes and is the same in every language: titles, paths, screens.
QStringList TextsOfTheUser(const AppWindow& app);

} // namespace Zentor::Tests
