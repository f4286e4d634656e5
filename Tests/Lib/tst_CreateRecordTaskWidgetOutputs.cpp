// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QGuiApplication>
#include <QProcess>
#include <QScreen>

#include "TaskForm.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

bool Run(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    return process.waitForFinished() && process.exitCode() == 0;
}

/// Calls xrandr, and once more to have the server look at its outputs anew.
bool XRandR(const QStringList& arguments)
{
    return Run("xrandr", arguments) && Run("xrandr", {"--query"});
}

QStringList Sorted(QStringList names)
{
    names.sort();
    return names;
}

QStringList ScreensOfTheApplication()
{
    QStringList names;
    const auto screens = QGuiApplication::screens();
    for (const QScreen* screen : screens) {
        names << screen->name();
    }
    return names;
}

bool SwitchOn(const QString& output, const QString& leftNeighbour)
{
    return XRandR({"--output", output, "--mode", "1024x768", "--right-of", leftNeighbour});
}

bool SwitchOff(const QString& output)
{
    return XRandR({"--output", output, "--off"});
}

/// Waits until the application has the screens \a names, in any order, and the form lists them.
bool Shows(const TaskForm& form, const QStringList& names)
{
    return QTest::qWaitFor([&] {
        return Sorted(ScreensOfTheApplication()) == names
            && form.ScreenNames() == ScreensOfTheApplication()
            && form.Screens()->isVisible() == (names.size() > 1);
    });
}

bool Expose(const TaskForm& form)
{
    form.window->show();
    return QTest::qWaitForWindowExposed(form.window.get());
}

} // namespace

/// The screen list of the form while outputs of a real X server are switched on and off. Runs on a
/// server that on_real_x_server.sh has started.
class tst_CreateRecordTaskWidgetOutputs : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (QGuiApplication::platformName() != QLatin1String("xcb")) {
            QSKIP("Runs on a real X server only");
        }
        for (const char* output : {"DUMMY1", "DUMMY2"}) {
            QVERIFY(XRandR({"--addmode", output, "1024x768"}));
        }
    }

    void followsOutputsThatComeAndGo()
    {
        const TaskForm form;
        QVERIFY(Expose(form));
        QVERIFY(Shows(form, {"DUMMY0"}));
        for (int cycle = 0; cycle < 10; ++cycle) {
            QVERIFY(SwitchOn("DUMMY1", "DUMMY0"));
            QVERIFY(Shows(form, {"DUMMY0", "DUMMY1"}));
            form.Screens()->setCurrentIndex(1);
            QVERIFY(SwitchOff("DUMMY1"));
            QVERIFY(Shows(form, {"DUMMY0"}));
        }
    }

    void followsThePrimaryOutput()
    {
        const TaskForm form;
        QVERIFY(Expose(form));
        QVERIFY(SwitchOn("DUMMY1", "DUMMY0"));
        QVERIFY(SwitchOn("DUMMY2", "DUMMY1"));
        QVERIFY(Shows(form, {"DUMMY0", "DUMMY1", "DUMMY2"}));
        for (const char* primary : {"DUMMY1", "DUMMY2", "DUMMY0"}) {
            QVERIFY(XRandR({"--output", primary, "--primary"}));
            QTRY_COMPARE_WITH_TIMEOUT(form.ScreenNames().first(), QString(primary), Patience);
            QVERIFY(Shows(form, {"DUMMY0", "DUMMY1", "DUMMY2"}));
            form.widget->ResetForm("Task 01");
            QCOMPARE(form.Screens()->currentText(), QString(primary));
        }
    }

    void survivesTheLastOutput()
    {
        const TaskForm form;
        QVERIFY(Expose(form));
        QVERIFY(SwitchOff("DUMMY0"));
        QVERIFY(Shows(form, {"DUMMY1", "DUMMY2"}));
        QVERIFY(XRandR({"--output", "DUMMY1", "--mode", "800x600"}));
        QVERIFY(Shows(form, {"DUMMY1", "DUMMY2"}));
        QVERIFY(SwitchOff("DUMMY1"));
        QVERIFY(Shows(form, {"DUMMY2"}));

        // The last screen stays, under the name of the display.
        QVERIFY(SwitchOff("DUMMY2"));
        QVERIFY(Shows(form, {qEnvironmentVariable("DISPLAY") + ".0"}));
        QVERIFY(XRandR({"--output", "DUMMY0", "--mode", "1024x768"}));
        QVERIFY(Shows(form, {"DUMMY0"}));
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_CreateRecordTaskWidgetOutputs)

#include "tst_CreateRecordTaskWidgetOutputs.moc"
