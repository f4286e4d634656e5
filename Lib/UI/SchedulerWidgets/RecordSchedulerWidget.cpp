#include "RecordSchedulerWidget.h"

#include <array>

#include <QAbstractButton>
#include <QButtonGroup>
#include <QComboBox>
#include <QCoreApplication>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QShowEvent>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QTimeEdit>

#include "DurationClamp.h"
#include "ModalQuestion.h"
#include "RecordSchedulerWidgetUi.h"
#include "ScheduleRecordTableWidget.h"

namespace Zentor::PX::Scheduler::UI {
namespace {

void ApplyModeStyle(QWidget* modeFrame, bool isActive)
{
    Zentor::Util::ApplyWidgetStyle(
        modeFrame, isActive ? QStringLiteral("Active") : QStringLiteral("Inactive"), "SubStyle");
}

} // namespace

RecordSchedulerWidget::RecordSchedulerWidget(
    const std::shared_ptr<App::ILookAndFeelManager>& /*lookAndFeel*/,
    const std::shared_ptr<App::ISettingsManager>& settingsManager, QWidget* parent)
    : ZFrame(parent, {})
    , m_ui(std::make_unique<RecordSchedulerWidgetUi>())
    , m_leaveScheduleQuestion(std::make_unique<ModalQuestion>())
{
    m_ui->setupUi(this, settingsManager);
    m_ui->limitedCaptureDurationSettingsFrame->hide();
    m_ui->scheduledCaptureStackedWidget->hide();
    ConnectControls();
    Retranslate();
}

RecordSchedulerWidget::~RecordSchedulerWidget()
{
    if (!m_leaveScheduleQuestion->IsOpen()) {
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

    m_ui->limitedCaptureDurationSettingsCaptureDuration->setTime(MinimumDuration);
    connect(m_ui->limitedCaptureDurationSettingsCaptureDuration, &QTimeEdit::timeChanged, this,
            [this] { OnLimitedDurationChanged(); });
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
    return ModalQuestion::Ask(*m_leaveScheduleQuestion, std::move(box), this);
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
        m_ui->scheduledCaptureStackedWidget->setCurrentWidget(
            m_ui->scheduledCaptureRecordTablePage);
    }
    QWidget::showEvent(event);
}

} // namespace Zentor::PX::Scheduler::UI
