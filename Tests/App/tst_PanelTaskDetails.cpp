// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QTimeEdit>
#include <QTimer>
#include <QToolButton>

#include "AppWindow.h"
#include "FakeScreen.h"
#include "PanelParts.h"
#include "PanelTaskDetails.h"
#include "Resources.h"
#include "Theme.h"
#include "WidgetTest.h"

using namespace std::chrono_literals;

namespace Zentor::Tests {
namespace {

PX::RecordTime Task(const char* title, Time::IClock::time_point start,
                    std::chrono::microseconds duration, int screenIndex = 0,
                    PX::PowerAction action = PX::DoNothing)
{
    auto task = Record(QString::fromUtf8(title), start, duration);
    task.screenIndex = screenIndex;
    task.finishAction = action;
    return task;
}

Time::IClock::time_point Now()
{
    return Time::SystemClock().Now();
}

QWidget* Row(const AppWindow& app, int index)
{
    return app.Find(Desktop::PanelPart::Rows)->layout()->itemAt(index)->widget();
}

bool IsMarkedOver(const QWidget& row)
{
    const auto labels = row.findChildren<QLabel*>();
    return std::all_of(labels.begin(), labels.end(), [](const QLabel* label) {
        return label->property("TaskState") == QLatin1String("Over");
    });
}

bool SaysOver(const QWidget& row)
{
    return row.toolTip().startsWith(QLatin1String("This task is over.\n"));
}

} // namespace
} // namespace Zentor::Tests

Q_DECLARE_METATYPE(Zentor::PX::RecordTime)

namespace Zentor::Tests {

class tst_PanelTaskDetails : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Desktop::RegisterResources();
        Desktop::ApplyTheme(Desktop::Theme::Light);
    }

    void tellsWhatTheRowDoesNot_data()
    {
        QTest::addColumn<PX::RecordTime>("task");
        QTest::addColumn<QString>("details");
        const QString name = QGuiApplication::primaryScreen()->name();
        QTest::newRow("screen") << Task("A", At("10:00"), 90min)
                                << "Ends at 11:30:00\nRecords: "
                + (name.isEmpty() ? QStringLiteral("Fullscreen") : name)
                + "\nAfterwards: Do nothing";
        QTest::newRow("area, action")
            << Task("A", At("10:00"), 5s, -1, PX::ShutDown)
            << "Ends at 10:00:05\nRecords: Selected area\nAfterwards: Shut down";
        QTest::newRow("last second of a day")
            << Task("A", At("23:00"), 1h - 1s, -1)
            << "Ends at 23:59:59\nRecords: Selected area\nAfterwards: Do nothing";
        QTest::newRow("midnight")
            << Task("A", At("23:00"), 1h, -1)
            << "Ends on the next day at 00:00:00\nRecords: Selected area\nAfterwards: Do nothing";
        QTest::newRow("past midnight, screen that is gone")
            << Task("A", At("23:00"), 2h, 2, PX::Sleep)
            << "Ends on the next day at 01:00:00\nRecords screen 3, which is not connected\n"
               "Afterwards: Sleep";
    }

    void tellsWhatTheRowDoesNot()
    {
        QFETCH(PX::RecordTime, task);
        QFETCH(QString, details);
        const AppWindow app({task});
        const QWidget* row = Row(app, 0);
        QCOMPARE(row->toolTip(), details);
        QCOMPARE(row->accessibleDescription(), details);
        // What the keyboard, and with it a screen reader, reaches.
        QCOMPARE(Desktop::DeleteButtonOf(row)->accessibleDescription(), details);
        QVERIFY(!IsMarkedOver(*row));
    }

    void tellsOfANewTaskAtItsPlace()
    {
        const AppWindow app({Task("Late", At("10:00"), 1h, -1, PX::Restart)});
        QVERIFY(app.Show());
        app.Button(Desktop::PanelPart::AddButton)->click();
        app.Type("Early");
        app.Find<QTimeEdit>(Desktop::PanelPart::DurationField)->setTime(QTime(0, 30));
        app.Find<QComboBox>(Desktop::PanelPart::ActionBox)->setCurrentIndex(PX::Hibernate);
        app.Button(Desktop::PanelPart::CreateButton)->click();
        QTRY_VERIFY_WITH_TIMEOUT(
            Row(app, 0)->toolTip().endsWith(QLatin1String("Afterwards: Hibernate")), Patience);
        QVERIFY(Row(app, 1)->toolTip().endsWith(QLatin1String("Afterwards: Restart")));
    }

    void followsTheScreens()
    {
        const AppWindow app({Task("A", At("10:00"), 1h, 1)});
        QVERIFY(Row(app, 0)->toolTip().contains(QLatin1String("not connected")));
        FakeScreen* screen = Plug(QStringLiteral("HDMI-A-1"));
        QTRY_VERIFY_WITH_TIMEOUT(
            Row(app, 0)->toolTip().contains(QLatin1String("Records: HDMI-A-1\n")), Patience);
        Unplug(screen);
        QTRY_VERIFY_WITH_TIMEOUT(
            Row(app, 0)->accessibleDescription().contains(QLatin1String("not connected")),
            Patience);
    }

    void marksWhatIsOver()
    {
        const AppWindow app({Task("Over", Now() - 2h, 1h), Task("Just over", Now() - 30min, 28min),
                             Task("Running", Now() - 1min, 1h), Task("To come", Now() + 2h, 1h)});
        QVERIFY(app.Show());
        for (int index = 0; index < 4; ++index) {
            QCOMPARE(IsMarkedOver(*Row(app, index)), index < 2);
            QCOMPARE(SaysOver(*Row(app, index)), index < 2);
        }
        const auto* over = Row(app, 0)->findChild<QLabel*>(Desktop::PanelPart::RowTitle);
        const auto* toCome = Row(app, 3)->findChild<QLabel*>(Desktop::PanelPart::RowTitle);
        QVERIFY(over->font().italic() && !toCome->font().italic());
        QVERIFY(over->palette().color(QPalette::WindowText)
                != toCome->palette().color(QPalette::WindowText));
    }

    void marksATaskWhenItEnds()
    {
        const AppWindow app(
            {Task("Ends soon", Now() - 1min, 1min + 1s), Task("To come", Now() + 2h, 1h)});
        QVERIFY(app.Show());
        QVERIFY(!IsMarkedOver(*Row(app, 0)));
        QTRY_VERIFY_WITH_TIMEOUT(IsMarkedOver(*Row(app, 0)), Patience);
        QVERIFY(SaysOver(*Row(app, 0)));
        QVERIFY(Row(app, 0)->findChild<QLabel*>(Desktop::PanelPart::RowTitle)->font().italic());
        QVERIFY(!IsMarkedOver(*Row(app, 1)));
    }

    void restsWhileTheListIsNotOnScreen()
    {
        const AppWindow app(
            {Task("Ends soon", Now() - 1min, 1min + 1s), Task("To come", Now() + 2h, 1h)});
        const auto* timer =
            app.window->findChild<Desktop::PanelTaskDetails*>()->findChild<QTimer*>();
        QVERIFY(!timer->isActive());
        QVERIFY(app.Show());
        QVERIFY(timer->isActive());
        app.window->hide();
        QVERIFY(!timer->isActive());
        QTRY_VERIFY_WITH_TIMEOUT(app.store->Settings().schedule.front().start + 1min + 1s < Now(),
                                 60000);
        QVERIFY(!IsMarkedOver(*Row(app, 0)));
        app.window->show();
        QVERIFY(IsMarkedOver(*Row(app, 0)));
        QVERIFY(timer->isActive());
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_PanelTaskDetails)

#include "tst_PanelTaskDetails.moc"
