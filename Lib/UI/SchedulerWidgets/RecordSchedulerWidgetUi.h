// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

class QButtonGroup;
class QComboBox;
class QFrame;
class QPushButton;
class QRadioButton;
class QStackedWidget;
class QTimeEdit;
class QWidget;

namespace Zentor {
class ZFrame;
class ZLabel;
namespace App {
class ILookAndFeelManager;
class ISettingsManager;
} // namespace App
} // namespace Zentor

namespace Zentor::PX::Scheduler::UI {

class CreateRecordTaskWidget;
class ScheduleRecordTableWidget;

/// The widgets of the panel, in creation order. All are owned by their Qt parents.
struct RecordSchedulerWidgetUi {
    QButtonGroup* timerTypeRadioButtonGroup = nullptr;

    ZFrame* disableScheduledCaptureRadioButtonFrame = nullptr;
    QRadioButton* disableScheduledCaptureRadioButton = nullptr;
    ZLabel* disableScheduledCaptureLabel = nullptr;

    ZFrame* limitedCaptureDurationFrame = nullptr;
    ZFrame* limitedCaptureDurationRadioButtonFrame = nullptr;
    QRadioButton* limitedCaptureDurationRadioButton = nullptr;
    ZLabel* limitedCaptureDurationLabel = nullptr;
    ZFrame* limitedCaptureDurationSettingsFrame = nullptr;
    ZLabel* limitedCaptureDurationSettingsDurationLabel = nullptr;
    QTimeEdit* limitedCaptureDurationSettingsCaptureDuration = nullptr;
    ZLabel* limitedCaptureDurationSettingsActionOnFinishLabel = nullptr;
    QComboBox* limitedCaptureDurationSettingsActionOnFinishBox = nullptr;

    ZFrame* scheduledCaptureFrame = nullptr;
    ZFrame* scheduledCaptureRadioButtonFrame = nullptr;
    QRadioButton* scheduledCaptureRadioButton = nullptr;
    ZLabel* scheduledCaptureLabel = nullptr;
    QStackedWidget* scheduledCaptureStackedWidget = nullptr;
    ZFrame* scheduledCaptureRecordTablePage = nullptr;
    ScheduleRecordTableWidget* scheduledCaptureSettingsRecordTableWidget = nullptr;
    ZFrame* scheduledCaptureSettingsAddRecordButtonFrame = nullptr;
    QPushButton* scheduledCaptureSettingsAddRecordButton = nullptr;
    CreateRecordTaskWidget* createRecordTaskWidget = nullptr;

    /// Builds the widgets inside \a panel, and sets the texts.
    /// \throws std::logic_error when one of the two managers is null.
    void setupUi(QWidget* panel, const std::shared_ptr<App::ILookAndFeelManager>& lookAndFeel,
                 const std::shared_ptr<App::ISettingsManager>& settingsManager);

    /// Sets every text in the current language.
    void retranslateUi();

private:
    void CreateDisabledMode(QWidget* panel);
    void CreateLimitedMode(QWidget* panel);
    void CreateScheduledMode(QWidget* panel);
    void CreateRecordTablePage(const std::shared_ptr<App::ISettingsManager>& settingsManager);
    void LayOut(QWidget* panel);
    void LayOutLimitedMode();
    void LayOutScheduledMode();
    void LayOutRecordTablePage();
    void BindCaptions();
};

} // namespace Zentor::PX::Scheduler::UI
