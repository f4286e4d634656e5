// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <csignal>

#include "RecorderTestSupport.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

class tst_X11Source : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void recordsTheScreenToTheFrame()
    {
        Surroundings surroundings;
        QVERIFY(StartDisplay(surroundings) != nullptr);
        PaintDisplay(surroundings, "red");
        const QString file = surroundings.Path("a.mkv");
        QCOMPARE(Record(surroundings, {"--file", file, "--duration", "1.5"}).exitCode, 0);
        const auto media = MediaIn(file);
        QCOMPARE(media.Size(), QSize(1280, 720));
        QCOMPARE(media.Frames(), 45);
        QVERIFY(std::abs(media.seconds - 1.5) < 0.001);
        QCOMPARE(media.streams.size(), std::size_t(1));
        QVERIFY(IsAbout(ColourAt(file, 1, {200, 200}), Qt::red));
    }

    /// A window of 100x100 at (200, 100) is in the corner of the area that begins there.
    void cutsAnAreaWithTheScreen_data()
    {
        QTest::addColumn<QString>("area");
        QTest::addColumn<QSize>("size");
        QTest::newRow("within") << "200,100,101,51" << QSize(100, 50);
        QTest::newRow("beyond") << "1001,501,1000,1000" << QSize(278, 218);
        QTest::newRow("before") << "-100,-50,301,151" << QSize(200, 100);
    }

    void cutsAnAreaWithTheScreen()
    {
        QFETCH(QString, area);
        QFETCH(QSize, size);
        Surroundings surroundings;
        QVERIFY(StartDisplay(surroundings) != nullptr);
        const QString file = surroundings.Path("a.mkv");
        QCOMPARE(
            Record(surroundings, {"--file", file, "--area", area, "--duration", "0.5"}).exitCode,
            0);
        QCOMPARE(MediaIn(file).Size(), size);
    }

    void failsWithoutAnythingToRecord_data()
    {
        QTest::addColumn<bool>("hasDisplay");
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("beside the screen") << true << QStringList{"--area", "1280,0,100,100"};
        QTest::newRow("empty") << true << QStringList{"--area", "0,0,0,0"};
        QTest::newRow("no display") << false << QStringList();
        QTest::newRow("no such display") << false << QStringList{"--screen", "0"};
    }

    void failsWithoutAnythingToRecord()
    {
        QFETCH(bool, hasDisplay);
        QFETCH(QStringList, arguments);
        Surroundings surroundings;
        if (hasDisplay) {
            QVERIFY(StartDisplay(surroundings) != nullptr);
        } else {
            surroundings.Set("DISPLAY", ":65432");
        }
        const QString file = surroundings.Path("a.mkv");
        const auto outcome = Record(surroundings, QStringList{"--file", file} + arguments);
        QCOMPARE(outcome.exitCode, 1);
        QCOMPARE(outcome.errorLines.size(), 1);
        QVERIFY(!QFile::exists(file));
    }

    /// Xlib ends a process whose display goes.
    void closesTheFileWhenTheDisplayGoes()
    {
        Surroundings surroundings;
        auto* server = StartDisplay(surroundings);
        QVERIFY(server != nullptr);
        const QString file = surroundings.Path("a.mkv");
        LineClient client(surroundings);
        client.Send({{"cmd", "prepare"}, {"id", 1}, {"file", file}});
        client.Send({{"cmd", "start"}});
        QVERIFY(!client.Next("progress").isEmpty());
        server->kill();
        const auto finished = client.Next("finished");
        QCOMPARE(finished.value("reason").toString(), QStringLiteral("no-display"));
        const auto media = MediaIn(file);
        QVERIFY(std::abs(media.seconds - finished.value("ms").toDouble() / 1000) < 0.05);
        QVERIFY(media.seconds >= 1);
        QCOMPARE(DecodingErrors(file), QString());
        QCOMPARE(client.Close(), 0);
    }

    void endsWhenTheDisplayGoes()
    {
        Surroundings surroundings;
        auto* server = StartDisplay(surroundings);
        QVERIFY(server != nullptr);
        const QString file = surroundings.Path("a.mkv");
        QProcess recorder;
        StartRecorder(surroundings, recorder, {"--file", file});
        QTRY_VERIFY_WITH_TIMEOUT(QFileInfo(file).size() > 0, Patience);
        server->kill();
        QCOMPARE(EndOf(recorder).exitCode, 0);
        QVERIFY(MediaIn(file).Frames() > 0);
    }

    void scalesADisplayThatIsResized()
    {
        Surroundings surroundings;
        QVERIFY(StartDisplay(surroundings) != nullptr);
        PaintDisplay(surroundings, "red");
        const QString file = surroundings.Path("a.mkv");
        LineClient client(surroundings);
        client.Send({{"cmd", "prepare"}, {"id", 1}, {"file", file}});
        client.Send({{"cmd", "start"}, {"durationUs", 4000000}});
        QVERIFY(!client.Next("progress").isEmpty());
        ResizeDisplay(surroundings, "small");
        PaintDisplay(surroundings, "blue");
        QCOMPARE(client.Next("finished").value("reason").toString(), QStringLiteral("duration"));
        QCOMPARE(MediaIn(file).Size(), QSize(1280, 720));
        QCOMPARE(DecodingErrors(file), QString());
        QVERIFY(IsAbout(ColourAt(file, 0.2, {20, 360}), Qt::red));
        QVERIFY(IsAbout(ColourAt(file, 3.9, {300, 100}), Qt::blue));
        // 640x480 is narrower: there are bars on both sides.
        QVERIFY(IsAbout(ColourAt(file, 3.9, {20, 360}), Qt::black));
    }

    void recordsNothingBesideAnAreaThatIsGone()
    {
        Surroundings surroundings;
        QVERIFY(StartDisplay(surroundings) != nullptr);
        PaintDisplay(surroundings, "red");
        const QString file = surroundings.Path("a.mkv");
        LineClient client(surroundings);
        client.Send(
            {{"cmd", "prepare"},
             {"id", 1},
             {"file", file},
             {"source",
              QJsonObject{{"type", "x11"}, {"x", 500}, {"y", 300}, {"w", 400}, {"h", 300}}}});
        client.Send({{"cmd", "start"}});
        QVERIFY(!client.Next("progress").isEmpty());
        ResizeDisplay(surroundings, "small");
        QVERIFY(!client.Next("warning").isEmpty());
        PaintDisplay(surroundings, "blue");
        QVERIFY(!client.Next("progress").isEmpty());
        client.Send({{"cmd", "stop"}});
        const double milliseconds = client.Next("finished").value("ms").toDouble();
        const double end = milliseconds / 1000 - 0.1;
        QCOMPARE(MediaIn(file).Size(), QSize(400, 300));
        for (const QPoint& place : {QPoint(5, 5), QPoint(100, 100), QPoint(300, 250)}) {
            QVERIFY(IsAbout(ColourAt(file, end, place), Qt::red));
        }
    }

    /// Each time that the recorder has left it, such a display starts anew.
    void recordsOnADisplayThatNobodyElseUses()
    {
        Surroundings surroundings;
        QVERIFY(StartDisplay(surroundings, QStringLiteral("640x480"), {}) != nullptr);
        for (int round = 0; round < 10; ++round) {
            const QString file = surroundings.Path(QStringLiteral("%1.mkv").arg(round));
            const auto outcome =
                Record(surroundings, {"--file", file, "--duration", "0.1", "--fps", "30"});
            QCOMPARE(outcome.errorLines, QStringList());
            QCOMPARE(outcome.exitCode, 0);
            QCOMPARE(MediaIn(file).Frames(), 3);
        }
    }

    void endsCompleteBySignal_data()
    {
        QTest::addColumn<int>("signal");
        QTest::addColumn<bool>("isInBackground");
        QTest::newRow("SIGINT") << SIGINT << false;
        QTest::newRow("SIGTERM") << SIGTERM << false;
        QTest::newRow("SIGINT in the background") << SIGINT << true;
    }

    void endsCompleteBySignal()
    {
        QFETCH(int, signal);
        QFETCH(bool, isInBackground);
        Surroundings surroundings;
        QVERIFY(StartDisplay(surroundings) != nullptr);
        const QString file = surroundings.Path("a.mkv");
        QProcess recorder;
        // As a shell does it.
        const auto before = std::signal(SIGINT, isInBackground ? SIG_IGN : SIG_DFL);
        StartRecorder(surroundings, recorder, {"--file", file});
        std::signal(SIGINT, before);
        QTRY_VERIFY_WITH_TIMEOUT(QFileInfo(file).size() > 0, Patience);
        kill(static_cast<pid_t>(recorder.processId()), signal);
        const auto outcome = EndOf(recorder);
        QCOMPARE(outcome.exitCode, 0);
        QCOMPARE(outcome.errorLines, QStringList());
        const auto media = MediaIn(file);
        QVERIFY(media.Frames() > 0);
        QVERIFY(std::abs(media.seconds - media.Frames() / 30.0) < 0.001);
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_X11Source)
#include "tst_X11Source.moc"
