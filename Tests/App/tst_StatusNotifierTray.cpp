// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QSignalSpy>

#include "FakeTray.h"
#include "StatusNotifierTray.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

using Desktop::StatusNotifierTray;

class tst_StatusNotifierTray : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void knowsThatThereIsNone()
    {
        const StatusNotifierTray tray;
        QTRY_VERIFY_WITH_TIMEOUT(tray.IsKnown(), Patience);
        QVERIFY(!tray.IsThere());
    }

    void findsOne_data()
    {
        QTest::addColumn<bool>("hasHost");
        QTest::newRow("tray") << true;
        QTest::newRow("registry without tray") << false;
    }

    void findsOne()
    {
        QFETCH(bool, hasHost);
        const FakeTray fake(hasHost);
        QVERIFY(fake.IsRegistered());
        const StatusNotifierTray tray;
        QTRY_VERIFY_WITH_TIMEOUT(tray.IsKnown(), Patience);
        QCOMPARE(tray.IsThere(), hasHost);
    }

    void followsATrayThatComesAndGoes()
    {
        FakeTray fake(false);
        const StatusNotifierTray tray;
        QTRY_VERIFY_WITH_TIMEOUT(tray.IsKnown(), Patience);
        const QSignalSpy changed(&tray, &StatusNotifierTray::Changed);
        fake.SetHasHost(true);
        QTRY_VERIFY_WITH_TIMEOUT(tray.IsThere(), Patience);
        QCOMPARE(changed.count(), 1);
        fake.SetHasHost(false);
        QTRY_VERIFY_WITH_TIMEOUT(!tray.IsThere(), Patience);
        QCOMPARE(changed.count(), 2);
    }

    /// As when the desktop's panel is started after the program, crashes and is started again.
    void followsARegistryThatComesAndGoes()
    {
        const StatusNotifierTray tray;
        QTRY_VERIFY_WITH_TIMEOUT(tray.IsKnown(), Patience);
        for (int round = 0; round < 2; ++round) {
            auto fake = std::make_unique<FakeTray>(true);
            QVERIFY(fake->IsRegistered());
            QTRY_VERIFY_WITH_TIMEOUT(tray.IsThere(), Patience);
            fake.reset();
            QTRY_VERIFY_WITH_TIMEOUT(!tray.IsThere(), Patience);
        }
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_StatusNotifierTray)

#include "tst_StatusNotifierTray.moc"
