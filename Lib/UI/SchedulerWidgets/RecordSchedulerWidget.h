// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

/// \file
/// The panel.
#pragma once

#include <memory>

#include "HostInterfaces.h"
#include "SchedulerWidgetsExport.h"

namespace Zentor::PX::Scheduler::UI {

/// The panel on which the user decides how recording is timed: not at all, stop after a duration
/// and then act, or a list of scheduled tasks.
///
/// The host places it among its settings pages, calls the four setters and then RestoreSettings().
/// From then on every change that the user makes goes to the settings watcher at once; there is
/// nothing to apply. The panel reads its settings in RestoreSettings() only; of the paths settings
/// it asks in ValidateSettings().
///
/// The style sheet is half of the panel: sizes, distances and the look of the empty frames come
/// from it, and without one the rows of the schedule are not shown.
///
/// It is used on the GUI thread and needs a QApplication. Any number of panels may exist; each has
/// a schedule of its own. It may be deleted at any time, by its parent too, save from inside some
/// of the host's functions, which the integrator's guide lists. Whenever it is shown after it was
/// hidden, it shows the list, and an open task form is dropped without a question.
class PXUISCHEDULERWIDGETS_API RecordSchedulerWidget : public ZFrame {
    Q_OBJECT

public:
    /// Creates the panel with no mode chosen: a limit of ShortestCaptureDuration, no finish action
    /// chosen, an empty schedule. Nothing is reported to a watcher yet.
    ///
    /// \a lookAndFeel has the language of the calendar, \a settingsManager keeps the answers that
    /// the user wants remembered; the panel has a share of both as long as it lives. \a parent owns
    /// the panel and may be null.
    /// \throws std::logic_error "NotNull can not initialized by null" when one of the two managers
    /// is null; \a parent is as it was then.
    RecordSchedulerWidget(const std::shared_ptr<App::ILookAndFeelManager>& lookAndFeel,
                          const std::shared_ptr<App::ISettingsManager>& settingsManager,
                          QWidget* parent);

    /// Rejects the open message boxes of the panel. The shares of the settings objects and of the
    /// managers are released. A task in the form is lost, nothing else: all is stored by then.
    ~RecordSchedulerWidget() override;

    /// Takes a share of \a settings, which RestoreSettings() reads, and releases that of the object
    /// set before. Does nothing else. A null pointer is refused before the call: NotNull throws.
    void SetSchedulerSettings(const NotNull<std::shared_ptr<SchedulerSettings>>& settings);
    /// The same for \a settings of the finish action, which RestoreSettings() reads.
    void SetCaptureFinishActionSettings(
        const NotNull<std::shared_ptr<CaptureFinishActionSettings>>& settings);
    /// The same for \a settings of the results folder, which ValidateSettings() asks.
    void SetPathSettings(const NotNull<std::shared_ptr<PathsSettings>>& settings);

    /// The same for \a watcher, which is told every change. It must be set before anything can
    /// change the schedule, RestoreSettings() included: a change of the schedule without a watcher
    /// is undefined behaviour. Until it is set, other changes are told to nobody, and "Create" in
    /// the task form does nothing.
    void SetSettingsWatcher(const NotNull<std::shared_ptr<ISettingsWatcher>>& watcher);

    /// Fills the controls from the scheduler settings and the finish action settings, which must
    /// have been set, in this order: finish action, duration, tasks, mode. The controls report what
    /// they are given to the watcher, as if the user had entered it; a value that is shown already
    /// is not reported. A stored duration that is no time of day (negative, or 24 hours and more)
    /// is passed over, and one below ShortestCaptureDuration becomes that.
    ///
    /// Tasks are added to those that are listed: call it once. What is changed in the stored
    /// settings by others later does not reach the panel, and is overwritten by what it reports
    /// next; for that build a new panel.
    void RestoreSettings();

    /// Whether a capture may start; the host calls this before it starts one.
    ///
    /// Outside the scheduled mode the answer is yes at once. In it, a task that is still in the
    /// form is settled with the user first. Then the volume of the results folder, of which the
    /// paths settings must have been set, must have more than 1,000,000,000 bytes free: otherwise
    /// one warning is logged and the user is told. Runs modal boxes; when the panel is destroyed
    /// meanwhile, the answer is no. May be called again while a box is open,
    /// OpenFilesSettingsRequested() included: that call asks in boxes of its own.
    ///
    /// True says that the user and the disk are fine now. It does not say that there is a task, or
    /// that one is due.
    bool ValidateSettings();

Q_SIGNALS:
    /// The user wants to choose another place for the recordings: the host shows its file settings.
    /// Sent from the alert about too little disk space, by its button or the link in its text,
    /// once, while the alert is closing and before ValidateSettings() returns false. Not sent when
    /// the alert is closed in another way.
    void OpenFilesSettingsRequested();

protected:
    /// Sets all texts anew when \a event is a language change. Rows of the list keep theirs, and
    /// nothing is reported.
    void changeEvent(QEvent* event) override;
    /// Shows the list in place of the task form, unless \a event only tells that the window is no
    /// longer minimized.
    void showEvent(QShowEvent* event) override;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Zentor::PX::Scheduler::UI
