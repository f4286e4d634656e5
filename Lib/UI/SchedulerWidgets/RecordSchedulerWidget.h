// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include "HostInterfaces.h"
#include "SchedulerWidgetsExport.h"

namespace Zentor::PX::Scheduler::UI {

struct RecordSchedulerWidgetUi;

/// The panel on which the user decides how recording is timed: not at all, stop after a duration
/// and then act, or a list of scheduled tasks.
///
/// The host places it among its settings pages, calls the four setters and then RestoreSettings().
/// From then on every change that the user makes goes to the settings watcher at once; there is
/// nothing to apply. The panel reads its settings in RestoreSettings() only.
///
/// The style sheet is half of the panel: sizes, distances and the look of the empty frames come
/// from it, and without one the rows of the schedule are not shown.
class PXUISCHEDULERWIDGETS_API RecordSchedulerWidget : public ZFrame {
    Q_OBJECT

public:
    /// Creates the panel with no mode chosen.
    /// \a settingsManager keeps the answers that the user wants remembered.
    /// \throws std::logic_error when one of the two managers is null.
    RecordSchedulerWidget(const std::shared_ptr<App::ILookAndFeelManager>& lookAndFeel,
                          const std::shared_ptr<App::ISettingsManager>& settingsManager,
                          QWidget* parent);

    /// Rejects the open message boxes of the panel. The shares of the settings objects are
    /// released.
    ~RecordSchedulerWidget() override;

    /// Each setter replaces the object that the panel had a share of, and does nothing else.
    void SetSchedulerSettings(const NotNull<std::shared_ptr<SchedulerSettings>>& settings);
    void SetCaptureFinishActionSettings(
        const NotNull<std::shared_ptr<CaptureFinishActionSettings>>& settings);
    void SetPathSettings(const NotNull<std::shared_ptr<PathsSettings>>& settings);

    /// The watcher must be set before anything can change the schedule, RestoreSettings() included.
    void SetSettingsWatcher(const NotNull<std::shared_ptr<ISettingsWatcher>>& watcher);

    /// Fills the controls from the scheduler settings and the finish action settings, which must
    /// have been set. The controls report what they are given to the watcher, as if the user had
    /// entered it. A stored duration that is no time of day (negative, or 24 hours and more) is
    /// passed over.
    void RestoreSettings();

    /// Whether a capture may start; the host calls this before it starts one.
    ///
    /// Outside the scheduled mode the answer is yes at once. In it, a task that is still in the
    /// form is settled with the user first. Then the volume of the results folder, of which the
    /// paths settings must have been set, must have more than 1,000,000,000 bytes free: otherwise
    /// one warning is logged and the user is told. Runs modal boxes; when the panel is destroyed
    /// meanwhile, the answer is no. May be called again while a box is open,
    /// OpenFilesSettingsRequested() included: that call asks in boxes of its own.
    bool ValidateSettings();

Q_SIGNALS:
    /// The user wants to choose another place for the recordings: the host shows its file settings.
    /// Sent from the alert about too little disk space, once, while the alert is closing.
    void OpenFilesSettingsRequested();

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void Retranslate();

    void UpdateControlsState(ValidateError error);
    ValidateError ValidateRecord() const;
    void ScheduleNewRecord();
    bool ProcessUnsavedRecord();

    std::unique_ptr<RecordSchedulerWidgetUi> m_ui;
    std::shared_ptr<SchedulerSettings> m_schedulerSettings;
    std::shared_ptr<CaptureFinishActionSettings> m_captureFinishActionSettings;
    std::shared_ptr<PathsSettings> m_pathsSettings;
    std::shared_ptr<ISettingsWatcher> m_settingsWatcher;

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Zentor::PX::Scheduler::UI
