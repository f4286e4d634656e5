// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "HostInterfaces.h"
#include "WidgetTest.h"

using namespace Zentor;

class tst_ioPath : public Tests::WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void startsEmpty() { QVERIFY(ioPath().ToUtf8().empty()); }

    void keepsUtf8()
    {
        const std::string text = u8"/home/\u00fc\u8a18\U0001F3A5";
        ioPath path;
        path = text;
        QVERIFY(path.ToUtf8() == text);
        path = std::string();
        QVERIFY(path.ToUtf8().empty());
    }
};

SCHEDULER_TEST_MAIN(tst_ioPath)
#include "tst_ioPath.moc"
