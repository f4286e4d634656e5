// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "Boxes.h"

#include <QAbstractButton>
#include <QApplication>
#include <QtTest>

namespace Zentor::Tests {
namespace {

QMessageBox* OpenBox()
{
    return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
}

void ClickIn(QMessageBox& box, QMessageBox::StandardButton which)
{
    auto* button = box.button(which);
    if (button == nullptr) {
        box.reject();
        QFAIL("another box came");
    }
    button->click();
}

} // namespace

ExpectedBox::ExpectedBox(Action action)
    : m_action(std::move(action))
{
    QObject::connect(&m_timer, &QTimer::timeout, [this] { Look(); });
    m_timer.start(1);
}

ExpectedBox::ExpectedBox(QMessageBox::StandardButton button)
    : ExpectedBox([button](QMessageBox& box) { ClickIn(box, button); })
{
}

void ExpectedBox::Look()
{
    QMessageBox* box = OpenBox();
    if (box == nullptr || !box->isVisible()) {
        return;
    }
    // Before it is the active window its controls have no focus yet. Not every platform activates a
    // window that is shown once more.
    constexpr int looksBeforeGivingUp = 300;
    if (!box->isActiveWindow() && ++m_looks < looksBeforeGivingUp) {
        return;
    }
    m_timer.stop();
    m_came = true;
    // A box that an action left open would stop the tests for good.
    constexpr std::chrono::seconds patience(30);
    QTimer::singleShot(patience, box, [box] {
        box->reject();
        QFAIL("nobody has answered the box");
    });
    m_action(*box);
}

void PressEscape(QMessageBox& box)
{
    QTest::keyClick(&box, Qt::Key_Escape);
}

bool IsBoxOpen()
{
    return OpenBox() != nullptr;
}

} // namespace Zentor::Tests
