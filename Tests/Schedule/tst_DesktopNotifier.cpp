// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "System/DesktopNotifier.h"

#include <QDBusServiceWatcher>
#include <QSignalSpy>

#include "FakeNotifications.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

using namespace std::chrono_literals;

using Schedule::DesktopNotification;
using Schedule::DesktopNotifier;

DesktopNotification Saying(const QString& summary)
{
    DesktopNotification notification;
    notification.summary = summary;
    return notification;
}

} // namespace

class tst_DesktopNotifier : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QCoreApplication::setApplicationName("px-test"); }
    void saysEverything();
    void fitsTheDesktop_data();
    void fitsTheDesktop();
    void convertsTimeouts_data();
    void convertsTimeouts();
    void replacesWhatHasTheSameKey();
    void showsAnewWhatWasDismissed();
    void replacesBeforeTheAnswer();
    void closes();
    void closesBeforeTheAnswer();
    void closesBeforeItIsSent();
    void tellsOfActions();
    void ignoresOtherPrograms();
    void saysOnceThatItIsUnavailable();
    void goesOnAfterARefusal();
    void startsAnewWithANewServer();
};

void tst_DesktopNotifier::saysEverything()
{
    const FakeNotifications server;
    QVERIFY(server.IsRegistered());
    DesktopNotifier notifier("org.example.Test");
    const QSignalSpy unavailable(&notifier, &DesktopNotifier::Unavailable);
    DesktopNotification notification;
    notification.summary = "Lecture <1>";
    notification.body = "<b>a & b</b>\n\"c\"";
    notification.actions = {{"default", "Show"}, {"skip", "Skip"}};
    notification.urgency = DesktopNotification::Urgency::Critical;
    notification.timeout = 10s;
    notifier.Show("a", notification);
    QCOMPARE(server.Asked(), 0);
    QTRY_COMPARE_WITH_TIMEOUT(server.Shown().size(), std::size_t(1), Patience);
    const auto& shown = server.Shown().front();
    QCOMPARE(shown.application, QStringLiteral("px-test"));
    QCOMPARE(shown.icon, QStringLiteral("org.example.Test"));
    QCOMPARE(shown.summary, QStringLiteral("Lecture <1>"));
    QCOMPARE(shown.body, QStringLiteral("&lt;b&gt;a &amp; b&lt;/b&gt;\n&quot;c&quot;"));
    QCOMPARE(shown.actions, (QStringList{"default", "Show", "skip", "Skip"}));
    QCOMPARE(shown.hints.value("urgency"), QVariant::fromValue(uchar(2)));
    QCOMPARE(shown.hints.value("desktop-entry"), QVariant("org.example.Test"));
    QCOMPARE(shown.timeoutMilliseconds, 10000);
    QCOMPARE(unavailable.count(), 0);
}

void tst_DesktopNotifier::fitsTheDesktop_data()
{
    QTest::addColumn<QStringList>("capabilities");
    QTest::addColumn<QString>("body");
    QTest::addColumn<QStringList>("actions");
    const QStringList actions{"skip", "Skip"};
    QTest::newRow("nothing") << QStringList() << "a < b" << QStringList();
    QTest::newRow("actions") << QStringList{"actions"} << "a < b" << actions;
    QTest::newRow("markup") << QStringList{"body-markup"} << "a &lt; b" << QStringList();
}

void tst_DesktopNotifier::fitsTheDesktop()
{
    QFETCH(QStringList, capabilities);
    QFETCH(QString, body);
    QFETCH(QStringList, actions);
    const FakeNotifications server(capabilities);
    DesktopNotifier notifier("test");
    DesktopNotification notification;
    notification.body = "a < b";
    notification.actions = {{"skip", "Skip"}};
    notifier.Show("a", notification);
    QTRY_COMPARE_WITH_TIMEOUT(server.Shown().size(), std::size_t(1), Patience);
    QCOMPARE(server.Shown().front().body, body);
    QCOMPARE(server.Shown().front().actions, actions);
}

void tst_DesktopNotifier::convertsTimeouts_data()
{
    QTest::addColumn<qint64>("timeout");
    QTest::addColumn<int>("milliseconds");
    QTest::newRow("usual") << qint64(-1) << -1;
    QTest::newRow("negative") << qint64(-5000) << -1;
    QTest::newRow("never") << qint64(0) << 0;
    QTest::newRow("shortest") << qint64(1) << 1;
    QTest::newRow("longest") << qint64(2147483647) << 2147483647;
    QTest::newRow("too long") << qint64(2147483648) << 2147483647;
}

void tst_DesktopNotifier::convertsTimeouts()
{
    QFETCH(qint64, timeout);
    QFETCH(int, milliseconds);
    const FakeNotifications server;
    DesktopNotifier notifier("test");
    DesktopNotification notification;
    notification.timeout = std::chrono::milliseconds(timeout);
    notifier.Show("a", notification);
    QTRY_COMPARE_WITH_TIMEOUT(server.Shown().size(), std::size_t(1), Patience);
    QCOMPARE(server.Shown().front().timeoutMilliseconds, milliseconds);
}

void tst_DesktopNotifier::replacesWhatHasTheSameKey()
{
    const FakeNotifications server;
    DesktopNotifier notifier("test");
    notifier.Show("a", Saying("one"));
    notifier.Show("b", Saying("other"));
    QTRY_COMPARE_WITH_TIMEOUT(server.Summaries(), (QStringList{"one", "other"}), Patience);
    notifier.Show("a", Saying("two"));
    QTRY_COMPARE_WITH_TIMEOUT(server.Summaries(), (QStringList{"two", "other"}), Patience);
}

void tst_DesktopNotifier::showsAnewWhatWasDismissed()
{
    FakeNotifications server;
    DesktopNotifier notifier("test");
    notifier.Show("a", Saying("one"));
    QTRY_COMPARE_WITH_TIMEOUT(server.Summaries(), QStringList{"one"}, Patience);
    server.Dismiss(server.Shown().front().id);
    notifier.Show("b", Saying("other"));
    QTRY_COMPARE_WITH_TIMEOUT(server.Summaries(), QStringList{"other"}, Patience);
    notifier.Show("a", Saying("two"));
    QTRY_COMPARE_WITH_TIMEOUT(server.Summaries(), (QStringList{"other", "two"}), Patience);
    QCOMPARE(server.Shown().back().id, 3U);
}

void tst_DesktopNotifier::replacesBeforeTheAnswer()
{
    FakeNotifications server;
    server.HoldAnswers(true);
    DesktopNotifier notifier("test");
    notifier.Show("a", Saying("one"));
    QTRY_COMPARE_WITH_TIMEOUT(server.Summaries(), QStringList{"one"}, Patience);
    notifier.Show("a", Saying("two"));
    notifier.Show("a", Saying("three"));
    server.HoldAnswers(false);
    QTRY_COMPARE_WITH_TIMEOUT(server.Summaries(), QStringList{"three"}, Patience);
    QCOMPARE(server.Asked(), 2);
}

void tst_DesktopNotifier::closes()
{
    FakeNotifications server;
    DesktopNotifier notifier("test");
    notifier.Close("a");
    notifier.Show("a", Saying("one"));
    notifier.Show("b", Saying("other"));
    QTRY_COMPARE_WITH_TIMEOUT(server.Summaries(), (QStringList{"one", "other"}), Patience);
    notifier.Close("a");
    notifier.Close("a");
    QTRY_COMPARE_WITH_TIMEOUT(server.Summaries(), QStringList{"other"}, Patience);
    notifier.Show("a", Saying("two"));
    QTRY_COMPARE_WITH_TIMEOUT(server.Summaries(), (QStringList{"other", "two"}), Patience);
}

void tst_DesktopNotifier::closesBeforeTheAnswer()
{
    FakeNotifications server;
    server.HoldAnswers(true);
    DesktopNotifier notifier("test");
    notifier.Show("a", Saying("one"));
    QTRY_COMPARE_WITH_TIMEOUT(server.Summaries(), QStringList{"one"}, Patience);
    notifier.Show("a", Saying("two"));
    notifier.Close("a");
    server.HoldAnswers(false);
    QTRY_COMPARE_WITH_TIMEOUT(server.Summaries(), QStringList(), Patience);
    QCOMPARE(server.Asked(), 1);
}

void tst_DesktopNotifier::closesBeforeItIsSent()
{
    const FakeNotifications server;
    DesktopNotifier notifier("test");
    notifier.Show("a", Saying("one"));
    notifier.Close("a");
    notifier.Show("b", Saying("other"));
    QTRY_COMPARE_WITH_TIMEOUT(server.Summaries(), QStringList{"other"}, Patience);
    QCOMPARE(server.Asked(), 1);
}

void tst_DesktopNotifier::tellsOfActions()
{
    FakeNotifications server;
    DesktopNotifier notifier("test");
    const QSignalSpy invoked(&notifier, &DesktopNotifier::ActionInvoked);
    notifier.Show("a", Saying("one"));
    notifier.Show("b", Saying("other"));
    QTRY_COMPARE_WITH_TIMEOUT(server.Shown().size(), std::size_t(2), Patience);
    server.Invoke(2, "skip", "token");
    QTRY_COMPARE_WITH_TIMEOUT(invoked.count(), 1, Patience);
    QCOMPARE(invoked.at(0), (QVariantList{"b", "skip", "token"}));
    server.Invoke(1, "default");
    QTRY_COMPARE_WITH_TIMEOUT(invoked.count(), 2, Patience);
    QCOMPARE(invoked.at(1), (QVariantList{"a", "default", QString()}));
    // Some desktops tell of it after the notification has gone.
    server.Invoke(2, "late");
    QTRY_COMPARE_WITH_TIMEOUT(invoked.count(), 3, Patience);
    QCOMPARE(invoked.at(2), (QVariantList{"b", "late", QString()}));
}

void tst_DesktopNotifier::ignoresOtherPrograms()
{
    FakeNotifications server;
    DesktopNotifier notifier("test");
    const QSignalSpy invoked(&notifier, &DesktopNotifier::ActionInvoked);
    // Not sent yet, its number is not known.
    notifier.Show("a", Saying("one"));
    server.Invoke(0, "skip", "token");
    QTRY_COMPARE_WITH_TIMEOUT(server.Shown().size(), std::size_t(1), Patience);
    server.Invoke(77, "skip", "token");
    server.Dismiss(77);
    server.Invoke(1, "skip");
    QTRY_COMPARE_WITH_TIMEOUT(invoked.count(), 1, Patience);
    QCOMPARE(invoked.at(0), (QVariantList{"a", "skip", QString()}));
}

void tst_DesktopNotifier::saysOnceThatItIsUnavailable()
{
    DesktopNotifier notifier("test");
    const QSignalSpy unavailable(&notifier, &DesktopNotifier::Unavailable);
    notifier.Show("a", Saying("one"));
    notifier.Show("b", Saying("other"));
    QCOMPARE(unavailable.count(), 0);
    QTRY_COMPARE_WITH_TIMEOUT(unavailable.count(), 1, Patience);
    notifier.Close("a");
    // What was not shown then is not shown later: it is about the past.
    const FakeNotifications server;
    notifier.Show("c", Saying("later"));
    QTRY_COMPARE_WITH_TIMEOUT(server.Summaries(), QStringList{"later"}, Patience);
    QCOMPARE(unavailable.count(), 1);
}

void tst_DesktopNotifier::goesOnAfterARefusal()
{
    FakeNotifications server;
    server.Refuse(true);
    DesktopNotifier notifier("test");
    const QSignalSpy unavailable(&notifier, &DesktopNotifier::Unavailable);
    notifier.Show("a", Saying("one"));
    QTRY_COMPARE_WITH_TIMEOUT(unavailable.count(), 1, Patience);
    notifier.Show("a", Saying("two"));
    QTRY_COMPARE_WITH_TIMEOUT(server.Asked(), 2, Patience);
    server.Refuse(false);
    notifier.Show("a", Saying("three"));
    QTRY_COMPARE_WITH_TIMEOUT(server.Summaries(), QStringList{"three"}, Patience);
    QCOMPARE(unavailable.count(), 1);
}

void tst_DesktopNotifier::startsAnewWithANewServer()
{
    DesktopNotifier notifier("test");
    const QSignalSpy invoked(&notifier, &DesktopNotifier::ActionInvoked);
    {
        const FakeNotifications server;
        notifier.Show("a", Saying("one"));
        notifier.Show("b", Saying("other"));
        QTRY_COMPARE_WITH_TIMEOUT(server.Shown().size(), std::size_t(2), Patience);
    }
    // It hears of the new one after the notifier, which was there first.
    const QDBusServiceWatcher watcher("org.freedesktop.Notifications",
                                      QDBusConnection::sessionBus(),
                                      QDBusServiceWatcher::WatchForRegistration);
    const QSignalSpy appeared(&watcher, &QDBusServiceWatcher::serviceRegistered);
    FakeNotifications server({"body"});
    QTRY_COMPARE_WITH_TIMEOUT(appeared.count(), 1, Patience);
    DesktopNotification notification = Saying("<two>");
    notification.body = "<two>";
    notification.actions = {{"skip", "Skip"}};
    notifier.Show("b", notification);
    QTRY_COMPARE_WITH_TIMEOUT(server.Summaries(), QStringList{"<two>"}, Patience);
    QCOMPARE(server.Shown().front().id, 1U);
    QCOMPARE(server.Shown().front().body, QStringLiteral("<two>"));
    QCOMPARE(server.Shown().front().actions, QStringList());
    server.Invoke(1, "skip");
    QTRY_COMPARE_WITH_TIMEOUT(invoked.count(), 1, Patience);
    QCOMPARE(invoked.at(0).at(0), QVariant("b"));
}

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_DesktopNotifier)

#include "tst_DesktopNotifier.moc"
