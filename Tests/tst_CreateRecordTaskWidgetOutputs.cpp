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

    void followsTheOutputs()
    {
        const TaskForm form;
        form.window->show();
        QVERIFY(QTest::qWaitForWindowExposed(form.window.get()));
        const auto shows = [&](const QStringList& names) {
            return QTest::qWaitFor([&] {
                return Sorted(ScreensOfTheApplication()) == names
                    && form.ScreenNames() == ScreensOfTheApplication()
                    && form.Screens()->isVisible() == (names.size() > 1);
            });
        };
        const QStringList second{"--output", "DUMMY1",     "--mode",
                                 "1024x768", "--right-of", "DUMMY0"};
        const QStringList third{"--output", "DUMMY2", "--mode", "1024x768", "--right-of", "DUMMY1"};
        QVERIFY(shows({"DUMMY0"}));
        for (int cycle = 0; cycle < 10; ++cycle) {
            QVERIFY(XRandR(second));
            QVERIFY(shows({"DUMMY0", "DUMMY1"}));
            form.Screens()->setCurrentIndex(1);
            QVERIFY(XRandR({"--output", "DUMMY1", "--off"}));
            QVERIFY(shows({"DUMMY0"}));
        }
        QVERIFY(XRandR(second));
        QVERIFY(XRandR(third));
        QVERIFY(shows({"DUMMY0", "DUMMY1", "DUMMY2"}));
        for (const char* primary : {"DUMMY1", "DUMMY2", "DUMMY0"}) {
            QVERIFY(XRandR({"--output", primary, "--primary"}));
            QTRY_COMPARE(form.ScreenNames().first(), QString(primary));
            QVERIFY(shows({"DUMMY0", "DUMMY1", "DUMMY2"}));
            form.widget->ResetForm("Task 01");
            QCOMPARE(form.Screens()->currentText(), QString(primary));
        }
        QVERIFY(XRandR({"--output", "DUMMY0", "--off"}));
        QVERIFY(shows({"DUMMY1", "DUMMY2"}));
        QVERIFY(XRandR({"--output", "DUMMY1", "--mode", "800x600"}));
        QVERIFY(shows({"DUMMY1", "DUMMY2"}));
        QVERIFY(XRandR({"--output", "DUMMY1", "--off"}));
        QVERIFY(shows({"DUMMY2"}));

        // The last screen stays, under the name of the display.
        QVERIFY(XRandR({"--output", "DUMMY2", "--off"}));
        QTRY_COMPARE(ScreensOfTheApplication(),
                     QStringList(qEnvironmentVariable("DISPLAY") + ".0"));
        QTRY_COMPARE(form.ScreenNames(), ScreensOfTheApplication());
        QVERIFY(!form.Screens()->isVisible());
        QVERIFY(XRandR({"--output", "DUMMY0", "--mode", "1024x768"}));
        QVERIFY(shows({"DUMMY0"}));
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_CreateRecordTaskWidgetOutputs)

#include "tst_CreateRecordTaskWidgetOutputs.moc"
