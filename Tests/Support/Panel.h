// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTimeEdit>

#include "CreateRecordTaskWidget.h"
#include "PanelParts.h"
#include "RecordSchedulerWidget.h"
#include "Samples.h"
#include "ScheduleRecordTableWidget.h"
#include "StandIns.h"

namespace Zentor::Tests {

using PX::Scheduler::UI::CreateRecordTaskWidget;
using PX::Scheduler::UI::RecordSchedulerWidget;
using PX::Scheduler::UI::ScheduleRecordTableWidget;

/// The panel in a window of its own with settings and a watcher, and short ways to its parts.
struct Panel {
    Panel()
        : window(std::make_unique<QWidget>())
        , widget(new RecordSchedulerWidget(lookAndFeel, settingsManager, window.get()))
    {
        widget->SetSchedulerSettings(settings);
        widget->SetCaptureFinishActionSettings(finishAction);
        widget->SetPathSettings(paths);
        widget->SetSettingsWatcher(watcher);
    }

    template <typename Widget> Widget* Find(const QString& name) const
    {
        return widget->findChild<Widget*>(name);
    }

    QRadioButton* None() const { return Find<QRadioButton>(Desktop::PanelPart::OffModeButton); }
    QRadioButton* Limited() const
    {
        return Find<QRadioButton>(Desktop::PanelPart::LimitedModeButton);
    }
    QRadioButton* Scheduled() const
    {
        return Find<QRadioButton>(Desktop::PanelPart::ScheduledModeButton);
    }
    QWidget* LimitedValues() const { return Find<QWidget>(Desktop::PanelPart::LimitedSettings); }
    QStackedWidget* Stack() const { return Find<QStackedWidget>(Desktop::PanelPart::Stack); }
    QTimeEdit* Duration() const
    {
        return Find<QTimeEdit>(Desktop::PanelPart::LimitedDurationField);
    }
    QComboBox* FinishAction() const
    {
        return Find<QComboBox>(Desktop::PanelPart::LimitedActionBox);
    }
    ScheduleRecordTableWidget* Table() const
    {
        return widget->findChild<ScheduleRecordTableWidget*>();
    }

    CreateRecordTaskWidget* Form() const
    {
        return Find<CreateRecordTaskWidget>(Desktop::PanelPart::Form);
    }
    bool IsFormOpen() const { return Stack()->currentWidget() == Form(); }
    QPushButton* Add() const { return Find<QPushButton>(Desktop::PanelPart::AddButton); }
    QPushButton* Create() const { return Find<QPushButton>(Desktop::PanelPart::CreateButton); }
    QPushButton* Back() const { return Find<QPushButton>(Desktop::PanelPart::BackButton); }
    QLineEdit* Name() const { return Find<QLineEdit>(Desktop::PanelPart::NameField); }
    QDateTimeEdit* Date() const { return Find<QDateTimeEdit>(Desktop::PanelPart::DateField); }
    QTimeEdit* StartTime() const { return Find<QTimeEdit>(Desktop::PanelPart::StartField); }
    QTimeEdit* FormDuration() const { return Find<QTimeEdit>(Desktop::PanelPart::DurationField); }

    /// Opens the form and fills it with a task on 1 March 2030 that starts at \a start.
    void FillForm(const QString& name, const QTime& start,
                  const QTime& duration = QTime(0, 1)) const
    {
        Add()->click();
        Name()->setText(name);
        Date()->setDate(QDate(2030, 3, 1));
        StartTime()->setTime(start);
        FormDuration()->setTime(duration);
    }

    QString Titles() const
    {
        QStringList titles;
        for (const auto& record : Table()->GetPreparedSchedule()) {
            titles << record.title;
        }
        return titles.join(QLatin1Char(','));
    }

    /// Which mode buttons are checked and what is visible, as in "limited+values".
    QString Mode() const
    {
        QStringList parts;
        const auto add = [&](bool condition, const char* name) {
            if (condition) {
                parts << QString::fromLatin1(name);
            }
        };
        add(None()->isChecked(), "none");
        add(Limited()->isChecked(), "limited");
        add(Scheduled()->isChecked(), "scheduled");
        add(!LimitedValues()->isHidden(), "values");
        add(!Stack()->isHidden(), "stack");
        return parts.join(QLatin1Char('+'));
    }

    /// The styles of the limited and the scheduled row, as in "Active/Inactive"; "-" for none.
    QString Styles() const
    {
        const auto style = [&](const QString& name) {
            const auto value = Find<QWidget>(name)->property("SubStyle");
            return value.isValid() ? value.toString() : QStringLiteral("-");
        };
        return style("limitedCaptureDurationRadioButtonFrame") + '/'
            + style("scheduledCaptureRadioButtonFrame");
    }

    /// Restores \a titles, one task of a minute each hour from 10:00 on 1 March 2030, in the
    /// scheduled mode, and forgets the calls.
    void RestoreScheduled(const QStringList& titles)
    {
        settings->scheduled = true;
        for (int i = 0; i < titles.size(); ++i) {
            settings->schedule.push_back(
                Record(titles.at(i), At("10:00") + std::chrono::hours(i), std::chrono::minutes(1)));
        }
        widget->RestoreSettings();
        watcher->TakeCalls();
    }

    std::shared_ptr<FakeLookAndFeelManager> lookAndFeel =
        std::make_shared<FakeLookAndFeelManager>();
    std::shared_ptr<FakeSettingsManager> settingsManager = std::make_shared<FakeSettingsManager>();
    std::shared_ptr<FakeSchedulerSettings> settings = std::make_shared<FakeSchedulerSettings>();
    std::shared_ptr<FakeFinishActionSettings> finishAction =
        std::make_shared<FakeFinishActionSettings>();
    std::shared_ptr<FakePathsSettings> paths = std::make_shared<FakePathsSettings>();
    std::shared_ptr<RecordingWatcher> watcher = std::make_shared<RecordingWatcher>();
    std::unique_ptr<QWidget> window;
    RecordSchedulerWidget* widget;
};

} // namespace Zentor::Tests
