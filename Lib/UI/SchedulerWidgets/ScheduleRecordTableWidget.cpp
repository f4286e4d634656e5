// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "ScheduleRecordTableWidget.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include <QCoreApplication>
#include <QDateTime>
#include <QEvent>
#include <QHBoxLayout>
#include <QPointer>
#include <QToolButton>
#include <QVBoxLayout>

#include "ClockReading.h"
#include "DefaultTaskName.h"
#include "ModalQuestion.h"
#include "ScheduleRecordTableUi.h"
#include "SignalSenders.h"
#include "WidgetTree.h"

namespace Zentor::PX::Scheduler::UI {
namespace {

void AddRowLabel(QWidget* row, const char* objectName, const QString& text)
{
    auto* label = CreateChild<ZLabel>(row, objectName);
    label->setTextFormat(Qt::PlainText);
    label->setOriginalText(text);
    row->layout()->addWidget(label);
}

void AddRowLabels(QWidget* row, const RecordTime& record)
{
    const auto start =
        QDateTime::fromMSecsSinceEpoch(record.start.time_since_epoch().count() / 1000);
    const auto dateFormat = QCoreApplication::translate("ScheduleRecordTableWidget", "dd.MM.yyyy");
    AddRowLabel(row, "titleLabel", record.title);
    AddRowLabel(row, "dateLabel", start.date().toString(dateFormat));
    AddRowLabel(row, "timeLabel",
                start.time().toString(
                    QCoreApplication::translate("ScheduleRecordTableWidget", "hh:mm:ss")));
    AddRowLabel(
        row, "durationLabel",
        ClockReadingOf(record.duration)
            .toString(QCoreApplication::translate("ScheduleRecordTableWidget", "hh:mm:ss")));
}

/// Sub-style of the children of \a row: the style sheet draws a row with them, the row itself is
/// only their frame.
void ApplyRowStyle(QObject* row, const QString& style)
{
    const auto children = row->findChildren<QWidget*>();
    for (QWidget* child : children) {
        Zentor::Util::ApplyWidgetStyle(child, style, "SubStyle");
    }
}

} // namespace

struct ScheduleRecordTableWidget::Private {
    Private(ScheduleRecordTableWidget* table,
            const std::shared_ptr<App::ISettingsManager>& manager);

    ZFrame* CreateRecordRow(const RecordTime& record);
    ZFrame* CreateStubRow();
    void UpdateStubRow();
    std::unique_ptr<Zentor::Util::AlertBox> CreateDeletionBox() const;
    QMessageBox::StandardButton AskToRemoveRecord(QToolButton* clicked) const;
    void ConfirmAndRemoveRecord(ZFrame* row, QString title);
    bool IsListed(QWidget* row) const;
    void RemoveAtOnce(QWidget* row);

    const std::unique_ptr<ScheduleRecordTableUi> ui;
    ScheduleRecordTableWidget* const owner;
    SchedulerHelper schedulerHelper;
    const NotNull<std::shared_ptr<App::ISettingsManager>> settingsManager;
    SignalSenders askingButtons;
};

ScheduleRecordTableWidget::Private::Private(ScheduleRecordTableWidget* table,
                                            const std::shared_ptr<App::ISettingsManager>& manager)
    : ui([table] {
        auto tree = std::make_unique<ScheduleRecordTableUi>();
        tree->setupUi(table);
        return tree;
    }())
    , owner(table)
    , settingsManager(manager)
{
}

ZFrame* ScheduleRecordTableWidget::Private::CreateRecordRow(const RecordTime& record)
{
    auto* row = CreateChild<ZFrame>(ui->recordTableFrame, "infoRecordFrame");
    auto* rowLayout = CreateLayout<QHBoxLayout>(row);
    AddRowLabels(row, record);
    auto* deleteToolButton = CreateChild<QToolButton>(row, "deleteToolButton");
    deleteToolButton->setAccessibleName(
        QCoreApplication::translate("ScheduleRecordTableWidget", "Delete") + QLatin1Char(' ')
        + record.title);
    rowLayout->addWidget(deleteToolButton);
    rowLayout->addStretch();

    connect(
        deleteToolButton, &QToolButton::clicked, deleteToolButton,
        [this, row, title = record.title] { ConfirmAndRemoveRecord(row, title); },
        Qt::DirectConnection);
    row->installEventFilter(owner);
    return row;
}

ZFrame* ScheduleRecordTableWidget::Private::CreateStubRow()
{
    auto* row = CreateChild<ZFrame>(ui->recordTableFrame, "stubInfoRecordFrame");
    auto* rowLayout = CreateLayout<QHBoxLayout>(row);
    for (const char* name : {"stubTitleLabel", "stubDateLabel", "stubTimeLabel",
                             "stubDurationLabel", "stubDeleteToolButton"}) {
        rowLayout->addWidget(CreateChild<QFrame>(row, name));
    }
    rowLayout->addStretch();
    return row;
}

/// Placeholder row, which is there while the schedule is empty. Runs exactly once after each
/// change: on an empty schedule a second run removes the placeholder again.
void ScheduleRecordTableWidget::Private::UpdateStubRow()
{
    const auto count = schedulerHelper.GetRecordCount();
    if (count > 1) {
        return;
    }
    auto* stubRow =
        ui->recordTableFrame->findChild<QWidget*>(QStringLiteral("stubInfoRecordFrame"));
    if (stubRow != nullptr) {
        RemoveAtOnce(stubRow);
    } else if (count == 0) {
        ui->recordLayout->insertWidget(0, CreateStubRow());
    }
}

void ScheduleRecordTableWidget::Private::RemoveAtOnce(QWidget* row)
{
    askingButtons.DetachFrom(*row);
    ui->recordLayout->removeWidget(row);
    // As each child under the mouse goes, Qt has the mouse enter the row, whose children are no
    // longer all there.
    row->removeEventFilter(owner);
    delete row;
}

std::unique_ptr<Zentor::Util::AlertBox>
ScheduleRecordTableWidget::Private::CreateDeletionBox() const
{
    auto box = std::make_unique<App::ConfirmationAlertBox>(
        settingsManager.Get(), Zentor::Util::AlertBox::Question, QString(),
        QCoreApplication::translate("ScheduleRecordTableWidget",
                                    "The task will be permanently deleted from the recording "
                                    "schedule. Are you sure you want to delete the task?"),
        QMessageBox::Ok | QMessageBox::Cancel, owner->window(),
        Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    box->SetConfirmationId(QStringLiteral("remove_schedule_record_always"));
    box->SetConfirmationText(
        QCoreApplication::translate("ScheduleRecordTableWidget", "Always delete"));
    box->button(QMessageBox::Ok)
        ->setText(QCoreApplication::translate("ScheduleRecordTableWidget", "Delete"));
    return box;
}

QMessageBox::StandardButton
ScheduleRecordTableWidget::Private::AskToRemoveRecord(QToolButton* clicked) const
{
    const SignalSenders::Reaction reaction(askingButtons, {clicked});
    return AskModally(CreateDeletionBox(), owner);
}

void ScheduleRecordTableWidget::Private::ConfirmAndRemoveRecord(ZFrame* row, QString title)
{
    // Both may be destroyed while the question is on screen.
    const QPointer<ScheduleRecordTableWidget> table(owner);
    const QPointer<ZFrame> clickedRow(row);
    const auto answer = AskToRemoveRecord(row->findChild<QToolButton*>());
    if (answer != QMessageBox::Ok || table.isNull() || !IsListed(clickedRow)) {
        return;
    }
    // The row lives on until the event loop deletes it, but a task added until then must find its
    // place among the rows that remain.
    ui->recordLayout->removeWidget(clickedRow);
    clickedRow->hide();
    askingButtons.DetachFrom(*clickedRow);
    clickedRow->deleteLater();
    schedulerHelper.RemoveRecord(title);
    UpdateStubRow();
    Q_EMIT owner->ScheduleChanged();
}

/// False for a row that another answer has removed: its task has gone with it, and one that has the
/// same title by now is another.
bool ScheduleRecordTableWidget::Private::IsListed(QWidget* row) const
{
    return row != nullptr && ui->recordLayout->indexOf(row) >= 0;
}

ScheduleRecordTableWidget::ScheduleRecordTableWidget(
    const std::shared_ptr<App::ISettingsManager>& settingsManager, QWidget* parent)
    : ZFrame(parent)
    , d(std::make_unique<Private>(this, settingsManager))
{
    connect(this, &ScheduleRecordTableWidget::ScheduleChanged, this,
            &ScheduleRecordTableWidget::UpdateFixedHeight, Qt::DirectConnection);
    d->UpdateStubRow();
    ensurePolished();
    adjustSize();
    Q_EMIT ScheduleChanged();
}

ScheduleRecordTableWidget::~ScheduleRecordTableWidget()
{
    d->askingButtons.DetachFrom(*this);
}

void ScheduleRecordTableWidget::AddRecord(const RecordTime& record)
{
    const int index = d->schedulerHelper.AddRecord(record);
    if (index < 0) {
        return;
    }
    d->ui->recordLayout->insertWidget(index, d->CreateRecordRow(record));
    d->UpdateStubRow();
    Q_EMIT ScheduleChanged();
}

void ScheduleRecordTableWidget::AddRecords(const std::vector<RecordTime>& records)
{
    for (const auto& record : records) {
        AddRecord(record);
    }
}

void ScheduleRecordTableWidget::ClearSchedule()
{
    d->schedulerHelper.ClearSchedule();
    for (int i = 0; i < d->ui->recordLayout->count();) {
        if (QWidget* row = d->ui->recordLayout->itemAt(i)->widget()) {
            d->RemoveAtOnce(row);
        } else {
            ++i;
        }
    }
    d->UpdateStubRow();
    Q_EMIT ScheduleChanged();
}

std::vector<RecordTime> ScheduleRecordTableWidget::GetPreparedSchedule() const
{
    return d->schedulerHelper.GetPreparedSchedule();
}

bool ScheduleRecordTableWidget::DoesTitleAlreadyExists(const QString& title) const
{
    return d->schedulerHelper.DoesTitleAlreadyExists(title);
}

bool ScheduleRecordTableWidget::DoesCaptureTimeIntersected(const RecordTime& record) const
{
    return d->schedulerHelper.DoesCaptureTimeIntersected(record);
}

bool ScheduleRecordTableWidget::IsScheduleEmpty() const
{
    return d->schedulerHelper.GetRecordCount() == 0;
}

QString ScheduleRecordTableWidget::GetDefaultTaskName() const
{
    return DefaultTaskName(d->schedulerHelper.GetPreparedSchedule());
}

bool ScheduleRecordTableWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Enter) {
        ApplyRowStyle(watched, QStringLiteral("Hover"));
    } else if (event->type() == QEvent::Leave) {
        ApplyRowStyle(watched, QStringLiteral("Normal"));
    }
    return QObject::eventFilter(watched, event);
}

void ScheduleRecordTableWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        d->ui->retranslateUi();
    }
    QFrame::changeEvent(event);
}

void ScheduleRecordTableWidget::UpdateFixedHeight()
{
    const std::uint64_t count = d->schedulerHelper.GetRecordCount();
    // A negative maximum becomes a huge one here: the table then grows without limit.
    const auto maximum = static_cast<std::uint64_t>(static_cast<std::int64_t>(m_maxRecordCount));
    const int shown = std::max(1, maximum < count ? m_maxRecordCount : static_cast<int>(count));
    std::int64_t height = std::int64_t{m_heightStep} * shown + m_minHeight;
    if (d->schedulerHelper.GetRecordCount() > static_cast<std::uint64_t>(shown)) {
        height += m_heightOverflow;
    }
    setFixedSize(width(), static_cast<int>(std::clamp<std::int64_t>(height, 0, QWIDGETSIZE_MAX)));
}

} // namespace Zentor::PX::Scheduler::UI
