// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QJsonArray>
#include <QJsonDocument>

#include "RecorderTestSupport.h"
#include "SoundServer.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

constexpr double Silence = -80;

QStringList Arguments(const QString& file, const QStringList& more)
{
    return QStringList{"--source", "test", "--file", file, "--duration", "2"} + more;
}

} // namespace

class tst_SoundTrack : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void recordsATrackOfEachDevice()
    {
        Surroundings surroundings;
        SoundServer server(surroundings);
        server.AddOutput("speakers");
        server.AddMicrophone("mic");
        server.PlayTone("speakers");
        QVERIFY(server.IsRunning());
        const QString file = surroundings.Path("a.mkv");
        const auto outcome = Record(
            surroundings, Arguments(file, {"--sound", "mic", "--sound", "speakers.monitor"}));
        QCOMPARE(outcome.exitCode, 0);
        QCOMPARE(outcome.errorLines, QStringList());
        const auto media = MediaIn(file);
        QCOMPARE(media.streams.size(), std::size_t(3));
        QCOMPARE(media.streams[1].codec, QStringLiteral("opus"));
        QVERIFY(std::abs(media.seconds - 2) < 0.05);
        QVERIFY(VolumeOf(file, 0, 0, 2) < Silence);
        QVERIFY(VolumeOf(file, 1, 0.2, 1.8) > -20);
    }

    void saysWhatDevicesAreCalled()
    {
        Surroundings surroundings;
        SoundServer server(surroundings);
        server.AddMicrophone("mic");
        QVERIFY(server.IsRunning());
        const auto found =
            QJsonDocument::fromJson(surroundings.Run(PX_RECORDER, {"--probe"})).object();
        const auto devices = found.value("soundDevices").toArray();
        QVERIFY(devices.contains("mic"));
        const auto titles = found.value("soundDeviceTitles").toObject();
        QCOMPARE(titles.size(), devices.size());
        for (const auto& device : devices) {
            QVERIFY(!titles.value(device.toString()).toString().isEmpty());
        }
        QVERIFY(titles.value("mic").toString() != QString("mic"));
    }

    void mixesAllDevicesIntoOneTrack()
    {
        Surroundings surroundings;
        SoundServer server(surroundings);
        server.AddOutput("speakers");
        server.AddMicrophone("mic");
        server.PlayTone("speakers");
        QVERIFY(server.IsRunning());
        const QString file = surroundings.Path("a.mp4");
        const auto outcome =
            Record(surroundings,
                   Arguments(file, {"--sound", "mic", "--sound", "speakers.monitor", "--mix"}));
        QCOMPARE(outcome.exitCode, 0);
        QCOMPARE(MediaIn(file).streams.size(), std::size_t(2));
        QVERIFY(VolumeOf(file, 0, 0.2, 1.8) > -20);
    }

    void isSilentForAnAbsentDevice()
    {
        Surroundings surroundings;
        SoundServer server(surroundings);
        server.AddOutput("speakers");
        server.PlayTone("speakers");
        QVERIFY(server.IsRunning());
        const QString file = surroundings.Path("a.mkv");
        const auto outcome = Record(surroundings, Arguments(file, {"--sound", "nowhere"}));
        QCOMPARE(outcome.exitCode, 0);
        QCOMPARE(outcome.errorLines.size(), 1);
        QVERIFY(outcome.errorLines.first().contains("nowhere"));
        QCOMPARE(MediaIn(file).streams.size(), std::size_t(2));
        QVERIFY(VolumeOf(file, 0, 0, 2) < Silence);
    }

    /// The sound server moves the stream to what plays the tone.
    void neverRecordsAnotherDeviceThanTheChosenOne()
    {
        Surroundings surroundings;
        SoundServer server(surroundings);
        const QString microphone = server.AddMicrophone("mic");
        server.AddMicrophone("private");
        server.PlayTone("private");
        server.AddOutput("speakers");
        server.PlayTone("speakers");
        QVERIFY(server.IsRunning());
        const QString file = surroundings.Path("a.mkv");
        LineClient client(surroundings);
        client.Send({{"cmd", "prepare"},
                     {"id", 1},
                     {"file", file},
                     {"audio", QJsonArray{"mic"}},
                     {"source", QJsonObject{{"type", "test"}}}});
        client.Send({{"cmd", "start"}});
        QVERIFY(!client.Next("progress").isEmpty());
        server.Remove(microphone);
        QVERIFY(client.Next("warning").value("text").toString().contains("mic"));
        QVERIFY(!client.Next("progress").isEmpty());
        client.Send({{"cmd", "stop"}});
        const double seconds = client.Next("finished").value("ms").toDouble() / 1000;
        QVERIFY(VolumeOf(file, 0, 0, seconds) < Silence);
        QVERIFY(std::abs(MediaIn(file).seconds - seconds) < 0.05);
    }

    void recordsThePictureWithoutASoundServer()
    {
        const Surroundings surroundings;
        const QString file = surroundings.Path("a.mkv");
        const auto outcome = Record(surroundings, Arguments(file, {"--sound", "mic"}));
        QCOMPARE(outcome.exitCode, 0);
        QCOMPARE(outcome.errorLines.size(), 1);
        const auto media = MediaIn(file);
        QCOMPARE(media.streams.size(), std::size_t(1));
        QVERIFY(std::abs(media.seconds - 2) < 0.05);
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_SoundTrack)
#include "tst_SoundTrack.moc"
