// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QFileInfo>

#include "RecorderArguments.h"
#include "RecorderProgram.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

using Schedule::RecorderArguments;
using Schedule::RecordingSettings;

class tst_RecorderArguments : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void recordsTheScreenByDefault();
    void saysEverythingThatIsSet();
    void recordsTheFirstScreenWithoutAnArea();
    void findsTheProgramBesideThisOne();
};

void tst_RecorderArguments::recordsTheScreenByDefault()
{
    RecordingSettings settings;
    settings.screenIndex = 1;
    const QStringList expected{"--file",   "/a.mkv",    "--fps",      "30",         "--quality",
                               "normal",   "--reserve", "1000000000", "--duration", "5",
                               "--screen", "1",         "--mix"};
    QCOMPARE(RecorderArguments(settings, "/a.mkv", 5), expected);
}

void tst_RecorderArguments::saysEverythingThatIsSet()
{
    RecordingSettings settings;
    settings.framesPerSecond = 60;
    settings.quality = RecordingSettings::Quality::High;
    settings.showPointer = false;
    settings.soundDevices = QStringList{"mic", "--mix"};
    settings.mixSound = false;
    settings.source = RecordingSettings::Source::Area;
    settings.area = QRect(-1280, 0, 640, 480);
    settings.reserveBytes = 0;
    const QStringList expected{"--file",
                               "/a b.mp4",
                               "--fps",
                               "60",
                               "--quality",
                               "high",
                               "--reserve",
                               "0",
                               "--duration",
                               "60",
                               "--area=-1280,0,640,480",
                               "--sound=mic",
                               "--sound=--mix",
                               "--no-pointer"};
    QCOMPARE(RecorderArguments(settings, "/a b.mp4", 60), expected);
    settings.quality = RecordingSettings::Quality::Small;
    QVERIFY(RecorderArguments(settings, "/a.mkv", 60).contains("small"));
}

void tst_RecorderArguments::recordsTheFirstScreenWithoutAnArea()
{
    RecordingSettings settings;
    settings.source = RecordingSettings::Source::Area;
    settings.screenIndex = 3;
    const QStringList arguments = RecorderArguments(settings, "/a.mkv", 5);
    QCOMPARE(arguments.at(arguments.indexOf("--screen") + 1), QString("0"));
}

void tst_RecorderArguments::findsTheProgramBesideThisOne()
{
    const QFileInfo program(Schedule::RecorderProgram());
    QCOMPARE(program.fileName(), QString("px-recorder"));
    QCOMPARE(program.path(), QCoreApplication::applicationDirPath());
}

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_RecorderArguments)

#include "tst_RecorderArguments.moc"
