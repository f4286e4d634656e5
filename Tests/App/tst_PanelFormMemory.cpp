// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QComboBox>
#include <QDateTimeEdit>
#include <QLineEdit>
#include <QRadioButton>

#include "AppWindow.h"
#include "Boxes.h"
#include "PXUserSettings/SettingsFormat.h"
#include "Resources.h"
#include "Theme.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

namespace PanelPart = Desktop::PanelPart;

const QTime Duration(1, 30);

QDateTime InTwoDays()
{
    return QDateTime(QDate::currentDate().addDays(2), QTime(9, 15));
}

} // namespace

class tst_PanelFormMemory : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Desktop::RegisterResources();
        Desktop::ApplyTheme(Desktop::Theme::Light);
    }

    void opensTheFormAsItWas_data()
    {
        QTest::addColumn<int>("taskCount");
        QTest::addColumn<bool>("isFullScreen");
        QTest::newRow("first task") << 0 << true;
        QTest::newRow("one more task") << 2 << true;
        QTest::newRow("selected area") << 0 << false;
    }

    void opensTheFormAsItWas()
    {
        QFETCH(int, taskCount);
        QFETCH(bool, isFullScreen);
        AppWindow app(taskCount);
        FillForm(app, isFullScreen);
        QVERIFY(app.window->SaveUnattended());
        app.Reopen();
        QVERIFY(app.Show());
        QTRY_VERIFY_WITH_TIMEOUT(app.IsFormOpen(), Patience);
        QCOMPARE(app.Find<QLineEdit>(PanelPart::NameField)->text(), QStringLiteral("Lecture "));
        QCOMPARE(app.Find<QDateTimeEdit>(PanelPart::DateField)->date(), InTwoDays().date());
        QCOMPARE(app.Find<QDateTimeEdit>(PanelPart::StartField)->dateTime(), InTwoDays());
        QCOMPARE(app.Find<QDateTimeEdit>(PanelPart::DurationField)->time(), Duration);
        QCOMPARE(app.Button(PanelPart::FullScreenButton)->isChecked(), isFullScreen);
        QCOMPARE(app.Button(PanelPart::SelectedAreaButton)->isChecked(), !isFullScreen);
        QCOMPARE(app.Find<QComboBox>(PanelPart::ActionBox)->currentIndex(), int(PX::Hibernate));
        QCOMPARE(app.Focused(), PanelPart::NameField);
    }

    /// Not on the same time of today.
    void movesAStartThatHasPassed()
    {
        AppWindow app;
        Desktop::UnfinishedTask task;
        task.start = QDateTime::currentDateTime().addSecs(-60 * 60 * 23);
        Desktop::RememberUnfinishedTask(*app.store, task);
        app.Reopen();
        QVERIFY(app.Show());
        QTRY_VERIFY_WITH_TIMEOUT(app.IsFormOpen(), Patience);
        const auto* start = app.Find<QDateTimeEdit>(PanelPart::StartField);
        QTRY_VERIFY_WITH_TIMEOUT(start->dateTime() > QDateTime::currentDateTime(), Patience);
        constexpr int atMostSeconds = 10;
        QVERIFY(start->dateTime() <= QDateTime::currentDateTime().addSecs(atMostSeconds));
    }

    void forgetsAFormThatIsClosed_data()
    {
        QTest::addColumn<QString>("button");
        QTest::newRow("created") << PanelPart::CreateButton;
        QTest::newRow("given up") << PanelPart::BackButton;
        QTest::newRow("mode left") << PanelPart::OffModeButton;
        QTest::newRow("other mode") << PanelPart::LimitedModeButton;
    }

    void forgetsAFormThatIsClosed()
    {
        QFETCH(QString, button);
        AppWindow app;
        FillForm(app, true);
        QVERIFY(app.window->SaveUnattended());
        app.Reopen();
        QVERIFY(app.Show());
        QTRY_VERIFY_WITH_TIMEOUT(app.IsFormOpen(), Patience);
        QVERIFY(Desktop::UnfinishedTaskIn(*app.store));
        const ExpectedBox box(QMessageBox::No);
        app.Button(button)->click();
        QCOMPARE(box.Came(), button == PanelPart::BackButton);
        QVERIFY(!app.IsFormOpen());
        QVERIFY(!Desktop::UnfinishedTaskIn(*app.store));
    }

    void remembersNothingWithoutAForm()
    {
        AppWindow app(1);
        FillForm(app, true);
        QVERIFY(app.window->SaveUnattended());
        const ExpectedBox box(QMessageBox::No);
        app.Button(PanelPart::BackButton)->click();
        QVERIFY(box.Came());
        QVERIFY(app.window->SaveUnattended());
        QVERIFY(!Desktop::UnfinishedTaskIn(*app.store));
        app.Reopen();
        QVERIFY(app.Show());
        QCoreApplication::processEvents();
        QVERIFY(!app.IsFormOpen());
    }

    /// An end before the window is shown, or while it is hidden, is no reason to forget.
    void keepsWhatWasNotShownYet()
    {
        AppWindow app;
        FillForm(app, true);
        app.window->hide();
        QVERIFY(app.window->SaveUnattended());
        app.Reopen();
        QVERIFY(app.window->SaveUnattended());
        const auto task = Desktop::UnfinishedTaskIn(*app.store);
        QVERIFY(task.has_value());
        QCOMPARE(task->start, InTwoDays());
    }

    void dropsWhatCannotBeRead_data()
    {
        QTest::addColumn<QByteArray>("section");
        QTest::addColumn<QString>("problem");
        const auto row = [](const char* section, const char* problem) {
            QTest::newRow(section) << QByteArray(section) << QString::fromLatin1(problem);
        };
        row("5", "unfinishedTask: not an object");
        row("{\"isOpen\": 1}", "unfinishedTask.isOpen: unusable value");
        row("{\"isOpen\": true, \"title\": \"a\"}", "unfinishedTask.start: missing");
        row("{\"isOpen\": true, \"start\": \"soon\"}", "unfinishedTask.start: unusable value");
        row("{\"isOpen\": true, \"start\": 1, \"title\": 2}",
            "unfinishedTask.title: unusable value");
        row("{\"isOpen\": true, \"start\": 1, \"duration\": 4999999}",
            "unfinishedTask.duration: unusable value");
        row("{\"isOpen\": true, \"start\": 1, \"duration\": 86400000000}",
            "unfinishedTask.duration: unusable value");
        row("{\"isOpen\": true, \"start\": 1, \"screenIndex\": -2}",
            "unfinishedTask.screenIndex: unusable value");
        row("{\"isOpen\": true, \"start\": 1, \"finishAction\": 6}",
            "unfinishedTask.finishAction: unusable value");
        row("{\"isOpen\": true, \"start\": 1, \"finishAction\": -1}",
            "unfinishedTask.finishAction: unusable value");
    }

    void dropsWhatCannotBeRead()
    {
        QFETCH(QByteArray, section);
        QFETCH(QString, problem);
        const std::vector<PX::SettingsSection> sections{Desktop::UnfinishedTaskSection()};
        const auto document =
            PX::ParseSettings("{\"version\": 1, \"unfinishedTask\": " + section + '}', sections);
        QVERIFY(document.isUnderstood);
        QCOMPARE(document.problems, QStringList(problem));
        const auto again =
            PX::ParseSettings(PX::FormatSettings(document.settings, document.fields), sections);
        QCOMPARE(again.problems, QStringList());
    }

private:
    static void FillForm(const AppWindow& app, bool isFullScreen)
    {
        QVERIFY(app.Show());
        app.Button(PanelPart::ScheduledModeButton)->click();
        app.Button(PanelPart::AddButton)->click();
        app.Find<QLineEdit>(PanelPart::NameField)->setText(QStringLiteral("Lecture "));
        app.Find<QDateTimeEdit>(PanelPart::DateField)->setDate(InTwoDays().date());
        app.Find<QDateTimeEdit>(PanelPart::StartField)->setTime(InTwoDays().time());
        app.Find<QDateTimeEdit>(PanelPart::DurationField)->setTime(Duration);
        app.Button(isFullScreen ? PanelPart::FullScreenButton : PanelPart::SelectedAreaButton)
            ->click();
        app.Find<QComboBox>(PanelPart::ActionBox)->setCurrentIndex(PX::Hibernate);
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_PanelFormMemory)

#include "tst_PanelFormMemory.moc"
