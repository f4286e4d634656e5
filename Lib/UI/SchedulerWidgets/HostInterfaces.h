// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

/// \file
/// Everything the scheduler widgets need of the application that hosts them.
///
/// The widgets only call what is declared here. A host implements it: this repository's reference
/// host does so under `Host/`, and an integrator may bring another one (CMake variable
/// `SCHEDULER_HOST_TARGET`). A host library has to run Qt's meta-object compiler on this header:
/// five of the classes below have `Q_OBJECT`.
///
/// All calls are made on the GUI thread, and no operation is expected to throw unless it says so:
/// what a host throws goes through Qt, which does not expect it either.
#pragma once

#include <memory>
#include <string>

#include <QFrame>
#include <QLabel>
#include <QMessageBox>
#include <QString>

#include "HostData.h"

class QAbstractButton;
class QComboBox;
class QValidator;

namespace Zentor {

namespace PX {

/// Controls that know the values of Zentor::PX.
namespace UI {

/// Replaces the entries of \a comboBox by the translated names of all power actions, in the order
/// of PowerAction.
///
/// The panel blocks the signals of the box meanwhile and puts its choice back. It calls this for
/// each of its two boxes once while it is built and once for each change of language.
ZENTOR_HOST_API void ClearAndFillPowerActionsComboBox(QComboBox* comboBox);

/// Event filter that drops the wheel events of a widget.
class ZENTOR_HOST_API WheelEventsBlocker : public QObject {
    Q_OBJECT

public:
    /// Filters the events of \a watched, which becomes the owner.
    explicit WheelEventsBlocker(QWidget* watched);

    /// Consumes \a event when it is a wheel event; passes every other on to \a watched.
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace UI

/// \namespace Zentor::PX::Scheduler
/// The scheduler's user interface.

/// The panel.
namespace Scheduler::UI {

/// Why a record cannot be added to the schedule. The checks are made in this order, and the first
/// that fails decides.
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

/// The application as a whole: language, remembered answers.
namespace App {

/// Look and feel of the application.
class ZENTOR_HOST_API ILookAndFeelManager {
public:
    /// Runs when the panel and the host have released their shares.
    virtual ~ILookAndFeelManager() = default;

    /// The current interface language as a name that QLocale understands, such as "pt_BR", for the
    /// calendar of the task form. Asked while the panel is built and whenever it gets a
    /// `QEvent::LanguageChange`, so it has to be the new language by then. What QLocale does not
    /// understand gives a calendar in English.
    virtual std::string GetLanguage() const = 0;
};

/// Store of the confirmations that the user does not want to be asked for again.
///
/// The panel only hands it to each ConfirmationAlertBox that it creates; whether and when it is
/// called is up to that.
class ZENTOR_HOST_API ISettingsManager {
public:
    /// Runs when the panel and the host have released their shares.
    virtual ~ISettingsManager() = default;

    /// Whether the question \a confirmationId was answered for good; false unless it was.
    virtual bool IsConfirmed(const QString& confirmationId) const = 0;
    /// Stores whether the question \a confirmationId is answered for good from now on:
    /// \a confirmed. The panel's only question has the name "remove_schedule_record_always".
    virtual void SetConfirmed(const QString& confirmationId, bool confirmed) = 0;
};

} // namespace App

/// Small services of the host.
namespace Util {

/// A message box in the look of the application.
///
/// The panel creates one for each question, on the heap and with the panel's window as parent, sets
/// the texts of its standard buttons, runs it once and deletes it. It relies on
/// QMessageBox::button() and QDialog::reject(), and on a QLabel among the children to show the text
/// and its link.
class ZENTOR_HOST_API AlertBox : public QMessageBox {
    Q_OBJECT

public:
    /// What the box is for; a host shows it by an icon, or not at all.
    enum Level {
        /// Something to know. Level of the question whether to leave the schedule.
        Information,
        /// Something that does not work. Level of the alert about too little disk space.
        Warning,
        /// Something to decide. Level of the questions about an unsaved and a deleted task.
        Question
    };

    /// Creates a box, which is not shown yet, with the standard buttons \a buttons. It shows
    /// \a level, \a title, which is empty for the boxes of the panel, and \a text, which may have
    /// an HTML link in it; \a parent is its owner, \a flags are for its window.
    AlertBox(Level level, const QString& title, const QString& text,
             QMessageBox::StandardButtons buttons, QWidget* parent, Qt::WindowFlags flags);

    /// Shows the box, waits for the answer and returns it. Closing the box in any other way than by
    /// a button answers as Cancel, and so does deleting it while it is open. Nothing touches the
    /// box after it was deleted.
    ///
    /// Everything else runs on meanwhile: another box may be opened on top, and the window that the
    /// box belongs to may be deleted.
    virtual QMessageBox::StandardButton Exec();
};

} // namespace Util

namespace App {

/// An alert box with a check box by which the user has the accepting answer remembered.
class ZENTOR_HOST_API ConfirmationAlertBox : public Util::AlertBox {
    Q_OBJECT

public:
    /// Creates a box as AlertBox does with \a level, \a title, \a text, \a buttons, \a parent and
    /// \a flags. Remembered answers are kept in \a settingsManager, of which it has a share.
    ConfirmationAlertBox(std::shared_ptr<ISettingsManager> settingsManager, Level level,
                         const QString& title, const QString& text,
                         QMessageBox::StandardButtons buttons, QWidget* parent,
                         Qt::WindowFlags flags);

    /// Names the question \a confirmationId, under which its answer is stored. Without a name no
    /// answer is remembered.
    void SetConfirmationId(const QString& confirmationId);

    /// Sets \a text of the check box; without this call there is no check box.
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

/// Free bytes for the user on the volume that holds \a path; negative when it cannot be told, which
/// the panel takes for too little.
///
/// \a path is the results folder. It may not exist yet (its parents tell then) or be empty. The
/// caller waits on the GUI thread: a host answers soon, or runs an event loop, or gives up.
ZENTOR_HOST_API std::int64_t GetAvailableDiskSpace(const ioPath& path);

/// A new validator that accepts only text usable as a file name; \a parent owns it. What it refuses
/// cannot be typed or pasted as the name of a task. It has to accept an empty text, by which a name
/// begins; null stands for no rule. Called once for each panel.
ZENTOR_HOST_API QValidator* GetFilenameValidator(QObject* parent);

/// Sets the dynamic property \a property of \a widget to \a style and applies the style sheet to
/// the widget anew, so that rules such as `[SubStyle="Hover"]` take effect at once.
///
/// \a property is "SubStyle". Called five times for each row that the mouse enters or leaves, and
/// at least twice for each key in the task form, mostly with the style that the widget has already:
/// do nothing then, for polishing is slow.
ZENTOR_HOST_API void ApplyWidgetStyle(QWidget* widget, const QString& style, const char* property);

} // namespace Util

/// Base by which a host's layout manager knows a widget. The widgets of this library call nothing
/// of it.
class ZENTOR_HOST_API AbstractLayoutController {
public:
    /// Destroys the widget, when it is deleted as such.
    virtual ~AbstractLayoutController() = default;
};

/// The frame that all blocks of the panel are made of, and the panel, the task form and the
/// schedule table themselves.
class ZENTOR_HOST_API ZFrame : public QFrame, public AbstractLayoutController {
    Q_OBJECT

public:
    /// Creates a frame as QFrame does, inside \a parent, which owns it, or as a window with
    /// \a flags.
    explicit ZFrame(QWidget* parent = nullptr, Qt::WindowFlags flags = {});
};

/// A label that shows its text literally, never as markup.
class ZENTOR_HOST_API ZLabel : public QLabel {
    Q_OBJECT

public:
    /// Creates an empty label as QLabel does, inside \a parent, which owns it, or as a window with
    /// \a flags.
    explicit ZLabel(QWidget* parent = nullptr, Qt::WindowFlags flags = {});

    /// Sets \a text. A host may elide it where it does not fit, so that QLabel::text() differs.
    void setOriginalText(const QString& text);
    /// The whole text, as it was set; empty at first.
    QString originalText() const;
};

namespace Util {

/// Makes \a label the caption of \a button: clicking it clicks the button, and the button takes its
/// accessible name from it. Both stay with their owners, and either may be deleted first.
///
/// Called for each of the three modes, once, while the panel is built. The texts of the captions
/// are set later, and again when the language changes: the accessible name has to follow.
ZENTOR_HOST_API void bindWidgets(QWidget* label, QAbstractButton* button);

/// A new empty frame called \a objectName for the style sheet to draw and size; \a parent owns it.
/// The panel adds it to a layout of \a parent. Called twice, while the panel is built.
ZENTOR_HOST_API QFrame* createSpacer(QWidget* parent, const QString& objectName);

} // namespace Util

} // namespace Zentor
