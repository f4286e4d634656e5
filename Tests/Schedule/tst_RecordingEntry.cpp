// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RecordingEntry.h"
#include "WidgetTest.h"

Q_DECLARE_METATYPE(Zentor::Schedule::Outcome)

namespace Zentor::Tests {

using Schedule::NameOf;
using Schedule::Outcome;
using Schedule::OutcomeOf;

class tst_RecordingEntry : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void namesEachOutcome_data();
    void namesEachOutcome();
    void knowsNoOtherName();
};

void tst_RecordingEntry::namesEachOutcome_data()
{
    QTest::addColumn<Outcome>("outcome");
    QTest::addColumn<QString>("name");
    QTest::newRow("complete") << Outcome::Complete << "complete";
    QTest::newRow("partial") << Outcome::Partial << "partial";
    QTest::newRow("stopped") << Outcome::Stopped << "stopped";
    QTest::newRow("missed") << Outcome::Missed << "missed";
    QTest::newRow("failed") << Outcome::Failed << "failed";
    QTest::newRow("recording") << Outcome::Recording << "recording";
}

void tst_RecordingEntry::namesEachOutcome()
{
    QFETCH(Outcome, outcome);
    QFETCH(QString, name);
    QCOMPARE(NameOf(outcome), name);
    QVERIFY(OutcomeOf(name) == outcome);
}

void tst_RecordingEntry::knowsNoOtherName()
{
    QVERIFY(!OutcomeOf(QString()).has_value());
    QVERIFY(!OutcomeOf("Complete").has_value());
}

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_RecordingEntry)

#include "tst_RecordingEntry.moc"
