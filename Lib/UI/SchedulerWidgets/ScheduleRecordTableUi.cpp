// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "ScheduleRecordTableUi.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QScrollArea>
#include <QVBoxLayout>

#include "HostInterfaces.h"
#include "WidgetTree.h"

namespace Zentor::PX::Scheduler::UI {

void ScheduleRecordTableUi::setupUi(QWidget* table)
{
    CreateHeader(table);
    CreateList(table);
    LayOut(table);
    retranslateUi();
}

void ScheduleRecordTableUi::CreateHeader(QWidget* table)
{
    headerFrame = CreateChild<ZFrame>(table, "headerFrame");
    headerTitleLabel = CreateChild<ZLabel>(headerFrame, "headerTitleLabel");
    headerDateLabel = CreateChild<ZLabel>(headerFrame, "headerDateLabel");
    headerTimeLabel = CreateChild<ZLabel>(headerFrame, "headerTimeLabel");
    headerDurationLabel = CreateChild<ZLabel>(headerFrame, "headerDurationLabel");
}

void ScheduleRecordTableUi::CreateList(QWidget* table)
{
    recordTableScrollArea = CreateChild<QScrollArea>(table, "recordTableScrollArea");
    recordTableFrame = CreateChild<ZFrame>(recordTableScrollArea, "recordTableFrame");
    recordLayout = CreateLayout<QVBoxLayout>(recordTableFrame);
    recordLayout->addStretch();
}

void ScheduleRecordTableUi::LayOut(QWidget* table)
{
    auto* headerLayout = CreateLayout<QHBoxLayout>(headerFrame);
    for (QWidget* label :
         {headerTitleLabel, headerDateLabel, headerTimeLabel, headerDurationLabel}) {
        headerLayout->addWidget(label);
    }
    headerLayout->addWidget(
        Zentor::Util::createSpacer(headerFrame, QStringLiteral("endHeaderSpacer")));
    headerLayout->addStretch();

    recordTableScrollArea->setWidget(recordTableFrame);
    auto* wheelEventsBlocker = new PX::UI::WheelEventsBlocker(recordTableScrollArea->viewport());
    wheelEventsBlocker->setObjectName(QStringLiteral("wheelEventsBlocker"));

    auto* tableLayout = CreateLayout<QVBoxLayout>(table);
    tableLayout->addWidget(headerFrame);
    tableLayout->addWidget(recordTableScrollArea);
}

void ScheduleRecordTableUi::retranslateUi()
{
    headerTitleLabel->setOriginalText(
        QCoreApplication::translate("ScheduleRecordTableWidget", "File name"));
    headerDateLabel->setOriginalText(
        QCoreApplication::translate("ScheduleRecordTableWidget", "Date"));
    headerTimeLabel->setOriginalText(
        QCoreApplication::translate("ScheduleRecordTableWidget", "Time"));
    headerDurationLabel->setOriginalText(
        QCoreApplication::translate("ScheduleRecordTableWidget", "Duration"));
}

} // namespace Zentor::PX::Scheduler::UI
