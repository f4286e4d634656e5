// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "FakePorts.h"
#include "FinishSequence.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

using namespace Schedule;
using Answer = IPower::Answer;
using std::chrono::seconds;

class tst_FinishSequence : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void hasNothingToDo();
    void quitsAtOnce();
    void countsDown_data();
    void countsDown();
    void countsDownFromTheAnswer();
    void actsOnce();
    void doesNotActBeforeTheAnswer();
    void givesUpWhatIsNotPossible();
    void ignoresAnswersThatItDoesNotWaitFor();
    void countsOnWhenTheClockIsSet();
    void isReplacedByTheNext();
    void isCancelled();

private:
    void Answered(PX::PowerAction action, Answer answer)
    {
        m_sequence->OnAnswer(action, answer, m_ports->now);
    }
    void PassAndEvaluate(Length time)
    {
        m_ports->now.wall += time;
        m_ports->now.sinceBoot += time;
        m_sequence->Evaluate(m_ports->now);
    }

    std::optional<FakePorts> m_ports;
    std::optional<FinishSequence> m_sequence;
};

void tst_FinishSequence::init()
{
    WidgetTest::init();
    m_ports.emplace();
    m_sequence.emplace(*m_ports, *m_ports);
}

void tst_FinishSequence::hasNothingToDo()
{
    m_sequence->Begin(PX::DoNothing);
    Answered(PX::DoNothing, Answer::Yes);
    m_sequence->ActNow();
    PassAndEvaluate(seconds(1000));
    QCOMPARE(m_ports->log, QStringList());
    QCOMPARE(m_sequence->Action(), PX::DoNothing);
    QVERIFY(!m_sequence->End());
}

void tst_FinishSequence::quitsAtOnce()
{
    m_sequence->Begin(PX::QuitApplication);
    QCOMPARE(m_ports->log, QStringList{"> 0 perform quit"});
    QCOMPARE(m_sequence->Action(), PX::DoNothing);
}

void tst_FinishSequence::countsDown_data()
{
    QTest::addColumn<int>("action");
    QTest::newRow("sleep") << int(PX::Sleep);
    QTest::newRow("hibernate") << int(PX::Hibernate);
    QTest::newRow("restart") << int(PX::Restart);
    QTest::newRow("shut down") << int(PX::ShutDown);
}

void tst_FinishSequence::countsDown()
{
    QFETCH(int, action);
    const auto powerAction = PX::PowerAction(action);
    const QString name = FakePorts::NameOf(powerAction);
    m_sequence->Begin(powerAction);
    Answered(powerAction, Answer::Yes);
    PassAndEvaluate(seconds(60) - Length(1));
    const QStringList begin{"> 0 ask for " + name, "> 0 tell countdown to " + name + " 60"};
    QCOMPARE(m_ports->log, begin);
    PassAndEvaluate(Length(1));
    QCOMPARE(m_ports->log, begin + QStringList{"> 60 perform " + name});
}

void tst_FinishSequence::countsDownFromTheAnswer()
{
    m_sequence->Begin(PX::Sleep);
    m_sequence->SetCountdown(seconds(10));
    PassAndEvaluate(seconds(20));
    QVERIFY(!m_sequence->End());
    Answered(PX::Sleep, Answer::Yes);
    // Taken at the answer.
    m_sequence->SetCountdown(seconds(5));
    QVERIFY(m_sequence->End() == m_ports->now.sinceBoot + seconds(10));
    PassAndEvaluate(seconds(9));
    QCOMPARE(m_sequence->Action(), PX::Sleep);
    PassAndEvaluate(seconds(1));
    QCOMPARE(m_ports->log.last(), QString("> 30 perform sleep"));
}

void tst_FinishSequence::actsOnce()
{
    m_sequence->Begin(PX::Restart);
    Answered(PX::Restart, Answer::Yes);
    m_sequence->ActNow();
    m_sequence->ActNow();
    PassAndEvaluate(seconds(100));
    QCOMPARE(m_ports->log.filter("perform"), QStringList{"> 0 perform restart"});
    QCOMPARE(m_sequence->Action(), PX::DoNothing);
    QVERIFY(!m_sequence->End());
}

void tst_FinishSequence::doesNotActBeforeTheAnswer()
{
    m_sequence->Begin(PX::ShutDown);
    m_sequence->ActNow();
    PassAndEvaluate(seconds(1000));
    QCOMPARE(m_ports->log, QStringList{"> 0 ask for shutdown"});
}

void tst_FinishSequence::givesUpWhatIsNotPossible()
{
    m_sequence->Begin(PX::Hibernate);
    Answered(PX::Hibernate, Answer::No);
    Answered(PX::Hibernate, Answer::Yes);
    PassAndEvaluate(seconds(100));
    QCOMPARE(m_ports->log, QStringList({"> 0 ask for hibernate", "> 0 tell refused hibernate"}));
}

void tst_FinishSequence::ignoresAnswersThatItDoesNotWaitFor()
{
    m_sequence->Begin(PX::Sleep);
    Answered(PX::Hibernate, Answer::Yes);
    Answered(PX::Restart, Answer::No);
    QCOMPARE(m_ports->log, QStringList{"> 0 ask for sleep"});
    Answered(PX::Sleep, Answer::Yes);
    PassAndEvaluate(seconds(30));
    // The second answer to one question.
    Answered(PX::Sleep, Answer::Yes);
    Answered(PX::Sleep, Answer::No);
    PassAndEvaluate(seconds(30));
    QCOMPARE(m_ports->log.last(), QString("> 60 perform sleep"));
}

void tst_FinishSequence::countsOnWhenTheClockIsSet()
{
    m_sequence->Begin(PX::Sleep);
    Answered(PX::Sleep, Answer::Yes);
    m_ports->now.wall += std::chrono::hours(1);
    PassAndEvaluate(seconds(59));
    QCOMPARE(m_sequence->Action(), PX::Sleep);
    m_ports->now.wall -= std::chrono::hours(2);
    PassAndEvaluate(seconds(1));
    QCOMPARE(m_sequence->Action(), PX::DoNothing);
}

void tst_FinishSequence::isReplacedByTheNext()
{
    m_sequence->Begin(PX::Sleep);
    Answered(PX::Sleep, Answer::Yes);
    m_sequence->Begin(PX::Restart);
    PassAndEvaluate(seconds(100));
    QCOMPARE(m_ports->log.filter("perform"), QStringList());
    QCOMPARE(m_sequence->Action(), PX::Restart);
    m_sequence->Begin(PX::DoNothing);
    QCOMPARE(m_sequence->Action(), PX::DoNothing);
}

void tst_FinishSequence::isCancelled()
{
    m_sequence->Begin(PX::Sleep);
    m_sequence->Cancel();
    Answered(PX::Sleep, Answer::Yes);
    QVERIFY(!m_sequence->End());
    m_sequence->Begin(PX::Sleep);
    Answered(PX::Sleep, Answer::Yes);
    m_sequence->Cancel();
    m_sequence->ActNow();
    PassAndEvaluate(seconds(100));
    QCOMPARE(m_ports->log.filter("perform"), QStringList());
}

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_FinishSequence)

#include "tst_FinishSequence.moc"
