// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <csignal>

#include <sys/mount.h>
#include <unistd.h>

#include "RecorderTestSupport.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

/// A volume of 12 MB, as long as it lives.
class SmallVolume {
public:
    explicit SmallVolume(QString folder)
        : m_folder(std::move(folder))
    {
        QDir().mkpath(m_folder);
        m_isMounted =
            mount("tmpfs", QFile::encodeName(m_folder).constData(), "tmpfs", 0, "size=12m") == 0;
    }
    ~SmallVolume() { umount2(QFile::encodeName(m_folder).constData(), MNT_DETACH); }
    bool IsMounted() const { return m_isMounted; }
    QString Path(const QString& name) const { return m_folder + "/" + name; }

private:
    const QString m_folder;
    bool m_isMounted = false;
};

void Write(const QString& path, const QByteArray& text)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
}

QByteArray TextIn(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList TestPicture(const QString& file, const QStringList& more)
{
    return QStringList{"--source", "test", "--file", file} + more;
}

} // namespace

class tst_FileSafety : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void neverTouchesAnExistingFile_data()
    {
        QTest::addColumn<QString>("existing");
        QTest::addColumn<QString>("recorded");
        QTest::newRow("mkv") << "a.mkv"
                             << "a.mkv";
        QTest::newRow("mp4") << "a.mp4"
                             << "a.mp4";
        QTest::newRow("what the mp4 is made from") << "a.mkv"
                                                   << "a.mp4";
    }

    void neverTouchesAnExistingFile()
    {
        QFETCH(QString, existing);
        QFETCH(QString, recorded);
        const Surroundings surroundings;
        Write(surroundings.Path(existing), "precious");
        const auto before = QDir(surroundings.Path({})).entryList(QDir::Files);
        const auto outcome =
            Record(surroundings, TestPicture(surroundings.Path(recorded), {"--duration", "0.5"}));
        QCOMPARE(outcome.exitCode, 1);
        QCOMPARE(outcome.errorLines.size(), 1);
        QCOMPARE(TextIn(surroundings.Path(existing)), QByteArray("precious"));
        QCOMPARE(QDir(surroundings.Path({})).entryList(QDir::Files), before);
    }

    void doesNotFollowALinkToNothing()
    {
        const Surroundings surroundings;
        QVERIFY(QFile::link(surroundings.Path("target.mkv"), surroundings.Path("a.mkv")));
        QCOMPARE(
            Record(surroundings, TestPicture(surroundings.Path("a.mkv"), {"--duration", "0.5"}))
                .exitCode,
            1);
        QVERIFY(!QFile::exists(surroundings.Path("target.mkv")));
    }

    void failsWhereItCannotWrite_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QStringList>("options");
        QTest::newRow("no folder") << "none/a.mkv" << QStringList();
        QTest::newRow("a file as folder") << "file/a.mkv" << QStringList();
        QTest::newRow("reserve") << "a.mkv" << QStringList{"--reserve", "9000000000000000"};
        QTest::newRow("VP9 as MP4") << "a.mp4" << QStringList{"--encoder", "vp9enc"};
    }

    void failsWhereItCannotWrite()
    {
        QFETCH(QString, file);
        QFETCH(QStringList, options);
        const Surroundings surroundings;
        Write(surroundings.Path("file"), "text");
        const auto outcome =
            Record(surroundings,
                   TestPicture(surroundings.Path(file), options + QStringList{"--duration", "1"}));
        QCOMPARE(outcome.exitCode, 1);
        QCOMPARE(outcome.errorLines.size(), 1);
        QVERIFY(!QFile::exists(surroundings.Path(file)));
    }

    void canBePlayedAfterAKill()
    {
        const Surroundings surroundings;
        const QString file = surroundings.Path("a.mkv");
        LineClient client(surroundings);
        client.Send({{"cmd", "prepare"},
                     {"id", 1},
                     {"file", file},
                     {"source", QJsonObject{{"type", "test"}}}});
        client.Send({{"cmd", "start"}});
        QJsonObject progress;
        while (progress.value("ms").toInt() < 3000) {
            progress = client.Next("progress");
            QVERIFY(!progress.isEmpty());
        }
        client.Process().kill();
        client.Process().waitForFinished(Patience);
        QCOMPARE(DecodingErrors(file), QString());
        // At most a second is lost.
        const int frames = MediaIn(file).Frames();
        QVERIFY2(frames >= progress.value("frames").toInt() - 30,
                 qPrintable(QString::number(frames)));

        QCOMPARE(Record(surroundings, {"--repair", file}).exitCode, 0);
        const auto repaired = MediaIn(file);
        QCOMPARE(repaired.Frames(), frames);
        QVERIFY(std::abs(repaired.seconds - frames / 30.0) < 0.05);
    }

    void repairsOnlyWhatIsARecording()
    {
        const Surroundings surroundings;
        const QString file = surroundings.Path("a.mkv");
        Write(file, QByteArray(5000, 'x'));
        const auto before = QDir(surroundings.Path({})).entryList(QDir::Files);
        for (const QString& name : {file, surroundings.Path("none.mkv")}) {
            const auto outcome = Record(surroundings, {"--repair", name});
            QCOMPARE(outcome.exitCode, 1);
            QCOMPARE(outcome.errorLines.size(), 1);
        }
        QCOMPARE(TextIn(file), QByteArray(5000, 'x'));
        QCOMPARE(QDir(surroundings.Path({})).entryList(QDir::Files), before);
    }

    void makesAnMp4OfTheClosedFile()
    {
        const Surroundings surroundings;
        const QString file = surroundings.Path("a.mp4");
        QCOMPARE(Record(surroundings, TestPicture(file, {"--duration", "1"})).exitCode, 0);
        QCOMPARE(MediaIn(file).Frames(), 30);
        QCOMPARE(DecodingErrors(file), QString());
        QCOMPARE(QDir(surroundings.Path({})).entryList({"a*"}, QDir::Files), QStringList{"a.mp4"});
    }

    void recordsTwoAtOnce()
    {
        const Surroundings surroundings;
        QProcess first;
        QProcess second;
        StartRecorder(surroundings, first,
                      TestPicture(surroundings.Path("a.mkv"), {"--duration", "1"}));
        StartRecorder(surroundings, second,
                      TestPicture(surroundings.Path("b.mkv"), {"--duration", "1"}));
        QCOMPARE(EndOf(first).exitCode, 0);
        QCOMPARE(EndOf(second).exitCode, 0);
        QVERIFY(std::abs(MediaIn(surroundings.Path("a.mkv")).seconds - 1) < 0.05);
        QVERIFY(std::abs(MediaIn(surroundings.Path("b.mkv")).seconds - 1) < 0.05);
    }

    void endsBeforeTheDiskIsFull_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QStringList>("options");
        QTest::newRow("reserve") << "a.mkv" << QStringList{"--reserve", "12540000"};
        QTest::newRow("mp4, which needs room for a copy")
            << "a.mp4" << QStringList{"--reserve", "12500000"};
    }

    void endsBeforeTheDiskIsFull()
    {
        QFETCH(QString, file);
        QFETCH(QStringList, options);
        const Surroundings surroundings;
        const SmallVolume volume(surroundings.Path("small"));
        if (!volume.IsMounted()) {
            QSKIP("only root can mount a small volume");
        }
        const QStringList busy{"--fps", "120", "--quality", "high"};
        const auto outcome = Record(surroundings, TestPicture(volume.Path(file), busy + options));
        QCOMPARE(outcome.exitCode, 0);
        QCOMPARE(DecodingErrors(volume.Path(file)), QString());
        QVERIFY(MediaIn(volume.Path(file)).seconds > 0);
    }

    void canBePlayedWhenAnotherFillsTheDisk()
    {
        const Surroundings surroundings;
        const SmallVolume volume(surroundings.Path("small"));
        if (!volume.IsMounted()) {
            QSKIP("only root can mount a small volume");
        }
        const QString file = volume.Path("a.mkv");
        QProcess recorder;
        StartRecorder(surroundings, recorder, TestPicture(file, {"--fps", "120"}));
        QTRY_VERIFY_WITH_TIMEOUT(QFileInfo(file).size() > 20000, Patience);
        Write(volume.Path("filler"), QByteArray(13000000, 'x'));
        // It ends in order or by an error, depending on which of the two was the faster one.
        const auto outcome = EndOf(recorder);
        QVERIFY(outcome.exitCode == 0 || outcome.exitCode == 1);
        QVERIFY(MediaIn(file).Frames() > 0);
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_FileSafety)
#include "tst_FileSafety.moc"
