// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "Application/LookAndFeelManager.h"
#include "Application/SettingsManager.h"
#include "PanelParts.h"
#include "PXUserSettings/StoredSettings.h"
#include "RecordSchedulerWidget.h"
#include "Resources.h"
#include "Samples.h"
#include "StoreIn.h"
#include "Theme.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

std::vector<PX::RecordTime> Tasks(int count)
{
    std::vector<PX::RecordTime> tasks;
    for (int i = 0; i < count; ++i) {
        tasks.push_back(Record(QStringLiteral("Lecture %1").arg(i),
                               At("00:00") + std::chrono::minutes(i), std::chrono::minutes(1)));
    }
    return tasks;
}

} // namespace

/// The panel, the host and the style sheet together, as they ship.
class tst_RestoringManyTasks : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Desktop::RegisterResources(); }

    /// The panel tells its host of each task that it is given back.
    void writesNothingThatTheFileHolds()
    {
        constexpr int taskCount = 1000;
        const QTemporaryDir folder;
        const auto store = OpenStoreIn(folder);
        store->Change([](PX::UserSettings& settings) {
            settings.schedule = Tasks(taskCount);
            settings.scheduledCaptureEnabled = true;
        });
        QVERIFY(store->Flush());

        Desktop::ApplyTheme(Desktop::Theme::Light);
        PX::Scheduler::UI::RecordSchedulerWidget panel(
            std::make_shared<App::LookAndFeelManager>(),
            std::make_shared<App::SettingsManager>(store), nullptr);
        panel.SetSchedulerSettings(std::make_shared<PX::StoredSchedulerSettings>(store));
        panel.SetCaptureFinishActionSettings(
            std::make_shared<PX::StoredCaptureFinishActionSettings>(store));
        panel.SetSettingsWatcher(std::make_shared<PX::StoringSettingsWatcher>(store));
        panel.show();
        QVERIFY(QTest::qWaitForWindowExposed(&panel));

        const QSignalSpy saved(store.get(), &PX::SettingsStore::Saved);
        const QSignalSpy changed(store.get(), &PX::SettingsStore::Changed);
        panel.RestoreSettings();
        QCOMPARE(panel.findChildren<QWidget*>(Desktop::PanelPart::Row).size(), taskCount);
        QVERIFY(store->Flush());
        QVERIFY(changed.count() > taskCount);
        QCOMPARE(saved.count(), 0);
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_RestoringManyTasks)

#include "tst_RestoringManyTasks.moc"
