// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QButtonGroup>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

#include "RadioGroupTabStop.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

/// A line edit, three radio buttons of which the first is checked, and another line edit.
class tst_RadioGroupTabStop : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        WidgetTest::init();
        m_window = std::make_unique<QWidget>();
        auto* layout = new QVBoxLayout(m_window.get());
        auto* group = new QButtonGroup(m_window.get());
        layout->addWidget(new QLineEdit(m_window.get()));
        for (QRadioButton*& button : m_buttons) {
            button = new QRadioButton(m_window.get());
            layout->addWidget(button);
            group->addButton(button);
        }
        layout->addWidget(new QLineEdit(m_window.get()));
        m_buttons[0]->setChecked(true);
        new Desktop::RadioGroupTabStop(group);
        m_window->show();
        QApplication::setActiveWindow(m_window.get());
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    void cleanup()
    {
        m_window.reset();
        WidgetTest::cleanup();
    }

    void isAtTheCheckedButtonFromTheStart() { QCOMPARE(Stops(), QStringLiteral("0")); }

    void followsACheckByProgram()
    {
        m_buttons[2]->setChecked(true);
        QCOMPARE(Stops(), QStringLiteral("2"));
    }

    void followsAClickAndAnArrowKey()
    {
        m_buttons[1]->click();
        QCOMPARE(Stops(), QStringLiteral("1"));
        m_buttons[1]->setFocus();
        QTest::keyClick(m_buttons[1], Qt::Key_Down);
        QVERIFY(m_buttons[2]->isChecked());
        QCOMPARE(Stops(), QStringLiteral("2"));
        QVERIFY(m_buttons[2]->hasFocus());
    }

    void keepsTheOthersForTheMouse()
    {
        QVERIFY((m_buttons[1]->focusPolicy() & Qt::ClickFocus) != 0);
        QVERIFY((m_buttons[1]->focusPolicy() & Qt::TabFocus) == 0);
    }

    void refusedButtonGivesTheFocusBack()
    {
        connect(m_buttons[1], &QRadioButton::toggled, m_window.get(), [this](bool isOn) {
            if (isOn) {
                m_buttons[0]->setChecked(true);
            }
        });
        m_buttons[0]->setFocus();
        QTest::keyClick(m_buttons[0], Qt::Key_Down);
        QVERIFY(m_buttons[0]->isChecked());
        QTRY_VERIFY_WITH_TIMEOUT(m_buttons[0]->hasFocus(), Patience);
        QCOMPARE(Stops(), QStringLiteral("0"));
    }

    void focusElsewhereStays()
    {
        auto* edit = m_window->findChild<QLineEdit*>();
        edit->setFocus();
        m_buttons[1]->click();
        QCoreApplication::sendPostedEvents();
        QVERIFY(edit->hasFocus());
    }

private:
    /// The numbers of the buttons at which Tab stops on the way from the first line edit.
    QString Stops() const
    {
        m_window->findChild<QLineEdit*>()->setFocus();
        QStringList stops;
        for (int presses = 0; presses < 5; ++presses) {
            QTest::keyClick(m_window->focusWidget(), Qt::Key_Tab);
            for (std::size_t number = 0; number < m_buttons.size(); ++number) {
                if (m_buttons[number]->hasFocus()) {
                    stops << QString::number(number);
                }
            }
            if (m_window->focusWidget() == m_window->findChildren<QLineEdit*>().at(1)) {
                break;
            }
        }
        m_buttons[0]->group()->checkedButton()->setFocus();
        return stops.join(QLatin1Char(' '));
    }

    std::unique_ptr<QWidget> m_window;
    std::array<QRadioButton*, 3> m_buttons{};
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_RadioGroupTabStop)

#include "tst_RadioGroupTabStop.moc"
