// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QScreen>
#include <QWindow>

#include "AreaOutline.h"
#include "AreaPicker.h"
#include "FakeScreen.h"
#include "ScreenPixels.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

using Desktop::AreaPicker;
using Desktop::PixelsOf;
using Desktop::PixelsOfAllScreens;

namespace {

QWidgetList WidgetsCalled(const char* objectName)
{
    QWidgetList found;
    const auto widgets = QApplication::topLevelWidgets();
    for (QWidget* widget : widgets) {
        if (widget->isVisible() && widget->objectName() == QLatin1String(objectName)) {
            found << widget;
        }
    }
    return found;
}

QWidget& Overlay()
{
    const QWidgetList overlays = WidgetsCalled("areaOverlay");
    if (overlays.isEmpty()) {
        qFatal("There is no overlay");
    }
    return *overlays.constFirst();
}

void Drag(const QPoint& from, const QPoint& to)
{
    QTest::mousePress(&Overlay(), Qt::LeftButton, {}, from);
    // Of its own, QTest moves the mouse without the button.
    for (const QPoint& point : {(from + to) / 2, to}) {
        QMouseEvent move(QEvent::MouseMove, point, Overlay().mapToGlobal(point), Qt::LeftButton,
                         Qt::LeftButton, {});
        QCoreApplication::sendEvent(&Overlay(), &move);
    }
    QTest::mouseRelease(&Overlay(), Qt::LeftButton, {}, to);
}

} // namespace

class tst_AreaPicker : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        WidgetTest::init();
        // Qt's own platform says so of itself.
        AllowWarning("^This plugin does not support setting window masks");
    }
    void coversEachScreen();
    void beginsWithTheArea_data();
    void beginsWithTheArea();
    void obeysTheArrowKeys_data();
    void obeysTheArrowKeys();
    void staysOnTheScreens_data();
    void staysOnTheScreens();
    void drawsWithTheMouse_data();
    void drawsWithTheMouse();
    void leavesTheAreaAfterAClick();
    void takesTheArea_data();
    void takesTheArea();
    void cancels();
    void cancelsWhenItIsClosed();
    void cancelsWhenScreensChange();
    void takesItAfterADoubleClick();
    void tellsFiguresToScreenReaders();
    void outlineGoesByItself();
    void outlineReplacesTheOneBefore();
    void outlineIsOnlyOnScreensThatHaveTheArea();
};

void tst_AreaPicker::coversEachScreen()
{
    FakeScreen* second = Plug("HDMI-A-1");
    {
        const AreaPicker picker(QRect(), nullptr);
        const QWidgetList overlays = WidgetsCalled("areaOverlay");
        QCOMPARE(overlays.size(), 2);
        QSet<QScreen*> covered;
        for (const QWidget* overlay : overlays) {
            QScreen* screen = overlay->windowHandle()->screen();
            QCOMPARE(overlay->geometry(), screen->geometry());
            covered << screen;
        }
        QCOMPARE(covered.size(), 2);
    }
    QCOMPARE(WidgetsCalled("areaOverlay").size(), 0);
    Unplug(second);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void tst_AreaPicker::beginsWithTheArea_data()
{
    QTest::addColumn<QRect>("area");
    QTest::addColumn<QRect>("expected");
    const QRect screen = PixelsOf(*QGuiApplication::primaryScreen());
    QRect quarter(QPoint(), screen.size() / 2);
    quarter.moveCenter(screen.center());
    QTest::newRow("none") << QRect() << quarter;
    QTest::newRow("stored") << QRect(20, 40, 320, 240) << QRect(20, 40, 320, 240);
    QTest::newRow("odd") << QRect(21, 41, 321, 241) << QRect(21, 41, 320, 240);
    QTest::newRow("tiny") << QRect(20, 40, 1, 1) << QRect(20, 40, 16, 16);
    QTest::newRow("beyond the edge") << QRect(-50, -60, 320, 240) << QRect(0, 0, 320, 240);
    QTest::newRow("far away") << QRect(9000, 9000, 320, 240)
                              << QRect(screen.right() - 319, screen.bottom() - 239, 320, 240);
    QTest::newRow("too large") << screen.adjusted(-100, -100, 100, 100) << screen;
}

void tst_AreaPicker::beginsWithTheArea()
{
    QFETCH(QRect, area);
    QFETCH(QRect, expected);
    const AreaPicker picker(area, nullptr);
    QCOMPARE(picker.Area(), expected);
}

void tst_AreaPicker::obeysTheArrowKeys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QRect>("expected");
    const auto row = [](const char* name, int key, Qt::KeyboardModifiers modifiers,
                        const QRect& expected) {
        QTest::newRow(name) << key << static_cast<int>(modifiers) << expected;
    };
    row("left", Qt::Key_Left, {}, {90, 100, 300, 200});
    row("right", Qt::Key_Right, {}, {110, 100, 300, 200});
    row("up", Qt::Key_Up, {}, {100, 90, 300, 200});
    row("down", Qt::Key_Down, {}, {100, 110, 300, 200});
    row("fine", Qt::Key_Left, Qt::ControlModifier, {98, 100, 300, 200});
    row("narrower", Qt::Key_Left, Qt::ShiftModifier, {100, 100, 290, 200});
    row("wider", Qt::Key_Right, Qt::ShiftModifier, {100, 100, 310, 200});
    row("lower", Qt::Key_Up, Qt::ShiftModifier, {100, 100, 300, 190});
    row("higher", Qt::Key_Down, Qt::ShiftModifier, {100, 100, 300, 210});
    row("finely wider", Qt::Key_Right, Qt::ShiftModifier | Qt::ControlModifier,
        {100, 100, 302, 200});
    row("other key", Qt::Key_A, {}, {100, 100, 300, 200});
}

void tst_AreaPicker::obeysTheArrowKeys()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QRect, expected);
    const AreaPicker picker(QRect(100, 100, 300, 200), nullptr);
    QTest::keyClick(&Overlay(), static_cast<Qt::Key>(key), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(picker.Area(), expected);
}

void tst_AreaPicker::staysOnTheScreens_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QRect>("expected");
    const QRect all = PixelsOfAllScreens();
    const auto row = [](const char* name, int key, Qt::KeyboardModifiers modifiers,
                        const QRect& expected) {
        QTest::newRow(name) << key << static_cast<int>(modifiers) << expected;
    };
    row("left", Qt::Key_Left, {}, {0, 100, 300, 200});
    row("up", Qt::Key_Up, {}, {100, 0, 300, 200});
    row("right", Qt::Key_Right, {}, {all.width() - 300, 100, 300, 200});
    row("down", Qt::Key_Down, {}, {100, all.height() - 200, 300, 200});
    row("narrow", Qt::Key_Left, Qt::ShiftModifier, {100, 100, 16, 200});
    row("low", Qt::Key_Up, Qt::ShiftModifier, {100, 100, 300, 16});
    row("wide", Qt::Key_Right, Qt::ShiftModifier, {100, 100, all.width() - 100, 200});
    row("high", Qt::Key_Down, Qt::ShiftModifier, {100, 100, 300, all.height() - 100});
}

void tst_AreaPicker::staysOnTheScreens()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QRect, expected);
    const AreaPicker picker(QRect(100, 100, 300, 200), nullptr);
    for (int press = 0; press < 200; ++press) {
        QTest::keyClick(&Overlay(), static_cast<Qt::Key>(key), Qt::KeyboardModifiers(modifiers));
    }
    QCOMPARE(picker.Area(), expected);
}

void tst_AreaPicker::drawsWithTheMouse_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("to");
    QTest::newRow("to the lower right") << QPoint(50, 60) << QPoint(150, 160);
    QTest::newRow("to the upper left") << QPoint(150, 160) << QPoint(50, 60);
    QTest::newRow("to the upper right") << QPoint(50, 160) << QPoint(150, 60);
}

void tst_AreaPicker::drawsWithTheMouse()
{
    QFETCH(QPoint, from);
    QFETCH(QPoint, to);
    const AreaPicker picker(QRect(0, 0, 32, 32), nullptr);
    Drag(from, to);
    const int ratio = qRound(qApp->devicePixelRatio());
    QCOMPARE(picker.Area(), QRect(QPoint(50, 60) * ratio, QSize(100, 100) * ratio));
    QVERIFY(!picker.IsDrawing());
}

void tst_AreaPicker::leavesTheAreaAfterAClick()
{
    const AreaPicker picker(QRect(10, 20, 320, 240), nullptr);
    QTest::mouseClick(&Overlay(), Qt::LeftButton, {}, QPoint(5, 5));
    QTest::mouseClick(&Overlay(), Qt::RightButton, {}, QPoint(50, 50));
    QCOMPARE(picker.Area(), QRect(10, 20, 320, 240));
}

void tst_AreaPicker::takesTheArea_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << static_cast<int>(Qt::Key_Return);
    QTest::newRow("Enter") << static_cast<int>(Qt::Key_Enter);
}

void tst_AreaPicker::takesTheArea()
{
    QFETCH(int, key);
    AreaPicker picker(QRect(10, 20, 320, 240), nullptr);
    const QSignalSpy taken(&picker, &AreaPicker::Taken);
    const QSignalSpy cancelled(&picker, &AreaPicker::Cancelled);
    QTest::keyClick(&Overlay(), Qt::Key_Right);
    QTest::keyClick(&Overlay(), static_cast<Qt::Key>(key));
    QCOMPARE(taken.count(), 1);
    QCOMPARE(taken.first().first().toRect(), QRect(20, 20, 320, 240));
    QCOMPARE(cancelled.count(), 0);
    QVERIFY(WidgetsCalled("areaOverlay").isEmpty());
    picker.Take();
    QCOMPARE(taken.count(), 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void tst_AreaPicker::cancels()
{
    AreaPicker picker(QRect(10, 20, 320, 240), nullptr);
    const QSignalSpy taken(&picker, &AreaPicker::Taken);
    const QSignalSpy cancelled(&picker, &AreaPicker::Cancelled);
    QTest::keyClick(&Overlay(), Qt::Key_Escape);
    QCOMPARE(cancelled.count(), 1);
    QCOMPARE(taken.count(), 0);
    QVERIFY(WidgetsCalled("areaOverlay").isEmpty());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void tst_AreaPicker::cancelsWhenItIsClosed()
{
    AreaPicker picker(QRect(10, 20, 320, 240), nullptr);
    const QSignalSpy cancelled(&picker, &AreaPicker::Cancelled);
    Overlay().close();
    QCOMPARE(cancelled.count(), 1);
    QVERIFY(WidgetsCalled("areaOverlay").isEmpty());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void tst_AreaPicker::cancelsWhenScreensChange()
{
    AreaPicker first(QRect(), nullptr);
    const QSignalSpy cancelledByOneMore(&first, &AreaPicker::Cancelled);
    FakeScreen* second = Plug("HDMI-A-1");
    QCOMPARE(cancelledByOneMore.count(), 1);
    AreaPicker next(QRect(), nullptr);
    const QSignalSpy cancelledByOneLess(&next, &AreaPicker::Cancelled);
    Unplug(second);
    QCOMPARE(cancelledByOneLess.count(), 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void tst_AreaPicker::takesItAfterADoubleClick()
{
    AreaPicker picker(QRect(10, 20, 320, 240), nullptr);
    const QSignalSpy taken(&picker, &AreaPicker::Taken);
    QTest::mouseDClick(&Overlay(), Qt::LeftButton, {}, QPoint(50, 50));
    QCOMPARE(taken.count(), 1);
    QCOMPARE(taken.first().first().toRect(), QRect(10, 20, 320, 240));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void tst_AreaPicker::tellsFiguresToScreenReaders()
{
    const AreaPicker picker(QRect(10, 20, 320, 240), nullptr);
    QVERIFY(!Overlay().accessibleName().isEmpty());
    QTest::keyClick(&Overlay(), Qt::Key_Right);
    for (const char* figure : {"320", "240", "20"}) {
        QVERIFY2(Overlay().accessibleDescription().contains(QLatin1String(figure)), figure);
    }
}

void tst_AreaPicker::outlineGoesByItself()
{
    QObject owner;
    Desktop::ShowAreaOutline(QRect(10, 20, 320, 240), &owner);
    QCOMPARE(WidgetsCalled("areaOutline").size(), 1);
    const QWidget& outline = *WidgetsCalled("areaOutline").constFirst();
    QVERIFY(outline.testAttribute(Qt::WA_ShowWithoutActivating));
    QVERIFY(outline.windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus));
    QVERIFY(outline.windowFlags().testFlag(Qt::WindowTransparentForInput));
    // What it frames can be seen.
    QVERIFY(!outline.mask().contains(outline.rect().center()));
    QTRY_VERIFY_WITH_TIMEOUT(WidgetsCalled("areaOutline").isEmpty(), Patience);
}

void tst_AreaPicker::outlineReplacesTheOneBefore()
{
    {
        QObject owner;
        Desktop::ShowAreaOutline(QRect(10, 20, 320, 240), &owner);
        const QRect before = WidgetsCalled("areaOutline").constFirst()->geometry();
        Desktop::ShowAreaOutline(QRect(40, 60, 320, 240), &owner);
        QCOMPARE(WidgetsCalled("areaOutline").size(), 1);
        QVERIFY(WidgetsCalled("areaOutline").constFirst()->geometry() != before);
    }
    QVERIFY(WidgetsCalled("areaOutline").isEmpty());
}

void tst_AreaPicker::outlineIsOnlyOnScreensThatHaveTheArea()
{
    FakeScreen* second = Plug("HDMI-A-1");
    {
        QObject owner;
        const QRect all = PixelsOfAllScreens();
        Desktop::ShowAreaOutline(all, &owner);
        QCOMPARE(WidgetsCalled("areaOutline").size(), 2);
        Desktop::ShowAreaOutline(QRect(-500, -500, 100, 100), &owner);
        QCOMPARE(WidgetsCalled("areaOutline").size(), 0);
    }
    Unplug(second);
}

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_AreaPicker)

#include "tst_AreaPicker.moc"
