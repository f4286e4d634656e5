// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

/// \file
/// The part of the host's contract that needs Qt Core alone: records, clock, path, schedule and
/// settings objects.
///
/// Code that keeps or runs a schedule without a window includes this; the panel's hosts include
/// HostInterfaces.h, which includes it.
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <QString>

#if defined(ZENTOR_HOST_STATIC)
#define ZENTOR_HOST_API
#elif defined(ZENTOR_HOST_LIBRARY)
#define ZENTOR_HOST_API Q_DECL_EXPORT
#else
#define ZENTOR_HOST_API Q_DECL_IMPORT
#endif

namespace Zentor {

template <typename Pointer> class NotNull;

/// A shared pointer that is never null.
///
/// It can be copied but not moved from: a moved-from holder would be an empty one.
template <typename T> class NotNull<std::shared_ptr<T>> {
public:
    /// Takes a share of what \a pointer points to.
    /// \throws std::logic_error "NotNull can not initialized by null" when \a pointer is null; the
    /// share taken so far is released first.
    template <typename U, typename = std::enable_if_t<std::is_convertible_v<U*, T*>>>
    NotNull(std::shared_ptr<U> pointer) // NOLINT(google-explicit-constructor): meant to be implicit
        : m_pointer(std::move(pointer))
    {
        if (!m_pointer) {
            throw std::logic_error("NotNull can not initialized by null");
        }
    }

    NotNull(const NotNull&) = default;
    NotNull& operator=(const NotNull&) = default;
    ~NotNull() = default;

    T* operator->() const noexcept { return m_pointer.get(); }
    T& operator*() const noexcept { return *m_pointer; }

    /// The pointer held; never null.
    const std::shared_ptr<T>& Get() const noexcept { return m_pointer; }

private:
    std::shared_ptr<T> m_pointer;
};

/// A file-system path, kept independent of how the platform encodes it. Empty by default.
class ZENTOR_HOST_API ioPath {
public:
    ioPath() = default;

    /// Takes over a path given in UTF-8.
    ioPath& operator=(const std::string& utf8Path);

    /// The path in UTF-8.
    std::string ToUtf8() const;

private:
    std::string m_utf8Path;
};

namespace Time {

/// A source of time points; counts microseconds since the Unix epoch.
class ZENTOR_HOST_API IClock {
public:
    using duration = std::chrono::microseconds;
    using rep = duration::rep;
    using period = duration::period;
    using time_point = std::chrono::time_point<IClock, duration>;

    virtual ~IClock() = default;

    /// The present moment.
    virtual time_point Now() const = 0;
};

/// The clock of the operating system.
class ZENTOR_HOST_API SystemClock final : public IClock {
public:
    time_point Now() const override;

    /// The time point \a seconds after the Unix epoch (before it, when negative).
    time_point FromTimeT(std::int64_t seconds) const;
};

} // namespace Time

namespace PX {

/// The shortest duration that a user can give a capture; inclusive.
inline constexpr std::chrono::seconds ShortestCaptureDuration{5};

/// The limit that the duration of a capture stays below, as it is entered and shown as a time of
/// day; exclusive.
inline constexpr std::chrono::hours CaptureDurationLimit{24};

/// What to do when a capture has ended.
///
/// The value of an entry is its index in every combo box that
/// UI::ClearAndFillPowerActionsComboBox() fills.
enum PowerAction : std::int32_t {
    DoNothing = 0,
    QuitApplication,
    Sleep,
    Hibernate,
    Restart,
    ShutDown
};

/// One scheduled recording.
struct RecordTime {
    /// Name of the task, without white space at its ends; unique within a schedule.
    QString title;
    /// When the recording starts, in whole seconds.
    Time::IClock::time_point start;
    /// How long it records. From the task form: at least ShortestCaptureDuration and below
    /// CaptureDurationLimit.
    std::chrono::microseconds duration{0};
    /// Index of the screen to capture in full, or -1 for the selected area.
    std::int32_t screenIndex = -1;
    /// What to do when the capture ends.
    PowerAction finishAction = DoNothing;
};

/// The schedule: tasks in display order, each with a title of its own, none overlapping another.
class ZENTOR_HOST_API SchedulerHelper {
public:
    /// Creates an empty schedule.
    SchedulerHelper();
    ~SchedulerHelper();
    SchedulerHelper(const SchedulerHelper&) = delete;
    SchedulerHelper& operator=(const SchedulerHelper&) = delete;

    /// Adds \a record and returns its position in GetPreparedSchedule(), counted from 0.
    /// A negative result means that the record was refused and the schedule is as it was.
    int AddRecord(const RecordTime& record);

    /// Removes the task called \a title; does nothing when there is none.
    void RemoveRecord(const QString& title);

    /// Removes every task.
    void ClearSchedule();

    /// Whether a task with exactly this title is scheduled.
    bool DoesTitleAlreadyExists(const QString& title) const;

    /// Whether the span of \a record overlaps a scheduled task.
    /// Only its `start` and `duration` are looked at.
    bool DoesCaptureTimeIntersected(const RecordTime& record) const;

    /// Every task, in display order.
    std::vector<RecordTime> GetPreparedSchedule() const;

    /// Number of tasks; 0 means that the schedule is empty.
    std::uint64_t GetRecordCount() const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

/// Stored settings of the limited capture, which stops after a set duration.
class ZENTOR_HOST_API ILimitedCaptureSettings {
public:
    virtual ~ILimitedCaptureSettings() = default;

    /// Whether the capture is limited.
    virtual bool IsLimitedCaptureEnabled() const = 0;
    /// How long a limited capture runs.
    virtual std::chrono::microseconds GetLimitedCaptureDuration() const = 0;
};

/// Stored settings of the scheduled capture.
class ZENTOR_HOST_API IScheduleSettings {
public:
    virtual ~IScheduleSettings() = default;

    /// Whether captures are scheduled.
    virtual bool IsScheduledCaptureEnabled() const = 0;
    /// The stored tasks.
    virtual std::vector<RecordTime> GetSchedule() const = 0;
};

/// How recording is timed. The capture mode is not a value of its own: both flags off means that
/// capture is not scheduled, and when both are on the schedule counts.
class ZENTOR_HOST_API SchedulerSettings : public ILimitedCaptureSettings,
                                          public IScheduleSettings { };

/// The stored action for the end of a capture.
class ZENTOR_HOST_API CaptureFinishActionSettings {
public:
    virtual ~CaptureFinishActionSettings() = default;

    virtual PowerAction GetCaptureFinishAction() const = 0;
};

/// Where recordings are kept.
class ZENTOR_HOST_API PathsSettings {
public:
    virtual ~PathsSettings() = default;

    /// The folder in which output videos are written.
    virtual QString GetResultsFolderPath() const = 0;
};

/// Observer of the action at the end of a capture.
class ZENTOR_HOST_API IFinishActionWatcher {
public:
    virtual ~IFinishActionWatcher() = default;

    /// \a index is the chosen PowerAction.
    virtual void OnCaptureFinishActionChanged(int index) = 0;
};

/// Observer of the limited capture.
class ZENTOR_HOST_API ILimitedCaptureWatcher {
public:
    virtual ~ILimitedCaptureWatcher() = default;

    virtual void OnLimitedCaptureStateChanged(bool enabled) = 0;
    /// \a duration is at least ShortestCaptureDuration and below CaptureDurationLimit.
    virtual void OnLimitedCaptureDurationChanged(const std::chrono::microseconds& duration) = 0;
};

/// Observer of the schedule; the two are always called together, in this order.
class ZENTOR_HOST_API IScheduleWatcher {
public:
    virtual ~IScheduleWatcher() = default;

    /// \a schedule is the whole new schedule, in display order.
    virtual void OnScheduleChanged(const std::vector<RecordTime>& schedule) = 0;
    /// \a enabled is whether the schedule holds at least one task.
    virtual void OnScheduleStateChanged(bool enabled) = 0;
};

/// Observer of every change that the user makes in the panel, at once.
class ZENTOR_HOST_API ISettingsWatcher : public IFinishActionWatcher,
                                         public ILimitedCaptureWatcher,
                                         public IScheduleWatcher { };

} // namespace PX

} // namespace Zentor
