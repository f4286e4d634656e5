// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "System/MachineClock.h"

#include <chrono>

#include "WidgetTest.h"

namespace Zentor::Tests {

using namespace std::chrono_literals;

class tst_MachineClock : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void tellsTheWallClock();
    void countsSinceBoot();
};

void tst_MachineClock::tellsTheWallClock()
{
    const Schedule::MachineClock clock;
    const qint64 before = QDateTime::currentMSecsSinceEpoch();
    const auto wall =
        std::chrono::duration_cast<std::chrono::milliseconds>(clock.Now().wall.time_since_epoch());
    const qint64 after = QDateTime::currentMSecsSinceEpoch();
    QVERIFY(wall.count() >= before);
    QVERIFY(wall.count() <= after);
}

void tst_MachineClock::countsSinceBoot()
{
    const Schedule::MachineClock clock;
    // Apart from the time in suspend, it is the steady clock.
    const auto steady = std::chrono::steady_clock::now().time_since_epoch();
    const auto first = clock.Now().sinceBoot;
    QVERIFY(first + 1us > steady);
    QTRY_VERIFY_WITH_TIMEOUT(clock.Now().sinceBoot > first, Patience);
}

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_MachineClock)

#include "tst_MachineClock.moc"
