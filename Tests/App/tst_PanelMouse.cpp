// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QDateTimeEdit>
#include <QMouseEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QWheelEvent>

#include "AppWindow.h"
#include "PanelParts.h"
#include "Resources.h"
#include "Theme.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

class tst_PanelMouse : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Desktop::RegisterResources();
        Desktop::ApplyTheme(Desktop::Theme::Light);
    }

    void leavesTheDateAloneOnItsFrame_data()
    {
        QTest::addColumn<QPoint>("point");
        QTest::newRow("left border") << QPoint(0, 15);
        QTest::newRow("left padding") << QPoint(5, 15);
        QTest::newRow("upper border") << QPoint(60, 0);
    }

    void leavesTheDateAloneOnItsFrame()
    {
        QFETCH(QPoint, point);
        const AppWindow app(1);
        QVERIFY(app.Show());
        app.Button(Desktop::PanelPart::AddButton)->click();
        auto* date = app.Find<QDateTimeEdit>(Desktop::PanelPart::DateField);
        const QDate before = date->date();
        QTest::mouseClick(date, Qt::LeftButton, Qt::NoModifier, point);
        QTest::mouseDClick(date, Qt::LeftButton, Qt::NoModifier, point);
        QCOMPARE(date->date(), before);
        QVERIFY(date->hasFocus());
    }

    void opensTheCalendarByItsArrow()
    {
        const AppWindow app(1);
        QVERIFY(app.Show());
        app.Button(Desktop::PanelPart::AddButton)->click();
        auto* date = app.Find<QDateTimeEdit>(Desktop::PanelPart::DateField);
        AllowWarning(QStringLiteral("grabbing"));
        QTest::mouseClick(date, Qt::LeftButton, Qt::NoModifier,
                          {date->width() - 12, date->height() / 2});
        QVERIFY(QApplication::activePopupWidget() != nullptr);
        QApplication::activePopupWidget()->close();
    }

    void takesADoubleClickOnCreateForOne()
    {
        const AppWindow app(1);
        QVERIFY(app.Show());
        app.Button(Desktop::PanelPart::AddButton)->click();
        app.Type("Other");
        QTest::mouseClick(app.Button(Desktop::PanelPart::CreateButton), Qt::LeftButton);
        auto* add = app.Button(Desktop::PanelPart::AddButton);
        QVERIFY(add->isVisible());
        const QPoint center = add->rect().center();
        for (const auto type : {QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, center, add->mapToGlobal(center), Qt::LeftButton,
                              type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                              Qt::NoModifier);
            QCoreApplication::sendEvent(add, &event);
        }
        QVERIFY(!app.IsFormOpen());
        QCOMPARE(app.store->Settings().schedule.size(), 2U);
        QTest::mouseClick(add, Qt::LeftButton);
        QVERIFY(app.IsFormOpen());
    }

    void scrollsTheListByTheWheel()
    {
        const AppWindow app(20);
        QVERIFY(app.Show());
        auto* list = app.Find<QScrollArea>(Desktop::PanelPart::List);
        QTRY_VERIFY_WITH_TIMEOUT(list->verticalScrollBar()->maximum() > 0, Patience);
        Wheel(list->viewport(), -120);
        QVERIFY(list->verticalScrollBar()->value() > 0);
        Wheel(list->viewport(), 120);
        QCOMPARE(list->verticalScrollBar()->value(), 0);
    }

    void scrollsThePageWhereTheListHasNothingToScroll()
    {
        const AppWindow app(1);
        QVERIFY(app.Show());
        app.window->resize(640, 320);
        const auto* page = app.SchedulePageArea();
        // Until the list has the height of its one row, it is the list that scrolls.
        const auto scrollPage = [&] {
            Wheel(app.Find<QScrollArea>(Desktop::PanelPart::List)->viewport(), -120);
            return page->verticalScrollBar()->value();
        };
        QTRY_VERIFY_WITH_TIMEOUT(scrollPage() > 0, Patience);
    }

private:
    /// Turns the wheel over \a widget by \a delta eighths of a degree.
    static void Wheel(QWidget* widget, int delta)
    {
        const QPoint center = widget->rect().center();
        QWheelEvent event(center, widget->mapToGlobal(center), {}, {0, delta}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(widget, &event);
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_PanelMouse)

#include "tst_PanelMouse.moc"
