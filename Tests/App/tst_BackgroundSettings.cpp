// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QTemporaryDir>

#include "BackgroundSettings.h"
#include "PXUserSettings/SettingsFormat.h"
#include "StoreIn.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

using Desktop::BackgroundSettings;
using Desktop::BackgroundSettingsIn;
using Desktop::ChangeBackgroundSettings;

class tst_BackgroundSettings : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void defaults()
    {
        const QTemporaryDir folder;
        const BackgroundSettings settings = BackgroundSettingsIn(*OpenStoreIn(folder));
        QVERIFY(settings.keepRunning);
        QVERIFY(!settings.toldAboutTray);
    }

    void readsWhatItWrites()
    {
        const QTemporaryDir folder;
        ChangeBackgroundSettings(*OpenStoreIn(folder), [](BackgroundSettings& settings) {
            settings.keepRunning = false;
            settings.toldAboutTray = true;
        });
        const BackgroundSettings settings = BackgroundSettingsIn(*OpenStoreIn(folder));
        QVERIFY(!settings.keepRunning);
        QVERIFY(settings.toldAboutTray);
    }

    /// The names in the file are a format that others may read.
    void writesTheSectionBackground()
    {
        const QTemporaryDir folder;
        ChangeBackgroundSettings(*OpenStoreIn(folder),
                                 [](auto& settings) { settings.toldAboutTray = true; });
        QFile file(folder.filePath(QStringLiteral("settings.json")));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const auto section =
            PX::ParseSettings(file.readAll()).fields.value(QLatin1String("background")).toObject();
        const QJsonObject expected{{QStringLiteral("keepRunning"), true},
                                   {QStringLiteral("toldAboutTray"), true}};
        QCOMPARE(section, expected);
    }

    void takesTheDefaultForWhatIsUnusable()
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath(QStringLiteral("settings.json")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(R"({"version": 1,
                       "background": {"keepRunning": "no", "toldAboutTray": true}})");
        file.close();
        const BackgroundSettings settings = BackgroundSettingsIn(*OpenStoreIn(folder));
        QVERIFY(settings.keepRunning);
        QVERIFY(settings.toldAboutTray);
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_BackgroundSettings)

#include "tst_BackgroundSettings.moc"
