// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RecordingTexts.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

using namespace std::chrono_literals;
using Desktop::LengthText;
using Desktop::OutcomeText;
using Desktop::ReasonText;
using Schedule::Moment;
using Schedule::Outcome;

class tst_RecordingTexts : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void tellsOutcomes_data()
    {
        QTest::addColumn<int>("outcome");
        QTest::addColumn<QString>("reason");
        QTest::addColumn<QString>("text");
        const auto row = [](Outcome outcome, const char* reason, const char* text) {
            QTest::newRow(text) << int(outcome) << reason << text;
        };
        row(Outcome::Complete, "", "Complete");
        row(Outcome::Complete, "duration", "Complete");
        row(Outcome::Stopped, "user", "Stopped by you");
        row(Outcome::Partial, "program-died", "Incomplete: the program ended unexpectedly");
        row(Outcome::Missed, "not-running", "Missed: the program was not running");
        row(Outcome::Failed, "disk-full", "Failed: the disk was full");
        row(Outcome::Failed, "", "Failed");
        row(Outcome::Failed, "something new", "Failed: something new");
        row(Outcome::Recording, "", "Recording now");
    }

    void tellsOutcomes()
    {
        QFETCH(int, outcome);
        QFETCH(QString, reason);
        QFETCH(QString, text);
        QCOMPARE(OutcomeText({"a", {}, {}, Outcome(outcome), {}, reason}), text);
    }

    void knowsEveryReason_data()
    {
        QTest::addColumn<QString>("reason");
        namespace Why = Schedule::Why;
        for (const QString& reason :
             {Why::Late, Why::Rest, Why::RecorderDied, Why::ProgramDied, Why::GaveWay,
              Why::ShutDown, Why::Suspended, Why::NotRunning, Why::ScheduleOff, Why::ClockSet,
              Why::OtherRecording, Why::ScreenMissing, Why::Skipped, Why::User, Why::NoRecorder}) {
            QTest::newRow(qPrintable(reason)) << reason;
        }
        // Of the recorder.
        for (const char* reason :
             {"duration", "stopped", "disk-low", "no-display", "client-gone", "quit", "busy",
              "exists", "no-folder", "not-writable", "disk-full", "refused", "no-encoder",
              "nothing-recorded", "remux", "pipeline"}) {
            QTest::newRow(reason) << reason;
        }
    }

    void knowsEveryReason()
    {
        QFETCH(QString, reason);
        QVERIFY2(ReasonText(reason) != reason, qPrintable(reason));
    }

    void tellsLengths_data()
    {
        QTest::addColumn<qint64>("microseconds");
        QTest::addColumn<QString>("text");
        QTest::newRow("nothing") << qint64(0) << "0:00:00";
        QTest::newRow("negative") << qint64(-5'000'000) << "0:00:00";
        QTest::newRow("almost a second") << qint64(999'999) << "0:00:00";
        QTest::newRow("seconds") << qint64(59'000'000) << "0:00:59";
        QTest::newRow("hours") << qint64(3'723'000'000) << "1:02:03";
        QTest::newRow("days") << qint64(360'000'000'000) << "100:00:00";
    }

    void tellsLengths()
    {
        QFETCH(qint64, microseconds);
        QFETCH(QString, text);
        QVERIFY(LengthText(std::chrono::microseconds(microseconds)).contains(text));
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_RecordingTexts)

#include "tst_RecordingTexts.moc"
