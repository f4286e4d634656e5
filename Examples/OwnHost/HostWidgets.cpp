// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

// The widgets that the panel is made of.
#include <utility>

#include <QAbstractButton>
#include <QMouseEvent>
#include <QPointer>

#include "HostInterfaces.h"

namespace Zentor {
namespace {

/// A click on the caption of a button clicks the button.
class CaptionClicks final : public QObject {
public:
    CaptionClicks(QWidget* caption, QAbstractButton* button)
        : QObject(caption)
        , m_button(button)
    {
        caption->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto type = event->type();
        // The second press of a double click is one, too.
        const bool isPress =
            type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick;
        if ((!isPress && type != QEvent::MouseButtonRelease) || m_button.isNull()) {
            return QObject::eventFilter(watched, event);
        }
        const auto* mouse = static_cast<QMouseEvent*>(event);
        if (mouse->button() != Qt::LeftButton) {
            return QObject::eventFilter(watched, event);
        }
        const bool isInside = static_cast<QWidget*>(watched)->rect().contains(mouse->pos());
        const bool wasPressed = std::exchange(m_isPressed, isPress);
        if (!isPress && wasPressed && isInside) {
            m_button->setFocus(Qt::MouseFocusReason);
            // It may ask a question in which all of this is deleted: nothing is touched after it.
            m_button->click();
        }
        // Who takes the press gets the release.
        return true;
    }

private:
    const QPointer<QAbstractButton> m_button;
    bool m_isPressed = false;
};

/// What a screen reader calls a field or button: the text of its caption without the mark of the
/// key.
void NameBuddy(const QLabel& caption)
{
    if (caption.buddy() != nullptr) {
        QString name = caption.text();
        caption.buddy()->setAccessibleName(name.remove(QLatin1Char('&')));
    }
}

} // namespace

ZFrame::ZFrame(QWidget* parent, Qt::WindowFlags flags)
    : QFrame(parent, flags)
{
}

ZLabel::ZLabel(QWidget* parent, Qt::WindowFlags flags)
    : QLabel(parent, flags)
{
    // What users call a task is text, never markup.
    setTextFormat(Qt::PlainText);
}

void ZLabel::setOriginalText(const QString& text)
{
    // A host may shorten here what does not fit, and keep the whole text for originalText().
    setText(text);
    NameBuddy(*this);
}

QString ZLabel::originalText() const
{
    return text();
}

namespace Util {

void bindWidgets(QWidget* label, QAbstractButton* button)
{
    new CaptionClicks(label, button);
    // As its buddy the button follows the caption's key.
    if (auto* caption = qobject_cast<QLabel*>(label)) {
        caption->setBuddy(button);
        NameBuddy(*caption);
    }
}

QFrame* createSpacer(QWidget* parent, const QString& objectName)
{
    auto* spacer = new QFrame(parent);
    spacer->setObjectName(objectName);
    return spacer;
}

} // namespace Util

} // namespace Zentor
