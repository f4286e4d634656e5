// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDate>
#include <QObject>

#include "PanelParts.h"

class QKeyEvent;

namespace Zentor::Desktop {

/// Makes the task form of a scheduler panel usable by keyboard.
///
/// Enter presses the button that has the focus, and elsewhere creates the task when it can be
/// created. Escape goes back, with the panel's question about the unsaved task. In the date field,
/// F4 and Alt+Down open the calendar, which Escape closes with the date as it was. When the form
/// opens, the focus goes into the name field.
class PanelFormKeys final : public QObject {
    Q_OBJECT

public:
    /// Belongs to \a panel.
    explicit PanelFormKeys(QWidget* panel);
    ~PanelFormKeys() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void FocusNameField();
    bool HandlePanelKey(const QKeyEvent& event);
    void PressEnter();
    bool OpenCalendar(const QKeyEvent& event);
    void HandleCalendarEvent(QEvent* event);

    QWidget* m_panel;
    const PanelParts m_parts;
    QWidget* m_calendarPopup;
    /// What the field showed when the calendar was opened.
    QDate m_dateBefore;
};

} // namespace Zentor::Desktop
