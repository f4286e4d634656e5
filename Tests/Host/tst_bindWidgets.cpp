// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QPointer>
#include <QRadioButton>

#include "HostInterfaces.h"
#include "WidgetTest.h"

using namespace Zentor;

namespace {

struct Window : QWidget {
    Window()
    {
        label->setOriginalText(QStringLiteral("Caption"));
        label->setGeometry(0, 0, 80, 20);
        button->setGeometry(0, 30, 80, 20);
        other->setGeometry(0, 60, 80, 20);
        other->setFocus();
        Util::bindWidgets(label, button);
        show();
        activateWindow();
    }

    ZLabel* label = new ZLabel(this);
    QRadioButton* button = new QRadioButton(this);
    QRadioButton* other = new QRadioButton(this);
};

} // namespace

class tst_bindWidgets : public Tests::WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void clickOnTheCaptionClicksTheButton()
    {
        Window window;
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QVERIFY(window.other->hasFocus());
        const QSignalSpy clicked(window.button, &QAbstractButton::clicked);
        QTest::mouseClick(window.label, Qt::LeftButton);
        QCOMPARE(clicked.count(), 1);
        QVERIFY(window.button->isChecked());
        QVERIFY(window.button->hasFocus());
    }

    void otherGesturesDoNotClick()
    {
        Window window;
        const QSignalSpy clicked(window.button, &QAbstractButton::clicked);
        const QPoint inside(5, 5);
        const QPoint outside(5, 25);
        QTest::mouseClick(window.label, Qt::RightButton);
        QTest::mouseClick(window.label, Qt::MiddleButton);
        QTest::mousePress(window.label, Qt::LeftButton, {}, inside);
        QTest::mouseRelease(window.label, Qt::LeftButton, {}, outside);
        QTest::mouseRelease(window.label, Qt::LeftButton, {}, inside);
        QCOMPARE(clicked.count(), 0);
        window.button->setEnabled(false);
        QTest::mouseClick(window.label, Qt::LeftButton);
        QCOMPARE(clicked.count(), 0);
        QVERIFY(!window.button->isChecked());
        QVERIFY(!window.button->hasFocus());
    }

    void doubleClickIsTwoClicks()
    {
        Window window;
        const QSignalSpy clicked(window.button, &QAbstractButton::clicked);
        QTest::mouseClick(window.label, Qt::LeftButton);
        QTest::mouseDClick(window.label, Qt::LeftButton);
        QTest::mouseRelease(window.label, Qt::LeftButton);
        QCOMPARE(clicked.count(), 2);
    }

    void buttonIsNamedAfterTheCaption()
    {
        Window window;
        QCOMPARE(window.label->buddy(), window.button);
        QCOMPARE(window.button->accessibleName(), QStringLiteral("Caption"));
        window.label->setOriginalText(QStringLiteral("Titel & mehr"));
        QCOMPARE(window.button->accessibleName(), QStringLiteral("Titel  mehr"));
        window.label->setOriginalText(QStringLiteral("Titel"));
        QCOMPARE(window.button->accessibleName(), QStringLiteral("Titel"));
    }

    void boundBeforeTheTextIsSet()
    {
        QWidget window;
        auto* label = new ZLabel(&window);
        auto* button = new QRadioButton(&window);
        Util::bindWidgets(label, button);
        QCOMPARE(button->accessibleName(), QString());
        label->setOriginalText(QStringLiteral("&Caption"));
        QCOMPARE(button->accessibleName(), QStringLiteral("Caption"));
    }

    void anyWidgetCanBeACaption()
    {
        QWidget window;
        auto* frame = new ZFrame(&window);
        auto* button = new QRadioButton(&window);
        Util::bindWidgets(frame, button);
        QTest::mouseClick(frame, Qt::LeftButton);
        QVERIFY(button->isChecked());
    }

    void buttonMayGoFirst()
    {
        Window window;
        delete window.button;
        QTest::mouseClick(window.label, Qt::LeftButton);
        window.label->setOriginalText(QStringLiteral("alone"));
        QCOMPARE(window.label->text(), QStringLiteral("alone"));
        QVERIFY(!window.other->isChecked());
    }

    void allMayGoInsideTheClick()
    {
        auto* window = new Window;
        const QPointer<ZLabel> label(window->label);
        connect(window->button, &QAbstractButton::clicked, this, [window] { delete window; });
        QTest::mouseClick(window->label, Qt::LeftButton, {}, QPoint(5, 5));
        QVERIFY(label.isNull());
    }
};

SCHEDULER_TEST_MAIN(tst_bindWidgets)
#include "tst_bindWidgets.moc"
