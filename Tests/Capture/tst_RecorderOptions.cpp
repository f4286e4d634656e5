// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QJsonArray>
#include <QJsonDocument>

#include "RecorderTestSupport.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

class tst_RecorderOptions : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void refusesWrongUsage_data()
    {
        QTest::addColumn<QStringList>("arguments");
        const QString file = QStringLiteral("--file=new.mkv");
        QTest::newRow("nothing") << QStringList();
        QTest::newRow("unknown option") << QStringList{file, "--bogus"};
        QTest::newRow("argument") << QStringList{file, "more"};
        QTest::newRow("unknown ending") << QStringList{"--file=new.avi"};
        QTest::newRow("no ending") << QStringList{"--file=mkv"};
        QTest::newRow("empty file") << QStringList{"--file="};
        QTest::newRow("screen and area") << QStringList{file, "--screen=0", "--area=0,0,64,64"};
        QTest::newRow("screen") << QStringList{file, "--screen=one"};
        QTest::newRow("negative screen") << QStringList{file, "--screen=-1"};
        QTest::newRow("area of three") << QStringList{file, "--area=0,0,64"};
        QTest::newRow("area of words") << QStringList{file, "--area=a,b,c,d"};
        QTest::newRow("no duration") << QStringList{file, "--duration=0"};
        QTest::newRow("negative duration") << QStringList{file, "--duration=-2"};
        QTest::newRow("endless duration") << QStringList{file, "--duration=inf"};
        QTest::newRow("no rate") << QStringList{file, "--fps=0"};
        QTest::newRow("large rate") << QStringList{file, "--fps=241"};
        QTest::newRow("encoder") << QStringList{file, "--encoder=magic"};
        QTest::newRow("empty encoder") << QStringList{file, "--encoder="};
        QTest::newRow("quality") << QStringList{file, "--quality=best"};
        QTest::newRow("reserve") << QStringList{file, "--reserve=-1"};
        QTest::newRow("picture without a name") << QStringList{"--picture=new.mkv"};
        QTest::newRow("picture of another kind") << QStringList{"--picture=new.mkv", "new.jpg"};
        QTest::newRow("two pictures") << QStringList{"--picture=new.mkv", "a.png", "b.png"};
        QTest::newRow("source") << QStringList{file, "--source=film"};
    }

    void refusesWrongUsage()
    {
        QFETCH(QStringList, arguments);
        const Surroundings surroundings;
        const auto outcome = Record(surroundings, arguments);
        QCOMPARE(outcome.exitCode, 2);
        QCOMPARE(outcome.errorLines.size(), 1);
        QVERIFY(!QFile::exists("new.mkv"));
    }

    void refusesAScreenBeyondTheLast()
    {
        Surroundings surroundings;
        QVERIFY(StartDisplay(surroundings) != nullptr);
        const QString file = surroundings.Path("new.mkv");
        const auto outcome =
            Record(surroundings, {"--file", file, "--screen", "1", "--duration", "1"});
        QCOMPARE(outcome.exitCode, 2);
        QCOMPARE(outcome.errorLines.size(), 1);
        QVERIFY(!QFile::exists(file));
    }

    void saysWhatIsThere()
    {
        Surroundings surroundings;
        QVERIFY(StartDisplay(surroundings) != nullptr);
        const auto found =
            QJsonDocument::fromJson(surroundings.Run(PX_RECORDER, {"--probe"})).object();
        QCOMPARE(found.value("encoders").toObject().value("x264enc").toString(),
                 QStringLiteral("works"));
        const auto screens = found.value("screens").toArray();
        QCOMPARE(screens.size(), 1);
        const auto screen = screens.first().toObject();
        QCOMPARE(screen.value("name").toString(), QStringLiteral("screen"));
        QCOMPARE(screen.value("x").toInt(-1), 0);
        QCOMPARE(screen.value("y").toInt(-1), 0);
        QCOMPARE(screen.value("width").toInt(), 1280);
        QCOMPARE(screen.value("height").toInt(), 720);
        QCOMPARE(found.value("soundDevices").toArray().size(), 0);
    }

    void probesWithoutADisplay()
    {
        const Surroundings surroundings;
        const auto found =
            QJsonDocument::fromJson(surroundings.Run(PX_RECORDER, {"--probe"})).object();
        QVERIFY(found.value("screens").isArray());
        QVERIFY(found.value("screens").toArray().isEmpty());
    }

    void helps()
    {
        const Surroundings surroundings;
        const QByteArray help = surroundings.Run(PX_RECORDER, {"--help"});
        for (const char* option : {"--lines", "--levels", "--probe", "--repair", "--picture",
                                   "--file", "--no-pointer"}) {
            QVERIFY2(help.contains(option), option);
        }
        QVERIFY(surroundings.Run(PX_RECORDER, {"--version"}).startsWith("px-recorder "));
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_RecorderOptions)
#include "tst_RecorderOptions.moc"
