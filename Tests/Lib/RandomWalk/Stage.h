// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTimeEdit>
#include <QTimer>
#include <QToolButton>

#include "CreateRecordTaskWidget.h"
#include "FakeScreen.h"
#include "MarkingTranslator.h"
#include "Model.h"
#include "RecordSchedulerWidget.h"
#include "ScheduleRecordTableWidget.h"
#include "StandIns.h"

namespace Zentor::Tests::RandomWalk {

/// What the panel has reported, and gets back when it is restored.
struct Storage final : PX::SchedulerSettings,
                       PX::CaptureFinishActionSettings,
                       PX::ISettingsWatcher {
    bool IsLimitedCaptureEnabled() const override { return isLimited; }
    std::chrono::microseconds GetLimitedCaptureDuration() const override { return duration; }
    bool IsScheduledCaptureEnabled() const override { return isScheduled; }
    std::vector<PX::RecordTime> GetSchedule() const override { return schedule; }
    PX::PowerAction GetCaptureFinishAction() const override { return action; }

    void OnCaptureFinishActionChanged(int index) override { action = PX::PowerAction(index); }
    void OnLimitedCaptureStateChanged(bool enabled) override { isLimited = enabled; }
    void OnLimitedCaptureDurationChanged(const std::chrono::microseconds& value) override
    {
        duration = value;
    }
    void OnScheduleChanged(const std::vector<PX::RecordTime>& value) override { schedule = value; }
    void OnScheduleStateChanged(bool enabled) override { isScheduled = enabled; }

    QString Text() const;

    bool isLimited = false;
    std::chrono::microseconds duration{std::chrono::seconds(5)};
    bool isScheduled = false;
    std::vector<PX::RecordTime> schedule;
    PX::PowerAction action = PX::DoNothing;
};

/// The parts of a panel that are acted on or looked at.
struct Parts {
    explicit Parts(const QWidget& panel);

    QRadioButton* modes[3];
    QWidget* captions[3];
    QWidget* limitedFrame;
    QWidget* scheduledFrame;
    QWidget* limitedValues;
    QTimeEdit* limitedDuration;
    QComboBox* limitedAction;
    QStackedWidget* stack;
    PX::Scheduler::UI::ScheduleRecordTableWidget* table;
    QWidget* tableFrame;
    QPushButton* add;
    PX::Scheduler::UI::CreateRecordTaskWidget* form;
    QLineEdit* name;
    QDateTimeEdit* date;
    QTimeEdit* start;
    QTimeEdit* duration;
    QRadioButton* selectedArea;
    QRadioButton* fullScreen;
    QComboBox* screens;
    QComboBox* action;
    QPushButton* create;
    QPushButton* back;
    QTimer* timer;
};

/// A panel in a window, and everything that it has to do with.
class Stage {
public:
    Stage() { Restart(); }
    ~Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    /// Puts a new panel into a new window, which is not shown yet, and restores what is stored.
    void Restart();

    void Tick();
    void RestoreFromMinimised();
    void PlugScreen();
    void UnplugScreen(int index);

    QToolButton* DeleteButton(int row) const;
    Entry Entered() const;
    /// What is on display, line by line like Model::Shown().
    QStringList Shown() const;
    /// Broken promises of the fields; empty when there is none.
    QString BrokenLimits(const Model& model) const;

    std::unique_ptr<QWidget> window;
    PX::Scheduler::UI::RecordSchedulerWidget* panel = nullptr;
    std::unique_ptr<Parts> parts;
    std::shared_ptr<FakeSettingsManager> settingsManager = std::make_shared<FakeSettingsManager>();
    QList<FakeScreen*> screens;
    LanguageSwitch language;

private:
    QString Mode() const;
    QString Rows() const;
    QString Verdict() const;

    std::shared_ptr<Storage> m_storage = std::make_shared<Storage>();
    int m_fileSettingsRequests = 0;
};

} // namespace Zentor::Tests::RandomWalk
