// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QJsonArray>
#include <QJsonDocument>

#include "PXUserSettings/SettingsFormat.h"
#include "Samples.h"
#include "WidgetTest.h"

using namespace Zentor;
using namespace Zentor::Tests;
using namespace std::chrono_literals;

namespace {

/// What another part of the program keeps in the file.
struct Note {
    QString text;
    QByteArray bytes;
};

QJsonObject FormatNote(const Note& note)
{
    return {{QStringLiteral("text"), note.text},
            {QStringLiteral("bytes"), QString::fromLatin1(note.bytes.toBase64())}};
}

/// The section "note" of the file.
std::vector<PX::SettingsSection> NoteSection()
{
    const auto read = [](const PX::SectionReader& found) {
        Note note;
        found.Read(QStringLiteral("text"), note.text, PX::ToText);
        found.Read(QStringLiteral("bytes"), note.bytes, PX::ToBytes);
        return FormatNote(note);
    };
    return {{QStringLiteral("note"), read}};
}

/// Settings in which every value differs from its default.
PX::UserSettings Sample()
{
    PX::UserSettings settings;
    settings.limitedCaptureEnabled = true;
    settings.limitedCaptureDuration = 23h + 59min + 59s;
    settings.scheduledCaptureEnabled = true;
    settings.schedule = {Record("A <b>title</b>, \"quoted\"\n", "10:00", 90min),
                         Record(QString::fromUtf8("\u9332\u753b \U0001F3A5"), At("12:00"), 1us)};
    settings.schedule[0].screenIndex = 3;
    settings.schedule[0].finishAction = PX::ShutDown;
    settings.captureFinishAction = PX::Hibernate;
    settings.resultsFolderPath = QStringLiteral("/videos");
    settings.confirmations = {{QStringLiteral("a"), true}, {QStringLiteral("b"), false}};
    settings.sections = {
        {QStringLiteral("note"), FormatNote({QStringLiteral("files"), QByteArray("\0\1\xff", 3)})}};
    return settings;
}

void CompareRecords(const PX::RecordTime& actual, const PX::RecordTime& expected)
{
    QCOMPARE(actual.title, expected.title);
    QVERIFY(actual.start == expected.start);
    QVERIFY(actual.duration == expected.duration);
    QCOMPARE(actual.screenIndex, expected.screenIndex);
    QCOMPARE(actual.finishAction, expected.finishAction);
}

void Compare(const PX::UserSettings& actual, const PX::UserSettings& expected)
{
    QCOMPARE(actual.limitedCaptureEnabled, expected.limitedCaptureEnabled);
    QVERIFY(actual.limitedCaptureDuration == expected.limitedCaptureDuration);
    QCOMPARE(actual.scheduledCaptureEnabled, expected.scheduledCaptureEnabled);
    QCOMPARE(actual.schedule.size(), expected.schedule.size());
    for (std::size_t i = 0; i < expected.schedule.size(); ++i) {
        CompareRecords(actual.schedule[i], expected.schedule[i]);
    }
    QCOMPARE(actual.captureFinishAction, expected.captureFinishAction);
    QCOMPARE(actual.resultsFolderPath, expected.resultsFolderPath);
    QCOMPARE(actual.confirmations, expected.confirmations);
    QCOMPARE(actual.sections, expected.sections);
}

PX::SettingsDocument Parse(const QByteArray& json)
{
    return PX::ParseSettings(json, NoteSection());
}

QByteArray Version1With(const QByteArray& fields)
{
    return QByteArray("{\"version\": 1, ") + fields + '}';
}

QByteArray WithTasks(const QByteArray& tasks)
{
    return Version1With("\"scheduledCapture\": {\"tasks\": [" + tasks + "]}");
}

} // namespace

class tst_SettingsFormat : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void readsWhatItWrites()
    {
        const auto document = Parse(PX::FormatSettings(Sample(), {}));
        QVERIFY(document.isUnderstood);
        QCOMPARE(document.problems, QStringList());
        QCOMPARE(document.droppedTasks, 0);
        Compare(document.settings, Sample());
    }

    void defaults()
    {
        const PX::UserSettings settings;
        QVERIFY(!settings.limitedCaptureEnabled);
        QVERIFY(settings.limitedCaptureDuration == 1h);
        QVERIFY(!settings.scheduledCaptureEnabled);
        QVERIFY(settings.schedule.empty());
        QCOMPARE(settings.captureFinishAction, PX::DoNothing);
        QVERIFY(!settings.resultsFolderPath.isEmpty());
        QVERIFY(settings.confirmations.isEmpty());

        const auto document = Parse("{\"version\": 1}");
        QVERIFY(document.isUnderstood);
        QCOMPARE(document.problems, QStringList());
        Compare(document.settings, PX::DefaultSettings(NoteSection()));
        QCOMPARE(document.settings.sections.value(QStringLiteral("note")), FormatNote({}));
    }

    void sectionThatNobodyKeepsIsLeftAlone()
    {
        const auto document = PX::ParseSettings(Version1With("\"note\": {\"text\": 1}"));
        QCOMPARE(document.problems, QStringList());
        QVERIFY(document.settings.sections.isEmpty());
        const auto again = PX::ParseSettings(PX::FormatSettings({}, document.fields));
        QCOMPARE(again.fields.value(QLatin1String("note")),
                 document.fields.value(QLatin1String("note")));
    }

    void everyActionHasAName()
    {
        for (int action = PX::DoNothing; action <= PX::ShutDown; ++action) {
            PX::UserSettings settings;
            settings.captureFinishAction = static_cast<PX::PowerAction>(action);
            const auto document = Parse(PX::FormatSettings(settings, {}));
            QCOMPARE(document.settings.captureFinishAction, settings.captureFinishAction);
            QVERIFY(document.fields.value(QLatin1String("captureFinishAction")).isString());
        }
    }

    void keepsEveryMicrosecond_data()
    {
        QTest::addColumn<qint64>("start");
        QTest::newRow("epoch") << qint64(0);
        QTest::newRow("before the epoch") << qint64(-1);
        QTest::newRow("odd") << qint64(4294967294999999);
        QTest::newRow("most of a double") << (qint64(1) << 53);
        QTest::newRow("beyond a double") << (qint64(1) << 53) + 1;
        QTest::newRow("least of a double") << -(qint64(1) << 53);
        QTest::newRow("below a double") << -(qint64(1) << 53) - 1;
        QTest::newRow("last") << std::numeric_limits<qint64>::max();
        QTest::newRow("first") << std::numeric_limits<qint64>::min();
    }

    void keepsEveryMicrosecond()
    {
        QFETCH(qint64, start);
        PX::UserSettings settings;
        const Time::IClock::time_point point{std::chrono::microseconds(start)};
        settings.schedule = {Record(QStringLiteral("A"), point, 0us)};
        const auto document = Parse(PX::FormatSettings(settings, {}));
        QCOMPARE(document.problems, QStringList());
        QVERIFY(document.settings.schedule.at(0).start == point);
    }

    void notUnderstood_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("text") << QByteArray("hello");
        QTest::newRow("binary") << QByteArray("\0\1\2\xff", 4);
        QTest::newRow("array") << QByteArray("[]");
        QTest::newRow("not UTF-8") << QByteArray("{\"version\": 1, \"a\": \"\xff\"}");
        QTest::newRow("no version") << QByteArray("{}");
        QTest::newRow("version of no type") << QByteArray("{\"version\": true}");
        QTest::newRow("version 0") << QByteArray("{\"version\": 0}");
        QTest::newRow("version 1.5") << QByteArray("{\"version\": 1.5}");
        QTest::newRow("newer version") << QByteArray("{\"version\": 2}");
        QTest::newRow("trailing text") << QByteArray("{\"version\": 1} x");
        QTest::newRow("two files in one") << QByteArray("{\"version\": 1}{\"version\": 1}");
    }

    void notUnderstood()
    {
        QFETCH(QByteArray, json);
        const auto document = Parse(json);
        QVERIFY(!document.isUnderstood);
        QCOMPARE(document.problems.count(), 1);
        QVERIFY(document.fields.isEmpty());
        Compare(document.settings, PX::DefaultSettings(NoteSection()));
    }

    void truncated()
    {
        const QByteArray json = PX::FormatSettings(Sample(), {}).trimmed();
        for (int size = 0; size < json.size(); ++size) {
            const auto document = Parse(json.left(size));
            QVERIFY2(!document.isUnderstood, qPrintable(QString::number(size)));
            Compare(document.settings, PX::DefaultSettings(NoteSection()));
        }
    }

    void unusableValues_data()
    {
        QTest::addColumn<QByteArray>("fields");
        QTest::addColumn<QString>("problem");
        const auto row = [](const char* fields, const char* problem) {
            QTest::newRow(fields) << QByteArray(fields) << QString::fromLatin1(problem);
        };
        row("\"limitedCapture\": 5", "limitedCapture: not an object");
        row("\"limitedCapture\": {\"enabled\": 1}", "limitedCapture.enabled: unusable value");
        row("\"limitedCapture\": {\"enabled\": null}", "limitedCapture.enabled: unusable value");
        row("\"limitedCapture\": {\"duration\": true}", "limitedCapture.duration: unusable value");
        row("\"limitedCapture\": {\"duration\": 6e6.5}", "");
        row("\"limitedCapture\": {\"duration\": 6000000.5}",
            "limitedCapture.duration: unusable value");
        row("\"limitedCapture\": {\"duration\": 4999999}",
            "limitedCapture.duration: unusable value");
        row("\"limitedCapture\": {\"duration\": 86400000000}",
            "limitedCapture.duration: unusable value");
        row("\"limitedCapture\": {\"duration\": 1e300}", "limitedCapture.duration: unusable value");
        row("\"limitedCapture\": {\"duration\": \"soon\"}",
            "limitedCapture.duration: unusable value");
        row("\"scheduledCapture\": []", "scheduledCapture: not an object");
        row("\"scheduledCapture\": {\"enabled\": \"yes\"}",
            "scheduledCapture.enabled: unusable value");
        row("\"scheduledCapture\": {\"tasks\": {}}", "scheduledCapture.tasks: not an array");
        row("\"captureFinishAction\": 1", "captureFinishAction: unusable value");
        row("\"captureFinishAction\": \"explode\"", "captureFinishAction: unusable value");
        row("\"paths\": {\"resultsFolder\": 1}", "paths.resultsFolder: unusable value");
        row("\"confirmations\": {\"id\": \"yes\"}", "confirmations.id: unusable value");
        row("\"note\": 5", "note: not an object");
        row("\"note\": {\"text\": 1}", "note.text: unusable value");
        row("\"note\": {\"text\": []}", "note.text: unusable value");
        row("\"note\": {\"bytes\": \"!\"}", "note.bytes: unusable value");
        row("\"note\": {\"bytes\": 1}", "note.bytes: unusable value");
    }

    void unusableValues()
    {
        QFETCH(QByteArray, fields);
        QFETCH(QString, problem);
        const auto document = Parse(Version1With(fields));
        QCOMPARE(document.isUnderstood, !problem.isEmpty());
        if (document.isUnderstood) {
            QCOMPARE(document.problems, QStringList(problem));
        }
        Compare(document.settings, PX::DefaultSettings(NoteSection()));
    }

    void limitsOfTheDuration()
    {
        const auto least = Parse(Version1With("\"limitedCapture\": {\"duration\": 5000000}"));
        QCOMPARE(least.problems, QStringList());
        const auto most = Parse(Version1With("\"limitedCapture\": {\"duration\": 86399999999}"));
        QCOMPARE(most.problems, QStringList());
        QVERIFY(most.settings.limitedCaptureDuration == 24h - 1us);
    }

    void badTasksAreLeftOut_data()
    {
        QTest::addColumn<QByteArray>("task");
        QTest::addColumn<QString>("problem");
        const auto row = [](const char* task, const char* problem) {
            QTest::newRow(task) << QByteArray(task)
                                << QStringLiteral("task 2") + QString::fromLatin1(problem);
        };
        row("5", ".title: missing");
        row("{}", ".title: missing");
        row(R"({"start": 1, "duration": 1})", ".title: missing");
        row(R"({"title": "B", "duration": 1})", ".start: missing");
        row(R"({"title": "B", "start": 1})", ".duration: missing");
        row(R"({"title": 1, "start": 1, "duration": 1})", ".title: unusable value");
        row(R"({"title": "B", "start": 1.5, "duration": 1})", ".start: unusable value");
        row(R"({"title": "B", "start": 9223372036854775808, "duration": 1})",
            ".start: unusable value");
        row(R"({"title": "B", "start": 1, "duration": []})", ".duration: unusable value");
        row(R"({"title": "B", "start": 1, "duration": -1})", ": negative duration");
        row(R"({"title": " ", "start": 1, "duration": 1})", ": empty title");
        row(R"({"title": "A", "start": 1, "duration": 1})", ": title of another task");
        row(R"({"title": "B", "start": 150, "duration": 1})", ": overlaps another task");
        row(R"({"title": "B", "start": 1, "duration": 1, "screenIndex": -2})",
            ".screenIndex: unusable value");
        row(R"({"title": "B", "start": 1, "duration": 1, "screenIndex": 2147483648})",
            ".screenIndex: unusable value");
        row(R"({"title": "B", "start": 1, "duration": 1, "finishAction": "explode"})",
            ".finishAction: unusable value");
    }

    void badTasksAreLeftOut()
    {
        QFETCH(QByteArray, task);
        QFETCH(QString, problem);
        const QByteArray tasks = R"({"title": "A", "start": 100, "duration": 100}, )" + task
            + R"(, {"title": "C", "start": 200, "duration": 100, "screenIndex": 2147483647})";
        const auto document = Parse(WithTasks(tasks));
        QVERIFY(document.isUnderstood);
        QCOMPARE(document.problems, QStringList(problem));
        QCOMPARE(document.droppedTasks, 1);
        const auto& schedule = document.settings.schedule;
        QCOMPARE(schedule.size(), std::size_t(2));
        QCOMPARE(schedule[0].title, QStringLiteral("A"));
        QCOMPARE(schedule[0].screenIndex, -1);
        QCOMPARE(schedule[0].finishAction, PX::DoNothing);
        QCOMPARE(schedule[1].title, QStringLiteral("C"));
        QCOMPARE(schedule[1].screenIndex, std::numeric_limits<std::int32_t>::max());
    }

    void unknownFieldsAreKept()
    {
        const char* fields = R"("extra": {"a": [1, 2]}, "limitedCapture": {"more": 7},
            "note": {"color": "green", "text": "old"}, "paths": {"second": "/x"},
            "scheduledCapture": {"note": null})";
        const auto document = Parse(Version1With(fields));
        QCOMPARE(document.problems, QStringList());

        const auto again = Parse(PX::FormatSettings(Sample(), document.fields));
        QCOMPARE(again.problems, QStringList());
        Compare(again.settings, Sample());
        const auto section = [&](const char* key) {
            return again.fields.value(QLatin1String(key)).toObject();
        };
        QCOMPARE(section("extra").value(QLatin1String("a")).toArray().count(), 2);
        QCOMPARE(section("limitedCapture").value(QLatin1String("more")).toInt(), 7);
        QCOMPARE(section("note").value(QLatin1String("color")).toString(), QStringLiteral("green"));
        QCOMPARE(section("paths").value(QLatin1String("second")).toString(), QStringLiteral("/x"));
        QVERIFY(section("scheduledCapture").value(QLatin1String("note")).isNull());
    }

    void unknownFieldsOfTasksAreKept()
    {
        const auto document = Parse(WithTasks(
            R"({"title": "A", "start": 1, "duration": 1, "color": "green", "finishAction": "sleep"},
               {"title": "B", "start": 5, "duration": 1, "color": {"r": [1]}},
               {"title": "C", "start": 9, "duration": 1, "color": "blue"})"));
        QCOMPARE(document.problems, QStringList());
        PX::UserSettings settings = document.settings;
        auto& schedule = settings.schedule;
        // One is gone, one is new, and one has other values.
        schedule.erase(schedule.begin());
        schedule.push_back(Record("New", "00:00"));
        schedule[0].finishAction = PX::Restart;

        const auto again = Parse(PX::FormatSettings(settings, document.fields));
        QCOMPARE(again.problems, QStringList());
        Compare(again.settings, settings);
        const auto tasks = [](const QJsonObject& fields) {
            return fields.value(QLatin1String("scheduledCapture"))
                .toObject()
                .value(QLatin1String("tasks"))
                .toArray();
        };
        QCOMPARE(tasks(again.fields).size(), 3);
        for (const QJsonValue& task : tasks(again.fields)) {
            const QJsonValue before = task[u"title"] == QLatin1String("B")
                ? tasks(document.fields).at(1)[u"color"]
                : task[u"title"] == QLatin1String("C") ? QJsonValue(QLatin1String("blue"))
                                                       : QJsonValue(QJsonValue::Undefined);
            QCOMPARE(task[u"color"], before);
        }
    }

    void unknownFieldsAreThoseOfTheTaskInUse()
    {
        const auto document =
            Parse(WithTasks(R"({"title": "A", "start": 1, "duration": 1, "color": "green"},
                         {"title": "A", "start": 5, "duration": 1, "color": "blue"})"));
        QCOMPARE(document.droppedTasks, 1);
        const QByteArray again = PX::FormatSettings(document.settings, document.fields);
        QVERIFY(again.contains("green"));
        QVERIFY(!again.contains("blue"));
    }

    void duplicateKeysAreNoted_data()
    {
        QTest::addColumn<QByteArray>("fields");
        QTest::addColumn<QStringList>("keys");
        // With ' for ".
        const auto row = [](const char* name, const char* fields, const QStringList& keys) {
            QTest::newRow(name) << QByteArray(fields).replace('\'', '"') << keys;
        };
        row("none", "'a': {'b': 1}, 'c': {'b': 1}, 'b': [{'b': 1}, {'b': 'b'}]", {});
        row("texts", "'a': 'b: {', 'b': '\\'a\\': \\\\', 'c': ['a', 'a', 'a']", {});
        row("at the top", "'a': 1, 'b': 2, 'a': 1", {"a"});
        row("three times", "'a': 1, 'a' : 2, 'a'\n: 1", {"a", "a"});
        row("in a section", "'paths': {'x': '}', 'x': 2}", {"paths.x"});
        row("of a section", "'paths': {'x': 1}, 'paths': {'x': 2}", {"paths"});
        row("in a task",
            "'scheduledCapture': {'tasks': [{'title': 'A', 'start': 1, 'duration': 1, 'start': "
            "1}]}",
            {"scheduledCapture.tasks.start"});
        row("behind an object", "'a': {'b': {}, 'b': []}", {"a.b"});
        row("written in another way", "'\\u0061\\'': 1, 'a\\u0022': 2", {"a\""});
        row("beyond ASCII", "'\u00e4': 1, '\\u00e4': 2", {QString(QChar(0xe4))});
    }

    void duplicateKeysAreNoted()
    {
        QFETCH(QByteArray, fields);
        QFETCH(QStringList, keys);
        const auto document = Parse(Version1With(fields));
        QVERIFY(document.isUnderstood);
        QCOMPARE(document.droppedTasks, 0);
        for (QString& key : keys) {
            key += QStringLiteral(": given more than once");
        }
        QCOMPARE(document.problems, keys);
    }

    void forgottenConfirmationsAreGone()
    {
        const auto document = Parse(Version1With("\"confirmations\": {\"a\": true}"));
        QVERIFY(document.settings.confirmations.value(QStringLiteral("a")));
        const auto again = Parse(PX::FormatSettings({}, document.fields));
        QVERIFY(again.settings.confirmations.isEmpty());
    }
};

SCHEDULER_TEST_MAIN(tst_SettingsFormat)
#include "tst_SettingsFormat.moc"
