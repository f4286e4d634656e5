// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <deque>
#include <functional>

#include <QDir>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QObject>
#include <QTimer>
#include <QVariant>

class QWidget;
class QWindow;

namespace Zentor::Desktop {

/// Walks through a window by mouse and keys, as a person would, and takes pictures on the way.
///
/// First the steps are written down; nothing happens then. Start() runs them one after another from
/// the event loop, so that they go on while a message box or a popup is open. Each step waits until
/// it can be taken; one that cannot within the timeout ends the tour with a message that
/// names it.
class ScreenshotTour : public QObject {
    Q_OBJECT

public:
    /// Takes pictures of \a window, which outlives the tour, and of the boxes and popups that lie
    /// on it. They are written into \a folder, which is created when it is missing.
    ScreenshotTour(QWidget& window, const QString& folder);
    ~ScreenshotTour() override;

    /// How long to wait for a step; ten seconds by default.
    void SetTimeout(std::chrono::milliseconds timeout);

    /// Waits until \a isReached. \a state names what is waited for, in the message of a failure.
    void WaitFor(const QString& state, std::function<bool()> isReached);
    /// Calls \a action, which \a what names.
    void Do(const QString& what, const std::function<void()>& action);
    /// Moves the mouse onto the widget called \a objectName, once it is on screen.
    void PointAt(const QString& objectName);
    /// Moves the mouse away from everything, to the lower right corner of the window.
    void PointAway();
    /// Clicks the widget called \a objectName, once it is on screen and enabled. Of several widgets
    /// of that name, the first one is meant.
    void Click(const QString& objectName);
    /// Clicks the entry with \a data in the list called \a objectName.
    void ClickEntry(const QString& objectName, const QVariant& data);
    /// Clicks \a button of the message box that is open.
    void ClickInBox(QMessageBox::StandardButton button);
    /// Presses and releases \a key in the widget that has the focus.
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Types \a text, character by character, into the widget that has the focus.
    void Type(const QString& text);
    /// Writes a picture of what is on screen, "\a name.png".
    void Picture(const QString& name);

    /// Shows the window and takes the steps.
    void Start();

Q_SIGNALS:
    /// The tour is over. \a problem says why it could not be finished; it is empty when it was.
    void Finished(const QString& problem);

private:
    struct Step {
        QString what;
        /// Takes the step and returns true, or returns false when it cannot be taken yet.
        std::function<bool()> take;
    };

    void AddStep(const QString& what, std::function<bool()> take);
    void TakeNextStep();
    void End(const QString& problem);
    bool IsReady() const;
    /// The window that the keyboard acts on: an open popup, or else the active window. Null while
    /// there is none yet.
    QWindow* KeyboardWindow();
    bool WritePicture(const QString& fileName);

    QWidget& m_window;
    QDir m_folder;
    std::deque<Step> m_steps;
    QTimer m_timer;
    QElapsedTimer m_waiting;
    std::chrono::milliseconds m_timeout{std::chrono::seconds(10)};
    QString m_problem;
};

} // namespace Zentor::Desktop
