// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "DurationText.h"
#include "Samples.h"
#include "WidgetTest.h"

using namespace std::chrono_literals;

namespace Zentor::Tests {
namespace {

/// \a text without the characters that keep its order.
QString Visible(QString text)
{
    return text.remove(QChar(0x2068)).remove(QChar(0x2069));
}

} // namespace

class tst_DurationText : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void tellsWhatRemains_data()
    {
        QTest::addColumn<qint64>("microseconds");
        QTest::addColumn<QString>("text");
        const std::pair<Schedule::Length, const char*> rows[] = {{-5s, "1 s"},
                                                                 {0s, "1 s"},
                                                                 {1us, "1 s"},
                                                                 {1s, "1 s"},
                                                                 {1s + 1us, "2 s"},
                                                                 {45s, "45 s"},
                                                                 {1min, "60 s"},
                                                                 {1min + 1us, "2 min"},
                                                                 {2min, "2 min"},
                                                                 {59min, "59 min"},
                                                                 {59min + 1s, "1 h 0 min"},
                                                                 {2h + 4min + 1us, "2 h 5 min"},
                                                                 {2h + 5min, "2 h 5 min"},
                                                                 {30h, "30 h 0 min"}};
        for (const auto& [left, text] : rows) {
            QTest::addRow("%lld us", static_cast<long long>(left.count()))
                << qint64(left.count()) << QString::fromLatin1(text);
        }
    }

    void tellsWhatRemains()
    {
        QFETCH(qint64, microseconds);
        QFETCH(QString, text);
        QCOMPARE(Desktop::RemainingText(Schedule::Length(microseconds)), text);
    }

    void knowsWhenTheTextChanges_data()
    {
        QTest::addColumn<qint64>("milliseconds");
        const std::chrono::milliseconds rows[] = {1ms,
                                                  400ms,
                                                  1s,
                                                  45s + 250ms,
                                                  60s,
                                                  60s + 1ms,
                                                  60s + 500ms,
                                                  2min,
                                                  59min + 1s,
                                                  2h + 5min,
                                                  23h + 59min + 59s + 999ms};
        for (const auto left : rows) {
            QTest::addRow("%lld ms", static_cast<long long>(left.count())) << qint64(left.count());
        }
    }

    void knowsWhenTheTextChanges()
    {
        QFETCH(qint64, milliseconds);
        const std::chrono::milliseconds left(milliseconds);
        const auto wait = Desktop::UntilRemainingTextChanges(left);
        QVERIFY(wait >= 1ms);
        const QString text = Desktop::RemainingText(left);
        QCOMPARE(Desktop::RemainingText(left - (wait - 1ms)), text);
        if (left > 1s) {
            QVERIFY(Desktop::RemainingText(left - wait) != text);
        }
    }

    void tellsTheDateOnlyOfAnotherDay()
    {
        const auto now = At("12:00");
        const QString today = Visible(Desktop::TimeText(At("20:15"), now));
        const QString tomorrow = Visible(Desktop::TimeText(At("20:15") + 24h, now));
        QVERIFY(today.contains(QLatin1String("20:15")));
        QVERIFY(tomorrow.contains(QLatin1String("20:15")));
        QVERIFY(tomorrow.size() > today.size());
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_DurationText)

#include "tst_DurationText.moc"
