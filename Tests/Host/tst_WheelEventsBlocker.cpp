// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QComboBox>
#include <QScrollArea>
#include <QScrollBar>

#include "HostInterfaces.h"
#include "WidgetTest.h"

using namespace Zentor;

namespace {

void Wheel(QWidget& widget)
{
    const QPointF position = widget.rect().center();
    QWheelEvent event(position, widget.mapToGlobal(position.toPoint()), {}, QPoint(0, -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
}

} // namespace

class tst_WheelEventsBlocker : public Tests::WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void isOwnedByTheWatchedWidget()
    {
        auto* box = new QComboBox;
        const QPointer<QObject> blocker = new PX::UI::WheelEventsBlocker(box);
        QCOMPARE(blocker->parent(), box);
        delete box;
        QVERIFY(blocker.isNull());
    }

    void keepsTheWheelFromAComboBox()
    {
        QComboBox box;
        box.addItems({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
        Wheel(box);
        QCOMPARE(box.currentIndex(), 1);

        new PX::UI::WheelEventsBlocker(&box);
        Wheel(box);
        QCOMPARE(box.currentIndex(), 1);
        QTest::keyClick(&box, Qt::Key_Down);
        QCOMPARE(box.currentIndex(), 2);
    }

    void keepsTheWheelFromAList()
    {
        QScrollArea area;
        auto* content = new QWidget;
        content->resize(100, 1000);
        area.setWidget(content);
        area.resize(100, 100);
        area.show();
        Wheel(*area.viewport());
        const int scrolled = area.verticalScrollBar()->value();
        QVERIFY(scrolled > 0);

        new PX::UI::WheelEventsBlocker(area.viewport());
        Wheel(*area.viewport());
        Wheel(*content);
        QCOMPARE(area.verticalScrollBar()->value(), scrolled);
    }
};

SCHEDULER_TEST_MAIN(tst_WheelEventsBlocker)
#include "tst_WheelEventsBlocker.moc"
