// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "System/Inhibitors.h"

#include <QDBusPendingCallWatcher>
#include <QSignalSpy>

#include "FakeLogin.h"
#include "FakeScreenSaver.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

using Schedule::Inhibitors;

QStringList Everything()
{
    return {"sleep:idle by px-test, block", "shutdown by px-test, delay"};
}

/// Waits until \a service has answered what was sent to it on \a bus before.
bool IsAnswered(const char* service, const QDBusConnection& bus)
{
    const auto ping =
        QDBusMessage::createMethodCall(service, "/", "org.freedesktop.DBus.Peer", "Ping");
    const QDBusPendingCallWatcher watcher(bus.asyncCall(ping));
    QSignalSpy answered(&watcher, &QDBusPendingCallWatcher::finished);
    return answered.wait(Patience);
}

} // namespace

class tst_Inhibitors : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void holdsAndReleases();
    void releasesWhatIsGivenAfterwards();
    void keepsWhatIsWantedAgainBeforeTheAnswer();
    void releasesWhenItIsDeleted();
    void isNotKeptByOtherPrograms();
    void saysOnceWhatIsMissing();
    void saysWhatIsRefused();
    void asksServicesThatAppearLater();
    void asksANewScreenSaver();
};

void tst_Inhibitors::initTestCase()
{
    FakeLogin::UseSessionBus();
    QCoreApplication::setApplicationName("px-test");
}

void tst_Inhibitors::holdsAndReleases()
{
    const FakeLogin login;
    const FakeScreenSaver screenSaver;
    QVERIFY(login.IsRegistered());
    QVERIFY(screenSaver.IsRegistered());
    Inhibitors inhibitors;
    const QSignalSpy unavailable(&inhibitors, &Inhibitors::Unavailable);
    for (int round = 1; round <= 2; ++round) {
        inhibitors.SetHeld(true);
        inhibitors.SetHeld(true);
        QTRY_COMPARE_WITH_TIMEOUT(login.Held(), Everything(), Patience);
        QTRY_COMPARE_WITH_TIMEOUT(screenSaver.Held(), 1, Patience);
        inhibitors.SetHeld(false);
        QTRY_COMPARE_WITH_TIMEOUT(login.Held(), QStringList(), Patience);
        QTRY_COMPARE_WITH_TIMEOUT(screenSaver.Held(), 0, Patience);
        QCOMPARE(login.Calls().size(), 2 * round);
        QCOMPARE(screenSaver.Asked(), round);
    }
    QCOMPARE(unavailable.count(), 0);
}

void tst_Inhibitors::releasesWhatIsGivenAfterwards()
{
    FakeLogin login;
    FakeScreenSaver screenSaver;
    login.HoldAnswers(true);
    screenSaver.HoldAnswers(true);
    Inhibitors inhibitors;
    inhibitors.SetHeld(true);
    inhibitors.SetHeld(false);
    QTRY_COMPARE_WITH_TIMEOUT(login.Calls().size(), 2, Patience);
    QTRY_COMPARE_WITH_TIMEOUT(screenSaver.Asked(), 1, Patience);
    login.HoldAnswers(false);
    screenSaver.HoldAnswers(false);
    QCOMPARE(login.Held(), Everything());
    QCOMPARE(screenSaver.Held(), 1);
    QTRY_COMPARE_WITH_TIMEOUT(login.Held(), QStringList(), Patience);
    QTRY_COMPARE_WITH_TIMEOUT(screenSaver.Held(), 0, Patience);
}

void tst_Inhibitors::keepsWhatIsWantedAgainBeforeTheAnswer()
{
    FakeLogin login;
    FakeScreenSaver screenSaver;
    login.HoldAnswers(true);
    screenSaver.HoldAnswers(true);
    Inhibitors inhibitors;
    inhibitors.SetHeld(true);
    inhibitors.SetHeld(false);
    inhibitors.SetHeld(true);
    QTRY_COMPARE_WITH_TIMEOUT(login.Calls().size(), 2, Patience);
    QTRY_COMPARE_WITH_TIMEOUT(screenSaver.Asked(), 1, Patience);
    login.HoldAnswers(false);
    screenSaver.HoldAnswers(false);
    QCOMPARE(login.Held(), Everything());
    inhibitors.SetHeld(false);
    QTRY_COMPARE_WITH_TIMEOUT(login.Held(), QStringList(), Patience);
    QTRY_COMPARE_WITH_TIMEOUT(screenSaver.Held(), 0, Patience);
    QCOMPARE(login.Calls().size(), 2);
    QCOMPARE(screenSaver.Asked(), 1);
}

void tst_Inhibitors::releasesWhenItIsDeleted()
{
    const FakeLogin login;
    const FakeScreenSaver screenSaver;
    auto inhibitors = std::make_unique<Inhibitors>();
    inhibitors->SetHeld(true);
    QTRY_COMPARE_WITH_TIMEOUT(login.Held(), Everything(), Patience);
    QTRY_COMPARE_WITH_TIMEOUT(screenSaver.Held(), 1, Patience);
    QVERIFY(IsAnswered("org.freedesktop.ScreenSaver", QDBusConnection::sessionBus()));
    inhibitors.reset();
    QTRY_COMPARE_WITH_TIMEOUT(login.Held(), QStringList(), Patience);
    QTRY_COMPARE_WITH_TIMEOUT(screenSaver.Held(), 0, Patience);
}

void tst_Inhibitors::isNotKeptByOtherPrograms()
{
    const FakeLogin login;
    const FakeScreenSaver screenSaver;
    Inhibitors inhibitors;
    inhibitors.SetHeld(true);
    QTRY_COMPARE_WITH_TIMEOUT(login.Held(), Everything(), Patience);
    QVERIFY(IsAnswered("org.freedesktop.login1", QDBusConnection::systemBus()));
    // A program inherits what is open when it is started.
    QProcess program;
    program.start("sleep", {"600"});
    QVERIFY(program.waitForStarted(Patience));
    inhibitors.SetHeld(false);
    QTRY_COMPARE_WITH_TIMEOUT(login.Held(), QStringList(), Patience);
    QCOMPARE(program.state(), QProcess::Running);
    program.kill();
    QVERIFY(program.waitForFinished(Patience));
    QTRY_COMPARE_WITH_TIMEOUT(screenSaver.Held(), 0, Patience);
}

void tst_Inhibitors::saysOnceWhatIsMissing()
{
    Inhibitors inhibitors;
    const QSignalSpy unavailable(&inhibitors, &Inhibitors::Unavailable);
    inhibitors.SetHeld(true);
    QCOMPARE(unavailable.count(), 0);
    QTRY_COMPARE_WITH_TIMEOUT(unavailable.count(), 3, Patience);
    QStringList told;
    for (const auto& arguments : unavailable) {
        told << arguments.constFirst().toString();
    }
    QCOMPARE(told.removeDuplicates(), 0);
    QVERIFY(!told.contains(QString()));
    inhibitors.SetHeld(false);
    // Proof that the second answers have come, too.
    const FakeLogin login;
    const FakeScreenSaver screenSaver;
    inhibitors.SetHeld(true);
    QTRY_COMPARE_WITH_TIMEOUT(login.Held(), Everything(), Patience);
    QTRY_COMPARE_WITH_TIMEOUT(screenSaver.Held(), 1, Patience);
    QCOMPARE(unavailable.count(), 3);
}

void tst_Inhibitors::saysWhatIsRefused()
{
    FakeLogin login;
    FakeScreenSaver screenSaver;
    login.Refuse("Inhibit", "not allowed");
    screenSaver.Refuse();
    Inhibitors inhibitors;
    const QSignalSpy unavailable(&inhibitors, &Inhibitors::Unavailable);
    for (int round = 1; round <= 2; ++round) {
        inhibitors.SetHeld(true);
        QTRY_COMPARE_WITH_TIMEOUT(login.Calls().size(), 2 * round, Patience);
        QTRY_COMPARE_WITH_TIMEOUT(screenSaver.Asked(), round, Patience);
        QTRY_COMPARE_WITH_TIMEOUT(unavailable.count(), 3, Patience);
        inhibitors.SetHeld(false);
    }
}

void tst_Inhibitors::asksServicesThatAppearLater()
{
    Inhibitors inhibitors;
    const QSignalSpy unavailable(&inhibitors, &Inhibitors::Unavailable);
    inhibitors.SetHeld(true);
    QTRY_COMPARE_WITH_TIMEOUT(unavailable.count(), 3, Patience);
    const FakeLogin login;
    const FakeScreenSaver screenSaver;
    QTRY_COMPARE_WITH_TIMEOUT(login.Held(), Everything(), Patience);
    QTRY_COMPARE_WITH_TIMEOUT(screenSaver.Held(), 1, Patience);
}

void tst_Inhibitors::asksANewScreenSaver()
{
    const FakeLogin login;
    auto screenSaver = std::make_unique<FakeScreenSaver>();
    Inhibitors inhibitors;
    inhibitors.SetHeld(true);
    QTRY_COMPARE_WITH_TIMEOUT(screenSaver->Held(), 1, Patience);
    screenSaver.reset();
    screenSaver = std::make_unique<FakeScreenSaver>();
    QTRY_COMPARE_WITH_TIMEOUT(screenSaver->Held(), 1, Patience);
    QCOMPARE(login.Calls().size(), 2);
    inhibitors.SetHeld(false);
    QTRY_COMPARE_WITH_TIMEOUT(screenSaver->Held(), 0, Patience);
    QCOMPARE(screenSaver->Asked(), 1);
}

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_Inhibitors)

#include "tst_Inhibitors.moc"
