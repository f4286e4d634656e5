// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "CreateRecordTaskUi.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QCoreApplication>
#include <QDateTimeEdit>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimeEdit>
#include <QVBoxLayout>

#include "WidgetTree.h"

namespace Zentor::PX::Scheduler::UI {

CreateRecordTaskUi::CreateRecordTaskUi(
    const std::shared_ptr<App::ILookAndFeelManager>& lookAndFeelManager)
    : lookAndFeel(lookAndFeelManager)
{
}

void CreateRecordTaskUi::setupUi(QWidget* form)
{
    CreateFields(form);
    CreateCaptureMode();
    CreateFinish();
    LayOut(form);
    BindCaptions();
}

void CreateRecordTaskUi::CreateFields(QWidget* form)
{
    createRecordTaskFrame = CreateChild<ZFrame>(form, "createRecordTaskFrame");
    auto* frame = createRecordTaskFrame;
    scheduledCaptureSettingsLabel = CreateChild<ZLabel>(frame, "scheduledCaptureSettingsLabel");
    scheduledCaptureSettingsNameLabel =
        CreateChild<ZLabel>(frame, "scheduledCaptureSettingsNameLabel");
    scheduledCaptureSettingsNameLineEdit =
        CreateChild<QLineEdit>(frame, "scheduledCaptureSettingsNameLineEdit");
    scheduledCaptureSettingsDateLabel =
        CreateChild<ZLabel>(frame, "scheduledCaptureSettingsDateLabel");
    scheduledCaptureSettingsDate =
        CreateChild<QDateTimeEdit>(frame, "scheduledCaptureSettingsDate");
    scheduledCaptureSettingsTimeLabel =
        CreateChild<ZLabel>(frame, "scheduledCaptureSettingsTimeLabel");
    scheduledCaptureSettingsStartTime =
        CreateChild<QTimeEdit>(frame, "scheduledCaptureSettingsStartTime");
    scheduledCaptureSettingsDurationLabel =
        CreateChild<ZLabel>(frame, "scheduledCaptureSettingsDurationLabel");
    scheduledCaptureSettingsDuration =
        CreateChild<QTimeEdit>(frame, "scheduledCaptureSettingsDuration");
}

void CreateRecordTaskUi::CreateCaptureMode()
{
    scheduledCaptureSettingsCaptureModeLabel =
        CreateChild<ZLabel>(createRecordTaskFrame, "scheduledCaptureSettingsCaptureModeLabel");
    scheduledCaptureSettingsCaptureModeFrame =
        CreateChild<ZFrame>(createRecordTaskFrame, "scheduledCaptureSettingsCaptureModeFrame");
    auto* frame = scheduledCaptureSettingsCaptureModeFrame;
    captureAreaRadioButtonGroup = CreateChild<QButtonGroup>(frame, "captureAreaRadioButtonGroup");
    scheduledCaptureSettingsSelectedAreaButton =
        CreateChild<QRadioButton>(frame, "scheduledCaptureSettingsSelectedAreaButton");
    scheduledCaptureSettingsSelectedAreaInfoButton =
        CreateChild<QPushButton>(frame, "scheduledCaptureSettingsSelectedAreaInfoButton");
    scheduledCaptureSettingsFullScreenAreaButton =
        CreateChild<QRadioButton>(frame, "scheduledCaptureSettingsFullScreenAreaButton");
    scheduledCaptureSettingsScreenSelectBox =
        CreateChild<QComboBox>(frame, "scheduledCaptureSettingsScreenSelectBox");
}

void CreateRecordTaskUi::CreateFinish()
{
    auto* frame = createRecordTaskFrame;
    scheduledCaptureSettingsActionOnFinishLabel =
        CreateChild<ZLabel>(frame, "scheduledCaptureSettingsActionOnFinishLabel");
    scheduledCaptureSettingsActionOnFinishBox =
        CreateChild<QComboBox>(frame, "scheduledCaptureSettingsActionOnFinishBox");
    scheduledCaptureSettingsButtonsFrame =
        CreateChild<ZFrame>(frame, "scheduledCaptureSettingsButtonsFrame");
    scheduledCaptureSettingsCreateButton = CreateChild<QPushButton>(
        scheduledCaptureSettingsButtonsFrame, "scheduledCaptureSettingsCreateButton");
    scheduledCaptureSettingsBackButton = CreateChild<QPushButton>(
        scheduledCaptureSettingsButtonsFrame, "scheduledCaptureSettingsBackButton");
}

void CreateRecordTaskUi::LayOut(QWidget* form)
{
    auto* formLayout = CreateLayout<QVBoxLayout>(form);
    formLayout->addWidget(createRecordTaskFrame);
    formLayout->addStretch();
    LayOutFields();
    LayOutCaptureMode();
    LayOutButtons();
}

void CreateRecordTaskUi::LayOutFields()
{
    auto* grid = CreateLayout<QGridLayout>(createRecordTaskFrame);
    grid->addWidget(scheduledCaptureSettingsLabel, 0, 0, 1, 4);
    grid->addWidget(scheduledCaptureSettingsNameLabel, 1, 0);
    grid->addWidget(scheduledCaptureSettingsNameLineEdit, 1, 1, 1, 3);
    grid->addWidget(scheduledCaptureSettingsDateLabel, 2, 0);
    grid->addWidget(scheduledCaptureSettingsDate, 2, 1, 1, 3, Qt::AlignLeft);
    grid->addWidget(scheduledCaptureSettingsTimeLabel, 3, 0);
    grid->addWidget(scheduledCaptureSettingsStartTime, 3, 1, Qt::AlignLeft);
    grid->addWidget(scheduledCaptureSettingsDurationLabel, 3, 2, Qt::AlignRight);
    grid->addWidget(scheduledCaptureSettingsDuration, 3, 3, Qt::AlignRight);
    // Spans the row below too, where it shares its column with the next caption.
    grid->addWidget(scheduledCaptureSettingsCaptureModeLabel, 4, 0, 2, 1, Qt::AlignTop);
    grid->addWidget(scheduledCaptureSettingsCaptureModeFrame, 4, 1, 1, 3);
    grid->addWidget(scheduledCaptureSettingsActionOnFinishLabel, 5, 0);
    grid->addWidget(scheduledCaptureSettingsActionOnFinishBox, 5, 1, 1, 3);
    grid->addWidget(scheduledCaptureSettingsButtonsFrame, 6, 0, 1, 4);
}

void CreateRecordTaskUi::LayOutCaptureMode()
{
    captureAreaRadioButtonGroup->addButton(scheduledCaptureSettingsSelectedAreaButton);
    captureAreaRadioButtonGroup->addButton(scheduledCaptureSettingsFullScreenAreaButton);

    auto* grid = CreateLayout<QGridLayout>(scheduledCaptureSettingsCaptureModeFrame);
    grid->addWidget(scheduledCaptureSettingsSelectedAreaButton, 0, 0);
    grid->addWidget(scheduledCaptureSettingsSelectedAreaInfoButton, 0, 1, Qt::AlignLeft);
    grid->addWidget(scheduledCaptureSettingsFullScreenAreaButton, 1, 0);
    grid->addWidget(scheduledCaptureSettingsScreenSelectBox, 1, 1, Qt::AlignRight);
    // In the cell of the info button: makes the column take the spare width.
    grid->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding, QSizePolicy::Minimum), 0, 1);
}

void CreateRecordTaskUi::LayOutButtons()
{
    auto* row = CreateLayout<QHBoxLayout>(scheduledCaptureSettingsButtonsFrame);
    row->addWidget(scheduledCaptureSettingsBackButton);
    row->addWidget(scheduledCaptureSettingsCreateButton);
    row->addStretch();
    // Reverse to their creation order, which the tab order follows otherwise.
    QWidget::setTabOrder(scheduledCaptureSettingsBackButton, scheduledCaptureSettingsCreateButton);
}

void CreateRecordTaskUi::BindCaptions()
{
    scheduledCaptureSettingsNameLabel->setBuddy(scheduledCaptureSettingsNameLineEdit);
    scheduledCaptureSettingsDateLabel->setBuddy(scheduledCaptureSettingsDate);
    scheduledCaptureSettingsTimeLabel->setBuddy(scheduledCaptureSettingsStartTime);
    scheduledCaptureSettingsDurationLabel->setBuddy(scheduledCaptureSettingsDuration);
    scheduledCaptureSettingsCaptureModeLabel->setBuddy(scheduledCaptureSettingsCaptureModeFrame);
    scheduledCaptureSettingsActionOnFinishLabel->setBuddy(
        scheduledCaptureSettingsActionOnFinishBox);
}

void CreateRecordTaskUi::retranslateUi()
{
    scheduledCaptureSettingsLabel->setOriginalText(
        QCoreApplication::translate("CreateRecordTaskWidget", "New record:"));
    RetranslateFields();
    RetranslateCaptureMode();
    scheduledCaptureSettingsActionOnFinishLabel->setOriginalText(
        QCoreApplication::translate("CreateRecordTaskWidget", "Action on finish:"));
    scheduledCaptureSettingsCreateButton->setText(
        QCoreApplication::translate("CreateRecordTaskWidget", "Create"));
    scheduledCaptureSettingsBackButton->setText(
        QCoreApplication::translate("CreateRecordTaskWidget", "Back"));
}

void CreateRecordTaskUi::RetranslateFields()
{
    scheduledCaptureSettingsNameLabel->setOriginalText(
        QCoreApplication::translate("CreateRecordTaskWidget", "File name:"));
    scheduledCaptureSettingsDateLabel->setOriginalText(
        QCoreApplication::translate("CreateRecordTaskWidget", "Date:"));
    scheduledCaptureSettingsDate->setDisplayFormat(
        QCoreApplication::translate("CreateRecordTaskWidget", "dd.MM.yyyy"));
    scheduledCaptureSettingsTimeLabel->setOriginalText(
        QCoreApplication::translate("CreateRecordTaskWidget", "Time:"));
    scheduledCaptureSettingsStartTime->setDisplayFormat(
        QCoreApplication::translate("CreateRecordTaskWidget", "hh:mm:ss"));
    scheduledCaptureSettingsDurationLabel->setOriginalText(
        QCoreApplication::translate("CreateRecordTaskWidget", "Duration:"));
    scheduledCaptureSettingsDuration->setDisplayFormat(
        QCoreApplication::translate("CreateRecordTaskWidget", "hh:mm:ss"));
}

void CreateRecordTaskUi::RetranslateCaptureMode()
{
    scheduledCaptureSettingsCaptureModeLabel->setOriginalText(
        QCoreApplication::translate("CreateRecordTaskWidget", "Capture:"));
    scheduledCaptureSettingsSelectedAreaButton->setText(
        QCoreApplication::translate("CreateRecordTaskWidget", "Selected area"));
    scheduledCaptureSettingsSelectedAreaInfoButton->setToolTip(
        QCoreApplication::translate("CreateRecordTaskWidget", "Selected area tooltip"));
    scheduledCaptureSettingsFullScreenAreaButton->setText(
        QCoreApplication::translate("CreateRecordTaskWidget", "Fullscreen"));

    // Accessible names of the two without a caption.
    scheduledCaptureSettingsSelectedAreaInfoButton->setAccessibleName(
        scheduledCaptureSettingsSelectedAreaInfoButton->toolTip());
    scheduledCaptureSettingsScreenSelectBox->setAccessibleName(
        scheduledCaptureSettingsFullScreenAreaButton->text());
}

} // namespace Zentor::PX::Scheduler::UI
