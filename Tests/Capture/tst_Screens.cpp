// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "Screens.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

class tst_Screens : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void cutsAnAreaWithTheScreen_data()
    {
        QTest::addColumn<QRect>("area");
        QTest::addColumn<QRect>("recorded");
        const QRect nothing;
        QTest::newRow("within") << QRect(10, 20, 100, 50) << QRect(10, 20, 100, 50);
        QTest::newRow("all") << QRect(0, 0, 1280, 720) << QRect(0, 0, 1280, 720);
        QTest::newRow("odd") << QRect(10, 20, 101, 51) << QRect(10, 20, 100, 50);
        QTest::newRow("left and top") << QRect(-10, -20, 111, 71) << QRect(0, 0, 100, 50);
        QTest::newRow("right and bottom") << QRect(1201, 701, 500, 500) << QRect(1201, 701, 78, 18);
        QTest::newRow("larger") << QRect(-5, -5, 5000, 5000) << QRect(0, 0, 1280, 720);
        QTest::newRow("the last two pixels") << QRect(1278, 718, 2, 2) << QRect(1278, 718, 2, 2);
        QTest::newRow("one pixel") << QRect(5, 5, 1, 1) << nothing;
        QTest::newRow("one pixel left") << QRect(1279, 0, 100, 100) << nothing;
        QTest::newRow("beside") << QRect(1280, 0, 100, 100) << nothing;
        QTest::newRow("empty") << QRect(5, 5, 0, 0) << nothing;
        QTest::newRow("negative") << QRect(5, 5, -10, -10) << nothing;
    }

    void cutsAnAreaWithTheScreen()
    {
        QFETCH(QRect, area);
        QFETCH(QRect, recorded);
        QCOMPARE(Capture::RecordableArea(area, QRect(0, 0, 1280, 720)), recorded);
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_Screens)
#include "tst_Screens.moc"
