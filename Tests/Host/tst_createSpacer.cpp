// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "HostInterfaces.h"
#include "WidgetTest.h"

using namespace Zentor;

class tst_createSpacer : public Tests::WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void spacerIsAnEmptyNamedFrame()
    {
        QWidget window;
        const QFrame* spacer = Util::createSpacer(&window, QStringLiteral("endSpacer"));
        QCOMPARE(spacer->parentWidget(), &window);
        QCOMPARE(spacer->objectName(), QStringLiteral("endSpacer"));
        QVERIFY(spacer->children().isEmpty());
        QCOMPARE(spacer->metaObject()->className(), "QFrame");
    }
};

SCHEDULER_TEST_MAIN(tst_createSpacer)
#include "tst_createSpacer.moc"
