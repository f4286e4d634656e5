// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "Stage.h"
#include "PanelParts.h"

#include <QLabel>
#include <QLayout>
#include <QScreen>
#include <QScrollArea>
#include <QtTest>
#include <QVBoxLayout>

namespace Zentor::Tests::RandomWalk {
namespace {

using PX::Scheduler::UI::CreateRecordTaskWidget;
using PX::Scheduler::UI::RecordSchedulerWidget;
using PX::Scheduler::UI::ScheduleRecordTableWidget;

template <typename Part> Part* Find(const QWidget& panel, const QString& name)
{
    return panel.findChild<Part*>(name);
}

template <typename Part> Part* FindEntry(const QWidget& panel, const QString& name)
{
    return panel.findChild<Part*>(QLatin1String("scheduledCaptureSettings") + name);
}

QLatin1String YesNo(bool value)
{
    return QLatin1String(value ? "yes" : "no");
}

QTime ClockReading(std::chrono::microseconds duration)
{
    return QTime(0, 0).addMSecs(int(duration.count() / 1000));
}

QString StyleOf(const QWidget* widget)
{
    return widget->property("SubStyle").toString();
}

Task TaskOf(const PX::RecordTime& record)
{
    Task task;
    task.title = record.title;
    task.start = record.start.time_since_epoch().count() / 1000000;
    task.seconds = int(record.duration.count() / 1000000);
    task.screenIndex = record.screenIndex;
    task.finishAction = record.finishAction;
    return task;
}

} // namespace

QString Storage::Text() const
{
    QStringList tasks;
    for (const auto& record : schedule) {
        tasks << RandomWalk::Text(TaskOf(record));
    }
    return "limited " + YesNo(isLimited) + " for " + RandomWalk::Text(ClockReading(duration))
        + " then " + QString::number(action) + ", scheduled " + YesNo(isScheduled) + ' '
        + tasks.join(", ");
}

Parts::Parts(const QWidget& panel)
    : modes{Find<QRadioButton>(panel, Desktop::PanelPart::OffModeButton),
            Find<QRadioButton>(panel, Desktop::PanelPart::LimitedModeButton),
            Find<QRadioButton>(panel, Desktop::PanelPart::ScheduledModeButton)}
    , captions{Find<QWidget>(panel, "disableScheduledCaptureLabel"),
               Find<QWidget>(panel, "limitedCaptureDurationLabel"),
               Find<QWidget>(panel, "scheduledCaptureLabel")}
    , limitedFrame(Find<QWidget>(panel, "limitedCaptureDurationRadioButtonFrame"))
    , scheduledFrame(Find<QWidget>(panel, "scheduledCaptureRadioButtonFrame"))
    , limitedValues(Find<QWidget>(panel, Desktop::PanelPart::LimitedSettings))
    , limitedDuration(Find<QTimeEdit>(panel, Desktop::PanelPart::LimitedDurationField))
    , limitedAction(Find<QComboBox>(panel, Desktop::PanelPart::LimitedActionBox))
    , stack(Find<QStackedWidget>(panel, Desktop::PanelPart::Stack))
    , table(panel.findChild<ScheduleRecordTableWidget*>())
    , tableFrame(table->findChild<QScrollArea*>()->widget())
    , add(FindEntry<QPushButton>(panel, "AddRecordButton"))
    , form(panel.findChild<CreateRecordTaskWidget*>())
    , name(FindEntry<QLineEdit>(panel, "NameLineEdit"))
    , date(FindEntry<QDateTimeEdit>(panel, "Date"))
    , start(FindEntry<QTimeEdit>(panel, "StartTime"))
    , duration(FindEntry<QTimeEdit>(panel, "Duration"))
    , selectedArea(FindEntry<QRadioButton>(panel, "SelectedAreaButton"))
    , fullScreen(FindEntry<QRadioButton>(panel, "FullScreenAreaButton"))
    , screens(FindEntry<QComboBox>(panel, "ScreenSelectBox"))
    , action(FindEntry<QComboBox>(panel, "ActionOnFinishBox"))
    , create(FindEntry<QPushButton>(panel, "CreateButton"))
    , back(FindEntry<QPushButton>(panel, "BackButton"))
    , timer(form->findChild<QTimer*>(QString(), Qt::FindDirectChildrenOnly))
{
}

Stage::~Stage()
{
    window.reset();
    while (!screens.isEmpty()) {
        UnplugScreen(0);
    }
}

void Stage::Restart()
{
    window = std::make_unique<QWidget>();
    panel = new RecordSchedulerWidget(std::make_shared<FakeLookAndFeelManager>(), settingsManager,
                                      window.get());
    (new QVBoxLayout(window.get()))->addWidget(panel);
    parts = std::make_unique<Parts>(*panel);
    // As a style sheet does, so that rows are on screen.
    parts->table->findChild<QScrollArea*>()->setWidgetResizable(true);
    // The walk alone says when it goes off.
    parts->timer->setInterval(std::chrono::hours(24));

    m_fileSettingsRequests = 0;
    QObject::connect(panel, &RecordSchedulerWidget::OpenFilesSettingsRequested, panel,
                     [this] { ++m_fileSettingsRequests; });
    panel->SetSchedulerSettings(m_storage);
    panel->SetCaptureFinishActionSettings(m_storage);
    panel->SetPathSettings(std::make_shared<FakePathsSettings>());
    panel->SetSettingsWatcher(m_storage);
    panel->RestoreSettings();
}

void Stage::Tick()
{
    QTimerEvent timeout(parts->timer->timerId());
    QCoreApplication::sendEvent(parts->timer, &timeout);
}

void Stage::RestoreFromMinimised()
{
    QShowEvent restored;
    QSpontaneKeyEvent::setSpontaneous(&restored);
    qApp->notify(panel, &restored);
}

void Stage::PlugScreen()
{
    screens << Plug(QStringLiteral("DP-%1").arg(screens.size() + 1));
}

void Stage::UnplugScreen(int index)
{
    Unplug(screens.takeAt(index));
}

QToolButton* Stage::DeleteButton(int row) const
{
    return parts->tableFrame->layout()->itemAt(row)->widget()->findChild<QToolButton*>();
}

Entry Stage::Entered() const
{
    Entry entry;
    entry.name = parts->name->text();
    entry.start = parts->start->dateTime();
    entry.duration = parts->duration->time();
    entry.isFullScreen = parts->fullScreen->isChecked();
    entry.screenIndex = parts->screens->currentIndex();
    entry.finishAction = parts->action->currentIndex();
    return entry;
}

QString Stage::Mode() const
{
    QStringList texts;
    const char* names[] = {"none", "limited", "scheduled"};
    for (int i = 0; i < 3; ++i) {
        if (parts->modes[i]->isChecked()) {
            texts << QString::fromLatin1(names[i]);
        }
    }
    if (!parts->limitedValues->isHidden()) {
        texts << QStringLiteral("values");
    }
    if (!parts->stack->isHidden()) {
        texts << QStringLiteral("stack");
    }
    return texts.join(' ');
}

QString Stage::Rows() const
{
    QStringList rows;
    const QLayout* layout = parts->tableFrame->layout();
    for (int i = 0; i < layout->count(); ++i) {
        const QWidget* row = layout->itemAt(i)->widget();
        if (row == nullptr || row->isHidden()) {
            continue;
        }
        if (row->objectName() == Desktop::PanelPart::PlaceholderRow) {
            rows << QStringLiteral("placeholder");
            continue;
        }
        QStringList texts;
        for (const QString& name : {Desktop::PanelPart::RowTitle, Desktop::PanelPart::RowDate,
                                    Desktop::PanelPart::RowTime, Desktop::PanelPart::RowDuration}) {
            texts << Find<ZLabel>(*row, name)->originalText();
        }
        rows << texts.join('|');
    }
    return rows.join(", ");
}

QString Stage::Verdict() const
{
    QStringList texts;
    const auto mark = [&](const QWidget* field, const char* text) {
        const bool isMarked = StyleOf(field) == QLatin1String("Invalid");
        if (isMarked) {
            texts << QString::fromLatin1(text);
        }
        if (isMarked == field->toolTip().isEmpty()) {
            texts << QStringLiteral("wrong tip");
        }
    };
    mark(parts->name, "name marked");
    mark(parts->start, "start marked");
    if (parts->create->isEnabled()) {
        texts << QStringLiteral("fine");
    }
    return texts.join(", ");
}

QStringList Stage::Shown() const
{
    const auto number = [](int value) { return QString::number(value); };
    return {
        "mode: " + Mode(),
        "styles: " + StyleOf(parts->limitedFrame) + '/' + StyleOf(parts->scheduledFrame),
        "page: " + QString(parts->stack->currentWidget() == parts->form ? "form" : "table"),
        "values: " + Text(parts->limitedDuration->time()) + " then "
            + number(parts->limitedAction->currentIndex()),
        "rows: " + Rows(),
        "height: " + number(parts->table->height()),
        "stored: " + m_storage->Text(),
        "deletion remembered: "
            + YesNo(settingsManager->IsConfirmed(QStringLiteral("remove_schedule_record_always"))),
        "form: " + Text(Entered()),
        "screens: " + number(parts->screens->count()) + " shown "
            + YesNo(!parts->screens->isHidden()) + " enabled " + YesNo(parts->screens->isEnabled()),
        "verdict: " + Verdict(),
        "translated: " + YesNo(parts->add->text().startsWith('~')),
        "file settings requested: " + number(m_fileSettingsRequests),
    };
}

QString Stage::BrokenLimits(const Model& model) const
{
    const QTime shortest(0, 0, 5);
    QStringList broken;
    const auto demand = [&](bool condition, const char* text) {
        if (!condition) {
            broken << QString::fromLatin1(text);
        }
    };
    demand(parts->limitedDuration->time() >= shortest, "limited duration below five seconds");
    demand(parts->duration->time() >= shortest, "duration below five seconds");
    demand(parts->start->dateTime() >= model.earliestStart, "start too early");
    demand(parts->date->date() == parts->start->date(), "two dates");
    return broken.join(", ");
}

} // namespace Zentor::Tests::RandomWalk
