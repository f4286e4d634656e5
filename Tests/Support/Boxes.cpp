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

} // namespace

ExpectedBox::ExpectedBox(Action action)
    : m_action(std::move(action))
{
    QObject::connect(&m_timer, &QTimer::timeout, [this] { Look(); });
    m_timer.start(1);
}

ExpectedBox::ExpectedBox(QMessageBox::StandardButton button)
    : ExpectedBox([button](QMessageBox& box) { box.button(button)->click(); })
{
}

void ExpectedBox::Look()
{
    QMessageBox* box = OpenBox();
    if (box == nullptr || !box->isVisible()) {
        return;
    }
    m_timer.stop();
    m_came = true;
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
