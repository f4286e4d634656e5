// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RecorderTestSupport.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

QStringList TestPicture(const QString& file, const QStringList& more)
{
    return QStringList{"--source", "test", "--file", file} + more;
}

/// Has GStreamer see all of its plugins but these.
void LeavePluginsOut(Surroundings& surroundings, const QStringList& names)
{
    const QString folder = surroundings.Path("plugins");
    QDir().mkpath(folder);
    const QDir installed(PX_PLUGINS);
    const auto plugins = installed.entryList({"*.so"}, QDir::Files);
    for (const auto& plugin : plugins) {
        if (!names.contains(plugin)) {
            QFile::link(installed.filePath(plugin), folder + "/" + plugin);
        }
    }
    surroundings.Set("GST_PLUGIN_SYSTEM_PATH_1_0", folder);
    surroundings.Set("GST_REGISTRY_1_0", surroundings.Path("registry"));
}

} // namespace

class tst_Recording : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void hasExactlyTheFramesOfItsLength_data()
    {
        QTest::addColumn<QString>("rate");
        QTest::addColumn<QString>("duration");
        QTest::addColumn<int>("frames");
        QTest::newRow("30 a second") << "30"
                                     << "1" << 30;
        QTest::newRow("a fraction") << "30"
                                    << "0.72" << 22;
        QTest::newRow("one frame") << "30"
                                   << "0.001" << 1;
        QTest::newRow("60 a second") << "60"
                                     << "1.5" << 90;
        QTest::newRow("7 a second") << "7"
                                    << "2" << 14;
        QTest::newRow("1 a second") << "1"
                                    << "2" << 2;
    }

    void hasExactlyTheFramesOfItsLength()
    {
        QFETCH(QString, rate);
        QFETCH(QString, duration);
        QFETCH(int, frames);
        const Surroundings surroundings;
        const QString file = surroundings.Path("a.mkv");
        QCOMPARE(Record(surroundings, TestPicture(file, {"--fps", rate, "--duration", duration}))
                     .exitCode,
                 0);
        QCOMPARE(MediaIn(file).Frames(), frames);
    }

    void encodesWithEachEncoderThatIsInstalled_data()
    {
        QTest::addColumn<QString>("encoder");
        QTest::addColumn<QString>("ending");
        QTest::addColumn<QString>("codec");
        QTest::newRow("x264") << "x264enc"
                              << "mkv"
                              << "h264";
        QTest::newRow("VP9") << "vp9enc"
                             << "mkv"
                             << "vp9";
        QTest::newRow("x264 in MP4") << "x264enc"
                                     << "mp4"
                                     << "h264";
    }

    void encodesWithEachEncoderThatIsInstalled()
    {
        QFETCH(QString, encoder);
        QFETCH(QString, ending);
        QFETCH(QString, codec);
        const Surroundings surroundings;
        const QString file = surroundings.Path("a." + ending);
        QCOMPARE(
            Record(surroundings,
                   TestPicture(
                       file, {"--encoder", encoder, "--duration", "0.5", "--area", "0,0,320,240"}))
                .exitCode,
            0);
        const auto media = MediaIn(file);
        QCOMPARE(media.streams.front().codec, codec);
        QCOMPARE(media.Frames(), 15);
        QCOMPARE(DecodingErrors(file), QString());
    }

    void takesTheEncoderThatIsLeft()
    {
        Surroundings surroundings;
        LeavePluginsOut(surroundings, {"libgstx264.so", "libgstva.so", "libgstopenh264.so"});
        const QString file = surroundings.Path("a.mkv");
        QCOMPARE(Record(surroundings, TestPicture(file, {"--duration", "0.5"})).exitCode, 0);
        QCOMPARE(MediaIn(file).streams.front().codec, QStringLiteral("vp9"));
        for (const QStringList& options :
             {QStringList{"--encoder", "x264enc"}, QStringList{"--duration", "0.5"}}) {
            // None is left for an MP4.
            const QString name = surroundings.Path(options.contains("x264enc") ? "b.mkv" : "b.mp4");
            const auto outcome = Record(surroundings, TestPicture(name, options));
            QCOMPARE(outcome.exitCode, 1);
            QCOMPARE(outcome.errorLines.size(), 1);
            QVERIFY(!QFile::exists(name));
        }
    }

    void showsProgressOnATerminal()
    {
        const Surroundings surroundings;
        const QString command =
            PX_RECORDER " --source test --duration 2.5 --file " + surroundings.Path("a.mkv");
        const QByteArray output =
            surroundings.Run("script", {"--quiet", "--return", "--command", command, "/dev/null"});
        QVERIFY2(output.contains("0:00:01"), output.constData());
        QVERIFY2(output.contains("frames"), output.constData());
    }

    /// Several times what a machine can encode.
    void letsAFasterEncoderTakeOver()
    {
        const Surroundings surroundings;
        const QString file = surroundings.Path("a.mkv");
        LineClient client(surroundings);
        client.Send({{"cmd", "prepare"},
                     {"id", 1},
                     {"file", file},
                     {"fps", 240},
                     {"source", QJsonObject{{"type", "test"}, {"w", 3840}, {"h", 2160}}}});
        client.Send({{"cmd", "start"}, {"durationUs", 3000000}});
        QVERIFY(!client.Next("warning").isEmpty());
        const auto finished = client.Next("finished");
        const int frames = finished.value("frames").toInt();
        const int dropped = finished.value("dropped").toInt();
        QCOMPARE(frames + dropped, 720);
        QCOMPARE(MediaIn(file).Frames(), frames);
        QCOMPARE(DecodingErrors(file), QString());
    }

    void isSmallerInALowerQuality()
    {
        const Surroundings surroundings;
        qint64 last = 0;
        for (const char* quality : {"small", "normal", "high"}) {
            const QString file = surroundings.Path(QString(quality) + ".mkv");
            QCOMPARE(
                Record(surroundings, TestPicture(file, {"--quality", quality, "--duration", "1"}))
                    .exitCode,
                0);
            const qint64 size = QFileInfo(file).size();
            QVERIFY(size > last);
            last = size;
        }
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_Recording)
#include "tst_Recording.moc"
