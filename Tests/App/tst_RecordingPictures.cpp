// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RecordingPictures.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

using Desktop::RecordingPictures;

} // namespace

class tst_RecordingPictures : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        WidgetTest::init();
        m_folder = std::make_unique<QTemporaryDir>();
        QImage(4, 3, QImage::Format_RGB32).save(Path("sample.png"));
        WriteRecorder("cp " + Path("sample.png") + " \"$3\"");
    }

    void cleanup()
    {
        m_folder.reset();
        WidgetTest::cleanup();
    }

    void makesPicturesInOrder()
    {
        RecordingPictures pictures(Path("recorder"), Path("cache"));
        const QSignalSpy made(&pictures, &RecordingPictures::Made);
        pictures.Want({Source("a.mkv"), Source("b.mkv")});
        QTRY_COMPARE_WITH_TIMEOUT(made.count(), 2, Patience);
        QCOMPARE(made[0][0].toString(), QStringLiteral("a.mkv"));
        QCOMPARE(made[0][1].value<QImage>().size(), QSize(4, 3));
        QCOMPARE(made[1][0].toString(), QStringLiteral("b.mkv"));
        QCOMPARE(Calls(), (QStringList{"--picture a.mkv", "--picture b.mkv"}));
        QCOMPARE(QDir(Path("cache")).entryList(QDir::Files).size(), 2);
    }

    void keepsPicturesForTheNextRun()
    {
        for (int run = 0; run < 2; ++run) {
            RecordingPictures pictures(Path("recorder"), Path("cache"));
            const QSignalSpy made(&pictures, &RecordingPictures::Made);
            pictures.Want({Source("a.mkv")});
            QTRY_COMPARE_WITH_TIMEOUT(made.count(), 1, Patience);
        }
        QCOMPARE(Calls().size(), 1);
    }

    void makesAnotherOneOfAChangedFile()
    {
        RecordingPictures pictures(Path("recorder"), Path("cache"));
        const QSignalSpy made(&pictures, &RecordingPictures::Made);
        pictures.Want({Source("a.mkv", 1)});
        QTRY_COMPARE_WITH_TIMEOUT(made.count(), 1, Patience);
        pictures.Want({Source("a.mkv", 2)});
        QTRY_COMPARE_WITH_TIMEOUT(made.count(), 2, Patience);
        QCOMPARE(Calls().size(), 2);
    }

    void makesOnlyWhatIsWantedLast()
    {
        RecordingPictures pictures(Path("recorder"), Path("cache"));
        const QSignalSpy made(&pictures, &RecordingPictures::Made);
        pictures.Want({Source("a.mkv"), Source("b.mkv"), Source("c.mkv")});
        pictures.Want({Source("d.mkv")});
        QTRY_COMPARE_WITH_TIMEOUT(made.count(), 1, Patience);
        QCOMPARE(made[0][0].toString(), QStringLiteral("d.mkv"));
    }

    void triesNothingTwiceThatFails()
    {
        WriteRecorder("case \"$2\" in a*) exit 1;; esac; cp " + Path("sample.png") + " \"$3\"");
        RecordingPictures pictures(Path("recorder"), Path("cache"));
        const QSignalSpy made(&pictures, &RecordingPictures::Made);
        for (const char* name : {"b.mkv", "c.mkv"}) {
            pictures.Want({Source("a.mkv"), Source(name)});
            QTRY_COMPARE_WITH_TIMEOUT(made.count(), name[0] - 'a', Patience);
        }
        QCOMPARE(Calls(), (QStringList{"--picture a.mkv", "--picture b.mkv", "--picture c.mkv"}));
    }

    void goesWithoutARecorder()
    {
        RecordingPictures pictures(Path("none"), Path("cache"));
        const QSignalSpy made(&pictures, &RecordingPictures::Made);
        pictures.Want({Source("a.mkv"), Source("b.mkv")});
        QTest::qWait(0);
        QCOMPARE(made.count(), 0);
    }

    void leavesNothingHalfFinishedBehind()
    {
        WriteRecorder("echo half > \"$3\"; exec sleep 600");
        {
            RecordingPictures pictures(Path("recorder"), Path("cache"));
            pictures.Want({Source("a.mkv")});
            QTRY_COMPARE_WITH_TIMEOUT(QDir(Path("cache")).entryList(QDir::Files).size(), 1,
                                      Patience);
        }
        QCOMPARE(QDir(Path("cache")).entryList(QDir::Files), QStringList());
    }

    void sweepsTheFolder()
    {
        QVERIFY(QDir().mkdir(Path("cache")));
        for (int number = 0; number < 1100; ++number) {
            QFile old(Path(QStringLiteral("cache/%1.png").arg(number)));
            QVERIFY(old.open(QIODevice::WriteOnly));
            QVERIFY(old.setFileTime(QDateTime::fromSecsSinceEpoch(1000 + number),
                                    QFileDevice::FileModificationTime));
        }
        RecordingPictures pictures(Path("recorder"), Path("cache"));
        const QSignalSpy made(&pictures, &RecordingPictures::Made);
        pictures.Want({Source("a.mkv")});
        QTRY_COMPARE_WITH_TIMEOUT(made.count(), 1, Patience);
        QTRY_COMPARE_WITH_TIMEOUT(QDir(Path("cache")).entryList(QDir::Files).size(), 1000,
                                  Patience);
        QVERIFY(!QFile::exists(Path("cache/100.png")));
        QVERIFY(QFile::exists(Path("cache/101.png")));
    }

private:
    QString Path(const QString& name) const { return m_folder->filePath(name); }

    static RecordingPictures::Source Source(const QString& name, int second = 1)
    {
        return {name, QDateTime::fromSecsSinceEpoch(second)};
    }

    /// A program that notes how it is called, and does \a work.
    void WriteRecorder(const QString& work) const
    {
        QFile script(Path("recorder"));
        QVERIFY(script.open(QIODevice::WriteOnly));
        const QString text = QStringLiteral("#!/bin/sh\necho \"$1 $2\" >> %1\n%2\n");
        script.write(text.arg(Path("calls"), work).toUtf8());
        QVERIFY(script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }
    QStringList Calls() const
    {
        QFile calls(Path("calls"));
        return calls.open(QIODevice::ReadOnly)
            ? QString::fromUtf8(calls.readAll()).split('\n', Qt::SkipEmptyParts)
            : QStringList();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_RecordingPictures)

#include "tst_RecordingPictures.moc"
