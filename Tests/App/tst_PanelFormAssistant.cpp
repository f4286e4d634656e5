// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QClipboard>
#include <QLineEdit>
#include <QTimeEdit>

#include "AppWindow.h"
#include "FreeStart.h"
#include "Languages.h"
#include "PanelParts.h"
#include "Resources.h"
#include "Theme.h"
#include "WidgetTest.h"

using namespace std::chrono_literals;

namespace Zentor::Tests {

class tst_PanelFormAssistant : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Desktop::RegisterResources();
        Desktop::ApplyTheme(Desktop::Theme::Light);
    }

    void findsTheFirstFreeStart_data()
    {
        QTest::addColumn<QString>("start");
        QTest::addColumn<int>("minutes");
        QTest::addColumn<QString>("expected");
        QTest::newRow("before all") << "09:00" << 60 << "09:00";
        QTest::newRow("just before") << "09:30" << 30 << "09:30";
        QTest::newRow("reaches into the first") << "09:31" << 30 << "10:30";
        QTest::newRow("within the first") << "10:15" << 15 << "10:30";
        QTest::newRow("at its end") << "10:30" << 15 << "10:30";
        QTest::newRow("gap too small") << "10:15" << 45 << "12:00";
        QTest::newRow("within the last") << "11:30" << 5 << "12:00";
        QTest::newRow("after all") << "12:00" << 60 << "12:00";
    }

    void findsTheFirstFreeStart()
    {
        QFETCH(QString, start);
        QFETCH(int, minutes);
        QFETCH(QString, expected);
        const std::vector<PX::RecordTime> schedule{Record("A", "10:00", 30min),
                                                   Record("B", "11:00", 60min)};
        QVERIFY(
            Desktop::FirstFreeStart(schedule, At(qPrintable(start)), std::chrono::minutes(minutes))
            == At(qPrintable(expected)));
    }

    void opensWithAFreeStart_data()
    {
        QTest::addColumn<QTime>("duration");
        QTest::newRow("soon") << QTime(1, 0);
        QTest::newRow("on the next day, earlier by the clock") << QTime(23, 0);
    }

    void opensWithAFreeStart()
    {
        QFETCH(QTime, duration);
        const AppWindow app;
        QVERIFY(app.Show());
        app.Button(Desktop::PanelPart::ScheduledModeButton)->click();
        AddTask(app, "First", duration);
        QCOMPARE(app.store->Settings().schedule.size(), std::size_t(1));
        const auto taken = app.store->Settings().schedule.front();
        app.Button(Desktop::PanelPart::AddButton)->click();
        app.Find<QTimeEdit>(Desktop::PanelPart::DurationField)->setTime(QTime(0, 30));
        QVERIFY(app.Button(Desktop::PanelPart::CreateButton)->isEnabled());
        QCOMPARE(app.Find(Desktop::PanelPart::StartField)->toolTip(), QString());
        const auto start = app.Find<QTimeEdit>(Desktop::PanelPart::StartField)->dateTime();
        const auto end = (taken.start + taken.duration).time_since_epoch();
        QCOMPARE(start.toMSecsSinceEpoch() / 1000,
                 qint64(std::chrono::duration_cast<std::chrono::seconds>(end).count()));
    }

    void leavesAFreeStartAlone()
    {
        // The tasks are years away.
        const AppWindow app(2);
        QVERIFY(app.Show());
        const auto* start = app.Find<QTimeEdit>(Desktop::PanelPart::StartField);
        const QDateTime before = start->dateTime();
        app.Button(Desktop::PanelPart::AddButton)->click();
        QVERIFY(qAbs(start->dateTime().secsTo(before)) < 60);
    }

    void clickSelectsTheSection()
    {
        const AppWindow app(1);
        QVERIFY(app.Show());
        app.Button(Desktop::PanelPart::AddButton)->click();
        auto* duration = app.Find<QTimeEdit>(Desktop::PanelPart::DurationField);
        auto* text = duration->findChild<QLineEdit*>();
        duration->setTime(QTime(1, 30, 0));
        // Into the hours.
        QTest::mouseClick(text, Qt::LeftButton, Qt::NoModifier, {8, text->height() / 2});
        QCOMPARE(text->selectedText(), QStringLiteral("01"));
        app.Type("023000");
        QCOMPARE(duration->time(), QTime(2, 30, 0));
    }

    void typingReplacesASelectedWhole()
    {
        const AppWindow app(1);
        QVERIFY(app.Show());
        app.Button(Desktop::PanelPart::AddButton)->click();
        auto* duration = app.Find<QTimeEdit>(Desktop::PanelPart::DurationField);
        duration->setFocus();
        duration->selectAll();
        app.Type("023000");
        QCOMPARE(duration->time(), QTime(2, 30, 0));
    }

    void pastesAWholeReading_data()
    {
        QTest::addColumn<QString>("clipboard");
        QTest::addColumn<QTime>("expected");
        QTest::newRow("as shown") << "02:30:15" << QTime(2, 30, 15);
        QTest::newRow("without seconds") << " 02:30\n" << QTime(2, 30);
        QTest::newRow("digits") << "023015" << QTime(2, 30, 15);
        QTest::newRow("nonsense") << "soon" << QTime(1, 0);
        QTest::newRow("no time of day") << "25:00:00" << QTime(1, 0);
        QTest::newRow("below the least") << "00:00:01" << QTime(0, 0, 5);
    }

    void pastesAWholeReading()
    {
        QFETCH(QString, clipboard);
        QFETCH(QTime, expected);
        const AppWindow app(1);
        QVERIFY(app.Show());
        app.Button(Desktop::PanelPart::AddButton)->click();
        auto* duration = app.Find<QTimeEdit>(Desktop::PanelPart::DurationField);
        duration->setTime(QTime(1, 0));
        duration->setFocus();
        QGuiApplication::clipboard()->setText(clipboard);
        app.Press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(duration->time(), expected);
    }

    void pastesADate()
    {
        const AppWindow app(1);
        QVERIFY(app.Show());
        app.Button(Desktop::PanelPart::AddButton)->click();
        auto* date = app.Find<QDateTimeEdit>(Desktop::PanelPart::DateField);
        date->setFocus();
        QGuiApplication::clipboard()->setText(QStringLiteral("2031-12-24"));
        app.Press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(date->date(), QDate(2031, 12, 24));
    }

    void endsWhereStartsCanBeStored()
    {
        const AppWindow app;
        QVERIFY(app.Show());
        app.Button(Desktop::PanelPart::ScheduledModeButton)->click();
        app.Button(Desktop::PanelPart::AddButton)->click();
        auto* date = app.Find<QDateTimeEdit>(Desktop::PanelPart::DateField);
        auto* start = app.Find<QTimeEdit>(Desktop::PanelPart::StartField);
        const QDate last(2106, 2, 7);
        QCOMPARE(date->maximumDate(), last);
        date->setDate(QDate(2200, 1, 1));
        QCOMPARE(date->date(), last);
        // A language brings another format.
        Desktop::Translations translations;
        for (const auto* language : {"de", "ja", "en"}) {
            translations.Use(QLatin1String(language));
            QCoreApplication::sendPostedEvents();
            QCOMPARE(date->maximumDate(), last);
        }
        QLocale::setDefault(QLocale::c());
        const QDateTime lastStart(last, QTime(6, 28, 15));
        date->setDate(last.addDays(-1));
        start->setTime(QTime(23, 0));
        QCOMPARE(start->dateTime(), QDateTime(last.addDays(-1), QTime(23, 0)));
        date->setDate(last);
        QCOMPARE(start->dateTime(), lastStart);
        start->setTime(QTime(6, 28, 14));
        QCOMPARE(start->dateTime(), lastStart.addSecs(-1));
        start->setTime(QTime(6, 28, 16));
        QCOMPARE(start->dateTime(), lastStart);
        app.Button(Desktop::PanelPart::CreateButton)->click();
        QCOMPARE(app.store->Settings().schedule.size(), std::size_t(1));
        QVERIFY(app.store->Settings().schedule.front().start == At(lastStart));
    }

private:
    static void AddTask(const AppWindow& app, const char* name, const QTime& duration)
    {
        app.Button(Desktop::PanelPart::AddButton)->click();
        app.Type(name);
        app.Find<QTimeEdit>(Desktop::PanelPart::DurationField)->setTime(duration);
        app.Button(Desktop::PanelPart::CreateButton)->click();
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_PanelFormAssistant)

#include "tst_PanelFormAssistant.moc"
