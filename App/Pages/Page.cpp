// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "Page.h"

#include "Theme.h"

namespace Zentor::Desktop {

Page::Page(const QString& id, QWidget* parent)
    : QFrame(parent)
    , m_id(id)
{
}

QIcon Page::Icon() const
{
    return ThemedIcon(m_id);
}

} // namespace Zentor::Desktop
