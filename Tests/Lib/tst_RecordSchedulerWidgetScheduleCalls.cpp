// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QSet>

#include "Panel.h"
#include "WidgetTest.h"

namespace {

struct Calls {
    int title = 0;
    int overlap = 0;
    int schedule = 0;
};

Calls calls;

} // namespace

namespace Zentor::PX {

/// Counts the questions, and answers without a look at the tasks.
struct SchedulerHelper::Private {
    std::vector<RecordTime> records;
    QSet<QString> titles;
};

SchedulerHelper::SchedulerHelper()
    : d(std::make_unique<Private>())
{
}

SchedulerHelper::~SchedulerHelper() = default;

int SchedulerHelper::AddRecord(const RecordTime& record)
{
    d->records.push_back(record);
    d->titles.insert(record.title);
    return static_cast<int>(d->records.size()) - 1;
}

void SchedulerHelper::RemoveRecord(const QString& title)
{
    d->titles.remove(title);
}

void SchedulerHelper::ClearSchedule()
{
    d->records.clear();
    d->titles.clear();
}

bool SchedulerHelper::DoesTitleAlreadyExists(const QString& title) const
{
    ++calls.title;
    return d->titles.contains(title);
}

bool SchedulerHelper::DoesCaptureTimeIntersected(const RecordTime& /*record*/) const
{
    ++calls.overlap;
    return false;
}

std::vector<RecordTime> SchedulerHelper::GetPreparedSchedule() const
{
    ++calls.schedule;
    return d->records;
}

std::uint64_t SchedulerHelper::GetRecordCount() const
{
    return d->records.size();
}

} // namespace Zentor::PX

namespace Zentor::Tests {

/// What the panel asks of the schedule, counted.
class tst_RecordSchedulerWidgetScheduleCalls : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void validatesAKeyWithTwoQuestions_data()
    {
        QTest::addColumn<int>("taskCount");
        QTest::newRow("few tasks") << 2;
        QTest::newRow("a thousand tasks") << 1000;
    }

    void validatesAKeyWithTwoQuestions()
    {
        QFETCH(int, taskCount);
        Panel panel;
        QStringList titles;
        for (int i = 0; i < taskCount; ++i) {
            titles << QStringLiteral("Lecture %1").arg(i);
        }
        panel.RestoreScheduled(titles);
        panel.window->show();
        panel.Add()->click();
        constexpr int keyCount = 10;
        calls = {};
        for (int i = 0; i < keyCount; ++i) {
            QTest::keyClick(panel.Name(), i % 2 == 0 ? Qt::Key_X : Qt::Key_Backspace);
        }
        QCOMPARE(calls.title, keyCount);
        QCOMPARE(calls.overlap, keyCount);
        QCOMPARE(calls.schedule, 0);
    }

    void asksNothingAboutATitleThatIsEmpty()
    {
        Panel panel;
        panel.RestoreScheduled({"A"});
        panel.window->show();
        panel.Add()->click();
        calls = {};
        panel.Name()->clear();
        QCOMPARE(calls.title, 0);
        QCOMPARE(calls.overlap, 0);
    }

    void asksNothingAboutTheTimeOfATitleThatIsTaken()
    {
        Panel panel;
        panel.RestoreScheduled({"A"});
        panel.window->show();
        panel.Add()->click();
        calls = {};
        panel.Name()->setText("A");
        QCOMPARE(calls.title, 1);
        QCOMPARE(calls.overlap, 0);
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_RecordSchedulerWidgetScheduleCalls)

#include "tst_RecordSchedulerWidgetScheduleCalls.moc"
