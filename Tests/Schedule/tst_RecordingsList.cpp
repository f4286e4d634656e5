// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <sys/stat.h>
#include <unistd.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "FullDisk.h"
#include "RecordingsList.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

using namespace std::chrono_literals;
using Schedule::Moment;
using Schedule::Outcome;
using Schedule::RecordingEntry;
using Schedule::RecordingsList;

constexpr Moment Evening{std::chrono::microseconds{1'900'000'000'000'000}};

RecordingEntry EntryCalled(const QString& title, Moment start = Evening)
{
    return {title, start, start + 90min, Outcome::Complete, "/videos/" + title + ".mkv", {}};
}

/// A folder with room for a list.
class Place {
public:
    QString Path() const { return m_folder.filePath(QStringLiteral("recordings.json")); }

    void Write(const QByteArray& content) const
    {
        QFile file(Path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), qint64(content.size()));
    }

    QByteArray Read(const QString& name = QStringLiteral("recordings.json")) const
    {
        QFile file(m_folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
    }

    QJsonObject Fields() const { return QJsonDocument::fromJson(Read()).object(); }

    QJsonArray Recordings() const { return Fields().value(QLatin1String("recordings")).toArray(); }

    QStringList Names(const QString& pattern = QStringLiteral("*")) const
    {
        return QDir(m_folder.path()).entryList({pattern}, QDir::Files | QDir::Hidden);
    }

    const QTemporaryDir& Folder() const { return m_folder; }

private:
    const QTemporaryDir m_folder;
};

/// A list in \a place that has been opened.
std::unique_ptr<RecordingsList> ListIn(const Place& place)
{
    auto list = std::make_unique<RecordingsList>(place.Path());
    const QString problem = list->Open();
    return problem.isEmpty() ? std::move(list) : nullptr;
}

QStringList Titles(const RecordingsList& list)
{
    QStringList titles;
    for (const RecordingsList::Item& item : list.Items()) {
        titles << item.entry.title;
    }
    return titles;
}

/// An entry as it stands in a file.
QByteArray EntryText(const QByteArray& title, const QByteArray& more = {})
{
    return "{\"title\": \"" + title
        + "\", \"start\": 1900000000000000, \"end\": 1900005400000000, \"outcome\": "
          "\"complete\", \"file\": \"/videos/a.mkv\", \"reason\": \"\""
        + more + "}";
}

QByteArray ListText(const QByteArray& entries)
{
    return "{\"version\": 1, \"recordings\": [" + entries + "]}";
}

} // namespace

class tst_RecordingsList : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void liesBesideTheSettingsFile();
    void isEmptyWithoutAFile();
    void savesEachChangeAtOnce();
    void writesTheFormat();
    void readsWhatItWrote();
    void tellsWhatHasChanged();
    void ignoresEntriesThatAreNotThere();
    void neverReusesAnId();
    void findsEntriesByTitleAndStart_data();
    void findsEntriesByTitleAndStart();
    void keepsFieldsThatAreNotKnown();
    void keepsAFileThatItCannotUnderstand_data();
    void keepsAFileThatItCannotUnderstand();
    void dropsAnEntryThatItCannotUse_data();
    void dropsAnEntryThatItCannotUse();
    void keepsEqualEntriesApart();
    void keepsAFileWithAKeyTwice();
    void readsOptionalFields();
    void isNotSavedWhenTheFileCannotBeRead();
    void tellsWhyItCannotBeSaved();
    void keepsWhatAnotherProgramWrote();
    void followsALink();
    void isTheUsersAlone();
    void removesWhatAKilledProcessLeft();
    void opensManyEntriesFast();
};

void tst_RecordingsList::liesBesideTheSettingsFile()
{
    QCOMPARE(RecordingsList::PathFor(QStringLiteral("/home/user/.config/settings.json")),
             QStringLiteral("/home/user/.config/recordings.json"));
}

void tst_RecordingsList::isEmptyWithoutAFile()
{
    const Place place;
    RecordingsList list(place.Path());
    QCOMPARE(list.Open(), QString());
    QVERIFY(list.Items().empty());
    QCOMPARE(list.Notice(), QString());
    QCOMPARE(place.Names(), QStringList());
}

void tst_RecordingsList::savesEachChangeAtOnce()
{
    const Place place;
    const auto list = ListIn(place);
    QVERIFY(list);
    RecordingEntry entry = EntryCalled("Lecture");
    entry.outcome = Outcome::Recording;
    const auto id = list->Add(entry);
    QCOMPARE(place.Recordings().at(0).toObject().value(QLatin1String("outcome")).toString(),
             QStringLiteral("recording"));
    entry.outcome = Outcome::Stopped;
    list->Update(id, entry);
    QCOMPARE(place.Recordings().at(0).toObject().value(QLatin1String("outcome")).toString(),
             QStringLiteral("stopped"));
    list->Remove(id);
    QCOMPARE(place.Recordings().size(), 0);
    QCOMPARE(place.Names(), QStringList{"recordings.json"});
}

void tst_RecordingsList::writesTheFormat()
{
    const Place place;
    const auto list = ListIn(place);
    list->Add({"Lecture", Evening, Evening + 5400s, Outcome::Partial, "/videos/a.mkv", "late"});
    const QByteArray expected =
        ListText("{\"title\": \"Lecture\", \"start\": 1900000000000000, \"end\": "
                 "1900005400000000, \"outcome\": \"partial\", \"file\": \"/videos/a.mkv\", "
                 "\"reason\": \"late\"}");
    QCOMPARE(place.Fields(), QJsonDocument::fromJson(expected).object());
}

void tst_RecordingsList::readsWhatItWrote()
{
    const Place place;
    const RecordingEntry odd{QString::fromUtf8("\"Ünï\\code\" \n"),
                             Moment(-1s),
                             Evening,
                             Outcome::Missed,
                             QString(),
                             "something new"};
    {
        const auto list = ListIn(place);
        list->Add(EntryCalled("First"));
        list->Add(odd);
    }
    const auto list = ListIn(place);
    QVERIFY(list);
    QCOMPARE(Titles(*list), (QStringList{"First", odd.title}));
    const RecordingEntry& read = list->Items().back().entry;
    QVERIFY(read.start == odd.start && read.end == odd.end && read.outcome == odd.outcome);
    QCOMPARE(read.file, odd.file);
    QCOMPARE(read.reason, odd.reason);
}

void tst_RecordingsList::tellsWhatHasChanged()
{
    const Place place;
    const auto list = ListIn(place);
    const QSignalSpy added(list.get(), &RecordingsList::Added);
    const QSignalSpy updated(list.get(), &RecordingsList::Updated);
    const QSignalSpy removed(list.get(), &RecordingsList::Removed);
    const auto first = list->Add(EntryCalled("First"));
    const auto second = list->Add(EntryCalled("Second"));
    QCOMPARE(added, (QList<QVariantList>{{0}, {1}}));
    list->Update(second, EntryCalled("Second"));
    QCOMPARE(updated.count(), 0);
    list->Update(second, EntryCalled("Second again"));
    QCOMPARE(updated, (QList<QVariantList>{{1}}));
    list->Remove(first);
    list->Remove(second);
    QCOMPARE(removed, (QList<QVariantList>{{0}, {0}}));
}

void tst_RecordingsList::ignoresEntriesThatAreNotThere()
{
    const Place place;
    const auto list = ListIn(place);
    const auto id = list->Add(EntryCalled("First"));
    list->Remove(id);
    const QSignalSpy updated(list.get(), &RecordingsList::Updated);
    const QSignalSpy removed(list.get(), &RecordingsList::Removed);
    list->Update(id, EntryCalled("Second"));
    list->Remove(id);
    list->Remove(id + 1);
    QCOMPARE(updated.count(), 0);
    QCOMPARE(removed.count(), 0);
    QVERIFY(list->Items().empty());
}

void tst_RecordingsList::neverReusesAnId()
{
    const Place place;
    const auto list = ListIn(place);
    const auto first = list->Add(EntryCalled("First"));
    list->Remove(first);
    QVERIFY(list->Add(EntryCalled("Second")) > first);
}

void tst_RecordingsList::findsEntriesByTitleAndStart_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<int>("fromSeconds");
    QTest::addColumn<int>("toSeconds");
    QTest::addColumn<bool>("isFound");
    QTest::newRow("within") << "Lecture" << -5 << 5 << true;
    QTest::newRow("first moment") << "Lecture" << 0 << 5 << true;
    QTest::newRow("last moment") << "Lecture" << -5 << 0 << true;
    QTest::newRow("later") << "Lecture" << 1 << 5 << false;
    QTest::newRow("earlier") << "Lecture" << -5 << -1 << false;
    QTest::newRow("another title") << "lecture" << -5 << 5 << false;
    QTest::newRow("missed") << "Missed" << -5 << 5 << false;
    QTest::newRow("failed") << "Failed" << -5 << 5 << true;
}

void tst_RecordingsList::findsEntriesByTitleAndStart()
{
    QFETCH(QString, title);
    QFETCH(int, fromSeconds);
    QFETCH(int, toSeconds);
    QFETCH(bool, isFound);
    const Place place;
    const auto list = ListIn(place);
    list->Add(EntryCalled("Lecture"));
    list->Add({"Missed", Evening, Evening, Outcome::Missed, {}, {}});
    list->Add({"Failed", Evening, Evening, Outcome::Failed, {}, {}});
    QCOMPARE(list->Contains(title, Evening + std::chrono::seconds(fromSeconds),
                            Evening + std::chrono::seconds(toSeconds)),
             isFound);
}

void tst_RecordingsList::keepsFieldsThatAreNotKnown()
{
    const Place place;
    place.Write("{\"version\": 1, \"view\": {\"sorted\": true}, \"recordings\": ["
                + EntryText("First", ", \"rating\": 5") + "," + EntryText("Second") + "]}");
    const auto list = ListIn(place);
    QVERIFY(list);
    list->Update(list->Items().front().id, EntryCalled("Renamed"));
    QCOMPARE(place.Fields().value(QLatin1String("view")).toObject().size(), 1);
    const QJsonObject first = place.Recordings().at(0).toObject();
    QCOMPARE(first.value(QLatin1String("rating")).toInt(), 5);
    QCOMPARE(first.value(QLatin1String("title")).toString(), QStringLiteral("Renamed"));
    QVERIFY(!place.Recordings().at(1).toObject().contains(QLatin1String("rating")));
    QCOMPARE(place.Names(), QStringList{"recordings.json"});
}

void tst_RecordingsList::keepsAFileThatItCannotUnderstand_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("no JSON") << QByteArray("{\"version\": 1, \"recordings\": [");
    QTest::newRow("binary") << QByteArray("\0\xff\xfe", 3);
    QTest::newRow("an array") << QByteArray("[]");
    QTest::newRow("no version") << QByteArray("{\"recordings\": []}");
    QTest::newRow("no such version") << QByteArray("{\"version\": 0}");
    QTest::newRow("newer") << QByteArray("{\"version\": 2, \"recordings\": []}");
    QTest::newRow("nested deeply") << QByteArray(5000, '[') + QByteArray(5000, ']');
}

void tst_RecordingsList::keepsAFileThatItCannotUnderstand()
{
    QFETCH(QByteArray, content);
    const Place place;
    place.Write(content);
    const auto list = ListIn(place);
    QVERIFY(list);
    QVERIFY(list->Items().empty());
    const QStringList kept = place.Names(QStringLiteral("recordings.json.damaged-*"));
    QCOMPARE(kept.size(), 1);
    QCOMPARE(place.Read(kept.first()), content);
    QVERIFY2(list->Notice().contains(kept.first()), qPrintable(list->Notice()));
    list->Add(EntryCalled("Lecture"));
    QCOMPARE(place.Recordings().size(), 1);
    QCOMPARE(place.Names().size(), 2);
}

void tst_RecordingsList::dropsAnEntryThatItCannotUse_data()
{
    QTest::addColumn<QByteArray>("entry");
    const auto with = [](const char* before, const char* after) {
        return EntryText("Bad").replace(before, after);
    };
    QTest::newRow("a number") << QByteArray("7");
    QTest::newRow("empty") << QByteArray("{}");
    QTest::newRow("no title") << with("\"title\"", "\"name\"");
    QTest::newRow("title of another type") << with("\"Bad\"", "7");
    QTest::newRow("no start") << with("\"start\"", "\"begin\"");
    QTest::newRow("start of another type") << with("1900000000000000", "null");
    QTest::newRow("start with a fraction") << with("1900000000000000", "1.5");
    QTest::newRow("start beyond 64 bits") << with("1900000000000000", "1e300");
    QTest::newRow("end of another type") << with("1900005400000000", "[]");
    QTest::newRow("no outcome") << with("\"outcome\"", "\"result\"");
    QTest::newRow("unknown outcome") << with("\"complete\"", "\"perfect\"");
    QTest::newRow("file of another type") << with("\"/videos/a.mkv\"", "{}");
    QTest::newRow("relative file") << with("/videos/a.mkv", "a.mkv");
    QTest::newRow("reason of another type") << with("\"reason\": \"\"", "\"reason\": false");
}

void tst_RecordingsList::dropsAnEntryThatItCannotUse()
{
    QFETCH(QByteArray, entry);
    const QByteArray content = ListText(EntryText("First") + "," + entry + "," + EntryText("Last"));
    const Place place;
    place.Write(content);
    const auto list = ListIn(place);
    QVERIFY(list);
    QCOMPARE(Titles(*list), (QStringList{"First", "Last"}));
    const QStringList kept = place.Names(QStringLiteral("recordings.json.damaged-*"));
    QCOMPARE(kept.size(), 1);
    QCOMPARE(place.Read(kept.first()), content);
    QVERIFY2(list->Notice().contains(kept.first()), qPrintable(list->Notice()));
}

void tst_RecordingsList::keepsEqualEntriesApart()
{
    const Place place;
    place.Write(ListText(EntryText("Lecture") + "," + EntryText("Lecture")));
    const auto list = ListIn(place);
    QVERIFY(list);
    QCOMPARE(list->Items().size(), std::size_t(2));
    list->Remove(list->Items().front().id);
    QCOMPARE(place.Recordings().size(), 1);
    QCOMPARE(list->Notice(), QString());
}

void tst_RecordingsList::keepsAFileWithAKeyTwice()
{
    const Place place;
    place.Write(ListText(EntryText("Lecture", ", \"title\": \"Other\"")));
    const auto list = ListIn(place);
    QVERIFY(list);
    QCOMPARE(Titles(*list), QStringList{"Other"});
    QCOMPARE(place.Names(QStringLiteral("recordings.json.damaged-*")).size(), 1);
}

void tst_RecordingsList::readsOptionalFields()
{
    const Place place;
    place.Write(ListText("{\"title\": \"\", \"start\": \"1900000000000000\", \"outcome\": "
                         "\"missed\"}"));
    const auto list = ListIn(place);
    QVERIFY(list);
    QCOMPARE(list->Items().size(), std::size_t(1));
    const RecordingEntry& entry = list->Items().front().entry;
    QVERIFY(entry.start == Evening && entry.end == Evening);
    QCOMPARE(entry.file + entry.reason, QString());
    QCOMPARE(list->Notice(), QString());
}

void tst_RecordingsList::isNotSavedWhenTheFileCannotBeRead()
{
    const Place place;
    QVERIFY(QDir(place.Folder().path()).mkdir(QStringLiteral("recordings.json")));
    RecordingsList list(place.Path());
    QVERIFY2(list.Open().contains(place.Path()), "names the file");
    QVERIFY(list.Notice().contains(place.Path()));
    list.Add(EntryCalled("Lecture"));
    QCOMPARE(Titles(list), QStringList{"Lecture"});
    QCOMPARE(list.SaveProblem(), QString());
    QVERIFY(QFileInfo(place.Path()).isDir());
    QCOMPARE(place.Names(), QStringList());
}

void tst_RecordingsList::tellsWhyItCannotBeSaved()
{
    const Place place;
    const auto list = ListIn(place);
    list->Add(EntryCalled("First"));
    const QByteArray before = place.Read();
    const QSignalSpy problems(list.get(), &RecordingsList::SaveProblemChanged);
    {
        const FullDisk disk(64);
        list->Add(EntryCalled("Second"));
        list->Add(EntryCalled("Third"));
    }
    QCOMPARE(problems.count(), 1);
    QVERIFY2(list->SaveProblem().contains(place.Path()), qPrintable(list->SaveProblem()));
    QCOMPARE(place.Read(), before);
    list->Add(EntryCalled("Fourth"));
    QCOMPARE(problems.count(), 2);
    QCOMPARE(list->SaveProblem(), QString());
    QCOMPARE(place.Recordings().size(), 4);
    QCOMPARE(place.Names(), QStringList{"recordings.json"});
}

void tst_RecordingsList::keepsWhatAnotherProgramWrote()
{
    const Place place;
    const auto list = ListIn(place);
    list->Add(EntryCalled("First"));
    place.Write("something else");
    list->Add(EntryCalled("Second"));
    list->Add(EntryCalled("Third"));
    const QStringList kept = place.Names(QStringLiteral("recordings.json.changed-*"));
    QCOMPARE(kept.size(), 1);
    QCOMPARE(place.Read(kept.first()), QByteArray("something else"));
    QCOMPARE(place.Recordings().size(), 3);
}

void tst_RecordingsList::followsALink()
{
    const Place place;
    const Place elsewhere;
    QVERIFY(QFile::link(elsewhere.Path(), place.Path()));
    const auto list = ListIn(place);
    QVERIFY(list);
    list->Add(EntryCalled("Lecture"));
    QVERIFY(QFileInfo(place.Path()).isSymLink());
    QCOMPARE(elsewhere.Recordings().size(), 1);
}

void tst_RecordingsList::isTheUsersAlone()
{
    const Place place;
    const auto list = ListIn(place);
    list->Add(EntryCalled("Lecture"));
    struct stat status { };
    QCOMPARE(::stat(qPrintable(place.Path()), &status), 0);
    QCOMPARE(status.st_mode & 07777U, 0600U);
}

void tst_RecordingsList::removesWhatAKilledProcessLeft()
{
    const Place place;
    QFile left(place.Path() + QStringLiteral(".saving-aB3xY9"));
    QVERIFY(left.open(QIODevice::WriteOnly));
    QVERIFY(ListIn(place));
    QCOMPARE(place.Names(), QStringList());
}

void tst_RecordingsList::opensManyEntriesFast()
{
    constexpr int entries = 10'000;
    QByteArray text = EntryText("Lecture 0");
    for (int number = 1; number < entries; ++number) {
        text += ",\n" + EntryText("Lecture " + QByteArray::number(number));
    }
    const Place place;
    place.Write(ListText(text));
    QElapsedTimer timer;
    timer.start();
    const auto list = ListIn(place);
    const qint64 opened = timer.restart();
    QVERIFY(list);
    QCOMPARE(list->Items().size(), std::size_t(entries));
    list->Add(EntryCalled("One more"));
    const qint64 saved = timer.elapsed();
    qInfo("%d entries: opened in %lld ms, saved in %lld ms", entries, opened, saved);
    QVERIFY2(opened < 5000, "opening takes too long");
    QVERIFY2(saved < 5000, "saving takes too long");
    QCOMPARE(place.Recordings().size(), entries + 1);
}

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_RecordingsList)

#include "tst_RecordingsList.moc"
