// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <map>
#include <set>
#include <vector>

#include <QStringList>

#include "RunnerPorts.h"

namespace Zentor::Tests {

/// Everything outside a runner. It does nothing by itself, and writes down what it is told to do,
/// each time with the simulated second.
class FakePorts final : public Schedule::IRecorder,
                        public Schedule::IScreens,
                        public Schedule::IRecordings,
                        public Schedule::ISchedule,
                        public Schedule::IPower,
                        public Schedule::INotices {
public:
    /// The wall clock at second 0.
    static constexpr Schedule::Moment Begin{std::chrono::seconds(1'900'000'000)};

    Schedule::Instant now{Begin, std::chrono::seconds(10'000)};
    QStringList log;
    std::set<int> missingScreens;
    std::vector<PX::RecordTime> tasks;

    /// Seconds since Begin.
    static QString ToText(Schedule::Moment moment);
    static QString ToText(Schedule::Length length);
    static QString NameOf(PX::PowerAction action);
    /// The opposite of NameOf().
    static PX::PowerAction ActionOf(const QString& name);
    /// What is found as running at a start was running at a crash.
    void SettleRunning();

    void Prepare(Schedule::RecordingId id, const Schedule::RecordingPlan& plan) override;
    void Start(Schedule::RecordingId id, std::optional<Schedule::Moment> at,
               Schedule::Length length) override;
    void Stop(Schedule::RecordingId id) override;
    void Pause(Schedule::RecordingId id) override;
    void Resume(Schedule::RecordingId id) override;
    void Cancel(Schedule::RecordingId id) override;
    bool IsThere(int screenIndex) const override { return missingScreens.count(screenIndex) == 0; }
    QSize SizeOf(int /*screenIndex*/) const override { return {1920, 1080}; }
    EntryId Add(const Schedule::RecordingEntry& entry) override;
    void Update(EntryId id, const Schedule::RecordingEntry& entry) override;
    bool Contains(const QString& title, Schedule::Moment from, Schedule::Moment to) const override;
    void RemoveTask(const PX::RecordTime& task) override;
    void Ask(PX::PowerAction action) override;
    void Perform(PX::PowerAction action) override;
    void SetHeldAwake(bool isHeld) override;
    void Tell(const Schedule::Notice& notice) override;

private:
    void Log(const QString& text);
    static QString ToText(const Schedule::RecordingEntry& entry);

    std::vector<Schedule::RecordingEntry> m_entries;
};

} // namespace Zentor::Tests
