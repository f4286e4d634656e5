// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "CountPendingTasks.h"
#include "Samples.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

class tst_CountPendingTasks : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void counts_data()
    {
        QTest::addColumn<bool>("isOn");
        QTest::addColumn<QString>("now");
        QTest::addColumn<int>("expected");
        QTest::newRow("before all") << true << "09:00" << 2;
        QTest::newRow("as one runs") << true << "10:00" << 2;
        QTest::newRow("just before its end") << true << "10:00:59" << 2;
        QTest::newRow("at its end") << true << "10:01" << 1;
        QTest::newRow("after all") << true << "12:00" << 0;
        QTest::newRow("switched off") << false << "09:00" << 0;
    }

    void counts()
    {
        QFETCH(bool, isOn);
        QFETCH(QString, now);
        PX::UserSettings settings;
        settings.scheduledCaptureEnabled = isOn;
        settings.schedule = {Record("One", "10:00"), Record("Two", "11:00")};
        QTEST(Schedule::CountPendingTasks(settings, At(qPrintable(now))), "expected");
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_CountPendingTasks)

#include "tst_CountPendingTasks.moc"
