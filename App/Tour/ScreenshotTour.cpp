// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "ScreenshotTour.h"

#include <utility>

#include <QAbstractButton>
#include <QApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QListWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QWindow>

#include "CoreInt/Printable.h"

namespace Zentor::Desktop {
namespace {

constexpr int StepMilliseconds = 20;

QWidget* FindShown(const QString& objectName)
{
    const auto windows = QApplication::topLevelWidgets();
    for (const QWidget* window : windows) {
        const auto candidates = window->findChildren<QWidget*>(objectName);
        for (QWidget* candidate : candidates) {
            if (candidate->isVisible()) {
                return candidate;
            }
        }
    }
    return nullptr;
}

QWindow* HandleOf(const QWidget& widget)
{
    return widget.window()->windowHandle();
}

void PostMouse(const QWidget& widget, QEvent::Type type, QPoint point, Qt::MouseButton button)
{
    const QPoint inWindow = widget.mapTo(widget.window(), point);
    const auto buttons = type == QEvent::MouseButtonPress ? Qt::MouseButtons(button) : Qt::NoButton;
    QCoreApplication::postEvent(HandleOf(widget),
                                new QMouseEvent(type, inWindow, inWindow, widget.mapToGlobal(point),
                                                button, buttons, Qt::NoModifier));
}

void MoveTo(const QWidget& widget, QPoint point)
{
    QCursor::setPos(widget.mapToGlobal(point));
    // Some platforms do not let a program move the pointer.
    PostMouse(widget, QEvent::MouseMove, point, Qt::NoButton);
}

/// A widget whose click opens a box is not told on every platform that the mouse has left it since.
void ClearHover()
{
    const auto widgets = QApplication::allWidgets();
    for (QWidget* widget : widgets) {
        if (widget->underMouse()) {
            QEvent leave(QEvent::Leave);
            QCoreApplication::sendEvent(widget, &leave);
            widget->setAttribute(Qt::WA_UnderMouse, false);
            widget->update();
        }
    }
}

/// Posted, not sent: a click that opens a box returns only when the box is closed.
void ClickAt(const QWidget& widget, QPoint point)
{
    MoveTo(widget, point);
    PostMouse(widget, QEvent::MouseButtonPress, point, Qt::LeftButton);
    PostMouse(widget, QEvent::MouseButtonRelease, point, Qt::LeftButton);
}

void PostKey(QWindow* window, int key, Qt::KeyboardModifiers modifiers, const QString& text)
{
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QCoreApplication::postEvent(window, new QKeyEvent(type, key, modifiers, text));
    }
}

} // namespace

QWindow* ScreenshotTour::KeyboardWindow()
{
    const QWidget* popup = QApplication::activePopupWidget();
    const QWidget* active = popup != nullptr ? popup : QApplication::activeWindow();
    if (active == nullptr) {
        // Not every platform hands the keyboard back when a box is closed.
        m_window.activateWindow();
        return nullptr;
    }
    return active->windowHandle();
}

ScreenshotTour::ScreenshotTour(QWidget& window, const QString& folder)
    : m_window(window)
    , m_folder(folder)
{
    m_timer.setInterval(StepMilliseconds);
    connect(&m_timer, &QTimer::timeout, this, &ScreenshotTour::TakeNextStep);
}

ScreenshotTour::~ScreenshotTour() = default;

void ScreenshotTour::AddStep(const QString& what, std::function<bool()> take)
{
    m_steps.push_back({what, std::move(take)});
}

void ScreenshotTour::SetTimeout(std::chrono::milliseconds timeout)
{
    m_timeout = timeout;
}

void ScreenshotTour::WaitFor(const QString& state, std::function<bool()> isReached)
{
    AddStep(state, std::move(isReached));
}

void ScreenshotTour::Do(const QString& what, const std::function<void()>& action)
{
    AddStep(what, [action] {
        action();
        return true;
    });
}

void ScreenshotTour::PointAt(const QString& objectName)
{
    AddStep(QStringLiteral("the mouse on %1").arg(objectName), [objectName] {
        const QWidget* widget = FindShown(objectName);
        if (widget != nullptr) {
            MoveTo(*widget, widget->rect().center());
        }
        return widget != nullptr;
    });
}

void ScreenshotTour::PointAway()
{
    AddStep(QStringLiteral("the mouse away"), [this] {
        MoveTo(m_window, m_window.rect().bottomRight());
        ClearHover();
        return true;
    });
}

void ScreenshotTour::Click(const QString& objectName)
{
    AddStep(QStringLiteral("a click on %1").arg(objectName), [objectName] {
        const QWidget* widget = FindShown(objectName);
        const bool ready = widget != nullptr && widget->isEnabled();
        if (ready) {
            ClickAt(*widget, widget->rect().center());
        }
        return ready;
    });
}

void ScreenshotTour::ClickEntry(const QString& objectName, const QVariant& data)
{
    AddStep(QStringLiteral("%1, entry %2").arg(objectName, data.toString()), [objectName, data] {
        const auto* list = qobject_cast<QListWidget*>(FindShown(objectName));
        for (int row = 0; list != nullptr && row < list->count(); ++row) {
            if (list->item(row)->data(Qt::UserRole) == data) {
                ClickAt(*list->viewport(), list->visualItemRect(list->item(row)).center());
                return true;
            }
        }
        return false;
    });
}

void ScreenshotTour::ClickInBox(QMessageBox::StandardButton button)
{
    AddStep(QStringLiteral("a click on button %1 of a box").arg(button), [button] {
        const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        const QWidget* widget = box != nullptr ? box->button(button) : nullptr;
        if (widget != nullptr) {
            ClickAt(*widget, widget->rect().center());
        }
        return widget != nullptr;
    });
}

void ScreenshotTour::Press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    AddStep(QStringLiteral("key %1").arg(key), [this, key, modifiers] {
        QWindow* window = KeyboardWindow();
        if (window != nullptr) {
            PostKey(window, key, modifiers, {});
        }
        return window != nullptr;
    });
}

void ScreenshotTour::Type(const QString& text)
{
    for (const QChar character : text) {
        AddStep(QStringLiteral("typing %1").arg(text), [this, character] {
            QWindow* window = KeyboardWindow();
            if (window != nullptr) {
                PostKey(window, character.toUpper().unicode(), Qt::NoModifier, character);
            }
            return window != nullptr;
        });
    }
}

void ScreenshotTour::Picture(const QString& name)
{
    const QString fileName = m_folder.filePath(name + QStringLiteral(".png"));
    // What the step before has caused is on screen only after a turn of the event loop, and the
    // focus only in the active window.
    AddStep(fileName, [this] { return KeyboardWindow() != nullptr; });
    AddStep(fileName, [this, fileName] { return WritePicture(fileName); });
}

void ScreenshotTour::Start()
{
    if (!m_folder.mkpath(QStringLiteral("."))) {
        End(tr("cannot create the folder %1").arg(Util::PrintableText(m_folder.path())));
        return;
    }
    m_steps.push_front({QStringLiteral("the window"), [this] { return IsReady(); }});
    m_window.show();
    m_window.activateWindow();
    m_waiting.start();
    m_timer.start();
}

bool ScreenshotTour::IsReady() const
{
    return m_window.windowHandle()->isExposed() && m_window.isActiveWindow();
}

void ScreenshotTour::TakeNextStep()
{
    if (m_steps.empty()) {
        End({});
    } else if (m_steps.front().take()) {
        m_steps.pop_front();
        m_waiting.restart();
    } else if (!m_problem.isEmpty()) {
        End(m_problem);
    } else if (m_waiting.hasExpired(m_timeout.count())) {
        End(tr("cannot reach: %1").arg(m_steps.front().what));
    }
}

void ScreenshotTour::End(const QString& problem)
{
    m_timer.stop();
    Q_EMIT Finished(problem);
}

bool ScreenshotTour::WritePicture(const QString& fileName)
{
    QPixmap picture = m_window.grab();
    QPainter painter(&picture);
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (window != &m_window && window->isVisible()) {
            const QPoint place = m_window.mapFromGlobal(window->mapToGlobal(QPoint(0, 0)));
            painter.drawPixmap(place, window->grab());
            // The frame that the desktop would draw.
            painter.setPen(window->palette().color(QPalette::Mid));
            painter.drawRect(QRect(place, window->size()).adjusted(-1, -1, 0, 0));
        }
    }
    painter.end();
    if (!picture.save(fileName)) {
        m_problem = tr("cannot write %1").arg(Util::PrintableText(fileName));
        return false;
    }
    return true;
}

} // namespace Zentor::Desktop
