// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

/// \file
/// Everything the scheduler widgets need of the application that hosts them.
///
/// The widgets only call what is declared here. A host implements it: this repository's reference
/// host does so under `Host/`, and an integrator may bring another one (CMake variable
/// `SCHEDULER_HOST_TARGET`). A host library has to run Qt's meta-object compiler on this header.
///
/// All calls are made on the GUI thread, and no operation is expected to throw unless it says so.
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

namespace UI {

/// Replaces the entries of \a comboBox by the translated names of all power actions, in the order
/// of PowerAction.
ZENTOR_HOST_API void ClearAndFillPowerActionsComboBox(QComboBox* comboBox);

/// Event filter that drops the wheel events of a widget.
class ZENTOR_HOST_API WheelEventsBlocker : public QObject {
    Q_OBJECT

public:
    /// Filters the events of \a watched, which becomes the owner.
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

/// Look and feel of the application.
class ZENTOR_HOST_API ILookAndFeelManager {
public:
    virtual ~ILookAndFeelManager() = default;

    /// The current interface language as a name that QLocale understands, such as "pt_BR".
    virtual std::string GetLanguage() const = 0;
};

/// Store of the confirmations that the user does not want to be asked for again.
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

/// An alert box with a check box by which the user has the accepting answer remembered.
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

    /// Text of the check box; without one there is no check box.
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

/// Sets the style property \a property of \a widget to \a style and polishes the widget again.
ZENTOR_HOST_API void ApplyWidgetStyle(QWidget* widget, const QString& style, const char* property);

} // namespace Util

/// Base by which a host's layout manager knows a widget. The widgets of this library call nothing
/// of it.
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

    /// Sets the text. A host may elide it where it does not fit.
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
