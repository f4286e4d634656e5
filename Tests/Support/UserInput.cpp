// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "UserInput.h"

#include <QPointer>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QtTest>
#include <QWindow>

namespace Zentor::Tests::UserInput {
namespace {

QPoint PlaceToClick(const QWidget* widget)
{
    if (qobject_cast<const QRadioButton*>(widget) == nullptr) {
        return widget->rect().center();
    }
    QStyleOptionButton option;
    option.initFrom(widget);
    return widget->style()
        ->subElementRect(QStyle::SE_RadioButtonIndicator, &option, widget)
        .center();
}

} // namespace

void Click(QWidget* widget)
{
    QWidget* const window = widget->window();
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {},
                      widget->mapTo(window, PlaceToClick(widget)));
}

void Press(QWidget* window, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    // The window may be gone before the key is let go.
    const QPointer<QWindow> target(window->windowHandle());
    QTest::keyPress(target, key, modifiers);
    if (!target.isNull()) {
        QTest::keyRelease(target, key, modifiers);
    }
}

void Type(QWidget* window, const QString& text)
{
    for (const QChar character : text) {
        QTest::keyClick(window->windowHandle(), character.toLatin1());
    }
}

} // namespace Zentor::Tests::UserInput
