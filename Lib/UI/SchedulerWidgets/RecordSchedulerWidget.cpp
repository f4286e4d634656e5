#include "RecordSchedulerWidget.h"

#include <algorithm>
#include <array>
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
    return clock.FromTimeT(dateTime.toTime_t());
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
    // The place is fixed, so that what reads the logs finds the line in every version.
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

/// The questions that may stand on screen on behalf of the panel.
struct RecordSchedulerWidget::Questions {
    ModalQuestion leaveSchedule;
    ModalQuestion unsavedRecord;
    ModalQuestion diskSpace;
};

RecordSchedulerWidget::RecordSchedulerWidget(
    const std::shared_ptr<App::ILookAndFeelManager>& lookAndFeel,
    const std::shared_ptr<App::ISettingsManager>& settingsManager, QWidget* parent)
    : ZFrame(parent, {})
    , m_ui(std::make_unique<RecordSchedulerWidgetUi>())
    , m_questions(std::make_unique<Questions>())
{
    m_ui->setupUi(this, lookAndFeel, settingsManager);
    m_ui->limitedCaptureDurationSettingsFrame->hide();
    m_ui->scheduledCaptureStackedWidget->hide();
    // Takes effect with the display format that Retranslate() sets.
    KeepLeftToRight(*m_ui->limitedCaptureDurationSettingsCaptureDuration);
    new SeparatorKeyFilter(m_ui->limitedCaptureDurationSettingsCaptureDuration);
    ConnectControls();
    ConnectForm();
    Retranslate();
}

RecordSchedulerWidget::~RecordSchedulerWidget()
{
    if (!m_questions->leaveSchedule.IsOpen()) {
        return;
    }
    // The question is asked inside QAbstractButton::setChecked(), which touches its button again on
    // return: the mode buttons outlive the panel, and the reaction deletes them.
    for (QAbstractButton* button : m_ui->timerTypeRadioButtonGroup->buttons()) {
        button->hide();
        button->setParent(nullptr);
    }
}

void RecordSchedulerWidget::SetSchedulerSettings(
    const NotNull<std::shared_ptr<SchedulerSettings>>& settings)
{
    m_schedulerSettings = settings.Get();
}

void RecordSchedulerWidget::SetCaptureFinishActionSettings(
    const NotNull<std::shared_ptr<CaptureFinishActionSettings>>& settings)
{
    m_captureFinishActionSettings = settings.Get();
}

void RecordSchedulerWidget::SetPathSettings(const NotNull<std::shared_ptr<PathsSettings>>& settings)
{
    m_pathsSettings = settings.Get();
}

void RecordSchedulerWidget::SetSettingsWatcher(
    const NotNull<std::shared_ptr<ISettingsWatcher>>& watcher)
{
    m_settingsWatcher = watcher.Get();
}

void RecordSchedulerWidget::ConnectControls()
{
    connect(m_ui->limitedCaptureDurationRadioButton, &QRadioButton::toggled, this,
            [this] { OnLimitedModeToggled(); });
    connect(m_ui->scheduledCaptureRadioButton, &QRadioButton::toggled, this,
            [this] { OnScheduledModeToggled(); });

    auto* durationEdit = m_ui->limitedCaptureDurationSettingsCaptureDuration;
    durationEdit->setTime(MinimumDuration);
    connect(durationEdit, &QTimeEdit::timeChanged, this, [this] { OnLimitedDurationChanged(); });
    connect(m_ui->limitedCaptureDurationSettingsActionOnFinishBox,
            qOverload<int>(&QComboBox::currentIndexChanged), this, [this](int index) {
                if (m_settingsWatcher) {
                    m_settingsWatcher->OnCaptureFinishActionChanged(index);
                }
            });

    auto* table = m_ui->scheduledCaptureSettingsRecordTableWidget;
    connect(
        table, &ScheduleRecordTableWidget::ScheduleChanged, table, [this] { OnScheduleChanged(); },
        Qt::DirectConnection);
}

void RecordSchedulerWidget::ConnectForm()
{
    auto* addButton = m_ui->scheduledCaptureSettingsAddRecordButton;
    connect(
        addButton, &QPushButton::clicked, addButton, [this] { OpenForm(); }, Qt::DirectConnection);

    auto* form = m_ui->createRecordTaskWidget;
    for (const auto change :
         {&CreateRecordTaskWidget::TaskNameChanged, &CreateRecordTaskWidget::RecordDateChanged,
          &CreateRecordTaskWidget::RecordStartTimeChanged,
          &CreateRecordTaskWidget::RecordDurationChanged}) {
        connect(form, change, this, [this] { UpdateControlsState(ValidateRecord()); });
    }
    connect(
        form, &CreateRecordTaskWidget::BackButtonClicked, form,
        [this] {
            if (ProcessUnsavedRecord()) {
                ShowTable();
            }
        },
        Qt::DirectConnection);
    connect(form, &CreateRecordTaskWidget::CreateTaskButtonClicked, this,
            &RecordSchedulerWidget::ScheduleNewRecord);
}

void RecordSchedulerWidget::OnLimitedModeToggled()
{
    const bool isOn = m_ui->limitedCaptureDurationRadioButton->isChecked();
    m_ui->limitedCaptureDurationSettingsFrame->setVisible(isOn);
    ApplyModeStyle(m_ui->limitedCaptureDurationRadioButtonFrame, isOn);
    if (m_settingsWatcher) {
        m_settingsWatcher->OnLimitedCaptureStateChanged(isOn);
    }
}

void RecordSchedulerWidget::OnScheduledModeToggled()
{
    auto* table = m_ui->scheduledCaptureSettingsRecordTableWidget;
    if (!m_ui->scheduledCaptureRadioButton->isChecked() && !table->IsScheduleEmpty()) {
        const QPointer<RecordSchedulerWidget> self(this);
        const std::array<QPointer<QObject>, 3> modeButtons{m_ui->disableScheduledCaptureRadioButton,
                                                           m_ui->limitedCaptureDurationRadioButton,
                                                           m_ui->scheduledCaptureRadioButton};
        const auto answer = AskToLeaveSchedule();
        if (self.isNull()) {
            for (const auto& button : modeButtons) {
                if (!button.isNull()) {
                    button->deleteLater();
                }
            }
            return;
        }
        if (answer != QMessageBox::Ok) {
            ReturnToScheduledMode();
            return;
        }
        table->ClearSchedule();
    }
    const bool isOn = m_ui->scheduledCaptureRadioButton->isChecked();
    m_ui->scheduledCaptureStackedWidget->setVisible(isOn);
    ApplyModeStyle(m_ui->scheduledCaptureRadioButtonFrame, isOn);
    if (isOn && IsFormOpen()) {
        // The tasks that the entered one was checked against may be gone.
        UpdateControlsState(ValidateRecord());
    }
}

QMessageBox::StandardButton RecordSchedulerWidget::AskToLeaveSchedule()
{
    auto box = std::make_unique<Zentor::Util::AlertBox>(
        Zentor::Util::AlertBox::Information, QString(),
        QCoreApplication::translate("RecordSchedulerWidget",
                                    "All tasks will be permanently deleted from the recording "
                                    "schedule. Are you sure you want to continue?"),
        QMessageBox::Ok | QMessageBox::Cancel, window(),
        Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    box->button(QMessageBox::Ok)
        ->setText(QCoreApplication::translate("RecordSchedulerWidget", "Continue"));
    return ModalQuestion::Ask(m_questions->leaveSchedule, std::move(box), this);
}

void RecordSchedulerWidget::ReturnToScheduledMode()
{
    m_ui->limitedCaptureDurationRadioButton->setChecked(false);
    m_ui->disableScheduledCaptureRadioButton->setChecked(false);
    m_ui->scheduledCaptureRadioButton->click();
}

void RecordSchedulerWidget::OnLimitedDurationChanged()
{
    auto* durationEdit = m_ui->limitedCaptureDurationSettingsCaptureDuration;
    const QSignalBlocker blocker(durationEdit);
    ClampDuration(*durationEdit);
    if (m_settingsWatcher) {
        m_settingsWatcher->OnLimitedCaptureDurationChanged(DurationOf(durationEdit->time()));
    }
}

void RecordSchedulerWidget::OnScheduleChanged()
{
    const auto* table = m_ui->scheduledCaptureSettingsRecordTableWidget;
    m_settingsWatcher->OnScheduleChanged(table->GetPreparedSchedule());
    m_settingsWatcher->OnScheduleStateChanged(!table->IsScheduleEmpty());
}

void RecordSchedulerWidget::OpenForm()
{
    QString name;
    try {
        name = m_ui->scheduledCaptureSettingsRecordTableWidget->GetDefaultTaskName();
    } catch (const std::runtime_error&) {
        // A title with a number that cannot be read leaves the name to the user.
    }
    auto* form = m_ui->createRecordTaskWidget;
    m_ui->scheduledCaptureStackedWidget->setCurrentWidget(form);
    {
        const QSignalBlocker blocker(form);
        form->ResetForm(name);
    }
    UpdateControlsState(ValidateRecord());
}

bool RecordSchedulerWidget::IsFormOpen() const
{
    return m_ui->scheduledCaptureStackedWidget->currentWidget() == m_ui->createRecordTaskWidget;
}

void RecordSchedulerWidget::ShowTable()
{
    m_ui->scheduledCaptureStackedWidget->setCurrentWidget(m_ui->scheduledCaptureRecordTablePage);
}

void RecordSchedulerWidget::UpdateControlsState(ValidateError error)
{
    m_ui->createRecordTaskWidget->ShowValidateError(error);
}

ValidateError RecordSchedulerWidget::ValidateRecord() const
{
    const auto* form = m_ui->createRecordTaskWidget;
    const auto* table = m_ui->scheduledCaptureSettingsRecordTableWidget;
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

void RecordSchedulerWidget::ScheduleNewRecord()
{
    if (!m_settingsWatcher) {
        return;
    }
    const auto* form = m_ui->createRecordTaskWidget;
    RecordTime record;
    record.duration = DurationOf(form->GetDuration());
    record.start = StartOf(form->GetStartDateTime());
    record.screenIndex = form->IsFullScreen() ? form->GetScreenIndex() : -1;
    record.finishAction = static_cast<PowerAction>(form->GetActionOnFinishIndex());
    record.title = form->GetTaskName();
    m_ui->scheduledCaptureSettingsRecordTableWidget->AddRecord(record);
    ShowTable();
}

bool RecordSchedulerWidget::ProcessUnsavedRecord()
{
    if (!IsFormOpen()) {
        return true;
    }
    const QPointer<RecordSchedulerWidget> self(this);
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

QMessageBox::StandardButton RecordSchedulerWidget::AskAboutUnsavedRecord()
{
    auto box = std::make_unique<Zentor::Util::AlertBox>(
        Zentor::Util::AlertBox::Question, QString(),
        QCoreApplication::translate("RecordSchedulerWidget",
                                    "The task hasn't been saved. Would you like to add this task "
                                    "to the recording schedule?"),
        QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, window(),
        Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    box->setObjectName(QStringLiteral("RecordSchedulerWidget_UnsavedRecordAlertBox"));
    box->setDefaultButton(QMessageBox::Cancel);
    box->button(QMessageBox::No)
        ->setText(QCoreApplication::translate("RecordSchedulerWidget", "Don't Add"));
    box->button(QMessageBox::Yes)
        ->setText(QCoreApplication::translate("RecordSchedulerWidget", "Add"));
    return ModalQuestion::Ask(m_questions->unsavedRecord, std::move(box), this);
}

bool RecordSchedulerWidget::ValidateSettings()
{
    if (!m_ui->scheduledCaptureRadioButton->isChecked()) {
        return true;
    }
    if (!ProcessUnsavedRecord()) {
        return false;
    }
    ioPath resultsFolder;
    resultsFolder = m_pathsSettings->GetResultsFolderPath().toStdString();
    const auto freeBytes = Zentor::Util::GetAvailableDiskSpace(resultsFolder);
    if (IsEnoughDiskSpace(freeBytes)) {
        return true;
    }
    LogLowDiskSpace(freeBytes);
    ShowDiskSpaceAlert();
    return false;
}

void RecordSchedulerWidget::ShowDiskSpaceAlert()
{
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
        window(), Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    for (QLabel* label : box->findChildren<QLabel*>()) {
        label->setTextInteractionFlags(Qt::LinksAccessibleByMouse);
        label->setOpenExternalLinks(false);
        connect(label, &QLabel::linkActivated, this,
                [this, alert = box.get()](const QString& link) {
                    if (link == FileSettingsLink()) {
                        alert->reject();
                        Q_EMIT OpenFilesSettingsRequested();
                    }
                });
    }
    auto* preferencesButton = box->button(QMessageBox::Ok);
    preferencesButton->setText(
        QCoreApplication::translate("CaptureControllerWrapper", "File Preferences"));
    connect(preferencesButton, &QAbstractButton::clicked, this,
            &RecordSchedulerWidget::OpenFilesSettingsRequested);
    ModalQuestion::Ask(m_questions->diskSpace, std::move(box), this);
}

void RecordSchedulerWidget::RestoreSettings()
{
    m_ui->limitedCaptureDurationSettingsActionOnFinishBox->setCurrentIndex(
        m_captureFinishActionSettings->GetCaptureFinishAction());
    m_ui->limitedCaptureDurationSettingsCaptureDuration->setTime(
        ClockReadingOf(m_schedulerSettings->GetLimitedCaptureDuration()));
    m_ui->scheduledCaptureSettingsRecordTableWidget->AddRecords(m_schedulerSettings->GetSchedule());

    const bool isScheduled = m_schedulerSettings->IsScheduledCaptureEnabled();
    const bool isLimited = m_schedulerSettings->IsLimitedCaptureEnabled();
    m_ui->disableScheduledCaptureRadioButton->setChecked(!isScheduled && !isLimited);
    m_ui->limitedCaptureDurationRadioButton->setChecked(isLimited);
    m_ui->scheduledCaptureRadioButton->setChecked(isScheduled);
}

void RecordSchedulerWidget::Retranslate()
{
    m_ui->retranslateUi();

    auto* finishActionBox = m_ui->limitedCaptureDurationSettingsActionOnFinishBox;
    const int index = finishActionBox->currentIndex();
    const QSignalBlocker blocker(finishActionBox);
    PX::UI::ClearAndFillPowerActionsComboBox(finishActionBox);
    finishActionBox->setCurrentIndex(index);
}

void RecordSchedulerWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        Retranslate();
    }
    QWidget::changeEvent(event);
}

void RecordSchedulerWidget::showEvent(QShowEvent* event)
{
    // A window that returns from its minimised state sends a spontaneous event; the panel was not
    // hidden then, and an open form stays open.
    if (!event->spontaneous()) {
        ShowTable();
    }
    QWidget::showEvent(event);
}

} // namespace Zentor::PX::Scheduler::UI
