// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RecordSchedulerWidgetUi.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTimeEdit>
#include <QVBoxLayout>

#include "CreateRecordTaskWidget.h"
#include "HostInterfaces.h"
#include "ScheduleRecordTableWidget.h"
#include "WidgetTree.h"

namespace Zentor::PX::Scheduler::UI {
namespace {

/// Row of a mode: its button and the caption.
void LayOutRow(QWidget* row, QWidget* button, QWidget* caption)
{
    auto* rowLayout = CreateLayout<QHBoxLayout>(row);
    rowLayout->addWidget(button);
    rowLayout->addWidget(caption);
}

} // namespace

void RecordSchedulerWidgetUi::setupUi(QWidget* panel,
                                      const std::shared_ptr<App::ILookAndFeelManager>& lookAndFeel,
                                      const std::shared_ptr<App::ISettingsManager>& settingsManager)
{
    timerTypeRadioButtonGroup = new QButtonGroup(panel);
    timerTypeRadioButtonGroup->setObjectName(QStringLiteral("timerTypeRadioButtonGroup"));
    CreateDisabledMode(panel);
    CreateLimitedMode(panel);
    CreateScheduledMode(panel);
    CreateRecordTablePage(settingsManager);
    createRecordTaskWidget = CreateChild<CreateRecordTaskWidget>(
        scheduledCaptureStackedWidget, "createRecordTaskWidget", lookAndFeel);
    LayOut(panel);
    BindCaptions();
    retranslateUi();
}

void RecordSchedulerWidgetUi::CreateDisabledMode(QWidget* panel)
{
    disableScheduledCaptureRadioButtonFrame =
        CreateChild<ZFrame>(panel, "disableScheduledCaptureRadioButtonFrame");
    disableScheduledCaptureRadioButton = CreateChild<QRadioButton>(
        disableScheduledCaptureRadioButtonFrame, "disableScheduledCaptureRadioButton");
    disableScheduledCaptureLabel = CreateChild<ZLabel>(disableScheduledCaptureRadioButtonFrame,
                                                       "disableScheduledCaptureLabel");
}

void RecordSchedulerWidgetUi::CreateLimitedMode(QWidget* panel)
{
    limitedCaptureDurationFrame = CreateChild<ZFrame>(panel, "limitedCaptureDurationFrame");
    limitedCaptureDurationRadioButtonFrame =
        CreateChild<ZFrame>(limitedCaptureDurationFrame, "limitedCaptureDurationRadioButtonFrame");
    limitedCaptureDurationRadioButton = CreateChild<QRadioButton>(
        limitedCaptureDurationRadioButtonFrame, "limitedCaptureDurationRadioButton");
    limitedCaptureDurationLabel =
        CreateChild<ZLabel>(limitedCaptureDurationRadioButtonFrame, "limitedCaptureDurationLabel");

    ZFrame* const settings = limitedCaptureDurationSettingsFrame =
        CreateChild<ZFrame>(limitedCaptureDurationFrame, "limitedCaptureDurationSettingsFrame");
    limitedCaptureDurationSettingsDurationLabel =
        CreateChild<ZLabel>(settings, "limitedCaptureDurationSettingsDurationLabel");
    limitedCaptureDurationSettingsCaptureDuration =
        CreateChild<QTimeEdit>(settings, "limitedCaptureDurationSettingsCaptureDuration");
    limitedCaptureDurationSettingsActionOnFinishLabel =
        CreateChild<ZLabel>(settings, "limitedCaptureDurationSettingsActionOnFinishLabel");
    limitedCaptureDurationSettingsActionOnFinishBox =
        CreateChild<QComboBox>(settings, "limitedCaptureDurationSettingsActionOnFinishBox");
}

void RecordSchedulerWidgetUi::CreateScheduledMode(QWidget* panel)
{
    scheduledCaptureFrame = CreateChild<ZFrame>(panel, "scheduledCaptureFrame");
    scheduledCaptureRadioButtonFrame =
        CreateChild<ZFrame>(scheduledCaptureFrame, "scheduledCaptureRadioButtonFrame");
    scheduledCaptureRadioButton =
        CreateChild<QRadioButton>(scheduledCaptureRadioButtonFrame, "scheduledCaptureRadioButton");
    scheduledCaptureLabel =
        CreateChild<ZLabel>(scheduledCaptureRadioButtonFrame, "scheduledCaptureLabel");

    scheduledCaptureStackedWidget =
        CreateChild<QStackedWidget>(scheduledCaptureFrame, "scheduledCaptureStackedWidget");
}

void RecordSchedulerWidgetUi::CreateRecordTablePage(
    const std::shared_ptr<App::ISettingsManager>& settingsManager)
{
    scheduledCaptureRecordTablePage =
        CreateChild<ZFrame>(scheduledCaptureStackedWidget, "scheduledCaptureRecordTablePage");
    scheduledCaptureSettingsRecordTableWidget = CreateChild<ScheduleRecordTableWidget>(
        scheduledCaptureRecordTablePage, "scheduledCaptureSettingsRecordTableWidget",
        settingsManager);
    scheduledCaptureSettingsAddRecordButtonFrame = CreateChild<ZFrame>(
        scheduledCaptureRecordTablePage, "scheduledCaptureSettingsAddRecordButtonFrame");
    scheduledCaptureSettingsAddRecordButton = CreateChild<QPushButton>(
        scheduledCaptureSettingsAddRecordButtonFrame, "scheduledCaptureSettingsAddRecordButton");
}

void RecordSchedulerWidgetUi::LayOut(QWidget* panel)
{
    auto* panelLayout = CreateLayout<QVBoxLayout>(panel);
    panelLayout->addWidget(disableScheduledCaptureRadioButtonFrame);
    panelLayout->addWidget(limitedCaptureDurationFrame);
    panelLayout->addWidget(scheduledCaptureFrame);
    panelLayout->addStretch();

    LayOutRow(disableScheduledCaptureRadioButtonFrame, disableScheduledCaptureRadioButton,
              disableScheduledCaptureLabel);
    LayOutLimitedMode();
    LayOutScheduledMode();
}

void RecordSchedulerWidgetUi::LayOutLimitedMode()
{
    auto* blockLayout = CreateLayout<QVBoxLayout>(limitedCaptureDurationFrame);
    blockLayout->addWidget(limitedCaptureDurationRadioButtonFrame);
    blockLayout->addWidget(limitedCaptureDurationSettingsFrame);
    LayOutRow(limitedCaptureDurationRadioButtonFrame, limitedCaptureDurationRadioButton,
              limitedCaptureDurationLabel);

    auto* grid = CreateLayout<QGridLayout>(limitedCaptureDurationSettingsFrame);
    grid->addWidget(limitedCaptureDurationSettingsDurationLabel, 0, 0, Qt::AlignLeft);
    grid->addWidget(limitedCaptureDurationSettingsCaptureDuration, 0, 1, Qt::AlignLeft);
    grid->addWidget(limitedCaptureDurationSettingsActionOnFinishLabel, 1, 0, Qt::AlignLeft);
    grid->addWidget(limitedCaptureDurationSettingsActionOnFinishBox, 1, 1, Qt::AlignLeft);
}

void RecordSchedulerWidgetUi::LayOutScheduledMode()
{
    auto* blockLayout = CreateLayout<QVBoxLayout>(scheduledCaptureFrame);
    blockLayout->addWidget(scheduledCaptureRadioButtonFrame);
    blockLayout->addWidget(scheduledCaptureStackedWidget);
    LayOutRow(scheduledCaptureRadioButtonFrame, scheduledCaptureRadioButton, scheduledCaptureLabel);

    scheduledCaptureStackedWidget->addWidget(scheduledCaptureRecordTablePage);
    scheduledCaptureStackedWidget->addWidget(createRecordTaskWidget);
    LayOutRecordTablePage();
}

void RecordSchedulerWidgetUi::LayOutRecordTablePage()
{
    auto* pageLayout = CreateLayout<QVBoxLayout>(scheduledCaptureRecordTablePage);
    pageLayout->addWidget(scheduledCaptureSettingsRecordTableWidget);
    pageLayout->addWidget(Zentor::Util::createSpacer(
        scheduledCaptureRecordTablePage,
        QStringLiteral("scheduledCaptureSettingsRecordTableWidgetBorder")));
    pageLayout->addWidget(scheduledCaptureSettingsAddRecordButtonFrame, 0, Qt::AlignLeft);
    pageLayout->addStretch();

    auto* buttonLayout = CreateLayout<QVBoxLayout>(scheduledCaptureSettingsAddRecordButtonFrame);
    buttonLayout->addWidget(scheduledCaptureSettingsAddRecordButton);
}

void RecordSchedulerWidgetUi::BindCaptions()
{
    timerTypeRadioButtonGroup->addButton(disableScheduledCaptureRadioButton);
    timerTypeRadioButtonGroup->addButton(limitedCaptureDurationRadioButton);
    timerTypeRadioButtonGroup->addButton(scheduledCaptureRadioButton);

    Zentor::Util::bindWidgets(disableScheduledCaptureLabel, disableScheduledCaptureRadioButton);
    Zentor::Util::bindWidgets(limitedCaptureDurationLabel, limitedCaptureDurationRadioButton);
    Zentor::Util::bindWidgets(scheduledCaptureLabel, scheduledCaptureRadioButton);

    limitedCaptureDurationSettingsDurationLabel->setBuddy(
        limitedCaptureDurationSettingsCaptureDuration);
    limitedCaptureDurationSettingsActionOnFinishLabel->setBuddy(
        limitedCaptureDurationSettingsActionOnFinishBox);
}

void RecordSchedulerWidgetUi::retranslateUi()
{
    disableScheduledCaptureLabel->setOriginalText(
        QCoreApplication::translate("RecordSchedulerWidget", "Do not schedule capture"));
    limitedCaptureDurationLabel->setOriginalText(
        QCoreApplication::translate("RecordSchedulerWidget", "Stop capture after"));
    scheduledCaptureLabel->setOriginalText(
        QCoreApplication::translate("RecordSchedulerWidget", "Record on schedule"));
    scheduledCaptureSettingsAddRecordButton->setText(
        QCoreApplication::translate("RecordSchedulerWidget", "Add record event"));
    limitedCaptureDurationSettingsDurationLabel->setOriginalText(QCoreApplication::translate(
        "RecordSchedulerWidget", "Capture duration in limited capture:"));
    limitedCaptureDurationSettingsCaptureDuration->setDisplayFormat(
        QCoreApplication::translate("RecordSchedulerWidget", "hh:mm:ss"));
    limitedCaptureDurationSettingsActionOnFinishLabel->setOriginalText(
        QCoreApplication::translate("RecordSchedulerWidget", "When capture ends:"));
}

} // namespace Zentor::PX::Scheduler::UI
