// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "FakePorts.h"
#include "RecordingSession.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

using namespace Schedule;
using End = RecordingSession::End;
using std::chrono::seconds;

namespace {

/// A task of a minute that was recorded from \a delay after its start on.
RecordingSession SessionOf(Length delay = Length::zero(), End end = End::None)
{
    RecordingSession session;
    session.isTask = true;
    session.task.title = "A";
    session.task.start = FakePorts::Begin;
    session.task.duration = seconds(60);
    session.length = seconds(60);
    session.started = {FakePorts::Begin + delay, seconds(1000)};
    session.end = end;
    return session;
}

QString TextOf(const Verdict& verdict)
{
    return (NameOf(verdict.outcome) + ' ' + verdict.reason).trimmed();
}

} // namespace

class tst_RecordingSession : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void judgesByItsEnd_data();
    void judgesByItsEnd();
    void judgesLateness_data();
    void judgesLateness();
    void judgesWhatIsMissing_data();
    void judgesWhatIsMissing();
    void judgesRests();
    void judgesBreaks_data();
    void judgesBreaks();
    void addsPausesUp();
};

void tst_RecordingSession::judgesByItsEnd_data()
{
    QTest::addColumn<int>("end");
    QTest::addColumn<QString>("reason");
    QTest::addColumn<QString>("verdict");
    QTest::newRow("by itself") << int(End::None) << "duration"
                               << "complete";
    QTest::newRow("disk low") << int(End::None) << "disk-low"
                              << "partial disk-low";
    QTest::newRow("no display") << int(End::None) << "no-display"
                                << "partial no-display";
    QTest::newRow("by a signal") << int(End::None) << "stopped"
                                 << "partial stopped";
    QTest::newRow("stopped at its end") << int(End::Reached) << "stopped"
                                        << "complete";
    QTest::newRow("by the user") << int(End::User) << "stopped"
                                 << "stopped user";
    QTest::newRow("too late for the user") << int(End::User) << "duration"
                                           << "complete";
    QTest::newRow("before the user") << int(End::User) << "no-display"
                                     << "stopped user";
    QTest::newRow("withdrawn") << int(End::Withdrawn) << "disk-low"
                               << "stopped user";
    QTest::newRow("for a task") << int(End::GivesWay) << "stopped"
                                << "partial gave-way";
    QTest::newRow("for a shutdown") << int(End::ShutDown) << "stopped"
                                    << "partial shut-down";
    QTest::newRow("before a shutdown") << int(End::ShutDown) << "duration"
                                       << "complete";
}

void tst_RecordingSession::judgesByItsEnd()
{
    QFETCH(int, end);
    QFETCH(QString, reason);
    const auto session = SessionOf(Length::zero(), End(end));
    QTEST(TextOf(Judge(session, {"file", reason, seconds(60)})), "verdict");
}

void tst_RecordingSession::judgesLateness_data()
{
    QTest::addColumn<int>("microseconds");
    QTest::addColumn<bool>("isTask");
    QTest::addColumn<QString>("verdict");
    QTest::newRow("to the microsecond") << 0 << true << "complete";
    QTest::newRow("two seconds late") << 2'000'000 << true << "complete";
    QTest::newRow("later") << 2'000'001 << true << "partial late";
    QTest::newRow("by hand") << 2'000'001 << false << "complete";
    QTest::newRow("with the clock set back") << -3'000'000 << true << "complete";
}

void tst_RecordingSession::judgesLateness()
{
    QFETCH(int, microseconds);
    QFETCH(bool, isTask);
    auto session = SessionOf(Length(microseconds));
    session.isTask = isTask;
    QTEST(TextOf(Judge(session, {"file", "duration", seconds(60)})), "verdict");
}

void tst_RecordingSession::judgesWhatIsMissing_data()
{
    QTest::addColumn<int>("microseconds");
    QTest::addColumn<int>("pausedSeconds");
    QTest::addColumn<QString>("verdict");
    QTest::newRow("nothing") << 60'000'000 << 0 << "complete";
    QTest::newRow("two seconds") << 58'000'000 << 0 << "complete";
    QTest::newRow("more") << 57'999'999 << 0 << "partial suspended";
    QTest::newRow("a pause") << 38'000'000 << 20 << "complete";
    QTest::newRow("a pause and more") << 37'999'999 << 20 << "partial suspended";
}

void tst_RecordingSession::judgesWhatIsMissing()
{
    QFETCH(int, microseconds);
    QFETCH(int, pausedSeconds);
    auto session = SessionOf(Length::zero(), End::Reached);
    session.pausedFor = seconds(pausedSeconds);
    QTEST(TextOf(Judge(session, {"file", "stopped", Length(microseconds)})), "verdict");
}

void tst_RecordingSession::judgesRests()
{
    auto session = SessionOf(seconds(30));
    session.isRest = true;
    const auto verdictOn = [&](const QString& reason) {
        return TextOf(Judge(session, {"file", reason, session.length}));
    };
    QCOMPARE(verdictOn("duration"), QString("partial rest"));
    QCOMPARE(verdictOn("no-display"), QString("partial no-display"));
    session.end = End::Reached;
    QCOMPARE(verdictOn("stopped"), QString("partial rest"));
    session.end = End::User;
    QCOMPARE(verdictOn("stopped"), QString("stopped user"));
}

void tst_RecordingSession::judgesBreaks_data()
{
    QTest::addColumn<int>("end");
    QTest::addColumn<QString>("verdict");
    QTest::newRow("by itself") << int(End::None) << "partial recorder-died";
    QTest::newRow("at its end") << int(End::Reached) << "partial recorder-died";
    QTest::newRow("stopped") << int(End::User) << "stopped recorder-died";
    QTest::newRow("withdrawn") << int(End::Withdrawn) << "stopped recorder-died";
    QTest::newRow("giving way") << int(End::GivesWay) << "partial recorder-died";
    QTest::newRow("shut down") << int(End::ShutDown) << "partial recorder-died";
}

void tst_RecordingSession::judgesBreaks()
{
    QFETCH(int, end);
    const auto session = SessionOf(Length::zero(), End(end));
    QTEST(TextOf(JudgeBroken(session, Why::RecorderDied)), "verdict");
}

void tst_RecordingSession::addsPausesUp()
{
    auto session = SessionOf();
    session.EndPause(seconds(1010));
    QVERIFY(!session.WasPaused());
    for (const int begin : {1010, 1030}) {
        session.isPaused = true;
        session.pausedSince = seconds(begin);
        QVERIFY(session.WasPaused());
        session.EndPause(seconds(begin + 5));
        session.EndPause(seconds(begin + 9));
    }
    QVERIFY(!session.isPaused);
    QVERIFY(session.WasPaused());
    QVERIFY(session.pausedFor == seconds(10));
    QVERIFY(session.TaskEnd() == FakePorts::Begin + seconds(60));
    QVERIFY(session.EndSinceBoot() == seconds(1060));
}

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_RecordingSession)

#include "tst_RecordingSession.moc"
