// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "HostInterfaces.h"

class QButtonGroup;
class QComboBox;
class QDateTimeEdit;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QTimeEdit;
class QWidget;

namespace Zentor::PX::Scheduler::UI {

/// The widgets of the record task form, in creation order. All are owned by their Qt parents.
struct CreateRecordTaskUi {
    /// Takes a share of \a lookAndFeelManager until the holder is destroyed.
    /// \throws std::logic_error when \a lookAndFeelManager is null.
    explicit CreateRecordTaskUi(
        const std::shared_ptr<App::ILookAndFeelManager>& lookAndFeelManager);

    ZFrame* createRecordTaskFrame = nullptr;
    ZLabel* scheduledCaptureSettingsLabel = nullptr;
    ZLabel* scheduledCaptureSettingsNameLabel = nullptr;
    QLineEdit* scheduledCaptureSettingsNameLineEdit = nullptr;
    ZLabel* scheduledCaptureSettingsDateLabel = nullptr;
    QDateTimeEdit* scheduledCaptureSettingsDate = nullptr;
    ZLabel* scheduledCaptureSettingsTimeLabel = nullptr;
    QTimeEdit* scheduledCaptureSettingsStartTime = nullptr;
    ZLabel* scheduledCaptureSettingsDurationLabel = nullptr;
    QTimeEdit* scheduledCaptureSettingsDuration = nullptr;

    ZLabel* scheduledCaptureSettingsCaptureModeLabel = nullptr;
    ZFrame* scheduledCaptureSettingsCaptureModeFrame = nullptr;
    QButtonGroup* captureAreaRadioButtonGroup = nullptr;
    QRadioButton* scheduledCaptureSettingsSelectedAreaButton = nullptr;
    QPushButton* scheduledCaptureSettingsSelectedAreaInfoButton = nullptr;
    QRadioButton* scheduledCaptureSettingsFullScreenAreaButton = nullptr;
    QComboBox* scheduledCaptureSettingsScreenSelectBox = nullptr;

    ZLabel* scheduledCaptureSettingsActionOnFinishLabel = nullptr;
    QComboBox* scheduledCaptureSettingsActionOnFinishBox = nullptr;
    ZFrame* scheduledCaptureSettingsButtonsFrame = nullptr;
    QPushButton* scheduledCaptureSettingsCreateButton = nullptr;
    QPushButton* scheduledCaptureSettingsBackButton = nullptr;

    /// Language of the calendar; asked by the form whenever it sets the texts.
    NotNull<std::shared_ptr<App::ILookAndFeelManager>> lookAndFeel;

    /// Builds the widgets inside \a form. Texts are set by retranslateUi().
    void setupUi(QWidget* form);

    /// Sets every text and the display formats. The finish actions are not touched.
    void retranslateUi();

private:
    void CreateFields(QWidget* form);
    void CreateCaptureMode();
    void CreateFinish();
    void LayOut(QWidget* form);
    void LayOutFields();
    void LayOutCaptureMode();
    void LayOutButtons();
    void BindCaptions();
    void RetranslateFields();
    void RetranslateCaptureMode();
};

} // namespace Zentor::PX::Scheduler::UI
