// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "System/LineSplitter.h"

#include "WidgetTest.h"

namespace Zentor::Tests {

using Schedule::LineSplitter;

class tst_LineSplitter : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void makesLines_data();
    void makesLines();
    void dropsLinesThatAreTooLong();
};

void tst_LineSplitter::makesLines_data()
{
    QTest::addColumn<QByteArrayList>("parts");
    QTest::addColumn<QByteArrayList>("lines");
    QTest::addColumn<QByteArray>("rest");
    using List = QByteArrayList;
    QTest::newRow("nothing") << List() << List() << QByteArray();
    QTest::newRow("one") << List{"a\n"} << List{"a"} << QByteArray();
    QTest::newRow("several at once") << List{"a\nb\n\nc"} << List{"a", "b", ""} << QByteArray("c");
    QTest::newRow("in parts") << List{"a", "b", "\nc", "\n"} << List{"ab", "c"} << QByteArray();
    QTest::newRow("with a zero") << List{QByteArray("a\0b\n", 4)} << List{QByteArray("a\0b", 3)}
                                 << QByteArray();
}

void tst_LineSplitter::makesLines()
{
    QFETCH(QByteArrayList, parts);
    QFETCH(QByteArrayList, lines);
    QFETCH(QByteArray, rest);
    LineSplitter splitter(10);
    QByteArrayList found;
    for (const auto& part : parts) {
        for (const auto& line : splitter.Take(part)) {
            found << line;
        }
    }
    QCOMPARE(found, lines);
    QCOMPARE(splitter.Rest(), rest);
}

void tst_LineSplitter::dropsLinesThatAreTooLong()
{
    LineSplitter splitter(3);
    QCOMPARE(splitter.Take("abc\nabcd\nd\n"), (std::vector<QByteArray>{"abc", "d"}));
    QVERIFY(splitter.Take("ab").empty());
    QVERIFY(splitter.Take("cd").empty());
    QCOMPARE(splitter.Rest(), QByteArray());
    QVERIFY(splitter.Take("e").empty());
    QCOMPARE(splitter.Take("f\ng\n"), (std::vector<QByteArray>{"g"}));
}

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_LineSplitter)

#include "tst_LineSplitter.moc"
