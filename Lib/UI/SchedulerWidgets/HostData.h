// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

/// \file
/// The part of the host's contract that needs Qt Core alone: records, clock, path, schedule and
/// settings objects.
///
/// Code that keeps or runs a schedule without a window includes this; the panel's hosts include
/// HostInterfaces.h, which includes it.
///
/// Nothing here locks: an object is used on one thread at a time. The panel uses all of them on the
/// GUI thread.
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

/// \def ZENTOR_HOST_API
/// Export of what a host defines. By default the host is a shared library that is used; it defines
/// `ZENTOR_HOST_LIBRARY` while it is compiled itself. For a static host `ZENTOR_HOST_STATIC` is
/// defined everywhere, where the host is compiled and where it is used.
#if defined(ZENTOR_HOST_STATIC)
#define ZENTOR_HOST_API
#elif defined(ZENTOR_HOST_LIBRARY)
#define ZENTOR_HOST_API Q_DECL_EXPORT
#else
#define ZENTOR_HOST_API Q_DECL_IMPORT
#endif

/// The panel and all that it needs of a host.
namespace Zentor {

/// A pointer that is never null. There is one of std::shared_ptr only.
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

    /// Takes a share of the same object. There is no move: it copies, too.
    NotNull(const NotNull&) = default;
    /// Takes a share of the same object, then releases the one held so far.
    NotNull& operator=(const NotNull&) = default;
    /// Releases the share.
    ~NotNull() = default;

    /// The members of the object.
    T* operator->() const noexcept { return m_pointer.get(); }
    /// The object.
    T& operator*() const noexcept { return *m_pointer; }

    /// The pointer held; never null. Valid as long as this holder; copy it to keep a share.
    const std::shared_ptr<T>& Get() const noexcept { return m_pointer; }

private:
    std::shared_ptr<T> m_pointer;
};

/// A file-system path, kept independent of how the platform encodes it. Empty by default.
class ZENTOR_HOST_API ioPath {
public:
    /// An empty path.
    ioPath() = default;

    /// Takes over a path given in UTF-8, as it is: whether it is one is not checked.
    ioPath& operator=(const std::string& utf8Path);

    /// The path in UTF-8; empty when none was given.
    std::string ToUtf8() const;

private:
    std::string m_utf8Path;
};

/// Moments and clocks.
namespace Time {

/// A source of time points; counts microseconds since the Unix epoch, in UTC.
///
/// Its types have the names by which `<chrono>` finds those of a clock.
class ZENTOR_HOST_API IClock {
public:
    /// Microseconds, in 64 bits with a sign: 292,000 years either way.
    using duration = std::chrono::microseconds;
    /// Type of the count.
    using rep = duration::rep;
    /// Unit of the count: a millionth of a second.
    using period = duration::period;
    /// A moment, as its distance from the Unix epoch (1970-01-01 00:00:00 UTC).
    using time_point = std::chrono::time_point<IClock, duration>;

    /// Destroys the clock; time points do not need it.
    virtual ~IClock() = default;

    /// The present moment.
    virtual time_point Now() const = 0;
};

/// The clock of the operating system. It has no state: any number of them are the same, and they
/// may be used on any thread.
class ZENTOR_HOST_API SystemClock final : public IClock {
public:
    /// The present moment; it jumps when the clock of the machine is set.
    time_point Now() const override;

    /// The time point \a seconds after the Unix epoch (before it, when negative). What is beyond
    /// the range of a time point gives its first or last whole second. The panel passes 0 to 2^32
    /// - 1.
    time_point FromTimeT(std::int64_t seconds) const;
};

} // namespace Time

/// What is recorded and when: tasks, schedule, settings.
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
    /// The program and the machine go on.
    DoNothing = 0,
    /// The application ends.
    QuitApplication,
    /// The machine is suspended to memory.
    Sleep,
    /// The machine is suspended to disk.
    Hibernate,
    /// The machine is started anew.
    Restart,
    /// The machine is switched off.
    ShutDown
};

/// One scheduled recording.
struct RecordTime {
    /// Name of the task, without white space at its ends; unique within a schedule. From the task
    /// form: 1 to 100 characters that the host's GetFilenameValidator() does not refuse.
    QString title;
    /// When the recording starts, in whole seconds. From the task form: now at the earliest, give
    /// or take a second, and 2106-02-07 06:28:15 UTC, where 32 bits end, at the latest.
    Time::IClock::time_point start;
    /// How long it records. From the task form: at least ShortestCaptureDuration and below
    /// CaptureDurationLimit, in whole seconds.
    std::chrono::microseconds duration{0};
    /// Index in QGuiApplication::screens() of the screen to capture in full, or -1 for the selected
    /// area. The index is that of the moment at which the task was entered.
    std::int32_t screenIndex = -1;
    /// What to do when the capture ends.
    PowerAction finishAction = DoNothing;
};

/// The schedule: tasks in display order, each with a title of its own, none overlapping another.
///
/// The panel has one of its own, which lives as long as the panel and is the only one to hold what
/// the list shows. Which order is the display order, and whether spans that only touch overlap, is
/// the host's to decide; in the reference host tasks are ordered by start, and touching is allowed.
class ZENTOR_HOST_API SchedulerHelper {
public:
    /// Creates an empty schedule.
    SchedulerHelper();
    /// Forgets the tasks; nothing is stored.
    ~SchedulerHelper();
    /// A schedule is not copied: GetPreparedSchedule() has its tasks.
    SchedulerHelper(const SchedulerHelper&) = delete;
    /// A schedule is not copied.
    SchedulerHelper& operator=(const SchedulerHelper&) = delete;

    /// Adds \a record and returns its position in GetPreparedSchedule(), counted from 0: the panel
    /// inserts the row exactly there.
    ///
    /// A negative result means that the record was refused and the schedule is as it was. The panel
    /// then shows no row and tells nobody, so refuse only what the two questions below refuse, and
    /// what no form enters. The reference host refuses an empty title, a negative duration, a title
    /// that is there and a span that overlaps.
    int AddRecord(const RecordTime& record);

    /// Removes the task called \a title; does nothing when there is none.
    void RemoveRecord(const QString& title);

    /// Removes every task.
    void ClearSchedule();

    /// Whether a task with exactly the title \a title is scheduled, case included.
    bool DoesTitleAlreadyExists(const QString& title) const;

    /// Whether the span of \a record overlaps a scheduled task.
    /// Only its `start` and `duration` are looked at: the panel asks with an empty title.
    bool DoesCaptureTimeIntersected(const RecordTime& record) const;

    /// A copy of every task, in display order.
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
    /// Runs when the panel and the host have released their shares.
    virtual ~ILimitedCaptureSettings() = default;

    /// Whether the capture is limited.
    virtual bool IsLimitedCaptureEnabled() const = 0;
    /// How long a limited capture runs; the panel shows whole seconds. One below
    /// ShortestCaptureDuration is raised to it; one that is negative, or not below
    /// CaptureDurationLimit, is passed over.
    virtual std::chrono::microseconds GetLimitedCaptureDuration() const = 0;
};

/// Stored settings of the scheduled capture.
class ZENTOR_HOST_API IScheduleSettings {
public:
    /// Runs when the panel and the host have released their shares.
    virtual ~IScheduleSettings() = default;

    /// Whether captures are scheduled. Without it the panel takes in the tasks, too, but is in
    /// another mode and does not show them.
    virtual bool IsScheduledCaptureEnabled() const = 0;
    /// The stored tasks, in any order. Each is offered to SchedulerHelper::AddRecord() in turn, and
    /// with each the watcher gets the tasks so far. One that is refused is neither shown nor
    /// reported.
    virtual std::vector<RecordTime> GetSchedule() const = 0;
};

/// How recording is timed. The capture mode is not a value of its own: both flags off means that
/// capture is not scheduled, and when both are on the schedule counts.
///
/// The panel asks in RecordSchedulerWidget::RestoreSettings() only, once for each value.
class ZENTOR_HOST_API SchedulerSettings : public ILimitedCaptureSettings,
                                          public IScheduleSettings { };

/// The stored action for the end of a capture.
class ZENTOR_HOST_API CaptureFinishActionSettings {
public:
    /// Runs when the panel and the host have released their shares.
    virtual ~CaptureFinishActionSettings() = default;

    /// What to do when a limited capture ends; tasks have an action of their own. A value that is
    /// no index of the combo box leaves it without a choice. The panel asks in
    /// RecordSchedulerWidget::RestoreSettings() only, once.
    virtual PowerAction GetCaptureFinishAction() const = 0;
};

/// Where recordings are kept.
class ZENTOR_HOST_API PathsSettings {
public:
    /// Runs when the panel and the host have released their shares.
    virtual ~PathsSettings() = default;

    /// The folder in which output videos are written, as an absolute path. It need not exist. The
    /// panel asks once in each RecordSchedulerWidget::ValidateSettings() that gets as far as the
    /// disk space.
    virtual QString GetResultsFolderPath() const = 0;
};

/// Observer of the action at the end of a capture.
class ZENTOR_HOST_API IFinishActionWatcher {
public:
    /// Runs when the panel and the host have released their shares.
    virtual ~IFinishActionWatcher() = default;

    /// \a index is the PowerAction chosen for the limited capture; -1 when a stored one that is no
    /// entry of the combo box takes a choice away, and on Qt 6 also where there was none. Not
    /// called for the action of a task, nor for a change of language.
    virtual void OnCaptureFinishActionChanged(int index) = 0;
};

/// Observer of the limited capture.
class ZENTOR_HOST_API ILimitedCaptureWatcher {
public:
    /// Runs when the panel and the host have released their shares.
    virtual ~ILimitedCaptureWatcher() = default;

    /// \a enabled is whether the mode is on: called when it is chosen, and when it is left. On the
    /// way from the scheduled mode it is called after the user was asked about the tasks; where
    /// that is refused, twice with false.
    virtual void OnLimitedCaptureStateChanged(bool enabled) = 0;
    /// \a duration is at least ShortestCaptureDuration and below CaptureDurationLimit, in whole
    /// seconds as the user enters it, in milliseconds as it was restored. Called with each key that
    /// changes it. An entry that is corrected to the shortest duration is reported as such, even
    /// when that was the duration before.
    virtual void OnLimitedCaptureDurationChanged(const std::chrono::microseconds& duration) = 0;
};

/// Observer of the schedule; the two are always called together, in this order.
class ZENTOR_HOST_API IScheduleWatcher {
public:
    /// Runs when the panel and the host have released their shares.
    virtual ~IScheduleWatcher() = default;

    /// \a schedule is the whole new schedule, in display order. Called once for each task that was
    /// added or deleted, and once when all are cleared. Restoring settings adds task by task: a
    /// watcher that stores what it gets sees the first task alone before it sees all of them.
    virtual void OnScheduleChanged(const std::vector<RecordTime>& schedule) = 0;
    /// \a enabled is whether the schedule holds at least one task, whatever the mode. There is no
    /// other report of the scheduled mode: choosing it while the list is empty reports nothing.
    virtual void OnScheduleStateChanged(bool enabled) = 0;
};

/// Observer of every change that the user makes in the panel, at once, on the GUI thread. What it
/// is told is what to store: there is no call that ends a series of changes.
class ZENTOR_HOST_API ISettingsWatcher : public IFinishActionWatcher,
                                         public ILimitedCaptureWatcher,
                                         public IScheduleWatcher { };

} // namespace PX

} // namespace Zentor
