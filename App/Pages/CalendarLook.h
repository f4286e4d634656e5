// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QCalendarWidget;

namespace Zentor::Desktop {

/// Gives a calendar that pops up what the style sheet cannot: the weekend of the language in the
/// colours of the theme, today marked, days that cannot be chosen faint, and an edge to be drawn.
///
/// It is up to date whenever the calendar comes on screen; call Update() when language or theme
/// have changed meanwhile.
class CalendarLook final : public QObject {
    Q_OBJECT

public:
    /// Belongs to \a calendar.
    explicit CalendarLook(QCalendarWidget* calendar);
    ~CalendarLook() override;

    void Update();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void FormatWeekdays();
    void FormatDays();

    QCalendarWidget* m_calendar;
};

} // namespace Zentor::Desktop
