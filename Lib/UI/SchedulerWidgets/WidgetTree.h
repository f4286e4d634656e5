// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLayout>
#include <QString>
#include <QWidget>

namespace Zentor::PX::Scheduler::UI {

/// Creates a widget (or another object) named \a objectName inside \a parent, which owns it.
template <typename Child, typename... Arguments>
Child* CreateChild(QWidget* parent, const char* objectName, const Arguments&... arguments)
{
    auto* child = new Child(arguments..., parent);
    child->setObjectName(QString::fromLatin1(objectName));
    return child;
}

/// Creates the layout of \a owner without margins and spacing: all distances come from the style
/// sheet.
template <typename Layout> Layout* CreateLayout(QWidget* owner)
{
    auto* layout = new Layout(owner);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    return layout;
}

} // namespace Zentor::PX::Scheduler::UI
