// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QSignalSpy>

#include "DesktopScreens.h"
#include "FakeScreen.h"
#include "RecordingSettings.h"
#include "StoreIn.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

using Desktop::DesktopScreens;

class tst_DesktopScreens : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void knowsItsScreens();
    void takesTheFirstScreenForAnAreaThatIsNotChosen();
    void cutsTheAreaWithTheScreens_data();
    void cutsTheAreaWithTheScreens();
    void tellsOfScreensThatComeAndGo();

private:
    QTemporaryDir m_folder;
};

void tst_DesktopScreens::knowsItsScreens()
{
    const DesktopScreens screens(OpenStoreIn(m_folder));
    const QSize first = QGuiApplication::primaryScreen()->size();
    QVERIFY(screens.IsThere(0));
    QCOMPARE(screens.SizeOf(0), first);
    const int count = int(QGuiApplication::screens().size());
    QVERIFY(!screens.IsThere(count));
    QVERIFY(screens.SizeOf(count).isEmpty());
}

void tst_DesktopScreens::takesTheFirstScreenForAnAreaThatIsNotChosen()
{
    const DesktopScreens screens(OpenStoreIn(m_folder));
    QVERIFY(screens.IsThere(-1));
    QCOMPARE(screens.SizeOf(-1), QGuiApplication::primaryScreen()->size());
}

void tst_DesktopScreens::cutsTheAreaWithTheScreens_data()
{
    QTest::addColumn<QRect>("area");
    QTest::addColumn<QSize>("size");
    // Whatever the screens of the machine are.
    QTest::newRow("within") << QRect(1, 1, 20, 10) << QSize(20, 10);
    QTest::newRow("partly beyond") << QRect(-5, -6, 20, 10) << QSize(15, 4);
    QTest::newRow("beyond") << QRect(-100, -100, 50, 50) << QSize();
}

void tst_DesktopScreens::cutsTheAreaWithTheScreens()
{
    QFETCH(QRect, area);
    QFETCH(QSize, size);
    const auto store = OpenStoreIn(m_folder);
    Schedule::ChangeRecordingSettings(*store, [&](auto& settings) { settings.area = area; });
    const DesktopScreens screens(store);
    QCOMPARE(screens.IsThere(-1), !size.isEmpty());
    QCOMPARE(screens.SizeOf(-1).isEmpty(), size.isEmpty());
    if (!size.isEmpty()) {
        QCOMPARE(screens.SizeOf(-1), size);
    }
}

void tst_DesktopScreens::tellsOfScreensThatComeAndGo()
{
    const DesktopScreens screens(OpenStoreIn(m_folder));
    const QSignalSpy changed(&screens, &DesktopScreens::Changed);
    const int count = int(QGuiApplication::screens().size());
    auto* screen = new FakeScreen("second", {2000, 0, 640, 480});
    QWindowSystemInterface::handleScreenAdded(screen);
    QVERIFY(changed.count() > 0);
    QVERIFY(screens.IsThere(count));
    QCOMPARE(screens.SizeOf(count), QSize(640, 480));

    const auto before = changed.count();
    screen->LeaveDesktop();
    QWindowSystemInterface::handleScreenRemoved(screen);
    QTRY_VERIFY_WITH_TIMEOUT(changed.count() > before, Patience);
    QVERIFY(!screens.IsThere(count));
}

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_DesktopScreens)

#include "tst_DesktopScreens.moc"
