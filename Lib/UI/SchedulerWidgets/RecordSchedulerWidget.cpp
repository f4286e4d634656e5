// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RecordSchedulerWidget.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <stdexcept>

#include <glog/logging.h>

#include <QAbstractButton>
#include <QButtonGroup>
#include <QComboBox>
#include <QCoreApplication>
#include <QDateTime>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QShowEvent>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QTimeEdit>

#include "ClockReading.h"
#include "CreateRecordTaskWidget.h"
#include "DurationClamp.h"
#include "LeftToRightEditor.h"
#include "ModalQuestion.h"
#include "RecordSchedulerWidgetUi.h"
#include "ScheduleRecordTableWidget.h"
#include "SeparatorKeyFilter.h"
#include "SignalSenders.h"
#include "UnixSeconds.h"

namespace Zentor::PX::Scheduler::UI {
namespace {

constexpr std::int64_t MinimumFreeBytes = 1000000000;

void ApplyModeStyle(QWidget* modeFrame, bool isActive)
{
    Zentor::Util::ApplyWidgetStyle(
        modeFrame, isActive ? QStringLiteral("Active") : QStringLiteral("Inactive"), "SubStyle");
}

/// Whole seconds only: the milliseconds of \a dateTime are dropped.
Time::IClock::time_point StartOf(const QDateTime& dateTime)
{
    static const Time::SystemClock clock;
    return clock.FromTimeT(UnixSecondsOf(dateTime));
}

std::int64_t ToBits(std::int64_t bytes)
{
    constexpr std::int64_t bitsPerByte = 8;
    using Limits = std::numeric_limits<std::int64_t>;
    return std::clamp(bytes, Limits::min() / bitsPerByte, Limits::max() / bitsPerByte)
        * bitsPerByte;
}

bool IsEnoughDiskSpace(std::int64_t freeBytes)
{
    return ToBits(freeBytes) > ToBits(MinimumFreeBytes);
}

void LogLowDiskSpace(std::int64_t freeBytes)
{
    // Fixed file and line: readers of the log match them.
    google::LogMessage("Lib/UI/SchedulerWidgets/RecordSchedulerWidget", 187, google::GLOG_WARNING)
            .stream()
        << "Zentor::PX::Scheduler::UI::RecordSchedulerWidget::ValidateSettings: freeSize="
        << freeBytes << "; min required=" << MinimumFreeBytes;
}

QString FileSettingsLink()
{
    return QStringLiteral("pxz://ShowSettingsDialog/Files");
}

} // namespace

/// What the panel keeps, its reactions, and its questions to the user. Hidden: a nested class would
/// be exported with the one around it.
struct Q_DECL_HIDDEN RecordSchedulerWidget::Private {
    explicit Private(RecordSchedulerWidget* panel);

    void ConnectControls();
    void ConnectForm();
    void Retranslate();

    void OnLimitedModeToggled();
    void OnScheduledModeToggled();
    void OnLimitedDurationChanged();
    void OnFinishActionChanged(int index);
    void OnScheduleChanged();
    void ReturnToScheduledMode();

    void OpenForm();
    bool IsFormOpen() const;
    void ShowTable();

    void UpdateControlsState(ValidateError error);
    ValidateError ValidateRecord() const;
    void ScheduleNewRecord();
    bool ProcessUnsavedRecord();

    QMessageBox::StandardButton AskToLeaveSchedule();
    QMessageBox::StandardButton AskAboutUnsavedRecord();
    void ShowDiskSpaceAlert();

    RecordSchedulerWidget* const owner;
    RecordSchedulerWidgetUi ui;
    // Hosts see in which order their objects are released: the last one first.
    std::shared_ptr<SchedulerSettings> schedulerSettings;
    std::shared_ptr<CaptureFinishActionSettings> captureFinishActionSettings;
    std::shared_ptr<PathsSettings> pathsSettings;
    std::shared_ptr<ISettingsWatcher> settingsWatcher;
    SignalSenders askingButtons;
};

RecordSchedulerWidget::Private::Private(RecordSchedulerWidget* panel)
    : owner(panel)
{
}

RecordSchedulerWidget::RecordSchedulerWidget(
    const std::shared_ptr<App::ILookAndFeelManager>& lookAndFeel,
    const std::shared_ptr<App::ISettingsManager>& settingsManager, QWidget* parent)
    : ZFrame(parent, {})
    , d(std::make_unique<Private>(this))
{
    d->ui.setupUi(this, lookAndFeel, settingsManager);
    d->ui.limitedCaptureDurationSettingsFrame->hide();
    d->ui.scheduledCaptureStackedWidget->hide();
    // Takes effect with the display format that Retranslate() sets.
    KeepLeftToRight(*d->ui.limitedCaptureDurationSettingsCaptureDuration);
    new SeparatorKeyFilter(d->ui.limitedCaptureDurationSettingsCaptureDuration);
    d->ConnectControls();
    d->ConnectForm();
    d->Retranslate();
}

RecordSchedulerWidget::~RecordSchedulerWidget()
{
    d->askingButtons.DetachFrom(*this);
}

void RecordSchedulerWidget::SetSchedulerSettings(
    const NotNull<std::shared_ptr<SchedulerSettings>>& settings)
{
    d->schedulerSettings = settings.Get();
}

void RecordSchedulerWidget::SetCaptureFinishActionSettings(
    const NotNull<std::shared_ptr<CaptureFinishActionSettings>>& settings)
{
    d->captureFinishActionSettings = settings.Get();
}

void RecordSchedulerWidget::SetPathSettings(const NotNull<std::shared_ptr<PathsSettings>>& settings)
{
    d->pathsSettings = settings.Get();
}

void RecordSchedulerWidget::SetSettingsWatcher(
    const NotNull<std::shared_ptr<ISettingsWatcher>>& watcher)
{
    d->settingsWatcher = watcher.Get();
}

void RecordSchedulerWidget::Private::ConnectControls()
{
    connect(ui.limitedCaptureDurationRadioButton, &QRadioButton::toggled, owner,
            [this] { OnLimitedModeToggled(); });
    connect(ui.scheduledCaptureRadioButton, &QRadioButton::toggled, owner,
            [this] { OnScheduledModeToggled(); });

    auto* durationEdit = ui.limitedCaptureDurationSettingsCaptureDuration;
    durationEdit->setTime(MinimumDuration);
    connect(durationEdit, &QTimeEdit::timeChanged, owner, [this] { OnLimitedDurationChanged(); });
    connect(ui.limitedCaptureDurationSettingsActionOnFinishBox,
            qOverload<int>(&QComboBox::currentIndexChanged), owner,
            [this](int index) { OnFinishActionChanged(index); });

    auto* table = ui.scheduledCaptureSettingsRecordTableWidget;
    connect(
        table, &ScheduleRecordTableWidget::ScheduleChanged, table, [this] { OnScheduleChanged(); },
        Qt::DirectConnection);
}

void RecordSchedulerWidget::Private::ConnectForm()
{
    auto* addButton = ui.scheduledCaptureSettingsAddRecordButton;
    connect(
        addButton, &QPushButton::clicked, addButton, [this] { OpenForm(); }, Qt::DirectConnection);

    auto* form = ui.createRecordTaskWidget;
    for (const auto change :
         {&CreateRecordTaskWidget::TaskNameChanged, &CreateRecordTaskWidget::RecordDateChanged,
          &CreateRecordTaskWidget::RecordStartTimeChanged,
          &CreateRecordTaskWidget::RecordDurationChanged}) {
        connect(form, change, owner, [this] { UpdateControlsState(ValidateRecord()); });
    }
    connect(
        form, &CreateRecordTaskWidget::BackButtonClicked, form,
        [this] {
            if (ProcessUnsavedRecord()) {
                ShowTable();
            }
        },
        Qt::DirectConnection);
    connect(form, &CreateRecordTaskWidget::CreateTaskButtonClicked, owner,
            [this] { ScheduleNewRecord(); });
}

void RecordSchedulerWidget::Private::OnLimitedModeToggled()
{
    const bool isOn = ui.limitedCaptureDurationRadioButton->isChecked();
    ui.limitedCaptureDurationSettingsFrame->setVisible(isOn);
    ApplyModeStyle(ui.limitedCaptureDurationRadioButtonFrame, isOn);
    if (settingsWatcher) {
        settingsWatcher->OnLimitedCaptureStateChanged(isOn);
    }
}

void RecordSchedulerWidget::Private::OnScheduledModeToggled()
{
    auto* table = ui.scheduledCaptureSettingsRecordTableWidget;
    if (!ui.scheduledCaptureRadioButton->isChecked() && !table->IsScheduleEmpty()) {
        const QPointer<RecordSchedulerWidget> self(owner);
        const auto answer = AskToLeaveSchedule();
        if (self.isNull()) {
            return;
        }
        if (answer != QMessageBox::Ok) {
            ReturnToScheduledMode();
            return;
        }
        table->ClearSchedule();
    }
    const bool isOn = ui.scheduledCaptureRadioButton->isChecked();
    ui.scheduledCaptureStackedWidget->setVisible(isOn);
    ApplyModeStyle(ui.scheduledCaptureRadioButtonFrame, isOn);
    if (isOn && IsFormOpen()) {
        // The tasks that the entered one was checked against may be gone.
        UpdateControlsState(ValidateRecord());
    }
}

QMessageBox::StandardButton RecordSchedulerWidget::Private::AskToLeaveSchedule()
{
    // Asked inside QAbstractButton::setChecked() of one of them, which touches it on return.
    const SignalSenders::Reaction reaction(askingButtons,
                                           {ui.disableScheduledCaptureRadioButton,
                                            ui.limitedCaptureDurationRadioButton,
                                            ui.scheduledCaptureRadioButton});
    auto box = std::make_unique<Zentor::Util::AlertBox>(
        Zentor::Util::AlertBox::Information, QString(),
        QCoreApplication::translate("RecordSchedulerWidget",
                                    "All tasks will be permanently deleted from the recording "
                                    "schedule. Are you sure you want to continue?"),
        QMessageBox::Ok | QMessageBox::Cancel, owner->window(),
        Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    box->button(QMessageBox::Ok)
        ->setText(QCoreApplication::translate("RecordSchedulerWidget", "Continue"));
    return AskModally(std::move(box), owner);
}

void RecordSchedulerWidget::Private::ReturnToScheduledMode()
{
    ui.limitedCaptureDurationRadioButton->setChecked(false);
    ui.disableScheduledCaptureRadioButton->setChecked(false);
    ui.scheduledCaptureRadioButton->click();
}

void RecordSchedulerWidget::Private::OnLimitedDurationChanged()
{
    auto* durationEdit = ui.limitedCaptureDurationSettingsCaptureDuration;
    const QSignalBlocker blocker(durationEdit);
    ClampDuration(*durationEdit);
    if (settingsWatcher) {
        settingsWatcher->OnLimitedCaptureDurationChanged(DurationOf(durationEdit->time()));
    }
}

void RecordSchedulerWidget::Private::OnFinishActionChanged(int index)
{
    if (settingsWatcher) {
        settingsWatcher->OnCaptureFinishActionChanged(index);
    }
}

void RecordSchedulerWidget::Private::OnScheduleChanged()
{
    const auto* table = ui.scheduledCaptureSettingsRecordTableWidget;
    settingsWatcher->OnScheduleChanged(table->GetPreparedSchedule());
    settingsWatcher->OnScheduleStateChanged(!table->IsScheduleEmpty());
}

void RecordSchedulerWidget::Private::OpenForm()
{
    QString name;
    try {
        name = ui.scheduledCaptureSettingsRecordTableWidget->GetDefaultTaskName();
    } catch (const std::runtime_error&) {
        // A title with a number that cannot be read leaves the name to the user.
    }
    auto* form = ui.createRecordTaskWidget;
    ui.scheduledCaptureStackedWidget->setCurrentWidget(form);
    {
        const QSignalBlocker blocker(form);
        form->ResetForm(name);
    }
    UpdateControlsState(ValidateRecord());
}

bool RecordSchedulerWidget::Private::IsFormOpen() const
{
    return ui.scheduledCaptureStackedWidget->currentWidget() == ui.createRecordTaskWidget;
}

void RecordSchedulerWidget::Private::ShowTable()
{
    ui.scheduledCaptureStackedWidget->setCurrentWidget(ui.scheduledCaptureRecordTablePage);
}

void RecordSchedulerWidget::Private::UpdateControlsState(ValidateError error)
{
    ui.createRecordTaskWidget->ShowValidateError(error);
}

ValidateError RecordSchedulerWidget::Private::ValidateRecord() const
{
    const auto* form = ui.createRecordTaskWidget;
    const auto* table = ui.scheduledCaptureSettingsRecordTableWidget;
    const auto name = form->GetTaskName();
    if (name.isEmpty()) {
        return EmptyTitle;
    }
    if (table->DoesTitleAlreadyExists(name)) {
        return TitleAlreadyExists;
    }
    RecordTime probe;
    probe.start = StartOf(form->GetStartDateTime());
    probe.duration = DurationOf(form->GetDuration());
    return table->DoesCaptureTimeIntersected(probe) ? CaptureTimeIntersected : NoError;
}

void RecordSchedulerWidget::Private::ScheduleNewRecord()
{
    if (!settingsWatcher) {
        return;
    }
    const auto* form = ui.createRecordTaskWidget;
    RecordTime record;
    record.duration = DurationOf(form->GetDuration());
    record.start = StartOf(form->GetStartDateTime());
    record.screenIndex = form->IsFullScreen() ? form->GetScreenIndex() : -1;
    record.finishAction = static_cast<PowerAction>(form->GetActionOnFinishIndex());
    record.title = form->GetTaskName();
    ui.scheduledCaptureSettingsRecordTableWidget->AddRecord(record);
    ShowTable();
}

bool RecordSchedulerWidget::Private::ProcessUnsavedRecord()
{
    if (!IsFormOpen()) {
        return true;
    }
    const QPointer<RecordSchedulerWidget> self(owner);
    const auto answer = AskAboutUnsavedRecord();
    if (self.isNull() || (answer != QMessageBox::Yes && answer != QMessageBox::No)) {
        return false;
    }
    if (answer == QMessageBox::No) {
        return true;
    }
    const auto error = ValidateRecord();
    UpdateControlsState(error);
    if (error != NoError) {
        return false;
    }
    ScheduleNewRecord();
    return true;
}

QMessageBox::StandardButton RecordSchedulerWidget::Private::AskAboutUnsavedRecord()
{
    auto box = std::make_unique<Zentor::Util::AlertBox>(
        Zentor::Util::AlertBox::Question, QString(),
        QCoreApplication::translate("RecordSchedulerWidget",
                                    "The task hasn't been saved. Would you like to add this task "
                                    "to the recording schedule?"),
        QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, owner->window(),
        Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    box->setObjectName(QStringLiteral("RecordSchedulerWidget_UnsavedRecordAlertBox"));
    box->setDefaultButton(QMessageBox::Cancel);
    box->button(QMessageBox::No)
        ->setText(QCoreApplication::translate("RecordSchedulerWidget", "Don't Add"));
    box->button(QMessageBox::Yes)
        ->setText(QCoreApplication::translate("RecordSchedulerWidget", "Add"));
    return AskModally(std::move(box), owner);
}

bool RecordSchedulerWidget::ValidateSettings()
{
    if (!d->ui.scheduledCaptureRadioButton->isChecked()) {
        return true;
    }
    if (!d->ProcessUnsavedRecord()) {
        return false;
    }
    // The host may run an event loop until it knows, in which the panel may be destroyed.
    const QPointer<RecordSchedulerWidget> self(this);
    const auto pathsSettings = d->pathsSettings;
    ioPath resultsFolder;
    resultsFolder = pathsSettings->GetResultsFolderPath().toStdString();
    const auto freeBytes = Zentor::Util::GetAvailableDiskSpace(resultsFolder);
    if (self.isNull()) {
        return false;
    }
    if (IsEnoughDiskSpace(freeBytes)) {
        return true;
    }
    LogLowDiskSpace(freeBytes);
    d->ShowDiskSpaceAlert();
    return false;
}

void RecordSchedulerWidget::Private::ShowDiskSpaceAlert()
{
    // The translation context of this alert is the host's.
    const auto text =
        QCoreApplication::translate(
            "CaptureControllerWrapper",
            "Could not start recording because there is not enough disk space. Free more disk "
            "space and try again. Or set a different disk drive for storing output videos in "
            "%1File Preferences%2. ")
            .arg(QStringLiteral("<a href='") + FileSettingsLink() + QStringLiteral("'>"),
                 QStringLiteral("</a>"));
    auto box = std::make_unique<Zentor::Util::AlertBox>(
        Zentor::Util::AlertBox::Warning, QString(), text, QMessageBox::Ok | QMessageBox::Cancel,
        owner->window(), Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    for (QLabel* label : box->findChildren<QLabel*>()) {
        label->setTextInteractionFlags(Qt::LinksAccessibleByMouse);
        label->setOpenExternalLinks(false);
        connect(label, &QLabel::linkActivated, owner,
                [this, alert = box.get()](const QString& link) {
                    if (link == FileSettingsLink()) {
                        alert->reject();
                        Q_EMIT owner->OpenFilesSettingsRequested();
                    }
                });
    }
    auto* preferencesButton = box->button(QMessageBox::Ok);
    preferencesButton->setText(
        QCoreApplication::translate("CaptureControllerWrapper", "File Preferences"));
    connect(preferencesButton, &QAbstractButton::clicked, owner,
            &RecordSchedulerWidget::OpenFilesSettingsRequested);
    AskModally(std::move(box), owner);
}

void RecordSchedulerWidget::RestoreSettings()
{
    d->ui.limitedCaptureDurationSettingsActionOnFinishBox->setCurrentIndex(
        d->captureFinishActionSettings->GetCaptureFinishAction());
    d->ui.limitedCaptureDurationSettingsCaptureDuration->setTime(
        ClockReadingOf(d->schedulerSettings->GetLimitedCaptureDuration()));
    d->ui.scheduledCaptureSettingsRecordTableWidget->AddRecords(
        d->schedulerSettings->GetSchedule());

    const bool isScheduled = d->schedulerSettings->IsScheduledCaptureEnabled();
    const bool isLimited = d->schedulerSettings->IsLimitedCaptureEnabled();
    d->ui.disableScheduledCaptureRadioButton->setChecked(!isScheduled && !isLimited);
    d->ui.limitedCaptureDurationRadioButton->setChecked(isLimited);
    d->ui.scheduledCaptureRadioButton->setChecked(isScheduled);
}

void RecordSchedulerWidget::Private::Retranslate()
{
    ui.retranslateUi();

    auto* finishActionBox = ui.limitedCaptureDurationSettingsActionOnFinishBox;
    const int index = finishActionBox->currentIndex();
    const QSignalBlocker blocker(finishActionBox);
    PX::UI::ClearAndFillPowerActionsComboBox(finishActionBox);
    finishActionBox->setCurrentIndex(index);
}

void RecordSchedulerWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        d->Retranslate();
    }
    QWidget::changeEvent(event);
}

void RecordSchedulerWidget::showEvent(QShowEvent* event)
{
    // Spontaneous: the window was restored from its minimised state. The panel was not hidden then,
    // and an open form stays open.
    if (!event->spontaneous()) {
        d->ShowTable();
    }
    QWidget::showEvent(event);
}

} // namespace Zentor::PX::Scheduler::UI
