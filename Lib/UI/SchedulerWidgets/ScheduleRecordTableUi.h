// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

class QScrollArea;
class QVBoxLayout;
class QWidget;

namespace Zentor {
class ZFrame;
class ZLabel;
} // namespace Zentor

namespace Zentor::PX::Scheduler::UI {

/// The widgets of the schedule table, in creation order. All are owned by their Qt parents.
struct ScheduleRecordTableUi {
    ZFrame* headerFrame = nullptr;
    ZLabel* headerTitleLabel = nullptr;
    ZLabel* headerDateLabel = nullptr;
    ZLabel* headerTimeLabel = nullptr;
    ZLabel* headerDurationLabel = nullptr;
    QScrollArea* recordTableScrollArea = nullptr;
    ZFrame* recordTableFrame = nullptr;
    /// Holds the rows in schedule order, then a stretch. There is no other index of the rows.
    QVBoxLayout* recordLayout = nullptr;

    /// Builds the header and the empty list inside \a table, and sets the texts.
    void setupUi(QWidget* table);

    /// Sets the header's texts in the current language. Rows keep theirs.
    void retranslateUi();

private:
    void CreateHeader(QWidget* table);
    void CreateList(QWidget* table);
    void LayOut(QWidget* table);
};

} // namespace Zentor::PX::Scheduler::UI
