// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QTemporaryDir>

#include "Application/SettingsManager.h"
#include "WidgetTest.h"

using namespace Zentor;

class tst_SettingsManager : public Tests::WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void remembersAndForgets()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("settings.json"));
        const QString first = QStringLiteral("first");
        const QString second = QStringLiteral("second");
        const auto open = [&] {
            auto store = std::make_shared<PX::SettingsStore>(path);
            QString error;
            store->Open(&error);
            return App::SettingsManager(store);
        };
        {
            App::SettingsManager manager = open();
            QVERIFY(!manager.IsConfirmed(first));
            QVERIFY(!manager.IsConfirmed({}));
            manager.SetConfirmed(first, true);
            manager.SetConfirmed(second, true);
            manager.SetConfirmed(second, false);
            QVERIFY(manager.IsConfirmed(first));
            QVERIFY(!manager.IsConfirmed(second));
        }
        {
            App::SettingsManager manager = open();
            QVERIFY(manager.IsConfirmed(first));
            manager.ForgetAll();
            QVERIFY(!manager.IsConfirmed(first));
        }
        QVERIFY(!open().IsConfirmed(first));
    }
};

SCHEDULER_TEST_MAIN(tst_SettingsManager)
#include "tst_SettingsManager.moc"
