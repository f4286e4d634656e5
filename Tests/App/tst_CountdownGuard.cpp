// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include "CountdownGuard.h"
#include "UserInput.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

/// A window with the button, and with others that would do something.
class Stage {
public:
    Stage()
        : layout(&window)
        , nowButton(QStringLiteral("&Now"))
        , otherButton(QStringLiteral("&Other"))
        , shortcut(QKeySequence(QStringLiteral("Ctrl+W")), &window)
        , guard(&nowButton)
        , cancelled(&guard, &Desktop::CountdownGuard::Cancelled)
        , now(&nowButton, &QPushButton::clicked)
        , other(&otherButton, &QPushButton::clicked)
        , shortcuts(&shortcut, &QShortcut::activated)
    {
        layout.addWidget(&field);
        layout.addWidget(&otherButton);
        layout.addWidget(&nowButton);
        nowButton.setAutoDefault(true);
        window.show();
        window.activateWindow();
        field.setFocus();
        guard.SetArmed(true);
    }

    bool IsReady() { return QTest::qWaitForWindowActive(&window); }

    QWidget window;
    QVBoxLayout layout;
    QLineEdit field;
    QPushButton nowButton;
    QPushButton otherButton;
    QShortcut shortcut;
    Desktop::CountdownGuard guard;
    QSignalSpy cancelled;
    QSignalSpy now;
    QSignalSpy other;
    QSignalSpy shortcuts;
};

} // namespace

class tst_CountdownGuard : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void isCancelledByAnyKey_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("modifiers");
        const auto row = [](const char* name, int key, int modifiers = 0) {
            QTest::newRow(name) << key << modifiers;
        };
        row("letter", Qt::Key_A);
        row("space", Qt::Key_Space);
        row("return", Qt::Key_Return);
        row("escape", Qt::Key_Escape);
        row("tab", Qt::Key_Tab);
        row("shift alone", Qt::Key_Shift, Qt::ShiftModifier);
        row("control alone", Qt::Key_Control, Qt::ControlModifier);
        row("shortcut", Qt::Key_W, Qt::ControlModifier);
        row("mnemonic", Qt::Key_O, Qt::AltModifier);
        row("mnemonic of the button", Qt::Key_N, Qt::AltModifier);
    }

    void isCancelledByAnyKey()
    {
        QFETCH(int, key);
        QFETCH(int, modifiers);
        Stage stage;
        QVERIFY(stage.IsReady());
        UserInput::Press(&stage.window, static_cast<Qt::Key>(key),
                         static_cast<Qt::KeyboardModifiers>(modifiers));
        QCOMPARE(stage.cancelled.count(), 1);
        QVERIFY(!stage.guard.IsArmed());
        QCOMPARE(stage.field.text(), QString());
        QVERIFY(stage.field.hasFocus());
        QVERIFY(!stage.nowButton.isDown() && !stage.otherButton.isDown());
        QCOMPARE(stage.now.count() + stage.other.count() + stage.shortcuts.count(), 0);
    }

    void isCancelledByAClick_data()
    {
        QTest::addColumn<int>("button");
        QTest::newRow("left") << static_cast<int>(Qt::LeftButton);
        QTest::newRow("right") << static_cast<int>(Qt::RightButton);
        QTest::newRow("middle") << static_cast<int>(Qt::MiddleButton);
    }

    void isCancelledByAClick()
    {
        QFETCH(int, button);
        Stage stage;
        QVERIFY(stage.IsReady());
        const QPoint place = stage.otherButton.mapTo(&stage.window, QPoint(5, 5));
        QTest::mouseClick(stage.window.windowHandle(), static_cast<Qt::MouseButton>(button), {},
                          place);
        QCOMPARE(stage.cancelled.count(), 1);
        QCOMPARE(stage.other.count(), 0);
    }

    void isCancelledByADoubleClickOnce()
    {
        Stage stage;
        QVERIFY(stage.IsReady());
        QTest::mouseDClick(stage.window.windowHandle(), Qt::LeftButton, {},
                           stage.otherButton.mapTo(&stage.window, QPoint(5, 5)));
        QCOMPARE(stage.cancelled.count(), 1);
        QCOMPARE(stage.other.count(), 0);
    }

    void isCancelledInAnyWindow()
    {
        Stage stage;
        QDialog dialog;
        QPushButton button(&dialog);
        const QSignalSpy clicked(&button, &QPushButton::clicked);
        dialog.resize(100, 100);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QTest::mouseClick(dialog.windowHandle(), Qt::LeftButton, {}, QPoint(5, 5));
        QCOMPARE(stage.cancelled.count(), 1);
        QCOMPARE(clicked.count(), 0);
    }

    void leavesTheButtonAlone_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("mouse") << 0;
        QTest::newRow("space") << static_cast<int>(Qt::Key_Space);
        QTest::newRow("return") << static_cast<int>(Qt::Key_Return);
        QTest::newRow("enter") << static_cast<int>(Qt::Key_Enter);
    }

    void leavesTheButtonAlone()
    {
        QFETCH(int, key);
        Stage stage;
        QVERIFY(stage.IsReady());
        stage.nowButton.setFocus();
        if (key == 0) {
            UserInput::Click(&stage.nowButton);
        } else {
            UserInput::Press(&stage.window, static_cast<Qt::Key>(key));
        }
        QCOMPARE(stage.now.count(), 1);
        QCOMPARE(stage.cancelled.count(), 0);
        QVERIFY(stage.guard.IsArmed());
    }

    void isCancelledByOtherKeysOnTheButton()
    {
        Stage stage;
        QVERIFY(stage.IsReady());
        stage.nowButton.setFocus();
        UserInput::Press(&stage.window, Qt::Key_X);
        QCOMPARE(stage.cancelled.count(), 1);
        QCOMPARE(stage.now.count(), 0);
    }

    void doesNothingElseWithAKeyThatIsHeld()
    {
        Stage stage;
        QVERIFY(stage.IsReady());
        QTest::keyPress(stage.window.windowHandle(), Qt::Key_A);
        QKeyEvent repeated(QEvent::KeyPress, Qt::Key_A, {}, QStringLiteral("a"), true);
        QCoreApplication::sendEvent(&stage.field, &repeated);
        QCOMPARE(stage.field.text(), QString());
        QTest::keyRelease(stage.window.windowHandle(), Qt::Key_A);
        UserInput::Type(&stage.window, QStringLiteral("a"));
        QCOMPARE(stage.field.text(), QStringLiteral("a"));
    }

    void letsShortcutsActAfterwards()
    {
        Stage stage;
        QVERIFY(stage.IsReady());
        for (int expected = 0; expected < 2; ++expected) {
            UserInput::Press(&stage.window, Qt::Key_W, Qt::ControlModifier);
            QCOMPARE(stage.shortcuts.count(), expected);
        }
        QCOMPARE(stage.cancelled.count(), 1);
    }

    void doesNothingUnlessItIsArmed()
    {
        Stage stage;
        QVERIFY(stage.IsReady());
        stage.guard.SetArmed(false);
        UserInput::Type(&stage.window, QStringLiteral("abc"));
        UserInput::Click(&stage.otherButton);
        QCOMPARE(stage.cancelled.count(), 0);
        QCOMPARE(stage.field.text(), QStringLiteral("abc"));
        QCOMPARE(stage.other.count(), 1);
        stage.guard.SetArmed(true);
        UserInput::Click(&stage.otherButton);
        QCOMPARE(stage.cancelled.count(), 1);
        QCOMPARE(stage.other.count(), 1);
    }

    void acceptsThatTheButtonIsGone()
    {
        QWidget window;
        auto* button = new QPushButton(&window);
        Desktop::CountdownGuard guard(button);
        const QSignalSpy cancelled(&guard, &Desktop::CountdownGuard::Cancelled);
        guard.SetArmed(true);
        delete button;
        QTest::keyClick(&window, Qt::Key_Space);
        QCOMPARE(cancelled.count(), 1);
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_CountdownGuard)

#include "tst_CountdownGuard.moc"
