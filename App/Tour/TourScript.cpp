// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "TourScript.h"

#include <QAbstractButton>
#include <QApplication>
#include <QWidget>

#include "FilesPage.h"
#include "GeneralPage.h"
#include "PanelParts.h"
#include "RecordingPage.h"
#include "SchedulePage.h"
#include "ScreenshotTour.h"
#include "SoundDeviceList.h"

namespace Zentor::Desktop {
namespace {

bool IsShown(const QString& objectName)
{
    const auto widgets = QApplication::allWidgets();
    return std::any_of(widgets.begin(), widgets.end(), [&](const QWidget* widget) {
        return widget->isVisible() && widget->objectName() == objectName;
    });
}

void WaitUntilShown(ScreenshotTour& tour, const QString& objectName)
{
    tour.WaitFor(objectName, [objectName] { return IsShown(objectName); });
}

void WaitForBox(ScreenshotTour& tour)
{
    tour.WaitFor(QStringLiteral("a message box"),
                 [] { return QApplication::activeModalWidget() != nullptr; });
}

void WaitForNoBox(ScreenshotTour& tour)
{
    tour.WaitFor(QStringLiteral("no message box"),
                 [] { return QApplication::activeModalWidget() == nullptr; });
}

void WaitForPopup(ScreenshotTour& tour)
{
    tour.WaitFor(QStringLiteral("an open list"),
                 [] { return QApplication::activePopupWidget() != nullptr; });
}

void WaitForNoPopup(ScreenshotTour& tour)
{
    tour.WaitFor(QStringLiteral("no open list"),
                 [] { return QApplication::activePopupWidget() == nullptr; });
}

void WaitUntilChecked(ScreenshotTour& tour, const QString& objectName)
{
    tour.WaitFor(QStringLiteral("%1 checked").arg(objectName), [objectName] {
        const auto widgets = QApplication::allWidgets();
        return std::any_of(widgets.begin(), widgets.end(), [&](QWidget* widget) {
            const auto* button = qobject_cast<QAbstractButton*>(widget);
            return button != nullptr && button->objectName() == objectName && button->isChecked();
        });
    });
}

void GoTo(ScreenshotTour& tour, const QString& pageId)
{
    tour.ClickEntry(QStringLiteral("pageList"), pageId);
}

void ShowTasks(ScreenshotTour& tour)
{
    GoTo(tour, SchedulePage::PageId());
    WaitUntilShown(tour, PanelPart::Row);
    tour.PointAway();
    tour.Picture(QStringLiteral("01-schedule"));

    tour.PointAt(PanelPart::RowTitle);
    tour.Picture(QStringLiteral("02-task-under-mouse"));

    tour.Click(PanelPart::RowDeleteButton);
    WaitForBox(tour);
    tour.PointAway();
    tour.Picture(QStringLiteral("03-delete-question"));
    tour.ClickInBox(QMessageBox::Cancel);
    WaitForNoBox(tour);
}

void LeaveSchedule(ScreenshotTour& tour)
{
    tour.Click(PanelPart::OffModeButton);
    WaitForBox(tour);
    tour.PointAway();
    tour.Picture(QStringLiteral("04-leave-schedule-question"));
    tour.ClickInBox(QMessageBox::Ok);
    WaitForNoBox(tour);
    WaitUntilChecked(tour, PanelPart::OffModeButton);
    tour.PointAway();
    tour.Picture(QStringLiteral("05-nothing-scheduled"));
}

void LimitCapture(ScreenshotTour& tour)
{
    tour.Click(PanelPart::LimitedModeButton);
    WaitUntilShown(tour, PanelPart::LimitedDurationField);
    tour.PointAway();
    tour.Picture(QStringLiteral("06-limited-capture"));

    // From the mode button into the field, with its first section selected.
    tour.Press(Qt::Key_Tab);
    tour.Type(QStringLiteral("013000"));
    tour.PointAway();
    tour.Picture(QStringLiteral("07-limited-capture-duration"));

    tour.Click(PanelPart::LimitedActionBox);
    WaitForPopup(tour);
    tour.Press(Qt::Key_Down);
    tour.Press(Qt::Key_Down);
    tour.Picture(QStringLiteral("08-limited-capture-actions"));
    tour.Press(Qt::Key_Return);
    WaitForNoPopup(tour);
}

void ShowEmptySchedule(ScreenshotTour& tour)
{
    tour.Click(PanelPart::ScheduledModeButton);
    WaitUntilShown(tour, PanelPart::PlaceholderRow);
    tour.PointAway();
    tour.Picture(QStringLiteral("09-empty-schedule"));
}

void ShowForm(ScreenshotTour& tour)
{
    tour.Click(PanelPart::AddButton);
    WaitUntilShown(tour, PanelPart::NameField);
    tour.PointAway();
    tour.Picture(QStringLiteral("10-new-task"));

    tour.Click(PanelPart::NameField);
    tour.Press(Qt::Key_A, Qt::ControlModifier);
    tour.Press(Qt::Key_Delete);
    tour.PointAway();
    tour.Picture(QStringLiteral("11-new-task-without-name"));
}

void ShowFiles(ScreenshotTour& tour)
{
    GoTo(tour, FilesPage::PageId());
    WaitForBox(tour);
    tour.ClickInBox(QMessageBox::No);
    WaitForNoBox(tour);
    WaitUntilShown(tour, QStringLiteral("resultsFolderEdit"));
    tour.PointAway();
    tour.Picture(QStringLiteral("12-files"));
}

void ShowGeneral(ScreenshotTour& tour)
{
    GoTo(tour, GeneralPage::PageId());
    WaitUntilShown(tour, QStringLiteral("languageBox"));
    tour.PointAway();
    tour.Picture(QStringLiteral("17-general"));

    tour.Click(QStringLiteral("languageBox"));
    WaitForPopup(tour);
    tour.Picture(QStringLiteral("18-general-languages"));
    tour.Press(Qt::Key_Escape);
    WaitForNoPopup(tour);
}

void ShowRecording(ScreenshotTour& tour)
{
    GoTo(tour, RecordingPage::PageId());
    tour.WaitFor(QStringLiteral("the sound devices"), [] {
        const auto widgets = QApplication::allWidgets();
        return std::any_of(widgets.begin(), widgets.end(), [](const QWidget* widget) {
            const auto* list = qobject_cast<const SoundDeviceList*>(widget);
            return list != nullptr && list->isVisible() && !list->IsLooking();
        });
    });
    tour.PointAway();
    tour.Picture(QStringLiteral("19-recording"));
}

void AddLongTask(ScreenshotTour& tour)
{
    GoTo(tour, SchedulePage::PageId());
    WaitUntilShown(tour, PanelPart::PlaceholderRow);
    tour.Press(Qt::Key_Insert);
    WaitUntilShown(tour, PanelPart::NameField);
    tour.Type(QStringLiteral("Standup"));
    // Past the sections of the date and of the start, onto the first one of the duration.
    for (int section = 0; section < 7; ++section) {
        tour.Press(Qt::Key_Tab);
    }
    tour.Type(QStringLiteral("010000"));
    tour.Press(Qt::Key_Return);
    WaitUntilShown(tour, PanelPart::Row);
}

/// Refused twice: for its name, and then for its time.
void ShowRefusedTask(ScreenshotTour& tour)
{
    tour.Press(Qt::Key_Insert);
    WaitUntilShown(tour, PanelPart::NameField);
    tour.Type(QStringLiteral("Standup"));
    tour.PointAway();
    tour.Picture(QStringLiteral("13-new-task-same-name"));
    tour.Type(QStringLiteral(" 2"));
    // Past the sections of the date, onto the hours: from the free start back to the taken one.
    for (int section = 0; section < 4; ++section) {
        tour.Press(Qt::Key_Tab);
    }
    tour.Press(Qt::Key_Down);
    tour.PointAway();
    tour.Picture(QStringLiteral("14-new-task-same-time"));

    tour.Press(Qt::Key_Escape);
    WaitForBox(tour);
    tour.Picture(QStringLiteral("15-unsaved-task-question"));
    tour.ClickInBox(QMessageBox::No);
    WaitForNoBox(tour);
}

void ShowFullDisk(ScreenshotTour& tour)
{
    GoTo(tour, FilesPage::PageId());
    WaitUntilShown(tour, QStringLiteral("resultsFolderEdit"));
    tour.Click(QStringLiteral("resultsFolderEdit"));
    tour.Press(Qt::Key_A, Qt::ControlModifier);
    // A file system that has no room for files.
    tour.Type(QStringLiteral("/proc/recordings"));
    GoTo(tour, SchedulePage::PageId());
    WaitUntilShown(tour, PanelPart::Row);
    tour.Click(QStringLiteral("startRecordingButton"));
    WaitForBox(tour);
    tour.PointAway();
    tour.Picture(QStringLiteral("16-full-disk"));
    tour.ClickInBox(QMessageBox::Cancel);
    WaitForNoBox(tour);
}

} // namespace

void WriteTourScript(ScreenshotTour& tour)
{
    ShowTasks(tour);
    LeaveSchedule(tour);
    LimitCapture(tour);
    ShowEmptySchedule(tour);
    ShowForm(tour);
    ShowFiles(tour);
    AddLongTask(tour);
    ShowRefusedTask(tour);
    ShowFullDisk(tour);
    ShowGeneral(tour);
    ShowRecording(tour);
}

} // namespace Zentor::Desktop
