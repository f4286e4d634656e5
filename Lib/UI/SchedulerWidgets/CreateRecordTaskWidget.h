// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <QDateTime>
#include <QString>
#include <QTime>

#include "HostInterfaces.h"

namespace Zentor::PX::Scheduler::UI {

struct CreateRecordTaskUi;

/// The form in which one new scheduled recording is entered: name, date, start time, duration,
/// capture area and what to do when the capture ends.
///
/// The form neither validates nor stores anything. It keeps its fields within their limits, reports
/// every change by a signal, and shows the validation result that it is given.
///
/// Date and start time belong together: choosing a date keeps the clock reading of the start, and a
/// start that has passed becomes ten seconds from now within 300 ms, also while the form is hidden.
/// The date follows it unless the calendar is open.
class CreateRecordTaskWidget : public ZFrame {
    Q_OBJECT

public:
    /// Creates a form that starts now and records the full screen for five seconds, with an empty
    /// name and no finish action chosen.
    /// \a lookAndFeel has the language of the calendar; the form keeps a share of it.
    /// \throws std::logic_error when \a lookAndFeel is null.
    CreateRecordTaskWidget(const std::shared_ptr<App::ILookAndFeelManager>& lookAndFeel,
                           QWidget* parent);
    ~CreateRecordTaskWidget() override;

    /// Prepares the form for a new task called \a taskName: the first finish action, full screen,
    /// the primary screen. Date, start time and duration stay as they are. Emits TaskNameChanged()
    /// when the name changes.
    void ResetForm(const QString& taskName);

    /// Marks the field that \a error is about and shows a tool tip about it. With NoError the marks
    /// are cleared and "Create" is enabled. Does nothing while the form is hidden.
    void ShowValidateError(ValidateError error);

    /// The name without white space at its ends; at most 100 characters.
    QString GetTaskName() const;

    /// Date and time of the start, in local time.
    QDateTime GetStartDateTime() const;

    /// The duration as a clock reading; ShortestCaptureDuration at least.
    QTime GetDuration() const;

    /// Whether a full screen is captured, and not a selected area.
    bool IsFullScreen() const;

    /// Index of the chosen screen in QGuiApplication::screens(), or -1 when there is no screen. It
    /// means something only for the full screen.
    int GetScreenIndex() const;

    /// The chosen PowerAction; -1 until ResetForm() chooses the first.
    int GetActionOnFinishIndex() const;

Q_SIGNALS:
    /// The text of the name changed, by the user or by ResetForm().
    void TaskNameChanged();

    /// The date changed; the start time was moved to it first.
    void RecordDateChanged();

    /// The start changed: by the user, with the date, or because it had passed.
    void RecordStartTimeChanged();

    /// The duration changed; it is within its limits again. Sent once for an entry that had to be
    /// corrected, even when the correction brought back the earlier duration.
    void RecordDurationChanged();

    void BackButtonClicked();
    void CreateTaskButtonClicked();

protected:
    void changeEvent(QEvent* event) override;

private:
    void PrepareInfoButton();
    void PrepareEditors();
    void LimitFields();
    void ConnectScreens();
    void ConnectFields();
    void StartTimer();

    void SetTexts();
    void Retranslate();
    void UpdateScreenList();
    void UpdateScreenNames();
    void UpdateStartTimeLimits();

    void MoveStartToDate(const QDate& date);
    void MoveDateToStart(const QDate& today);
    void OnDurationChanged();
    bool IsCalendarOpen() const;
    QWidget* FieldOf(ValidateError error) const;

    std::unique_ptr<CreateRecordTaskUi> m_ui;
};

} // namespace Zentor::PX::Scheduler::UI
