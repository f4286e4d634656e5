// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "SoundTimeline.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

using Capture::RecordedTime;
using Capture::SoundTimeline;

namespace {

/// Nanoseconds of a number of sound frames, 48 a millisecond.
GstClockTime Milliseconds(guint64 number)
{
    return number * GST_MSECOND;
}

/// A hundred milliseconds that all have the sample \a value.
SoundTimeline::Samples Block(std::int16_t value)
{
    return SoundTimeline::Samples(4800 * SoundTimeline::Channels, value);
}

void Add(SoundTimeline& timeline, GstClockTime moment, std::int16_t value)
{
    timeline.Add(moment, Block(value).data(), 4800);
}

int CountOf(const SoundTimeline::Samples& samples, std::int16_t value)
{
    return static_cast<int>(std::count(samples.begin(), samples.end(), value))
        / SoundTimeline::Channels;
}

} // namespace

class tst_SoundTimeline : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void cutsWhatCameBeforeTheBegin()
    {
        RecordedTime time;
        SoundTimeline timeline(time);
        time.Begin(Milliseconds(1030));
        Add(timeline, Milliseconds(900), 1);
        Add(timeline, Milliseconds(1000), 2);
        QCOMPARE(timeline.End(), std::int64_t(3360));
        QCOMPARE(CountOf(timeline.Take(3360), 2), 3360);
    }

    void leavesPausesOut()
    {
        RecordedTime time;
        SoundTimeline timeline(time);
        time.Begin(Milliseconds(1000));
        time.Pause(Milliseconds(1050));
        time.Resume(Milliseconds(1080));
        Add(timeline, Milliseconds(1000), 3);
        QCOMPARE(timeline.End(), std::int64_t(4800 - 30 * 48));
    }

    void bridgesSmallDifferencesOfTime()
    {
        RecordedTime time;
        SoundTimeline timeline(time);
        time.Begin(0);
        Add(timeline, 0, 1);
        Add(timeline, Milliseconds(110), 2);
        Add(timeline, Milliseconds(190), 3);
        QCOMPARE(timeline.End(), std::int64_t(3 * 4800));
        QCOMPARE(CountOf(timeline.Take(3 * 4800), 0), 0);
    }

    void fillsAGapWithSilence()
    {
        RecordedTime time;
        SoundTimeline timeline(time);
        time.Begin(0);
        Add(timeline, 0, 1);
        Add(timeline, Milliseconds(150), 2);
        const auto samples = timeline.Take(timeline.End());
        QCOMPARE(CountOf(samples, 0), 50 * 48);
        QCOMPARE(CountOf(samples, 2), 4800);
    }

    /// A buffer that is earlier than what the last one covered takes the place of nothing.
    void dropsWhatOverlaps()
    {
        RecordedTime time;
        SoundTimeline timeline(time);
        time.Begin(0);
        Add(timeline, 0, 1);
        Add(timeline, Milliseconds(50), 2);
        QCOMPARE(timeline.End(), std::int64_t(150 * 48));
    }

    void isSilentWhereNothingCame()
    {
        RecordedTime time;
        SoundTimeline timeline(time);
        time.Begin(0);
        QCOMPARE(CountOf(timeline.Take(4800), 0), 4800);
        // Too late for a part of it.
        Add(timeline, Milliseconds(50), 1);
        const auto samples = timeline.Take(timeline.End());
        QCOMPARE(CountOf(samples, 1), 50 * 48);
    }

    /// What was held back may already have been of another device.
    void forgetsWhatIsHeldBackWhenMuted()
    {
        RecordedTime time;
        SoundTimeline timeline(time);
        time.Begin(0);
        Add(timeline, 0, 1);
        QCOMPARE(CountOf(timeline.Take(2400), 1), 2400);
        timeline.Mute();
        Add(timeline, Milliseconds(100), 2);
        const auto rest = timeline.Take(9600);
        QCOMPARE(CountOf(rest, 0), 9600 - 2400);
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_SoundTimeline)
#include "tst_SoundTimeline.moc"
