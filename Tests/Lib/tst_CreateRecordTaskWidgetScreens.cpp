// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <private/qguiapplication_p.h>
#include <QGuiApplication>
#include <QScreen>

#include "FakeScreen.h"
#include "TaskForm.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

QStringList ScreensOfTheApplication()
{
    QStringList names;
    const auto screens = QGuiApplication::screens();
    for (const QScreen* screen : screens) {
        names << screen->name();
    }
    return names;
}

/// For the time of its life the application has no screen at all.
class NoScreens {
public:
    NoScreens()
    {
        m_screens.swap(QGuiApplicationPrivate::screen_list);
        Q_EMIT qGuiApp->screenRemoved(m_screens.first());
    }
    ~NoScreens()
    {
        m_screens.swap(QGuiApplicationPrivate::screen_list);
        Q_EMIT qGuiApp->screenAdded(QGuiApplication::primaryScreen());
    }
    NoScreens(const NoScreens&) = delete;
    NoScreens& operator=(const NoScreens&) = delete;

private:
    QList<QScreen*> m_screens;
};

} // namespace

class tst_CreateRecordTaskWidgetScreens : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void showsTheListForSeveralScreensOnly()
    {
        const TaskForm form;
        QVERIFY(form.Show());
        QCOMPARE(form.ScreenNames(), ScreensOfTheApplication());
        QVERIFY(!form.Screens()->isVisible());
        const QSignalSpy chosen(form.Screens(), qOverload<int>(&QComboBox::currentIndexChanged));

        FakeScreen* second = Plug("DP-1");
        QCOMPARE(form.ScreenNames(), ScreensOfTheApplication());
        QCOMPARE(form.ScreenNames().last(), QStringLiteral("DP-1"));
        QVERIFY(form.Screens()->isVisible());
        QCOMPARE(form.widget->GetScreenIndex(), 0);
        Unplug(second);
        QCOMPARE(form.ScreenNames(), ScreensOfTheApplication());
        QCOMPARE(form.Screens()->count(), 1);
        QVERIFY(!form.Screens()->isVisible());
        QCOMPARE(chosen.count(), 0);
        QVERIFY(!form.Screens()->signalsBlocked());
    }

    void listsTheScreensThereAreAtConstruction()
    {
        FakeScreen* second = Plug("DP-1");
        {
            const TaskForm form;
            QVERIFY(form.Show());
            QCOMPARE(form.ScreenNames(), ScreensOfTheApplication());
            QVERIFY(form.Screens()->isVisible());
        }
        Unplug(second);
    }

    void leavesOutThePrefixOfDeviceNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("shown");
        QTest::newRow("prefix") << R"(\\.\DISPLAY2)"
                                << "DISPLAY2";
        QTest::newRow("none") << "HDMI-1"
                              << "HDMI-1";
        QTest::newRow("every occurrence") << R"(\\.\A\\.\B)"
                                          << "AB";
        QTest::newRow("not the whole prefix") << R"(\.\DISPLAY2)"
                                              << R"(\.\DISPLAY2)";
        QTest::newRow("empty") << ""
                               << "";
    }

    void leavesOutThePrefixOfDeviceNames()
    {
        QFETCH(QString, name);
        FakeScreen* second = Plug(name);
        {
            const TaskForm form;
            QTEST(form.Screens()->itemText(1), "shown");
            QVERIFY(!form.Screens()->itemData(1).isValid());
            QVERIFY(form.Screens()->itemIcon(1).isNull());
        }
        Unplug(second);
    }

    void losesTheChoiceWhenTheListChanges()
    {
        const TaskForm form;
        FakeScreen* second = Plug("DP-1");
        form.Screens()->setCurrentIndex(1);
        FakeScreen* third = Plug("DP-2");
        QCOMPARE(form.widget->GetScreenIndex(), 0);
        form.Screens()->setCurrentIndex(2);
        Unplug(second);
        QCOMPARE(form.widget->GetScreenIndex(), 0);
        Unplug(third);
    }

    void keepsTheScreensDisabledForTheSelectedArea()
    {
        const TaskForm form;
        form.SelectedArea()->setChecked(true);
        FakeScreen* second = Plug("DP-1");
        QVERIFY(!form.Screens()->isEnabled());
        Unplug(second);
    }

    void choosesThePrimaryScreenForANewTask()
    {
        const TaskForm form;
        FakeScreen* second = Plug("DP-1");
        form.Screens()->setCurrentIndex(1);
        form.widget->ResetForm("Task 01");
        QCOMPARE(form.widget->GetScreenIndex(), 0);
        QCOMPARE(form.Screens()->currentText(), QGuiApplication::primaryScreen()->name());
        Unplug(second);
    }

    void followsThePrimaryScreen()
    {
        const TaskForm form;
        QScreen* const first = QGuiApplication::primaryScreen();
        FakeScreen* second = Plug("DP-1");
        QWindowSystemInterface::handlePrimaryScreenChanged(second);
        QCOMPARE(QGuiApplication::primaryScreen()->name(), QStringLiteral("DP-1"));
        QCOMPARE(form.ScreenNames(), ScreensOfTheApplication());
        form.widget->ResetForm("Task 01");
        QCOMPARE(form.Screens()->currentText(), QStringLiteral("DP-1"));
        Unplug(second);
        QCOMPARE(QGuiApplication::primaryScreen(), first);
        QCOMPARE(form.ScreenNames(), ScreensOfTheApplication());

        FakeScreen* third = Plug("DP-2", true);
        QCOMPARE(form.ScreenNames().first(), QStringLiteral("DP-2"));
        Unplug(third);
        QCOMPARE(form.ScreenNames(), ScreensOfTheApplication());
    }

    void followsANewName()
    {
        const TaskForm form;
        FakeScreen* second = Plug("DP-1");
        form.Screens()->setCurrentIndex(1);
        second->Rename(R"(\\.\DP-7)");
        form.Tick();
        QCOMPARE(form.Screens()->itemText(1), QStringLiteral("DP-7"));
        QCOMPARE(form.widget->GetScreenIndex(), 1);
        Unplug(second);
    }

    void keepsTheChoiceWhenAScreenIsResized()
    {
        const TaskForm form;
        FakeScreen* second = Plug("DP-1");
        form.Screens()->setCurrentIndex(1);
        QWindowSystemInterface::handleScreenGeometryChange(
            second->screen(), QRect(2000, 0, 640, 480), QRect(2000, 0, 640, 450));
        QCoreApplication::sendPostedEvents();
        QCOMPARE(form.ScreenNames(), ScreensOfTheApplication());
        QCOMPARE(form.widget->GetScreenIndex(), 1);
        Unplug(second);
    }

    void copesWithoutAnyScreen()
    {
        const TaskForm form;
        QVERIFY(form.Show());
        {
            const NoScreens noScreens;
            QCOMPARE(form.Screens()->count(), 0);
            QCOMPARE(form.widget->GetScreenIndex(), -1);
            form.widget->ResetForm("Task 01");
            QCOMPARE(form.widget->GetScreenIndex(), -1);
            form.Tick();
        }
        QCOMPARE(form.ScreenNames(), ScreensOfTheApplication());
        QCOMPARE(form.widget->GetScreenIndex(), 0);
    }

    void isRightThroughHundredsOfChanges()
    {
        const TaskForm form;
        QVERIFY(form.Show());
        QList<FakeScreen*> plugged;
        QRandomGenerator random(20261121);
        for (int change = 0; change < 600; ++change) {
            const bool adds = plugged.isEmpty() || (plugged.size() < 5 && random.bounded(2) == 0);
            if (adds) {
                plugged << Plug(QStringLiteral("DP-%1").arg(change), random.bounded(4) == 0);
            } else {
                Unplug(plugged.takeAt(random.bounded(plugged.size())));
            }
            QCOMPARE(form.ScreenNames(), ScreensOfTheApplication());
            QCOMPARE(form.Screens()->isVisible(), !plugged.isEmpty());
            QCOMPARE(form.widget->GetScreenIndex(), 0);
            form.Screens()->setCurrentIndex(random.bounded(form.Screens()->count()));
            QCoreApplication::sendPostedEvents();
        }
        for (FakeScreen* screen : plugged) {
            Unplug(screen);
        }
        QCOMPARE(form.ScreenNames(), ScreensOfTheApplication());
    }

    void isUntouchedByScreensAfterItsEnd()
    {
        TaskForm form;
        form.window.reset();
        const QStringList before = ScreensOfTheApplication();
        FakeScreen* second = Plug("DP-1");
        QCOMPARE(ScreensOfTheApplication(), before + QStringList("DP-1"));
        Unplug(second);
        QCOMPARE(ScreensOfTheApplication(), before);
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_CreateRecordTaskWidgetScreens)

#include "tst_CreateRecordTaskWidgetScreens.moc"
