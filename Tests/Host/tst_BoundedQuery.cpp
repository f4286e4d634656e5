// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <atomic>
#include <future>

#include "HostInterfaces.h"
#include "WidgetTest.h"
#include "ZQtUtil/BoundedQuery.h"

using namespace Zentor;
using namespace std::chrono_literals;
using Util::BoundedQuery;

namespace {

/// Whether there is an answer to \a key, asked again while it does not come in time: on a loaded
/// machine that is no wonder.
bool Answers(BoundedQuery& query, const std::string& key)
{
    return QTest::qWaitFor([&] { return query.Ask(key, [] { return 3; }) == 3; }, Tests::Patience);
}

} // namespace

class tst_BoundedQuery : public Tests::WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void answers()
    {
        BoundedQuery query(1min);
        QCOMPARE(query.Ask("a", [] { return 7; }), std::int64_t(7));
        QCOMPARE(query.Ask("a", [] { return -5; }), std::int64_t(-5));
        for (int i = 0; i < 100; ++i) {
            QCOMPARE(query.Ask("a", [i] { return i; }), std::int64_t(i));
        }
    }

    void givesUp()
    {
        std::promise<void> release;
        const auto released = release.get_future().share();
        BoundedQuery query(20ms);
        QVERIFY(query.Ask("hangs", [released] {
            released.wait();
            return 1;
        }) < 0);
        // Others are still answered.
        QCOMPARE(query.Ask("other", [] { return 2; }), std::int64_t(2));
        release.set_value();
        QVERIFY(Answers(query, "hangs"));
    }

    void doesNotAskAgainWhileOneHangs()
    {
        std::promise<void> release;
        const auto released = release.get_future().share();
        const auto started = std::make_shared<std::atomic<int>>(0);
        const auto hang = [released, started] {
            ++*started;
            released.wait();
            return 1;
        };
        BoundedQuery query(20ms);
        QVERIFY(query.Ask("0", hang) < 0);
        QTRY_COMPARE_WITH_TIMEOUT(started->load(), 1, Tests::Patience);
        for (int i = 0; i < 10; ++i) {
            QVERIFY(query.Ask("0", hang) < 0);
        }
        QCOMPARE(started->load(), 1);
        for (int i = 1; i < 10; ++i) {
            QVERIFY(query.Ask(std::to_string(i), hang) < 0);
        }
        QTRY_COMPARE_WITH_TIMEOUT(started->load(), 4, Tests::Patience);
        release.set_value();
        QVERIFY(Answers(query, "0"));
    }

    void mayEndBeforeTheAnswer()
    {
        std::promise<void> release;
        const auto released = release.get_future().share();
        const auto finished = std::make_shared<std::atomic<bool>>(false);
        {
            BoundedQuery query(1ms);
            QVERIFY(query.Ask("hangs", [released, finished] {
                released.wait();
                *finished = true;
                return 1;
            }) < 0);
        }
        release.set_value();
        QTRY_VERIFY_WITH_TIMEOUT(finished->load(), Tests::Patience);
    }
};

SCHEDULER_TEST_MAIN(tst_BoundedQuery)
#include "tst_BoundedQuery.moc"
