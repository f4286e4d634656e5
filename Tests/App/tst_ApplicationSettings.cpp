// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QTemporaryDir>

#include "ApplicationSettings.h"
#include "PXUserSettings/SettingsFormat.h"
#include "StoreIn.h"
#include "ThemeName.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

using Desktop::ApplicationSettings;
using Desktop::ApplicationSettingsIn;
using Desktop::ChangeApplicationSettings;

class tst_ApplicationSettings : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void defaults()
    {
        const QTemporaryDir folder;
        const ApplicationSettings settings = ApplicationSettingsIn(*OpenStoreIn(folder));
        QCOMPARE(settings.language, QString());
        QCOMPARE(settings.theme, QString());
        QCOMPARE(settings.windowGeometry, QByteArray());
        QCOMPARE(settings.page, QString());
    }

    void readsWhatItWrites()
    {
        const QTemporaryDir folder;
        ChangeApplicationSettings(*OpenStoreIn(folder), [](ApplicationSettings& settings) {
            settings.language = QStringLiteral("pt_BR");
            settings.theme = QStringLiteral("dark");
            settings.windowGeometry = QByteArray("\0\1\xff", 3);
            settings.page = QStringLiteral("files");
        });
        const ApplicationSettings settings = ApplicationSettingsIn(*OpenStoreIn(folder));
        QCOMPARE(settings.language, QStringLiteral("pt_BR"));
        QCOMPARE(settings.theme, QStringLiteral("dark"));
        QCOMPARE(settings.windowGeometry, QByteArray("\0\1\xff", 3));
        QCOMPARE(settings.page, QStringLiteral("files"));
    }

    /// The names in the file are a format that others may read.
    void writesTheSectionAppearance()
    {
        const QTemporaryDir folder;
        ChangeApplicationSettings(*OpenStoreIn(folder), [](ApplicationSettings& settings) {
            settings.language = QStringLiteral("de");
            settings.windowGeometry = QByteArray("\0\1\xff", 3);
        });
        QFile file(folder.filePath(QStringLiteral("settings.json")));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const auto section =
            PX::ParseSettings(file.readAll()).fields.value(QLatin1String("appearance")).toObject();
        const QJsonObject expected{{QStringLiteral("language"), QStringLiteral("de")},
                                   {QStringLiteral("theme"), QString()},
                                   {QStringLiteral("windowGeometry"), QStringLiteral("AAH/")},
                                   {QStringLiteral("page"), QString()}};
        QCOMPARE(section, expected);
    }

    void changesOneAndKeepsTheOthers()
    {
        const QTemporaryDir folder;
        const auto store = OpenStoreIn(folder);
        const QSignalSpy changed(store.get(), &PX::SettingsStore::Changed);
        ChangeApplicationSettings(
            *store, [](auto& settings) { settings.page = QStringLiteral("general"); });
        ChangeApplicationSettings(*store,
                                  [](auto& settings) { settings.theme = QStringLiteral("light"); });
        QCOMPARE(changed.count(), 2);
        QCOMPARE(ApplicationSettingsIn(*store).page, QStringLiteral("general"));
        QCOMPARE(ApplicationSettingsIn(*store).theme, QStringLiteral("light"));
    }

    void unusableValues_data()
    {
        QTest::addColumn<QByteArray>("section");
        QTest::addColumn<QString>("problem");
        const auto row = [](const char* section, const char* problem) {
            QTest::newRow(section) << QByteArray(section) << QString::fromLatin1(problem);
        };
        row("5", "appearance: not an object");
        row("{\"language\": 1}", "appearance.language: unusable value");
        row("{\"theme\": \"pink\"}", "appearance.theme: unusable value");
        row("{\"theme\": 1}", "appearance.theme: unusable value");
        row("{\"windowGeometry\": \"!\"}", "appearance.windowGeometry: unusable value");
        row("{\"windowGeometry\": 1}", "appearance.windowGeometry: unusable value");
        row("{\"page\": []}", "appearance.page: unusable value");
    }

    /// Such a value has its default from then on, also in the file.
    void unusableValues()
    {
        QFETCH(QByteArray, section);
        QFETCH(QString, problem);
        const std::vector<PX::SettingsSection> sections{Desktop::ApplicationSettingsSection()};
        const auto document =
            PX::ParseSettings("{\"version\": 1, \"appearance\": " + section + '}', sections);
        QVERIFY(document.isUnderstood);
        QCOMPARE(document.problems, QStringList(problem));
        QCOMPARE(document.settings.sections, PX::DefaultSettings(sections).sections);
        const auto again =
            PX::ParseSettings(PX::FormatSettings(document.settings, document.fields), sections);
        QCOMPARE(again.problems, QStringList());
    }

    void everyThemeCanBeStored()
    {
        for (const QString& theme : Desktop::ThemeNames()) {
            const QTemporaryDir folder;
            ChangeApplicationSettings(*OpenStoreIn(folder),
                                      [&](auto& settings) { settings.theme = theme; });
            QCOMPARE(ApplicationSettingsIn(*OpenStoreIn(folder)).theme, theme);
        }
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_ApplicationSettings)

#include "tst_ApplicationSettings.moc"
