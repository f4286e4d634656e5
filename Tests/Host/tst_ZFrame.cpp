// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "HostInterfaces.h"
#include "WidgetTest.h"

using namespace Zentor;

class tst_ZFrame : public Tests::WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void isAPlainFrame()
    {
        QWidget window;
        const auto* frame = new ZFrame(&window);
        QCOMPARE(frame->parentWidget(), &window);
        QCOMPARE(frame->frameShape(), QFrame::NoFrame);
        QVERIFY(dynamic_cast<const AbstractLayoutController*>(frame) != nullptr);
        QCOMPARE(frame->metaObject()->className(), "Zentor::ZFrame");
    }

    void takesWindowFlags()
    {
        const ZFrame frame(nullptr, Qt::Tool);
        QCOMPARE(frame.windowType(), Qt::Tool);
    }
};

SCHEDULER_TEST_MAIN(tst_ZFrame)
#include "tst_ZFrame.moc"
