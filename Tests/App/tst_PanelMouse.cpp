#include <QDateTimeEdit>
#include <QMouseEvent>

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
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_PanelMouse)

#include "tst_PanelMouse.moc"
