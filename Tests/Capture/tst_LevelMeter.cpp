// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "LevelMeter.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

using Capture::LevelMeter;

class tst_LevelMeter : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void amplitudesInDecibels_data()
    {
        QTest::addColumn<int>("amplitude");
        QTest::addColumn<double>("decibels");
        QTest::newRow("silence") << 0 << -96.0;
        QTest::newRow("quietest") << 1 << -90.31;
        QTest::newRow("a tenth") << 3277 << -20.0;
        QTest::newRow("half") << 16384 << -6.02;
        QTest::newRow("loudest") << 32768 << 0.0;
    }

    void amplitudesInDecibels()
    {
        QFETCH(int, amplitude);
        QFETCH(double, decibels);
        QVERIFY(std::abs(LevelMeter::DecibelsOf(amplitude) - decibels) < 0.01);
    }

    void isSilentBeforeAnythingWasHeard()
    {
        LevelMeter meter("mic");
        QCOMPARE(meter.TakePeak(), LevelMeter::SilenceDecibels);
        QVERIFY(!meter.Input().IsOpen());
        QCOMPARE(meter.Input().Device(), QString("mic"));
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_LevelMeter)
#include "tst_LevelMeter.moc"
