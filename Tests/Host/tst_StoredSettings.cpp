// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QTemporaryDir>

#include "PXUserSettings/StoredSettings.h"
#include "Samples.h"
#include "WidgetTest.h"

using namespace Zentor;
using namespace Zentor::Tests;
using namespace std::chrono_literals;

namespace {

struct Stored {
    Stored() { isOpen = store->Open(&error); }

    QTemporaryDir folder;
    std::shared_ptr<PX::SettingsStore> store =
        std::make_shared<PX::SettingsStore>(folder.filePath(QStringLiteral("settings.json")));
    QString error;
    bool isOpen = false;
    PX::StoredSchedulerSettings scheduler{store};
    PX::StoredCaptureFinishActionSettings finishAction{store};
    PX::StoredPathsSettings paths{store};
    PX::StoringSettingsWatcher watcher{store};
};

} // namespace

class tst_StoredSettings : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void readWhatTheWatcherWrote()
    {
        Stored stored;
        QVERIFY2(stored.isOpen, qPrintable(stored.error));
        QVERIFY(!stored.scheduler.IsLimitedCaptureEnabled());
        QVERIFY(!stored.scheduler.IsScheduledCaptureEnabled());
        QVERIFY(stored.scheduler.GetLimitedCaptureDuration() == 1h);
        QVERIFY(stored.scheduler.GetSchedule().empty());
        QCOMPARE(stored.finishAction.GetCaptureFinishAction(), PX::DoNothing);

        stored.watcher.OnLimitedCaptureStateChanged(true);
        stored.watcher.OnLimitedCaptureDurationChanged(90min);
        stored.watcher.OnCaptureFinishActionChanged(PX::ShutDown);
        stored.watcher.OnScheduleChanged({Record("A", "12:00", 1h)});
        stored.watcher.OnScheduleStateChanged(true);
        QVERIFY(stored.scheduler.IsLimitedCaptureEnabled());
        QVERIFY(stored.scheduler.GetLimitedCaptureDuration() == 90min);
        QCOMPARE(stored.finishAction.GetCaptureFinishAction(), PX::ShutDown);
        QCOMPARE(stored.scheduler.GetSchedule().at(0).title, QStringLiteral("A"));
        QVERIFY(stored.scheduler.IsScheduledCaptureEnabled());

        stored.watcher.OnLimitedCaptureStateChanged(false);
        stored.watcher.OnScheduleStateChanged(false);
        QVERIFY(!stored.scheduler.IsLimitedCaptureEnabled());
        QVERIFY(!stored.scheduler.IsScheduledCaptureEnabled());
    }

    void ignoresWhatIsNoAction_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("stored");
        QTest::newRow("none") << -1 << int(PX::Sleep);
        QTest::newRow("first") << 0 << int(PX::DoNothing);
        QTest::newRow("last") << 5 << int(PX::ShutDown);
        QTest::newRow("beyond") << 6 << int(PX::Sleep);
    }

    void ignoresWhatIsNoAction()
    {
        QFETCH(int, index);
        Stored stored;
        stored.watcher.OnCaptureFinishActionChanged(PX::Sleep);
        stored.watcher.OnCaptureFinishActionChanged(index);
        QTEST(int(stored.finishAction.GetCaptureFinishAction()), "stored");
    }

    void tellsTheResultsFolder()
    {
        Stored stored;
        QCOMPARE(stored.paths.GetResultsFolderPath(), PX::DefaultResultsFolderPath());
        stored.store->Change(
            [](PX::UserSettings& settings) { settings.resultsFolderPath = QStringLiteral("/v"); });
        QCOMPARE(stored.paths.GetResultsFolderPath(), QStringLiteral("/v"));
    }

    void aThousandGrowingSchedulesAreOneWrite()
    {
        Stored stored;
        const QSignalSpy saved(stored.store.get(), &PX::SettingsStore::Saved);
        std::vector<PX::RecordTime> schedule;
        for (int i = 0; i < 1000; ++i) {
            schedule.push_back(
                Record(QStringLiteral("Task %1").arg(i), At("00:00") + i * 1min, 1min));
            stored.watcher.OnScheduleChanged(schedule);
            stored.watcher.OnScheduleStateChanged(true);
        }
        QCOMPARE(saved.count(), 0);
        QTRY_COMPARE_WITH_TIMEOUT(saved.count(), 1, Patience);
        QVERIFY(stored.store->Flush());
        QCOMPARE(saved.count(), 1);
    }
};

SCHEDULER_TEST_MAIN(tst_StoredSettings)
#include "tst_StoredSettings.moc"
