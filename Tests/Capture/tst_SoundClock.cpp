// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "SoundClock.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

constexpr GstClockTime Begin = 1000 * GST_SECOND;
constexpr int Latency = 30;

/// Buffers of 10 ms that come when they are complete and the latency has passed.
class Device {
public:
    /// \a lost: milliseconds of sound that are not counted; \a heldUp: how much later each buffer
    /// comes, but for every tenth. Returns how much the last one was corrected, in milliseconds.
    int Play(int seconds, int lost, int heldUp)
    {
        GstClockTimeDiff correction = 0;
        for (int number = 0; number < seconds * 100; ++number, ++m_number) {
            const GstClockTime moment = Begin + GST_MSECOND * guint64(m_number * 10);
            const int late = Latency + (number % 10 == 0 ? 0 : heldUp);
            const GstClockTime counted = moment - GST_MSECOND * guint64(lost);
            correction = GST_CLOCK_DIFF(
                counted, m_clock.Correct(counted, moment + GST_MSECOND * guint64(late)));
        }
        return static_cast<int>(correction / GST_CLOCK_DIFF(0, GST_MSECOND));
    }

private:
    Capture::SoundClock m_clock;
    int m_number = 0;
};

} // namespace

class tst_SoundClock : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void leavesTimesThatAreRight()
    {
        Device device;
        QCOMPARE(device.Play(60, 0, 0), 0);
    }

    void isNotMisledByBuffersThatAreHeldUp()
    {
        Device device;
        QCOMPARE(device.Play(20, 0, 0), 0);
        QCOMPARE(device.Play(20, 0, 200), 0);
        QCOMPARE(device.Play(20, 0, 0), 0);
    }

    void correctsWhatWasLost()
    {
        Device device;
        QCOMPARE(device.Play(20, 0, 50), 0);
        QCOMPARE(device.Play(20, 40, 50), 40);
        // A window that saw the loss begin corrects a part of it; what is left is too little to
        // hear.
        QVERIFY(std::abs(device.Play(20, 100, 50) - 100) <= 15);
        // As a server that counts it after all.
        QVERIFY(std::abs(device.Play(20, 0, 50)) <= 15);
    }

    void bearsALittle()
    {
        Device device;
        QCOMPARE(device.Play(20, 0, 0), 0);
        QCOMPARE(device.Play(20, 10, 0), 0);
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_SoundClock)
#include "tst_SoundClock.moc"
