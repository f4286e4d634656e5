// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QFileInfo>

#include "CrashCheck.h"
#include "RecordingsList.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

using namespace std::chrono_literals;
using Schedule::AfterCrash;
using Schedule::CheckAfterCrash;
using Schedule::HasFrames;
using Schedule::Moment;
using Schedule::Outcome;
using Schedule::RecordingEntry;
using Schedule::RecordingsList;

const QByteArray Header = QByteArray::fromHex("1a45dfa3 84 42868101");
/// Not closed, as that of a recorder that was killed.
const QByteArray Segment = QByteArray::fromHex("18538067 01ffffffffffffff");
/// Space, information and a track, with sizes of different lengths.
const QByteArray Tables =
    QByteArray::fromHex("ec 4003 000000") + QByteArray::fromHex("1549a966 100000022ad7");
const QByteArray Cluster = QByteArray::fromHex("1f43b675 ff");
const QByteArray TimeOfCluster = QByteArray::fromHex("e7 81 00");
const QByteArray Block = QByteArray::fromHex("a3 85 8100008000");
const QByteArray Recorded = Header + Segment + Tables + Cluster + TimeOfCluster + Block;

void Write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

} // namespace

class tst_CrashCheck : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void seesFrames_data();
    void seesFrames();
    void seesNoFramesWithoutAFile();
    void tellsWhatBecameOfARecording_data();
    void tellsWhatBecameOfARecording();
    void endsWithTheLastChangeOfTheFile();
    void endsNoEarlierThanItStarted();
    void findsTheFileThatWasToBeConverted();
    void leavesOtherEntriesAlone();
};

void tst_CrashCheck::seesFrames_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("hasFrames");
    const QByteArray start = Header + Segment + Tables;
    QTest::newRow("a frame") << Recorded << true;
    QTest::newRow("more than a frame") << Recorded + Block + Block << true;
    QTest::newRow("a group") << start + Cluster + QByteArray::fromHex("a0 82 0000") << true;
    QTest::newRow("second cluster")
        << start + QByteArray::fromHex("1f43b675 83 e78100") + Cluster + Block << true;
    QTest::newRow("closed segment")
        << Header + QByteArray::fromHex("18538067 8f") + Cluster + TimeOfCluster + Block << true;
    QTest::newRow("empty") << QByteArray() << false;
    QTest::newRow("header") << Header << false;
    QTest::newRow("no cluster") << start << false;
    QTest::newRow("no block") << start + Cluster + TimeOfCluster << false;
    QTest::newRow("half a block") << Recorded.chopped(1) << false;
    QTest::newRow("half a name") << start + QByteArray::fromHex("1f43b6") << false;
    QTest::newRow("half a size") << start + QByteArray::fromHex("ec 40") << false;
    QTest::newRow("size beyond the end")
        << start + QByteArray::fromHex("ec 01fffffffffffffe") << false;
    QTest::newRow("no element") << start + QByteArray(5000, '\0') << false;
    QTest::newRow("another format") << QByteArray("RIFF") + Recorded << false;
    QTest::newRow("zeros") << QByteArray(5000, '\0') << false;
    QTest::newRow("elements without an end")
        << Header + QByteArray::fromHex("ec80").repeated(5000) << false;
}

void tst_CrashCheck::seesFrames()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, hasFrames);
    const QTemporaryDir folder;
    const QString path = folder.filePath("a.mkv");
    Write(path, content);
    QCOMPARE(HasFrames(path), hasFrames);
}

void tst_CrashCheck::seesNoFramesWithoutAFile()
{
    const QTemporaryDir folder;
    QVERIFY(!HasFrames(folder.filePath("a.mkv")));
    QVERIFY(!HasFrames(folder.path()));
    QVERIFY(!HasFrames(QString()));
}

void tst_CrashCheck::tellsWhatBecameOfARecording_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isPartial");
    QTest::newRow("recorded") << Recorded << true;
    QTest::newRow("nothing recorded") << Header + Segment << false;
    QTest::newRow("empty") << QByteArray() << false;
}

void tst_CrashCheck::tellsWhatBecameOfARecording()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, isPartial);
    const QTemporaryDir folder;
    const QString path = folder.filePath("a.mkv");
    Write(path, content);
    const RecordingEntry found =
        AfterCrash({"a", Moment(5s), Moment(5s), Outcome::Recording, path, {}});
    QVERIFY(found.outcome == (isPartial ? Outcome::Partial : Outcome::Failed));
    QCOMPARE(found.reason, Schedule::Why::ProgramDied);
    QCOMPARE(found.file, path);
    QVERIFY(found.start == Moment(5s));
}

void tst_CrashCheck::endsWithTheLastChangeOfTheFile()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("a.mkv");
    Write(path, Recorded);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime::fromSecsSinceEpoch(1'900'000'000),
                             QFileDevice::FileModificationTime));
    file.close();
    const RecordingEntry found =
        AfterCrash({"a", Moment(5s), Moment(5s), Outcome::Recording, path, {}});
    QVERIFY(found.end == Moment(1'900'000'000s));
}

void tst_CrashCheck::endsNoEarlierThanItStarted()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("a.mkv");
    Write(path, Recorded);
    const Moment start{9'000'000'000s};
    QVERIFY(AfterCrash({"a", start, Moment(5s), Outcome::Recording, path, {}}).end == start);
    QVERIFY(AfterCrash({"a", start, Moment(5s), Outcome::Recording, {}, {}}).end == start);
}

void tst_CrashCheck::findsTheFileThatWasToBeConverted()
{
    const QTemporaryDir folder;
    const RecordingEntry entry{
        "a", Moment(5s), Moment(5s), Outcome::Recording, folder.filePath("a.b.mp4"), {}};
    QVERIFY(AfterCrash(entry).outcome == Outcome::Failed);
    QCOMPARE(AfterCrash(entry).file, entry.file);
    Write(folder.filePath("a.b.mkv"), Recorded);
    QVERIFY(AfterCrash(entry).outcome == Outcome::Partial);
    QCOMPARE(AfterCrash(entry).file, folder.filePath("a.b.mkv"));
    QFile::remove(folder.filePath("a.b.mkv"));
    Write(entry.file, "converted");
    QVERIFY(AfterCrash(entry).outcome == Outcome::Partial);
    QCOMPARE(AfterCrash(entry).file, entry.file);
}

void tst_CrashCheck::leavesOtherEntriesAlone()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("a.mkv");
    Write(path, Recorded);
    RecordingsList list(folder.filePath("recordings.json"));
    QCOMPARE(list.Open(), QString());
    list.Add({"complete", Moment(5s), Moment(6s), Outcome::Complete, path, {}});
    list.Add({"crashed", Moment(5s), Moment(5s), Outcome::Recording, path, {}});
    list.Add({"missed", Moment(5s), Moment(6s), Outcome::Missed, {}, Schedule::Why::NotRunning});
    list.Add({"gone", Moment(5s), Moment(6s), Outcome::Recording, "/none/a.mkv", {}});
    const QSignalSpy updated(&list, &RecordingsList::Updated);
    CheckAfterCrash(list);
    QCOMPARE(updated, (QList<QVariantList>{{1}, {3}}));
    QVERIFY(list.Items()[1].entry.outcome == Outcome::Partial);
    QVERIFY(list.Items()[3].entry.outcome == Outcome::Failed);
}

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_CrashCheck)

#include "tst_CrashCheck.moc"
