// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QScreen>

#include "FakeScreen.h"
#include "ScreenPixels.h"
#include "SizeText.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

using namespace Desktop;

/// Runs at several scales: what it expects follows from that of the application.
class tst_ScreenPixels : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        WidgetTest::init();
        m_ratio = qApp->devicePixelRatio();
        m_platformScreen = Plug("HDMI-A-1", false, QSize(1200, 600));
        m_screen = m_platformScreen->screen();
    }

    void cleanup()
    {
        Unplug(m_platformScreen);
        WidgetTest::cleanup();
    }

    void pixelsOfAScreenAreThoseOfThePlatform()
    {
        QCOMPARE(PixelsOf(*m_screen), QRect(2000, 0, 1200, 600));
        QCOMPARE(m_screen->size(), QSize(1200, 600) / m_ratio);
    }

    void pixelsOfAllScreens()
    {
        const QRect first = PixelsOf(*QGuiApplication::primaryScreen());
        QCOMPARE(PixelsOfAllScreens(), first | QRect(2000, 0, 1200, 600));
    }

    void convertsThereAndBack()
    {
        QCOMPARE(ToPixels(m_screen->geometry().topLeft(), *m_screen), QPoint(2000, 0));
        const QPoint inside = m_screen->geometry().topLeft() + QPoint(100, 50);
        QCOMPARE(ToPixels(inside, *m_screen), QPoint(2000, 0) + QPoint(100, 50) * m_ratio);
        const QRect area(ToPixels(inside, *m_screen), QSize(240, 120));
        QCOMPARE(FromPixels(area, *m_screen), QRect(inside, QSize(240, 120) / m_ratio));
        QCOMPARE(FromPixels(PixelsOf(*m_screen), *m_screen), m_screen->geometry());
    }

    void knowsWhatIsOnAScreen()
    {
        QVERIFY(IsOnAScreen(QRect(0, 0, 10, 10)));
        QVERIFY(IsOnAScreen(QRect(3199, 599, 10, 10)));
        QVERIFY(!IsOnAScreen(QRect(3200, 0, 10, 10)));
        QVERIFY(!IsOnAScreen(QRect(-10, 0, 10, 10)));
    }

    void figures()
    {
        const QString size = Isolated(QString::fromUtf8("1280 × 720"));
        QCOMPARE(PixelsText(QSize(1280, 720)), size);
        QCOMPARE(PixelsText(QRect(-10, 20, 1280, 720)), Isolated(size + " (-10, 20)"));
    }

private:
    qreal m_ratio = 1;
    FakeScreen* m_platformScreen = nullptr;
    QScreen* m_screen = nullptr;
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_ScreenPixels)

#include "tst_ScreenPixels.moc"
