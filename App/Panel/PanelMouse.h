// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include "PanelParts.h"

namespace Zentor::Desktop {

/// Keeps clicks in a scheduler panel from doing what nobody means by them.
///
/// A click on the frame of the date field gives it the focus and does not change the date. The
/// second click of a double click on "Create", which hits the button that adds a task and has come
/// up below the mouse, does not open the form anew. The wheel scrolls the list, or what the panel
/// is in where the list has nothing to scroll; the panel by itself drops it.
class PanelMouse : public QObject {
    Q_OBJECT

public:
    /// Belongs to \a panel.
    explicit PanelMouse(QWidget* panel);
    ~PanelMouse() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Scroll(QEvent* wheel) const;

    const PanelParts m_parts;
};

} // namespace Zentor::Desktop
