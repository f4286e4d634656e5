// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPalette>

namespace Zentor::Tests {

/// A dark palette as programs set one: role by role, and not all of them.
inline QPalette DarkPalette()
{
    const QColor window(0x35, 0x35, 0x35);
    const QColor disabled(0x7f, 0x7f, 0x7f);
    QPalette palette(window, window);
    palette.setColor(QPalette::WindowText, Qt::white);
    palette.setColor(QPalette::Base, QColor(0x23, 0x23, 0x23));
    palette.setColor(QPalette::AlternateBase, window);
    palette.setColor(QPalette::Text, Qt::white);
    palette.setColor(QPalette::ButtonText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, QColor(0x19, 0x19, 0x19));
    palette.setColor(QPalette::ToolTipText, Qt::white);
    palette.setColor(QPalette::Highlight, QColor(0x2a, 0x82, 0xda));
    palette.setColor(QPalette::HighlightedText, Qt::black);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, disabled);
    }
    return palette;
}

} // namespace Zentor::Tests
