// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "System/LoginManager.h"

#include "FakeLogin.h"
#include "WidgetTest.h"

Q_DECLARE_METATYPE(Zentor::PX::PowerAction)

namespace Zentor::Tests {
namespace {

using PX::PowerAction;
using Schedule::LoginManager;

/// What a manager has sent.
class Events {
public:
    explicit Events(const LoginManager& manager)
    {
        QObject::connect(&manager, &LoginManager::Answered, [this](PowerAction action, bool is) {
            all << QStringLiteral("%1 is %2possible").arg(action).arg(is ? "" : "not ");
        });
        QObject::connect(&manager, &LoginManager::Refused,
                         [this](PowerAction action, const QString& reason) {
                             all << QStringLiteral("%1 refused: %2").arg(action).arg(reason);
                         });
        QObject::connect(&manager, &LoginManager::AboutToSleep,
                         [this](bool is) { all << (is ? "sleeps" : "has slept"); });
        QObject::connect(&manager, &LoginManager::AboutToShutDown,
                         [this](bool is) { all << (is ? "shuts down" : "stays"); });
    }

    QStringList all;
};

} // namespace

class tst_LoginManager : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { FakeLogin::UseSessionBus(); }
    void asks_data();
    void asks();
    void performs_data();
    void performs();
    void saysWhyAnActionWasRefused();
    void livesWithoutTheService_data();
    void livesWithoutTheService();
    void tellsOfSleepAndShutDown();
    void hearsAServiceThatAppearsLater();
};

void tst_LoginManager::asks_data()
{
    QTest::addColumn<PowerAction>("action");
    QTest::addColumn<QString>("method");
    QTest::addColumn<QString>("answer");
    QTest::addColumn<bool>("isPossible");
    QTest::newRow("sleep") << PX::Sleep << "CanSuspend"
                           << "yes" << true;
    QTest::newRow("hibernate") << PX::Hibernate << "CanHibernate"
                               << "yes" << true;
    QTest::newRow("restart") << PX::Restart << "CanReboot"
                             << "yes" << true;
    QTest::newRow("shut down") << PX::ShutDown << "CanPowerOff"
                               << "yes" << true;
    QTest::newRow("with a password") << PX::ShutDown << "CanPowerOff"
                                     << "challenge" << true;
    QTest::newRow("not allowed") << PX::Sleep << "CanSuspend"
                                 << "no" << false;
    QTest::newRow("not available") << PX::Hibernate << "CanHibernate"
                                   << "na" << false;
    QTest::newRow("nonsense") << PX::Restart << "CanReboot"
                              << "Yes" << false;
    QTest::newRow("an error") << PX::Restart << "CanReboot"
                              << "" << false;
}

void tst_LoginManager::asks()
{
    QFETCH(PowerAction, action);
    QFETCH(QString, method);
    QFETCH(QString, answer);
    QFETCH(bool, isPossible);
    FakeLogin login;
    QVERIFY(login.IsRegistered());
    if (answer.isEmpty()) {
        login.Refuse(method, "broken");
    }
    login.Answer(method, answer);
    LoginManager manager;
    Events events(manager);
    manager.Ask(action);
    QCOMPARE(events.all, QStringList());
    const QString expected =
        QStringLiteral("%1 is %2possible").arg(action).arg(isPossible ? "" : "not ");
    QTRY_COMPARE_WITH_TIMEOUT(events.all, QStringList{expected}, Patience);
    QCOMPARE(login.Calls(), QStringList{method});
}

void tst_LoginManager::performs_data()
{
    QTest::addColumn<PowerAction>("action");
    QTest::addColumn<QString>("call");
    QTest::newRow("sleep") << PX::Sleep << "Suspend(true)";
    QTest::newRow("hibernate") << PX::Hibernate << "Hibernate(true)";
    QTest::newRow("restart") << PX::Restart << "Reboot(true)";
    QTest::newRow("shut down") << PX::ShutDown << "PowerOff(true)";
}

void tst_LoginManager::performs()
{
    QFETCH(PowerAction, action);
    QFETCH(QString, call);
    FakeLogin login;
    LoginManager manager;
    Events events(manager);
    manager.Perform(action);
    QTRY_COMPARE_WITH_TIMEOUT(login.Calls(), QStringList{call}, Patience);
    // What is sent later is answered later.
    manager.Ask(PX::Sleep);
    QTRY_COMPARE_WITH_TIMEOUT(events.all, QStringList{"2 is possible"}, Patience);
}

void tst_LoginManager::saysWhyAnActionWasRefused()
{
    FakeLogin login;
    login.Refuse("Suspend", "somebody else works");
    LoginManager manager;
    Events events(manager);
    manager.Perform(PX::Sleep);
    QCOMPARE(events.all, QStringList());
    QTRY_COMPARE_WITH_TIMEOUT(events.all, QStringList{"2 refused: somebody else works"}, Patience);
}

void tst_LoginManager::livesWithoutTheService_data()
{
    QTest::addColumn<PowerAction>("action");
    QTest::newRow("sleep") << PX::Sleep;
    QTest::newRow("none") << PX::DoNothing;
    QTest::newRow("the program's own") << PX::QuitApplication;
}

void tst_LoginManager::livesWithoutTheService()
{
    QFETCH(PowerAction, action);
    LoginManager manager;
    Events events(manager);
    manager.Ask(action);
    manager.Perform(action);
    QCOMPARE(events.all, QStringList());
    QTRY_COMPARE_WITH_TIMEOUT(events.all.size(), 2, Patience);
    events.all.sort();
    QCOMPARE(events.all.at(0), QStringLiteral("%1 is not possible").arg(action));
    QVERIFY(events.all.at(1).startsWith(QStringLiteral("%1 refused: ").arg(action)));
}

void tst_LoginManager::tellsOfSleepAndShutDown()
{
    FakeLogin login;
    const LoginManager manager;
    const Events events(manager);
    login.SendPrepareForSleep(true);
    login.SendPrepareForSleep(false);
    login.SendPrepareForShutdown(true);
    login.SendPrepareForShutdown(false);
    QTRY_COMPARE_WITH_TIMEOUT(
        events.all, (QStringList{"sleeps", "has slept", "shuts down", "stays"}), Patience);
}

void tst_LoginManager::hearsAServiceThatAppearsLater()
{
    LoginManager manager;
    Events events(manager);
    for (const QString action : {"2 is possible", "3 is possible"}) {
        FakeLogin login;
        manager.Ask(static_cast<PowerAction>(action.left(1).toInt()));
        QTRY_COMPARE_WITH_TIMEOUT(events.all, QStringList{action}, Patience);
        login.SendPrepareForSleep(true);
        QTRY_COMPARE_WITH_TIMEOUT(events.all, (QStringList{action, "sleeps"}), Patience);
        events.all.clear();
    }
}

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_LoginManager)

#include "tst_LoginManager.moc"
