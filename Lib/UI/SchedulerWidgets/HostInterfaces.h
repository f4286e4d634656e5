/// \file
/// Everything the scheduler widgets need of the application that hosts them.
///
/// The widgets only call what is declared here. A host implements it: this repository's reference
/// host does so under `Host/`, and an integrator may bring another one (CMake variable
/// `SCHEDULER_HOST_TARGET`). A host library has to run Qt's meta-object compiler on this header.
///
/// All calls are made on the GUI thread, and no operation is expected to throw unless it says so.
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <QFrame>
#include <QLabel>
#include <QMessageBox>
#include <QString>

class QAbstractButton;
class QComboBox;
class QValidator;

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
    /// How long it records; from zero up to 23:59:59 when it comes from the task form.
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

/// Is told when the user chooses what to do at the end of a capture.
class ZENTOR_HOST_API IFinishActionWatcher {
public:
    virtual ~IFinishActionWatcher() = default;

    /// \a index is the chosen PowerAction.
    virtual void OnCaptureFinishActionChanged(int index) = 0;
};

/// Is told when the user changes the limited capture.
class ZENTOR_HOST_API ILimitedCaptureWatcher {
public:
    virtual ~ILimitedCaptureWatcher() = default;

    virtual void OnLimitedCaptureStateChanged(bool enabled) = 0;
    /// \a duration is at least five seconds and below 24 hours.
    virtual void OnLimitedCaptureDurationChanged(const std::chrono::microseconds& duration) = 0;
};

/// Is told when the schedule changes; the two are always called together, in this order.
class ZENTOR_HOST_API IScheduleWatcher {
public:
    virtual ~IScheduleWatcher() = default;

    /// \a schedule is the whole new schedule, in display order.
    virtual void OnScheduleChanged(const std::vector<RecordTime>& schedule) = 0;
    /// \a enabled is whether the schedule holds at least one task.
    virtual void OnScheduleStateChanged(bool enabled) = 0;
};

/// Receives every change that the user makes in the panel, at once.
class ZENTOR_HOST_API ISettingsWatcher : public IFinishActionWatcher,
                                         public ILimitedCaptureWatcher,
                                         public IScheduleWatcher { };

namespace UI {

/// Replaces the entries of \a comboBox by the translated names of all power actions, in the order
/// of PowerAction.
ZENTOR_HOST_API void ClearAndFillPowerActionsComboBox(QComboBox* comboBox);

/// Keeps the mouse wheel from the widget that it watches.
class ZENTOR_HOST_API WheelEventsBlocker : public QObject {
    Q_OBJECT

public:
    /// Starts watching \a watched, which becomes the owner.
    explicit WheelEventsBlocker(QWidget* watched);

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace UI

namespace Scheduler::UI {

/// Why a record cannot be added to the schedule.
enum ValidateError {
    /// It can be added.
    NoError = 0,
    /// Its title is empty, or white space only.
    EmptyTitle,
    /// The schedule already holds a task with this title.
    TitleAlreadyExists,
    /// Its time span overlaps a scheduled task.
    CaptureTimeIntersected
};

} // namespace Scheduler::UI

} // namespace PX

namespace App {

/// Tells how the application looks and speaks.
class ZENTOR_HOST_API ILookAndFeelManager {
public:
    virtual ~ILookAndFeelManager() = default;

    /// The current interface language as a name that QLocale understands, such as "pt_BR".
    virtual std::string GetLanguage() const = 0;
};

/// Remembers the questions that the user does not want to be asked again.
class ZENTOR_HOST_API ISettingsManager {
public:
    virtual ~ISettingsManager() = default;

    /// Whether the question \a confirmationId was answered for good; false unless it was.
    virtual bool IsConfirmed(const QString& confirmationId) const = 0;
    virtual void SetConfirmed(const QString& confirmationId, bool confirmed) = 0;
};

} // namespace App

namespace Util {

/// A message box in the look of the application.
class ZENTOR_HOST_API AlertBox : public QMessageBox {
    Q_OBJECT

public:
    enum Level { Information, Warning, Question };

    AlertBox(Level level, const QString& title, const QString& text,
             QMessageBox::StandardButtons buttons, QWidget* parent, Qt::WindowFlags flags);

    /// Shows the box, waits for the answer and returns it. Closing the box in any other way than by
    /// a button answers as Cancel, and so does deleting it while it is open. Nothing touches the
    /// box after it was deleted.
    virtual QMessageBox::StandardButton Exec();
};

} // namespace Util

namespace App {

/// An alert box whose accepting answer the user can have remembered.
class ZENTOR_HOST_API ConfirmationAlertBox : public Util::AlertBox {
    Q_OBJECT

public:
    /// Remembered answers are kept in \a settingsManager.
    ConfirmationAlertBox(std::shared_ptr<ISettingsManager> settingsManager, Level level,
                         const QString& title, const QString& text,
                         QMessageBox::StandardButtons buttons, QWidget* parent,
                         Qt::WindowFlags flags);

    /// Names the question. Without a name no answer is remembered.
    void SetConfirmationId(const QString& confirmationId);

    /// Adds a check box with this text, with which the user has the accepting answer remembered.
    void SetConfirmationText(const QString& text);

    /// Answers with the accepting button without showing the box when that answer was remembered,
    /// otherwise as AlertBox::Exec(). The answer is remembered only when the user accepts with the
    /// box ticked.
    QMessageBox::StandardButton Exec() override;

private:
    std::shared_ptr<ISettingsManager> m_settingsManager;
    QString m_confirmationId;
};

} // namespace App

namespace Util {

/// Free bytes for the user on the volume that holds \a path; negative when it cannot be told.
ZENTOR_HOST_API std::int64_t GetAvailableDiskSpace(const ioPath& path);

/// A new validator that accepts only text usable as a file name; \a parent owns it.
ZENTOR_HOST_API QValidator* GetFilenameValidator(QObject* parent);

/// Sets the style property \a property of \a widget to \a style and has the style sheet applied
/// anew.
ZENTOR_HOST_API void ApplyWidgetStyle(QWidget* widget, const QString& style, const char* property);

} // namespace Util

/// What a host's layout manager knows a laid out widget by. The widgets of this library call
/// nothing of it.
class ZENTOR_HOST_API AbstractLayoutController {
public:
    virtual ~AbstractLayoutController() = default;
};

/// The frame that all blocks of the panel are made of.
class ZENTOR_HOST_API ZFrame : public QFrame, public AbstractLayoutController {
    Q_OBJECT

public:
    explicit ZFrame(QWidget* parent = nullptr, Qt::WindowFlags flags = {});
};

/// A label that shows its text literally, never as markup.
class ZENTOR_HOST_API ZLabel : public QLabel {
    Q_OBJECT

public:
    explicit ZLabel(QWidget* parent = nullptr, Qt::WindowFlags flags = {});

    /// Sets the text. A host may show it shortened where it does not fit.
    void setOriginalText(const QString& text);
    /// The whole text, as it was set.
    QString originalText() const;
};

namespace Util {

/// Makes \a label the caption of \a button: clicking it clicks the button, and the button takes its
/// accessible name from it.
ZENTOR_HOST_API void bindWidgets(QWidget* label, QAbstractButton* button);

/// A new empty frame for the style sheet to draw and size; \a parent owns it.
ZENTOR_HOST_API QFrame* createSpacer(QWidget* parent, const QString& objectName);

} // namespace Util

} // namespace Zentor
