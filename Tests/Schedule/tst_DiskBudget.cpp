// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <limits>

#include "DiskBudget.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

using namespace std::chrono_literals;
using Schedule::BudgetOf;
using Schedule::MadeRecording;
using Schedule::MostBytes;
using Schedule::PlannedRecording;
using Schedule::RecordingSettings;
using Schedule::RecordingShape;
using Schedule::TypicalBytes;
using Quality = RecordingSettings::Quality;

namespace {

constexpr QSize FullHd(1920, 1080);

PlannedRecording Hour(const QSize& size, int framesPerSecond = 30,
                      Quality quality = Quality::Normal, int soundTracks = 0)
{
    return {{size, framesPerSecond, quality, soundTracks}, 1h};
}

bool IsAbout(qint64 actual, double expected)
{
    return std::abs(static_cast<double>(actual) - expected) <= expected / 100;
}

} // namespace

class tst_DiskBudget : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void mostIsTheLimitOfTheRecorder_data();
    void mostIsTheLimitOfTheRecorder();
    void typicalIsWhatADeskTakes_data();
    void typicalIsWhatADeskTakes();
    void typicalIsNeverMoreThanMost();
    void learnsFromRecordingsOfLikeArea();
    void learnsOnlyTheNewest();
    void scalesWhatItHasLearned();
    void takesSoundOutOfWhatItHasLearned();
    void learnsNothingFromUnlikeOnes_data();
    void learnsNothingFromUnlikeOnes();
    void countsTracks_data();
    void countsTracks();
    void sumsUpAllRecordings();
    void leavesTheReserve_data();
    void leavesTheReserve();
    void sumsDoNotOverflow();
};

void tst_DiskBudget::mostIsTheLimitOfTheRecorder_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("framesPerSecond");
    QTest::addColumn<int>("quality");
    QTest::addColumn<int>("soundTracks");
    QTest::addColumn<double>("bitsPerSecond");
    const auto row = [](const char* name, const QSize& size, int rate, Quality quality, int tracks,
                        double bits) {
        QTest::newRow(name) << size << rate << static_cast<int>(quality) << tracks << bits;
    };
    row("full HD", FullHd, 30, Quality::Normal, 0, 12e6);
    row("small", FullHd, 30, Quality::Small, 0, 6e6);
    row("high", FullHd, 30, Quality::High, 0, 24e6);
    row("60 frames", FullHd, 60, Quality::Normal, 0, 24e6);
    row("two tracks", FullHd, 30, Quality::Normal, 2, 12.256e6);
    row("tiny", QSize(16, 16), 30, Quality::Normal, 1, 0.628e6);
}

void tst_DiskBudget::mostIsTheLimitOfTheRecorder()
{
    QFETCH(QSize, size);
    QFETCH(int, framesPerSecond);
    QFETCH(int, quality);
    QFETCH(int, soundTracks);
    QFETCH(double, bitsPerSecond);
    const auto planned = Hour(size, framesPerSecond, static_cast<Quality>(quality), soundTracks);
    const double content = bitsPerSecond / 8 * 3600;
    QVERIFY(static_cast<double>(MostBytes(planned)) > content);
    QVERIFY(IsAbout(MostBytes(planned), content * 1.01));
}

void tst_DiskBudget::typicalIsWhatADeskTakes_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("framesPerSecond");
    QTest::addColumn<int>("quality");
    QTest::addColumn<double>("kilobytesPerSecond");
    const auto row = [](const char* name, const QSize& size, int rate, Quality quality,
                        double kilobytes) {
        QTest::newRow(name) << size << rate << static_cast<int>(quality) << kilobytes;
    };
    row("full HD", FullHd, 30, Quality::Normal, 413);
    row("HD", QSize(1280, 720), 30, Quality::Normal, 189);
    row("quarter of HD", QSize(640, 360), 30, Quality::Normal, 76);
    row("half of that", QSize(320, 360), 30, Quality::Normal, 38);
    row("half way", QSize(1, 1497600), 30, Quality::Normal, 301);
    row("four screens", QSize(3840, 2160), 30, Quality::Normal, 1652);
    row("60 frames", FullHd, 60, Quality::Normal, 826);
    row("15 frames", FullHd, 15, Quality::Normal, 206.5);
    row("small", FullHd, 30, Quality::Small, 309.75);
    row("high", FullHd, 30, Quality::High, 578.2);
    row("nothing", QSize(), 30, Quality::Normal, 0);
}

void tst_DiskBudget::typicalIsWhatADeskTakes()
{
    QFETCH(QSize, size);
    QFETCH(int, framesPerSecond);
    QFETCH(int, quality);
    QFETCH(double, kilobytesPerSecond);
    const auto planned = Hour(size, framesPerSecond, static_cast<Quality>(quality));
    QVERIFY(IsAbout(TypicalBytes(planned), kilobytesPerSecond * 1000 * 3600));
}

void tst_DiskBudget::typicalIsNeverMoreThanMost()
{
    const MadeRecording noise{{FullHd, 30, Quality::Normal, 0}, 60s, 60LL * 18'448'000};
    QCOMPARE(TypicalBytes(Hour(FullHd), {noise}), MostBytes(Hour(FullHd)));
}

void tst_DiskBudget::learnsFromRecordingsOfLikeArea()
{
    const RecordingShape shape{FullHd, 30, Quality::Normal, 0};
    // The mean of the time, not of the recordings.
    const std::vector<MadeRecording> made{{shape, 10s, 10 * 700'000}, {shape, 30s, 30 * 100'000}};
    QVERIFY(IsAbout(TypicalBytes(Hour(FullHd), made), 250'000.0 * 3600));
}

void tst_DiskBudget::learnsOnlyTheNewest()
{
    const RecordingShape shape{FullHd, 30, Quality::Normal, 0};
    std::vector<MadeRecording> made{{shape, 10min, 600 * 1'000'000}};
    made.insert(made.end(), 5, {shape, 10s, 10 * 100'000});
    QVERIFY(IsAbout(TypicalBytes(Hour(FullHd), made), 100'000.0 * 3600));
    made.pop_back();
    QVERIFY(TypicalBytes(Hour(FullHd), made) > 900'000LL * 3600);
}

void tst_DiskBudget::scalesWhatItHasLearned()
{
    const MadeRecording made{{QSize(1920, 960), 15, Quality::Small, 0}, 10s, 10 * 80'000};
    const double expected = 80'000.0 * 1080 / 960 * 2 / 0.75;
    QVERIFY(IsAbout(TypicalBytes(Hour(FullHd), {made}), expected * 3600));
}

void tst_DiskBudget::takesSoundOutOfWhatItHasLearned()
{
    const MadeRecording made{{FullHd, 30, Quality::Normal, 2}, 10s, 10 * 132'000};
    QVERIFY(IsAbout(TypicalBytes(Hour(FullHd), {made}), 100'000.0 * 3600));
    const auto withSound = Hour(FullHd, 30, Quality::Normal, 1);
    QVERIFY(IsAbout(TypicalBytes(withSound, {made}), 116'000.0 * 3600));
}

void tst_DiskBudget::learnsNothingFromUnlikeOnes_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("seconds");
    QTest::newRow("smaller") << QSize(1920, 863) << 60;
    QTest::newRow("larger") << QSize(1920, 1351) << 60;
    QTest::newRow("short") << FullHd << 4;
    QTest::newRow("unknown size") << QSize() << 60;
}

void tst_DiskBudget::learnsNothingFromUnlikeOnes()
{
    QFETCH(QSize, size);
    QFETCH(int, seconds);
    const MadeRecording made{
        {size, 30, Quality::Normal, 0}, std::chrono::seconds(seconds), seconds * 1'000'000LL};
    QCOMPARE(TypicalBytes(Hour(FullHd), {made}), TypicalBytes(Hour(FullHd)));
}

void tst_DiskBudget::countsTracks_data()
{
    QTest::addColumn<int>("devices");
    QTest::addColumn<bool>("isMixed");
    QTest::addColumn<int>("tracks");
    QTest::newRow("none") << 0 << false << 0;
    QTest::newRow("none, mixed") << 0 << true << 0;
    QTest::newRow("three") << 3 << false << 3;
    QTest::newRow("three, mixed") << 3 << true << 1;
}

void tst_DiskBudget::countsTracks()
{
    QFETCH(int, devices);
    QFETCH(bool, isMixed);
    QFETCH(int, tracks);
    RecordingSettings settings;
    settings.framesPerSecond = 24;
    settings.quality = Quality::High;
    settings.mixSound = isMixed;
    for (int number = 0; number < devices; ++number) {
        settings.soundDevices << QString::number(number);
    }
    const RecordingShape shape = Schedule::ShapeOf(settings, FullHd);
    QCOMPARE(shape.soundTracks, tracks);
    QCOMPARE(shape.size, FullHd);
    QCOMPARE(shape.framesPerSecond, 24);
    QVERIFY(shape.quality == Quality::High);
}

void tst_DiskBudget::sumsUpAllRecordings()
{
    const auto budget = BudgetOf({Hour(FullHd), Hour(QSize(640, 360))}, 100, 10);
    QCOMPARE(budget.mostBytes, MostBytes(Hour(FullHd)) + MostBytes(Hour(QSize(640, 360))));
    QCOMPARE(budget.typicalBytes, TypicalBytes(Hour(FullHd)) + TypicalBytes(Hour(QSize(640, 360))));
    QCOMPARE(budget.availableBytes, qint64(90));
    QCOMPARE(BudgetOf({}, 100, 10).mostBytes, qint64(0));
    QVERIFY(BudgetOf({}, 0, 10).FitsAlways());
}

void tst_DiskBudget::leavesTheReserve_data()
{
    QTest::addColumn<qint64>("freeBytes");
    QTest::addColumn<bool>("fitsAlways");
    QTest::addColumn<bool>("fitsTypically");
    const qint64 reserve = 1'000'000'000;
    const qint64 typical = TypicalBytes(Hour(FullHd));
    const qint64 most = MostBytes(Hour(FullHd));
    QTest::newRow("plenty") << std::numeric_limits<qint64>::max() << true << true;
    QTest::newRow("just always") << most + reserve << true << true;
    QTest::newRow("not always") << most + reserve - 1 << false << true;
    QTest::newRow("just typically") << typical + reserve << false << true;
    QTest::newRow("not typically") << typical + reserve - 1 << false << false;
    QTest::newRow("less than the reserve") << reserve - 1 << false << false;
    QTest::newRow("nothing") << qint64(0) << false << false;
    QTest::newRow("unknown") << qint64(-1) << true << true;
}

void tst_DiskBudget::leavesTheReserve()
{
    QFETCH(qint64, freeBytes);
    QFETCH(bool, fitsAlways);
    QFETCH(bool, fitsTypically);
    const auto budget = BudgetOf({Hour(FullHd)}, freeBytes, 1'000'000'000);
    QCOMPARE(budget.FitsAlways(), fitsAlways);
    QCOMPARE(budget.FitsTypically(), fitsTypically);
    QCOMPARE(budget.availableBytes < 0, freeBytes < 0);
}

void tst_DiskBudget::sumsDoNotOverflow()
{
    const PlannedRecording endless{{QSize(32767, 32767), 240, Quality::High, 9},
                                   std::chrono::hours(24 * 365 * 100)};
    const std::vector<PlannedRecording> planned(1000, endless);
    const auto budget = BudgetOf(planned, 1'000'000'000, 0);
    QVERIFY(!budget.FitsAlways());
    QVERIFY(budget.mostBytes > 0);
    QCOMPARE(MostBytes({{QSize(32767, 32767), 240, Quality::High, 9}, Schedule::Length::max()}),
             std::numeric_limits<qint64>::max());
}

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_DiskBudget)

#include "tst_DiskBudget.moc"
