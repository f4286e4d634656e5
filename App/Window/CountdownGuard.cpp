// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "CountdownGuard.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

#include "QtNames.h"

namespace Zentor::Desktop {
namespace {

bool IsModifier(int key)
{
    switch (key) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
        return true;
    default:
        return false;
    }
}

} // namespace

CountdownGuard::CountdownGuard(QWidget* nowButton, QObject* parent)
    : QObject(parent)
    , m_nowButton(nowButton)
{
}

CountdownGuard::~CountdownGuard() = default;

void CountdownGuard::SetArmed(bool isArmed)
{
    if (isArmed == m_isArmed) {
        return;
    }
    m_isArmed = isArmed;
    if (isArmed) {
        m_key = 0;
        m_sinceCancelled.invalidate();
        // Each time anew: the filter that was installed last comes first.
        qApp->installEventFilter(this);
    }
}

bool CountdownGuard::IsForButton(const QObject& watched, const QKeyEvent& event) const
{
    const bool presses = event.key() == Qt::Key_Space || event.key() == Qt::Key_Return
        || event.key() == Qt::Key_Enter;
    const bool isShortcut = (event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier;
    // The event comes to the window first, and from there to what has the focus.
    const bool isThere = watched.isWindowType() ? m_nowButton->hasFocus() : &watched == m_nowButton;
    return presses && !isShortcut && isThere;
}

bool CountdownGuard::IsForButton(const QMouseEvent& event) const
{
    return event.button() == Qt::LeftButton
        && QApplication::widgetAt(GlobalPosition(event)) == m_nowButton;
}

bool CountdownGuard::Cancels(const QObject& watched, const QEvent& event) const
{
    switch (event.type()) {
    case QEvent::KeyPress:
    // Shortcuts act before the key is pressed.
    case QEvent::ShortcutOverride:
        return m_nowButton.isNull() || !IsForButton(watched, static_cast<const QKeyEvent&>(event));
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return m_nowButton.isNull() || !IsForButton(static_cast<const QMouseEvent&>(event));
    default:
        return false;
    }
}

bool CountdownGuard::IsRestOfPress(const QEvent& event) const
{
    switch (event.type()) {
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride: {
        const auto& key = static_cast<const QKeyEvent&>(event);
        // Held, or the rest of a shortcut whose first key has cancelled.
        return m_key != 0
            && (IsModifier(m_key) ? key.modifiers() != Qt::NoModifier
                                  : key.key() == m_key && key.isAutoRepeat());
    }
    case QEvent::MouseButtonDblClick:
        return m_sinceCancelled.isValid()
            && m_sinceCancelled.elapsed() < QApplication::doubleClickInterval();
    default:
        return false;
    }
}

void CountdownGuard::ForgetKeyAfter(const QEvent& event)
{
    if (event.type() == QEvent::KeyRelease) {
        const auto& key = static_cast<const QKeyEvent&>(event);
        if (key.key() == m_key && !key.isAutoRepeat()) {
            m_key = 0;
        }
    }
}

bool CountdownGuard::eventFilter(QObject* watched, QEvent* event)
{
    if (!m_isArmed && !IsRestOfPress(*event)) {
        ForgetKeyAfter(*event);
        return QObject::eventFilter(watched, event);
    }
    if (m_isArmed && !Cancels(*watched, *event)) {
        return QObject::eventFilter(watched, event);
    }
    // A shortcut that is overridden becomes a key press, which is the one that cancels.
    event->accept();
    if (m_isArmed && event->type() != QEvent::ShortcutOverride) {
        const bool isKey = event->type() == QEvent::KeyPress;
        m_key = isKey ? static_cast<const QKeyEvent*>(event)->key() : 0;
        m_sinceCancelled.start();
        m_isArmed = false;
        Q_EMIT Cancelled();
    }
    return true;
}

} // namespace Zentor::Desktop
