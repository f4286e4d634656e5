// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <csignal>

#include <QImage>

#include "RecorderTestSupport.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

/// The display, as \a more says.
Outcome RecordDisplay(const Surroundings& surroundings, const QString& file,
                      const QStringList& more)
{
    return Record(surroundings,
                  QStringList{"--file", file, "--area", "0,0,640,480", "--no-pointer"} + more);
}

} // namespace

class tst_PictureMaker : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void makesASmallPicture_data()
    {
        QTest::addColumn<QString>("encoder");
        QTest::addColumn<QString>("name");
        QTest::newRow("VP9") << "vp9enc"
                             << "a.mkv";
        QTest::newRow("H.264") << "x264enc"
                               << "a.mkv";
        QTest::newRow("MP4") << "x264enc"
                             << "a.mp4";
    }

    void makesASmallPicture()
    {
        QFETCH(QString, encoder);
        QFETCH(QString, name);
        Surroundings surroundings;
        QVERIFY(StartDisplay(surroundings) != nullptr);
        PaintDisplay(surroundings, "blue");
        const QString file = surroundings.Path(name);
        QCOMPARE(
            RecordDisplay(surroundings, file, {"--duration", "1.5", "--encoder", encoder}).exitCode,
            0);
        const QString path = surroundings.Path("a.png");
        const auto outcome = Record(surroundings, {"--picture", file, path});
        QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.errorLines.join('\n')));
        const QImage picture(path);
        QCOMPARE(picture.size(), QSize(320, 240));
        QVERIFY(IsAbout(picture.pixelColor(160, 120), QColor("blue")));
    }

    /// Such a file has no index and no length.
    void makesAPictureOfWhatACrashHasLeft()
    {
        Surroundings surroundings;
        const QString file = surroundings.Path("a.mkv");
        QProcess recorder;
        StartRecorder(surroundings, recorder,
                      {"--source", "test", "--encoder", "vp9enc", "--file", file});
        QTRY_VERIFY_WITH_TIMEOUT(QFileInfo(file).size() > 20000, Patience);
        ::kill(pid_t(recorder.processId()), SIGKILL);
        EndOf(recorder);
        const QString path = surroundings.Path("a.png");
        QCOMPARE(Record(surroundings, {"--picture", file, path}).exitCode, 0);
        QCOMPARE(QImage(path).width(), 320);
    }

    void takesTheEndOfAShortRecording()
    {
        const Surroundings surroundings;
        const QString file = surroundings.Path("a.mkv");
        QCOMPARE(
            Record(surroundings,
                   {"--source", "test", "--encoder", "vp9enc", "--file", file, "--duration", "0.2"})
                .exitCode,
            0);
        const QString path = surroundings.Path("a.png");
        QCOMPARE(Record(surroundings, {"--picture", file, path}).exitCode, 0);
        QVERIFY(!QImage(path).isNull());
    }

    void failsWithoutAPicture_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("text") << QByteArray(5000, 'x');
        QTest::newRow("begin of a recording") << QByteArray::fromHex("1a45dfa384428681011853");
    }

    void failsWithoutAPicture()
    {
        QFETCH(QByteArray, content);
        const Surroundings surroundings;
        QFile file(surroundings.Path("a.mkv"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        for (const QString& name : {surroundings.Path("a.mkv"), surroundings.Path("none.mkv")}) {
            const auto outcome =
                Record(surroundings, {"--picture", name, surroundings.Path("a.png")});
            QCOMPARE(outcome.exitCode, 1);
            QCOMPARE(outcome.errorLines.size(), 1);
        }
        QVERIFY(!QFile::exists(surroundings.Path("a.png")));
    }

    void leavesAnExistingFileAlone()
    {
        const Surroundings surroundings;
        const QString file = surroundings.Path("a.mkv");
        QCOMPARE(
            Record(surroundings,
                   {"--source", "test", "--encoder", "vp9enc", "--file", file, "--duration", "0.2"})
                .exitCode,
            0);
        QFile other(surroundings.Path("a.png"));
        QVERIFY(other.open(QIODevice::ReadWrite));
        other.write("other");
        other.close();
        QCOMPARE(Record(surroundings, {"--picture", file, other.fileName()}).exitCode, 1);
        QVERIFY(other.open(QIODevice::ReadOnly));
        QCOMPARE(other.readAll(), QByteArray("other"));
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_PictureMaker)

#include "tst_PictureMaker.moc"
