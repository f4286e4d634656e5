// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <csignal>

#include "RecorderTestSupport.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

QJsonObject Prepare(int id, const QString& file)
{
    return {
        {"cmd", "prepare"}, {"id", id}, {"file", file}, {"source", QJsonObject{{"type", "test"}}}};
}

QJsonObject Command(const QString& name)
{
    return {{"cmd", name}};
}

QJsonObject StartFor(int seconds)
{
    return {{"cmd", "start"}, {"durationUs", seconds * 1000000}};
}

} // namespace

class tst_LineSession : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void records()
    {
        const Surroundings surroundings;
        LineClient client(surroundings);
        const auto hello = client.NextEvent();
        QCOMPARE(hello.value("event").toString(), QStringLiteral("hello"));
        QCOMPARE(hello.value("version").toInt(), 1);
        const QString file = surroundings.Path("a.mkv");
        client.Send(Prepare(7, file));
        const auto ready = client.NextEvent();
        QCOMPARE(ready.value("event").toString(), QStringLiteral("ready"));
        QCOMPARE(ready.value("id").toInt(), 7);
        QVERIFY(ready.value("tookMs").toDouble() > 0);
        client.Send(StartFor(2));
        const auto recording = client.NextEvent();
        QCOMPARE(recording.value("event").toString(), QStringLiteral("recording"));
        const auto progress = client.Next("progress");
        for (const char* member : {"ms", "bytes", "free", "frames", "duplicated", "dropped"}) {
            QVERIFY2(progress.value(QLatin1String(member)).isDouble(), member);
        }
        const auto finished = client.Next("finished");
        QCOMPARE(finished.value("id").toInt(), 7);
        QCOMPARE(finished.value("reason").toString(), QStringLiteral("duration"));
        QCOMPARE(finished.value("ms").toInt(), 2000);
        QCOMPARE(finished.value("file").toString(), file);
        QCOMPARE(qint64(finished.value("bytes").toDouble()), QFileInfo(file).size());
        QCOMPARE(MediaIn(file).Frames() + finished.value("dropped").toInt(), 60);
        QCOMPARE(client.Close(), 0);
    }

    void startsAtATimeOfTheClock()
    {
        const Surroundings surroundings;
        LineClient client(surroundings);
        client.Send(Prepare(1, surroundings.Path("a.mkv")));
        QVERIFY(!client.Next("ready").isEmpty());
        const qint64 at = QDateTime::currentMSecsSinceEpoch() * 1000 + 1500000;
        client.Send({{"cmd", "start"}, {"atUs", at}, {"durationUs", 500000}});
        const auto begun = qint64(client.Next("recording").value("wallUs").toDouble());
        QVERIFY2(begun >= at, "too early");
        // A frame takes 33 ms; the rest is for a machine that does other things.
        QVERIFY2(begun - at < 1000000, qPrintable(QString::number(begun - at)));
        QVERIFY(!client.Next("finished").isEmpty());
    }

    void answersGarbageByOneLineEach()
    {
        const Surroundings surroundings;
        LineClient client(surroundings);
        client.Next("hello");
        const QByteArrayList lines{"garbage\n",
                                   "[1,2]\n",
                                   "{\"cmd\":\"dance\"}\n",
                                   "{}\n",
                                   "\xff\xfe\n",
                                   QByteArray(200000, 'x') + "\n",
                                   "{\"cmd\":\"stop\"}\n"};
        for (const auto& line : lines) {
            client.SendRaw(line);
            const auto answer = client.NextEvent();
            QCOMPARE(answer.value("event").toString(), QStringLiteral("failed"));
            QVERIFY(!answer.contains("id"));
        }
        client.SendRaw("\n\n");
        client.Send(Command("probe"));
        QCOMPARE(client.NextEvent().value("event").toString(), QStringLiteral("encoders"));
        QCOMPARE(client.Close(), 0);
    }

    void isBusyWithOneRecording()
    {
        const Surroundings surroundings;
        LineClient client(surroundings);
        client.Send(Prepare(1, surroundings.Path("a.mkv")));
        QVERIFY(!client.Next("ready").isEmpty());
        client.Send(Prepare(2, surroundings.Path("b.mkv")));
        const auto failed = client.NextEvent();
        QCOMPARE(failed.value("code").toString(), QStringLiteral("busy"));
        QCOMPARE(failed.value("id").toInt(), 2);
        QVERIFY(!QFile::exists(surroundings.Path("b.mkv")));
        client.Send(StartFor(1));
        QCOMPARE(client.Next("finished").value("id").toInt(), 1);
    }

    /// A command for a recording that is over does not reach the next one.
    void tellsRecordingsApart()
    {
        const Surroundings surroundings;
        LineClient client(surroundings);
        client.Send(Prepare(1, surroundings.Path("a.mkv")));
        client.Send(StartFor(1));
        QVERIFY(!client.Next("finished").isEmpty());
        client.Send(Prepare(2, surroundings.Path("b.mkv")));
        client.Send(StartFor(2));
        QVERIFY(!client.Next("recording").isEmpty());
        client.Send({{"cmd", "stop"}, {"id", 1}});
        QCOMPARE(client.NextEvent().value("code").toString(), QStringLiteral("no-recording"));
        const auto finished = client.NextEvent();
        QCOMPARE(finished.value("reason").toString(), QStringLiteral("duration"));
        QCOMPARE(finished.value("ms").toInt(), 2000);
    }

    void removesACancelledFile()
    {
        const Surroundings surroundings;
        LineClient client(surroundings);
        const QString file = surroundings.Path("a.mkv");
        client.Send(Prepare(1, file));
        client.Send(Command("start"));
        QVERIFY(!client.Next("progress").isEmpty());
        QVERIFY(QFile::exists(file));
        client.Send(Command("cancel"));
        const auto cancelled = client.NextEvent();
        QCOMPARE(cancelled.value("event").toString(), QStringLiteral("cancelled"));
        QCOMPARE(cancelled.value("id").toInt(), 1);
        QVERIFY(!QFile::exists(file));
    }

    void leavesAPauseOut()
    {
        const Surroundings surroundings;
        LineClient client(surroundings);
        const QString file = surroundings.Path("a.mkv");
        client.Send(Prepare(1, file));
        client.Send(StartFor(3));
        QVERIFY(!client.Next("progress").isEmpty());
        client.Send(Command("pause"));
        // Progress goes on, the recording does not.
        auto before = client.Next("progress");
        auto progress = client.Next("progress");
        QCOMPARE(progress.value("ms"), before.value("ms"));
        client.Send(Command("resume"));
        QCOMPARE(client.Next("finished").value("ms").toInt(), 3000);
        QVERIFY(std::abs(MediaIn(file).seconds - 3) < 0.05);
    }

    void closesTheFileWhenItsClientGoes()
    {
        const Surroundings surroundings;
        LineClient client(surroundings);
        const QString file = surroundings.Path("a.mkv");
        client.Send(Prepare(1, file));
        client.Send(Command("start"));
        QVERIFY(!client.Next("progress").isEmpty());
        client.Process().closeWriteChannel();
        QCOMPARE(client.Next("finished").value("reason").toString(), QStringLiteral("client-gone"));
        QCOMPARE(client.Close(), 0);
        QVERIFY(MediaIn(file).seconds >= 1);
    }

    void closesTheFileWhenItIsToQuit_data()
    {
        QTest::addColumn<bool>("isSignal");
        QTest::addColumn<QString>("reason");
        QTest::newRow("quit") << false << "quit";
        QTest::newRow("SIGTERM") << true << "stopped";
    }

    void closesTheFileWhenItIsToQuit()
    {
        QFETCH(bool, isSignal);
        QFETCH(QString, reason);
        const Surroundings surroundings;
        LineClient client(surroundings);
        client.Send(Prepare(1, surroundings.Path("a.mkv")));
        client.Send(Command("start"));
        QVERIFY(!client.Next("progress").isEmpty());
        if (isSignal) {
            client.Process().terminate();
        } else {
            client.Send(Command("quit"));
        }
        QCOMPARE(client.Next("finished").value("reason").toString(), reason);
        QCOMPARE(client.Close(), 0);
    }

    void keepsNoFileOfWhatNeverBegan()
    {
        const Surroundings surroundings;
        LineClient client(surroundings);
        client.Send(Prepare(1, surroundings.Path("a.mkv")));
        QVERIFY(!client.Next("ready").isEmpty());
        client.Send(Command("stop"));
        QCOMPARE(client.NextEvent().value("code").toString(), QStringLiteral("nothing-recorded"));
        QVERIFY(!QFile::exists(surroundings.Path("a.mkv")));
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_LineSession)
#include "tst_LineSession.moc"
