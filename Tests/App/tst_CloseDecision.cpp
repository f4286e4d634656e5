// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "CloseDecision.h"
#include "WidgetTest.h"

Q_DECLARE_METATYPE(Zentor::Desktop::CloseDecision)

namespace Zentor::Tests {

using Desktop::CloseDecision;
using Desktop::PendingWork;

class tst_CloseDecision : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void decides_data()
    {
        QTest::addColumn<bool>("isRecording");
        QTest::addColumn<int>("taskCount");
        QTest::addColumn<bool>("keepRunning");
        QTest::addColumn<bool>("hasTray");
        QTest::addColumn<CloseDecision>("expected");
        const auto row = [](const char* work, bool isRecording, int taskCount, bool keepRunning,
                            bool hasTray, CloseDecision expected) {
            QTest::addRow("%s, %s, %s", work, keepRunning ? "keep" : "do not keep",
                          hasTray ? "tray" : "no tray")
                << isRecording << taskCount << keepRunning << hasTray << expected;
        };
        row("nothing", false, 0, true, true, CloseDecision::Close);
        row("nothing", false, 0, true, false, CloseDecision::Close);
        row("nothing", false, 0, false, true, CloseDecision::Close);
        row("nothing", false, 0, false, false, CloseDecision::Close);
        const std::tuple<const char*, bool, int> works[] = {
            {"recording", true, 0}, {"one task", false, 1}, {"both", true, 7}};
        for (const auto& [work, isRecording, taskCount] : works) {
            row(work, isRecording, taskCount, true, true, CloseDecision::Hide);
            row(work, isRecording, taskCount, true, false, CloseDecision::Minimize);
            row(work, isRecording, taskCount, false, true, CloseDecision::Close);
            row(work, isRecording, taskCount, false, false, CloseDecision::Close);
        }
    }

    void decides()
    {
        QFETCH(bool, isRecording);
        QFETCH(int, taskCount);
        QFETCH(bool, keepRunning);
        QFETCH(bool, hasTray);
        const PendingWork work{isRecording, taskCount};
        QTEST(Desktop::DecideClose(work, keepRunning, hasTray), "expected");
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_CloseDecision)

#include "tst_CloseDecision.moc"
