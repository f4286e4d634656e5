// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <stdexcept>

#include <QTranslator>

#include "DefaultTaskName.h"
#include "Samples.h"
#include "ScheduleRecordTableWidget.h"
#include "StandIns.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

using PX::Scheduler::UI::ScheduleRecordTableWidget;

class PrefixTranslator final : public QTranslator {
public:
    QString translate(const char* context, const char* source, const char* /*comment*/,
                      int /*count*/) const override
    {
        const bool isPrefix =
            qstrcmp(context, "ScheduleRecordTableWidget") == 0 && qstrcmp(source, "Task ") == 0;
        return isPrefix ? QStringLiteral("Aufgabe Nr. ") : QString();
    }

    bool isEmpty() const override { return false; }
};

std::vector<PX::RecordTime> Records(const QStringList& titles)
{
    std::vector<PX::RecordTime> records;
    for (const auto& title : titles) {
        records.push_back(Record(title, At("00:00") + std::chrono::hours(records.size()),
                                 std::chrono::minutes(1)));
    }
    return records;
}

QString NameAfter(const QStringList& titles)
{
    return PX::Scheduler::UI::DefaultTaskName(Records(titles));
}

QString Octal(int zeros)
{
    return QStringLiteral("Task 02") + QString(zeros, QLatin1Char('0'));
}

} // namespace

class tst_DefaultTaskName : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void proposesTheNextNumber_data()
    {
        QTest::addColumn<QStringList>("titles");
        QTest::addColumn<QString>("name");
        const auto row = [](const char* name, const QStringList& titles, const char* expected) {
            QTest::newRow(name) << titles << QString::fromLatin1(expected);
        };
        row("no records", {}, "Task 1");
        row("the highest and one", {"Task 1", "Task 2"}, "Task 3");
        row("equal titles", {"Task 1", "Task 2", "Task 2"}, "Task 3");
        row("no gap is filled", {"Task 1", "Task 3"}, "Task 4");
        row("the order does not matter", {"Task 5", "Task 2"}, "Task 6");
        row("numbers compare as numbers", {"Task 9", "Task 10"}, "Task 11");
        row("other titles",
            {"Lecture", "task 4", "Task 4 ", "Task  4", "Task -4", "Task 4a", "Task", "Task ",
             "Task +4", "My Task 4", "Task 4.0"},
            "Task 1");
        row("digits and what cannot be seen",
            {"Task 4\n", "Task \n4", "Task 4\r\n", "Task 4\n4", "Task 4" + QString(QChar::Null),
             "Task 4" + QString(QChar::ParagraphSeparator)},
            "Task 1");
        row("numbers that are no decimal digits", {QString::fromUtf8("Task Ⅳ"), "Task \u00b2"},
            "Task 1");
        row("digits of two code units", {QString::fromUtf8("Task 𝟒")}, "Task 1");
        row("octal", {"Task 010"}, "Task 9");
        row("zero", {"Task 0"}, "Task 1");
        row("zeros", {"Task 000"}, "Task 1");
        row("octal below eight", {"Task 007"}, "Task 8");
        row("2^63", {"Task 9223372036854775807"}, "Task 9223372036854775808");
        row("2^64", {"Task 18446744073709551615"}, "Task 18446744073709551616");
        row("23 digits", {"Task 99999999999999999999999"}, "Task 100000000000000000000000");
        row("a hundred digits", {"Task " + QString(100, QLatin1Char('9'))},
            ("Task 1" + std::string(100, '0')).c_str());
    }

    void proposesTheNextNumber()
    {
        QFETCH(QStringList, titles);
        QTEST(NameAfter(titles), "name");
    }

    void readsLongOctalNumbers_data()
    {
        QTest::addColumn<int>("zeros");
        QTest::addColumn<QString>("name");
        const auto row = [](int zeros, const char* expected) {
            QTest::addRow("2 and %d zeros", zeros) << zeros << QString::fromLatin1(expected);
        };
        row(18, "Task 36028797018963969");
        row(19, "Task 288230376151711745");
        row(20, "Task 2305843009213693953");
        row(21, "Task 18446744073709551617");
        row(22, "Task 147573952589676412929");
        row(41, "Task 21267647932558653966460912964485513217");
        row(42, "Task 170141183460469231731687303715884105729");
        row(60, "Task 3064991081731777716716694054300618367237478244367204353");
    }

    void readsLongOctalNumbers()
    {
        QFETCH(int, zeros);
        QTEST(NameAfter({Octal(zeros)}), "name");
    }

    void throwsForNumbersThatAreNone_data()
    {
        QTest::addColumn<QString>("title");
        QTest::newRow("8 in octal") << "Task 08";
        QTest::newRow("9 in octal") << "Task 09";
        QTest::newRow("9 at the end") << "Task 0129";
        QTest::newRow("8 at the end of a long number") << Octal(60) + QLatin1Char('8');
        QTest::newRow("9 in the middle of a long number")
            << Octal(20) + QLatin1Char('9') + QString(20, QLatin1Char('0'));
        QTest::newRow("Arabic digits") << QString::fromUtf8("Task ٣٤");
        QTest::newRow("Arabic digit after a zero") << QString::fromUtf8("Task 0٣");
    }

    void throwsForNumbersThatAreNone()
    {
        QFETCH(QString, title);
        QVERIFY_EXCEPTION_THROWN(NameAfter({title}), std::runtime_error);
    }

    void tellsWhyAnOctalNumberIsNone()
    {
        try {
            NameAfter({QStringLiteral("Task 09")});
            QFAIL("no exception");
        } catch (const std::runtime_error& error) {
            QCOMPARE(error.what(), "Unexpected content found while parsing character string.");
        }
    }

    void isProposedByTheTable()
    {
        ScheduleRecordTableWidget table(std::make_shared<FakeSettingsManager>(), nullptr);
        QCOMPARE(table.GetDefaultTaskName(), QString("Task 1"));
        table.AddRecords(Records({"Task 4", "Task 7"}));
        const QSignalSpy changes(&table, &ScheduleRecordTableWidget::ScheduleChanged);
        QCOMPARE(table.GetDefaultTaskName(), QString("Task 8"));
        QCOMPARE(changes.count(), 0);
        table.AddRecord(Record("Task 09", "23:00"));
        QVERIFY_EXCEPTION_THROWN(table.GetDefaultTaskName(), std::runtime_error);
    }

    void followsTheLanguage()
    {
        PrefixTranslator translator;
        QCoreApplication::installTranslator(&translator);
        QCOMPARE(NameAfter({"Task 5", "Aufgabe Nr. 2", "Aufgabe 7"}), QString("Aufgabe Nr. 3"));
        QCoreApplication::removeTranslator(&translator);
        QCOMPARE(NameAfter({"Task 5", "Aufgabe Nr. 7"}), QString("Task 6"));
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_DefaultTaskName)

#include "tst_DefaultTaskName.moc"
