// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <memory>

#include <QJsonArray>
#include <QTemporaryDir>

#include "PXUserSettings/SettingsFormat.h"
#include "RecordingSettings.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

using Schedule::ChangeRecordingSettings;
using Schedule::RecordingSettings;
using Schedule::RecordingSettingsIn;

namespace {

std::unique_ptr<PX::SettingsStore> OpenStore(const QTemporaryDir& folder)
{
    auto store = std::make_unique<PX::SettingsStore>(folder.filePath("settings.json"));
    store->AddSection(Schedule::RecordingSettingsSection());
    QString error;
    if (!store->Open(&error)) {
        qFatal("%s", qPrintable(error));
    }
    return store;
}

/// Settings in which every value differs from its default.
RecordingSettings Sample()
{
    RecordingSettings settings;
    settings.container = "mp4";
    settings.framesPerSecond = 24;
    settings.quality = RecordingSettings::Quality::High;
    settings.showPointer = false;
    settings.soundDevices = QStringList{"speakers.monitor", "mic"};
    settings.mixSound = false;
    settings.source = RecordingSettings::Source::Area;
    settings.screenIndex = 2;
    settings.area = QRect(-10, 20, 640, 480);
    settings.reserveBytes = 0;
    settings.countdownSeconds = 3600;
    return settings;
}

void Compare(const RecordingSettings& actual, const RecordingSettings& expected)
{
    QCOMPARE(actual.container, expected.container);
    QCOMPARE(actual.framesPerSecond, expected.framesPerSecond);
    QVERIFY(actual.quality == expected.quality);
    QCOMPARE(actual.showPointer, expected.showPointer);
    QCOMPARE(actual.soundDevices, expected.soundDevices);
    QCOMPARE(actual.mixSound, expected.mixSound);
    QVERIFY(actual.source == expected.source);
    QCOMPARE(actual.screenIndex, expected.screenIndex);
    QCOMPARE(actual.area, expected.area);
    QCOMPARE(actual.reserveBytes, expected.reserveBytes);
    QCOMPARE(actual.countdownSeconds, expected.countdownSeconds);
}

PX::SettingsDocument Parse(const QByteArray& section)
{
    return PX::ParseSettings("{\"version\": 1, \"recording\": " + section + '}',
                             {Schedule::RecordingSettingsSection()});
}

} // namespace

class tst_RecordingSettings : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void defaults();
    void readsWhatItWrites();
    void writesTheSectionRecording();
    void changesOneAndKeepsTheOthers();
    void usableValues_data();
    void usableValues();
    void unusableValues_data();
    void unusableValues();
    void chosenDevicesAreThereOnce();
    void emptyAreaIsNone();
};

void tst_RecordingSettings::defaults()
{
    const QTemporaryDir folder;
    const RecordingSettings settings = RecordingSettingsIn(*OpenStore(folder));
    Compare(settings, RecordingSettings());
    QCOMPARE(settings.container, QString("mkv"));
    QCOMPARE(settings.framesPerSecond, 30);
    QVERIFY(settings.quality == RecordingSettings::Quality::Normal);
    QVERIFY(settings.showPointer);
    QVERIFY(settings.soundDevices.isEmpty());
    QVERIFY(settings.mixSound);
    QVERIFY(settings.source == RecordingSettings::Source::Screen);
    QCOMPARE(settings.screenIndex, 0);
    QVERIFY(settings.area.isNull());
    QCOMPARE(settings.reserveBytes, qint64(1'000'000'000));
    QCOMPARE(settings.countdownSeconds, 60);
}

void tst_RecordingSettings::readsWhatItWrites()
{
    const QTemporaryDir folder;
    ChangeRecordingSettings(*OpenStore(folder), [](auto& settings) { settings = Sample(); });
    Compare(RecordingSettingsIn(*OpenStore(folder)), Sample());
}

/// The names in the file are a format that others read and write.
void tst_RecordingSettings::writesTheSectionRecording()
{
    const QTemporaryDir folder;
    ChangeRecordingSettings(*OpenStore(folder), [](auto& settings) { settings = Sample(); });
    QFile file(folder.filePath("settings.json"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QJsonObject expected{
        {"container", "mp4"},
        {"framesPerSecond", 24},
        {"quality", "high"},
        {"showPointer", false},
        {"soundDevices", QJsonArray{"speakers.monitor", "mic"}},
        {"mixSound", false},
        {"source", "area"},
        {"screenIndex", 2},
        {"area", QJsonObject{{"x", -10}, {"y", 20}, {"width", 640}, {"height", 480}}},
        {"reserveBytes", 0},
        {"countdownSeconds", 3600}};
    QCOMPARE(PX::ParseSettings(file.readAll()).fields.value("recording").toObject(), expected);
}

void tst_RecordingSettings::changesOneAndKeepsTheOthers()
{
    const QTemporaryDir folder;
    const auto store = OpenStore(folder);
    const QSignalSpy changed(store.get(), &PX::SettingsStore::Changed);
    ChangeRecordingSettings(*store, [](auto& settings) { settings.framesPerSecond = 60; });
    ChangeRecordingSettings(*store, [](auto& settings) { settings.container = "mp4"; });
    QCOMPARE(changed.count(), 2);
    QCOMPARE(RecordingSettingsIn(*store).framesPerSecond, 60);
    QCOMPARE(RecordingSettingsIn(*store).container, QString("mp4"));
}

void tst_RecordingSettings::usableValues_data()
{
    QTest::addColumn<QByteArray>("section");
    for (const char* section : {
             R"({"container": "mkv"})",
             R"({"framesPerSecond": 1})",
             R"({"framesPerSecond": 240})",
             R"({"quality": "small"})",
             R"({"soundDevices": []})",
             R"({"source": "area"})",
             R"({"screenIndex": 2147483647})",
             R"({"area": {"x": -32767, "y": 32767, "width": 1, "height": 32767}})",
             R"({"reserveBytes": 0})",
             R"({"reserveBytes": "9223372036854775807"})",
             R"({"countdownSeconds": 0})",
             R"({"countdownSeconds": 3600})",
         }) {
        QTest::newRow(section) << QByteArray(section);
    }
}

void tst_RecordingSettings::usableValues()
{
    QFETCH(QByteArray, section);
    const auto document = Parse(section);
    QCOMPARE(document.problems, QStringList());
    const auto given = QJsonDocument::fromJson(section).object();
    const QString key = given.keys().constFirst();
    QCOMPARE(document.settings.sections.value("recording").value(key), given.value(key));
}

void tst_RecordingSettings::unusableValues_data()
{
    QTest::addColumn<QByteArray>("section");
    QTest::addColumn<QString>("problem");
    QTest::newRow("no object") << QByteArray("5") << "recording: not an object";
    const auto row = [](const char* key, const char* value) {
        QTest::addRow("%s %s", key, value) << QByteArray("{\"") + key + "\": " + value
                + '}' << QStringLiteral("recording.%1: unusable value").arg(QLatin1String(key));
    };
    row("container", "\"avi\"");
    row("container", "1");
    row("framesPerSecond", "0");
    row("framesPerSecond", "241");
    row("framesPerSecond", "29.97");
    row("quality", "\"best\"");
    row("quality", "0");
    row("showPointer", "\"yes\"");
    row("soundDevices", "\"mic\"");
    row("soundDevices", "[1]");
    row("soundDevices", "[\"\"]");
    row("mixSound", "1");
    row("source", "\"window\"");
    row("screenIndex", "-1");
    row("screenIndex", "2147483648");
    row("area", "null");
    row("area", R"({"x": 0, "y": 0, "width": 640})");
    row("area", R"({"x": 0, "y": 0, "width": 640, "height": 0})");
    row("area", R"({"x": 0, "y": 0, "width": -1, "height": 480})");
    row("area", R"({"x": 32768, "y": 0, "width": 640, "height": 480})");
    row("area", R"({"x": 0, "y": -32768, "width": 640, "height": 480})");
    row("area", R"({"x": 0, "y": 0, "width": 32768, "height": 480})");
    row("reserveBytes", "-1");
    row("reserveBytes", "true");
    row("countdownSeconds", "-1");
    row("countdownSeconds", "3601");
}

/// Such a value has its default from then on, also in the file.
void tst_RecordingSettings::unusableValues()
{
    QFETCH(QByteArray, section);
    QFETCH(QString, problem);
    const std::vector<PX::SettingsSection> sections{Schedule::RecordingSettingsSection()};
    const auto document = Parse(section);
    QVERIFY(document.isUnderstood);
    QCOMPARE(document.problems, QStringList(problem));
    QCOMPARE(document.settings.sections, PX::DefaultSettings(sections).sections);
    const auto again =
        PX::ParseSettings(PX::FormatSettings(document.settings, document.fields), sections);
    QCOMPARE(again.problems, QStringList());
}

void tst_RecordingSettings::chosenDevicesAreThereOnce()
{
    const auto document = Parse(R"({"soundDevices": ["b", "a", "b"]})");
    QCOMPARE(document.problems, QStringList());
    const QJsonArray expected{"b", "a"};
    QCOMPARE(document.settings.sections.value("recording").value("soundDevices"),
             QJsonValue(expected));
}

void tst_RecordingSettings::emptyAreaIsNone()
{
    const QTemporaryDir folder;
    const auto store = OpenStore(folder);
    ChangeRecordingSettings(*store, [](auto& settings) { settings = Sample(); });
    ChangeRecordingSettings(*store, [](auto& settings) { settings.area = QRect(); });
    QVERIFY(RecordingSettingsIn(*store).area.isNull());
    QVERIFY(store->Flush());
    QFile file(folder.filePath("settings.json"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(PX::ParseSettings(file.readAll(), {Schedule::RecordingSettingsSection()}).problems,
             QStringList());
}

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_RecordingSettings)

#include "tst_RecordingSettings.moc"
