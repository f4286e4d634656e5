// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "CreateRecordTaskWidget.h"

#include <chrono>
#include <initializer_list>

#include <QCalendarWidget>
#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QSignalBlocker>
#include <QTimeEdit>
#include <QTimer>
#include <QTimeZone>
#include <QToolTip>

#include "ClockChanges.h"
#include "CreateRecordTaskUi.h"
#include "DurationClamp.h"
#include "LeftToRightEditor.h"
#include "SeparatorKeyFilter.h"
#include "TypingKeeper.h"

namespace Zentor::PX::Scheduler::UI {
namespace {

constexpr int MaximumNameLength = 100;
constexpr std::chrono::milliseconds StartTimeCheckInterval(300);
constexpr qint64 SecondsToNextStart = 10;
constexpr int ErrorTipMilliseconds = 10000;

/// Moves a time editor to \a moment, with \a minimum as its new minimum.
///
/// setDateTime() would drag the old limits along with a new date and clamp it to them. A range of
/// one moment moves the editor at once, with one signal, and keeps apart the two moments of a
/// reading that is repeated when daylight saving time (DST) ends.
void MoveTo(QDateTimeEdit& editor, const QDateTime& moment, const QDateTime& minimum)
{
    editor.setDateTimeRange(moment, moment);
    editor.setDateTimeRange(minimum, moment.date().endOfDay());
}

/// Sets the date editor to the date of \a moment.
///
/// The editor keeps the hidden time of day. On a date on which DST skips that time, early in the
/// morning, it would show the day before: these hours give way to noon in zones with transitions.
void SetDateOf(QDateTimeEdit& editor, const QDateTime& moment)
{
    const QTime morning(4, 0);
    const QTime noon(12, 0);
    const bool maySkip = moment.time() < morning && moment.timeZone().hasTransitions();
    editor.setDateTime(maySkip ? QDateTime(moment.date(), noon) : moment);
}

/// The names of the screens without the prefix of device names.
QStringList ScreenNames()
{
    QStringList names;
    const auto screens = QGuiApplication::screens();
    for (const QScreen* screen : screens) {
        names << screen->name().remove(QLatin1String(R"(\\.\)"));
    }
    return names;
}

QString MessageOf(ValidateError error)
{
    switch (error) {
    case EmptyTitle:
        return QCoreApplication::translate("CreateRecordTaskWidget", "Need select task name");
    case TitleAlreadyExists:
        return QCoreApplication::translate("CreateRecordTaskWidget",
                                           "Task with this title already exist");
    case CaptureTimeIntersected:
        return QCoreApplication::translate(
            "CreateRecordTaskWidget",
            "Curent capture time intersect with other capture time in the list");
    case NoError:
        break;
    }
    return {};
}

/// Error tool tip of \a field: hidden, as Qt leaves it on screen when its text is cleared.
void HideErrorTip(const QWidget& field)
{
    if (!field.toolTip().isEmpty() && QToolTip::text() == field.toolTip()) {
        QToolTip::hideText();
    }
}

} // namespace

CreateRecordTaskWidget::CreateRecordTaskWidget(
    const std::shared_ptr<App::ILookAndFeelManager>& lookAndFeel, QWidget* parent)
    : ZFrame(parent, {})
    , m_ui(std::make_unique<CreateRecordTaskUi>(lookAndFeel))
{
    m_ui->setupUi(this);
    PrepareInfoButton();
    PrepareEditors();
    SetTexts();
    LimitFields();
    ConnectScreens();
    ConnectFields();
    StartTimer();
    UpdateScreenList();
    Retranslate();
}

CreateRecordTaskWidget::~CreateRecordTaskWidget() = default;

void CreateRecordTaskWidget::PrepareInfoButton()
{
    auto* infoButton = m_ui->scheduledCaptureSettingsSelectedAreaInfoButton;
    connect(infoButton, &QPushButton::clicked, infoButton, [infoButton] {
        QToolTip::showText(infoButton->mapToGlobal(QPoint(0, 0)), infoButton->toolTip());
    });
    Zentor::Util::ApplyWidgetStyle(infoButton, QStringLiteral("QuestionButton"), "SubStyle");
}

/// Runs before SetTexts(): the order of the sections takes effect with the display format.
void CreateRecordTaskWidget::PrepareEditors()
{
    m_ui->scheduledCaptureSettingsDate->setCalendarPopup(true);
    const std::initializer_list<QDateTimeEdit*> editors{m_ui->scheduledCaptureSettingsDate,
                                                        m_ui->scheduledCaptureSettingsStartTime,
                                                        m_ui->scheduledCaptureSettingsDuration};
    for (auto* editor : editors) {
        KeepLeftToRight(*editor);
        new SeparatorKeyFilter(editor);
    }
    // Qt 6 has a time-only editor count in UTC, which knows nothing of DST.
    m_ui->scheduledCaptureSettingsDate->setTimeSpec(Qt::LocalTime);
    m_ui->scheduledCaptureSettingsStartTime->setTimeSpec(Qt::LocalTime);
}

void CreateRecordTaskWidget::LimitFields()
{
    const QDateTime now = QDateTime::currentDateTime();

    m_ui->scheduledCaptureSettingsNameLineEdit->setMaxLength(MaximumNameLength);
    m_ui->scheduledCaptureSettingsNameLineEdit->setValidator(
        Zentor::Util::GetFilenameValidator(this));
    m_ui->scheduledCaptureSettingsDuration->setTime(MinimumDuration);
    MoveTo(*m_ui->scheduledCaptureSettingsStartTime, now, now);
    SetDateOf(*m_ui->scheduledCaptureSettingsDate, now);
    m_ui->scheduledCaptureSettingsDate->setMinimumDateTime(now.date().startOfDay());

    m_ui->scheduledCaptureSettingsFullScreenAreaButton->setChecked(true);
    m_ui->scheduledCaptureSettingsScreenSelectBox->setEnabled(true);
}

void CreateRecordTaskWidget::ConnectScreens()
{
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, [this] { UpdateScreenList(); });
    connect(qGuiApp, &QGuiApplication::screenAdded, this, [this] { UpdateScreenList(); });
    // The primary screen is the first of the list.
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, [this] { UpdateScreenList(); });
}

void CreateRecordTaskWidget::ConnectFields()
{
    connect(m_ui->scheduledCaptureSettingsNameLineEdit, &QLineEdit::textChanged, this,
            [this] { Q_EMIT TaskNameChanged(); });
    connect(m_ui->scheduledCaptureSettingsDate, &QDateTimeEdit::dateChanged, this,
            [this](const QDate& date) { MoveStartToDate(date); });
    connect(m_ui->scheduledCaptureSettingsStartTime, &QTimeEdit::dateTimeChanged, this,
            [this] { Q_EMIT RecordStartTimeChanged(); });
    connect(m_ui->scheduledCaptureSettingsDuration, &QTimeEdit::timeChanged, this,
            [this] { OnDurationChanged(); });
    connect(m_ui->scheduledCaptureSettingsFullScreenAreaButton, &QRadioButton::toggled,
            m_ui->scheduledCaptureSettingsScreenSelectBox, &QWidget::setEnabled);
    connect(m_ui->scheduledCaptureSettingsBackButton, &QPushButton::clicked, this,
            &CreateRecordTaskWidget::BackButtonClicked);
    connect(m_ui->scheduledCaptureSettingsCreateButton, &QPushButton::clicked, this,
            &CreateRecordTaskWidget::CreateTaskButtonClicked);
}

void CreateRecordTaskWidget::StartTimer()
{
    auto* timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, [this] {
        UpdateStartTimeLimits();
        UpdateScreenNames();
    });
    timer->start(StartTimeCheckInterval);
}

void CreateRecordTaskWidget::ResetForm(const QString& taskName)
{
    m_ui->scheduledCaptureSettingsNameLineEdit->setText(taskName);
    m_ui->scheduledCaptureSettingsActionOnFinishBox->setCurrentIndex(0);
    m_ui->scheduledCaptureSettingsFullScreenAreaButton->setChecked(true);
    const auto primary =
        static_cast<int>(QGuiApplication::screens().indexOf(QGuiApplication::primaryScreen()));
    m_ui->scheduledCaptureSettingsScreenSelectBox->setCurrentIndex(qMax(0, primary));
}

void CreateRecordTaskWidget::ShowValidateError(ValidateError error)
{
    if (!isVisible()) {
        return;
    }
    QWidget* const nameField = m_ui->scheduledCaptureSettingsNameLineEdit;
    QWidget* const startField = m_ui->scheduledCaptureSettingsStartTime;
    QWidget* const invalidField = FieldOf(error);
    for (QWidget* field : {nameField, startField}) {
        Zentor::Util::ApplyWidgetStyle(field, QStringLiteral("Normal"), "SubStyle");
    }
    for (QWidget* field : {startField, nameField}) {
        // Hiding takes a while, and would take the next tip of the same field along.
        if (field != invalidField) {
            HideErrorTip(*field);
        }
        field->setToolTip(QString());
    }
    if (invalidField != nullptr) {
        const QString message = MessageOf(error);
        Zentor::Util::ApplyWidgetStyle(invalidField, QStringLiteral("Invalid"), "SubStyle");
        invalidField->setToolTip(message);
        QToolTip::showText(mapToGlobal(invalidField->pos()), message, invalidField, QRect(),
                           ErrorTipMilliseconds);
    }
    m_ui->scheduledCaptureSettingsCreateButton->setEnabled(error == NoError);
}

QWidget* CreateRecordTaskWidget::FieldOf(ValidateError error) const
{
    switch (error) {
    case EmptyTitle:
    case TitleAlreadyExists:
        return m_ui->scheduledCaptureSettingsNameLineEdit;
    case CaptureTimeIntersected:
        return m_ui->scheduledCaptureSettingsStartTime;
    case NoError:
        break;
    }
    return nullptr;
}

QString CreateRecordTaskWidget::GetTaskName() const
{
    return m_ui->scheduledCaptureSettingsNameLineEdit->text().trimmed();
}

QDateTime CreateRecordTaskWidget::GetStartDateTime() const
{
    return m_ui->scheduledCaptureSettingsStartTime->dateTime();
}

QTime CreateRecordTaskWidget::GetDuration() const
{
    return m_ui->scheduledCaptureSettingsDuration->time();
}

bool CreateRecordTaskWidget::IsFullScreen() const
{
    return m_ui->scheduledCaptureSettingsFullScreenAreaButton->isChecked();
}

int CreateRecordTaskWidget::GetScreenIndex() const
{
    return m_ui->scheduledCaptureSettingsScreenSelectBox->currentIndex();
}

int CreateRecordTaskWidget::GetActionOnFinishIndex() const
{
    return m_ui->scheduledCaptureSettingsActionOnFinishBox->currentIndex();
}

void CreateRecordTaskWidget::SetTexts()
{
    m_ui->retranslateUi();
    const auto* date = m_ui->scheduledCaptureSettingsDate;
    if (!date->calendarPopup()) {
        return;
    }
    const auto lookAndFeel = m_ui->lookAndFeel;
    // There is no calendar when a translated display format has no date in it.
    if (auto* calendar = date->calendarWidget()) {
        calendar->setLocale(QLocale(QString::fromStdString(lookAndFeel->GetLanguage())));
        calendar->adjustSize();
    }
}

void CreateRecordTaskWidget::Retranslate()
{
    auto* date = m_ui->scheduledCaptureSettingsDate;
    auto* startTime = m_ui->scheduledCaptureSettingsStartTime;
    // A display format resets the limits of an editor, and with them its value.
    const QSignalBlocker dateBlocker(date);
    const QSignalBlocker startTimeBlocker(startTime);
    const QDateTime day = date->dateTime();
    const QDateTime firstDay = date->minimumDateTime();
    const QDateTime start = startTime->dateTime();
    const QDateTime earliestStart = startTime->minimumDateTime();
    SetTexts();
    date->setDateTime(day);
    date->setMinimumDateTime(firstDay);
    MoveTo(*startTime, start, earliestStart);

    auto* finishActionBox = m_ui->scheduledCaptureSettingsActionOnFinishBox;
    const int index = finishActionBox->currentIndex();
    const QSignalBlocker finishActionBlocker(finishActionBox);
    PX::UI::ClearAndFillPowerActionsComboBox(finishActionBox);
    finishActionBox->setCurrentIndex(index);
}

void CreateRecordTaskWidget::UpdateScreenList()
{
    auto* box = m_ui->scheduledCaptureSettingsScreenSelectBox;
    const QSignalBlocker blocker(box);
    const QStringList names = ScreenNames();
    box->clear();
    for (const QString& name : names) {
        box->insertItem(box->count(), name);
    }
    box->setVisible(names.size() > 1);
}

void CreateRecordTaskWidget::UpdateScreenNames()
{
    // A screen that loses its output may stay under another name, without a signal.
    auto* box = m_ui->scheduledCaptureSettingsScreenSelectBox;
    const QStringList names = ScreenNames();
    if (names.size() != box->count()) {
        return;
    }
    const QSignalBlocker blocker(box);
    for (int index = 0; index < names.size(); ++index) {
        if (box->itemText(index) != names.at(index)) {
            box->setItemText(index, names.at(index));
        }
    }
}

void CreateRecordTaskWidget::UpdateStartTimeLimits()
{
    auto* startTime = m_ui->scheduledCaptureSettingsStartTime;
    const QDateTime now = QDateTime::currentDateTime();
    const QDateTime start = startTime->dateTime();
    if (start < now) {
        const TypingKeeper keeper(*startTime);
        MoveTo(*startTime, now.addSecs(SecondsToNextStart), now);
    } else if (m_ui->scheduledCaptureSettingsDate->date() >= now.date()) {
        return;
    }
    // An open calendar is not disturbed. A day that has passed meanwhile is moved once it closes.
    if (!IsCalendarOpen()) {
        MoveDateToStart(now.date());
    }
}

void CreateRecordTaskWidget::MoveDateToStart(const QDate& today)
{
    auto* date = m_ui->scheduledCaptureSettingsDate;
    const TypingKeeper keeper(*date);
    SetDateOf(*date, m_ui->scheduledCaptureSettingsStartTime->dateTime());
    // In some zones the day on which DST starts begins later than midnight.
    date->setMinimumDateTime(today.startOfDay());
}

void CreateRecordTaskWidget::MoveStartToDate(const QDate& date)
{
    auto* startTime = m_ui->scheduledCaptureSettingsStartTime;
    if (startTime->date() != date) {
        const QDateTime minimum = startTime->minimumDateTime();
        MoveTo(*startTime, qMax(MomentOf(date, startTime->time()), minimum), minimum);
    }
    Q_EMIT RecordDateChanged();
}

void CreateRecordTaskWidget::OnDurationChanged()
{
    auto* duration = m_ui->scheduledCaptureSettingsDuration;
    const QSignalBlocker blocker(duration);
    ClampDuration(*duration);
    Q_EMIT RecordDurationChanged();
}

bool CreateRecordTaskWidget::IsCalendarOpen() const
{
    auto* date = m_ui->scheduledCaptureSettingsDate;
    if (!date->calendarPopup()) {
        return false;
    }
    const auto* calendar = date->calendarWidget();
    return calendar != nullptr && calendar->isVisible();
}

void CreateRecordTaskWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        Retranslate();
    }
    QWidget::changeEvent(event);
}

} // namespace Zentor::PX::Scheduler::UI
