// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include "CommandLine.h"
#include "Languages.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

using Desktop::CommandLine;
using Desktop::Request;

CommandLine Parse(const QStringList& arguments)
{
    return Desktop::ParseCommandLine(QStringList{QStringLiteral("px-scheduler")} + arguments);
}

struct Ending {
    int exitCode = -1;
    QString output;
    QString error;
};

/// Runs the program to its end in an environment without any display.
Ending RunWithoutDisplay(const QStringList& arguments)
{
    auto environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"}) {
        environment.remove(QLatin1String(name));
    }
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(PX_PROGRAM), arguments);
    Ending ending;
    if (process.waitForFinished() && process.exitStatus() == QProcess::NormalExit) {
        ending.exitCode = process.exitCode();
    }
    ending.output = QString::fromUtf8(process.readAllStandardOutput());
    ending.error = QString::fromUtf8(process.readAllStandardError());
    return ending;
}

/// Runs the program to its end where it can show windows.
Ending RunOffscreen(const QStringList& arguments)
{
    QProcess process;
    process.start(QStringLiteral(PX_PROGRAM), arguments);
    Ending ending;
    if (process.waitForFinished() && process.exitStatus() == QProcess::NormalExit) {
        ending.exitCode = process.exitCode();
    }
    ending.error = QString::fromUtf8(process.readAllStandardError());
    return ending;
}

} // namespace
} // namespace Zentor::Tests

Q_DECLARE_METATYPE(Zentor::Desktop::Request)

namespace Zentor::Tests {

class tst_CommandLine : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void runsWithNothingSet()
    {
        const CommandLine line = Parse({});
        QCOMPARE(line.task, CommandLine::Task::Run);
        QCOMPARE(line.settingsFile, QString());
        QCOMPARE(line.language, QString());
        QCOMPARE(line.theme, QString());
        QCOMPARE(line.screenshotsFolder, QString());
        QCOMPARE(line.request, Request::Show);
        QVERIFY(!line.isHidden);
    }

    void takesARequest_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<Request>("request");
        QTest::addColumn<bool>("isHidden");
        QTest::newRow("hidden") << QStringList{"--hidden"} << Request::Nothing << true;
        QTest::newRow("start") << QStringList{"--start"} << Request::Start << false;
        QTest::newRow("stop") << QStringList{"--stop"} << Request::Stop << false;
        QTest::newRow("pause") << QStringList{"--pause"} << Request::Pause << false;
        QTest::newRow("quit") << QStringList{"--quit"} << Request::Quit << false;
        QTest::newRow("start hidden")
            << QStringList{"--start", "--hidden"} << Request::Start << true;
        QTest::newRow("hidden start")
            << QStringList{"--hidden", "--start"} << Request::Start << true;
        QTest::newRow("twice") << QStringList{"--quit", "--quit"} << Request::Quit << false;
    }

    void takesARequest()
    {
        QFETCH(QStringList, arguments);
        const CommandLine line = Parse(arguments);
        QCOMPARE(line.task, CommandLine::Task::Run);
        QTEST(line.request, "request");
        QTEST(line.isHidden, "isHidden");
    }

    void restartsAsItIs_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<bool>("isHidden");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("plain") << QStringList{} << false << QStringList{};
        QTest::newRow("now hidden") << QStringList{} << true << QStringList{"--hidden"};
        QTest::newRow("no longer hidden") << QStringList{"--hidden"} << false << QStringList{};
        QTest::newRow("a recording is not started anew")
            << QStringList{"--start"} << false << QStringList{};
        QTest::newRow("all") << QStringList{"--hidden",   "--start", "--settings",  "--start",
                                            "--language", "pt_BR",   "--theme=dark"}
                             << true
                             << QStringList{"--settings=--start", "--language=pt_BR",
                                            "--theme=dark", "--hidden"};
    }

    void restartsAsItIs()
    {
        QFETCH(QStringList, arguments);
        QFETCH(bool, isHidden);
        QFETCH(QStringList, expected);
        const QStringList program{QStringLiteral("/usr/bin/px-scheduler")};
        const QStringList restart = Desktop::ArgumentsToRestart(program + arguments, isHidden);
        QCOMPARE(restart, program + expected);
        const CommandLine line = Desktop::ParseCommandLine(restart);
        QCOMPARE(line.task, CommandLine::Task::Run);
        QCOMPARE(line.isHidden, isHidden);
        QVERIFY(line.request != Request::Start);
    }

    void takesEveryOption()
    {
        const CommandLine line =
            Parse({QStringLiteral("--settings"), QStringLiteral("a b.json"),
                   QStringLiteral("--language=pt_BR"), QStringLiteral("--theme"),
                   QStringLiteral("dark"), QStringLiteral("--screenshots=pictures")});
        QCOMPARE(line.task, CommandLine::Task::Run);
        QCOMPARE(line.settingsFile, QStringLiteral("a b.json"));
        QCOMPARE(line.language, QStringLiteral("pt_BR"));
        QCOMPARE(line.theme, QStringLiteral("dark"));
        QCOMPARE(line.screenshotsFolder, QStringLiteral("pictures"));
    }

    void takesEveryLanguage()
    {
        const auto codes = Desktop::LanguageCodes();
        for (const QString& code : codes) {
            QCOMPARE(Parse({QStringLiteral("--language"), code}).task, CommandLine::Task::Run);
        }
    }

    void refusesAMistake_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("named");
        const auto row = [](const char* name, const char* arguments, const char* named) {
            QTest::newRow(name) << QString::fromLatin1(arguments).split(QLatin1Char('|'))
                                << QString::fromLatin1(named);
        };
        row("unknown option", "--colour|red", "colour");
        row("unknown short option", "-x", "x");
        row("extra argument", "settings.json", "settings.json");
        row("argument after options", "--theme|dark|more", "more");
        row("unknown theme", "--theme|Dark", "Dark");
        row("control characters", "--theme|\x1b[2J", "\\x1b[2J");
        row("unknown language", "--language|tlh", "tlh");
        row("region that is not offered", "--language|de_AT", "de_AT");
        row("settings without value", "--settings", "settings");
        row("language without value", "--language", "language");
        row("theme without value", "--theme", "theme");
        row("screenshots without value", "--screenshots", "screenshots");
        row("empty settings", "--settings=", "settings");
        row("empty language", "--language|", "language");
        row("empty theme", "--theme|", "theme");
        row("empty screenshots", "--screenshots=", "screenshots");
        row("value for help", "--help=x", "help");
        row("value for start", "--start=x", "start");
        row("start and stop", "--start|--stop", "--start and --stop");
        row("pause and quit", "--quit|--pause", "--pause and --quit");
        row("three requests", "--start|--stop|--quit", "--start and --stop");
        row("pictures and start", "--screenshots=x|--start", "--screenshots and --start");
        row("pictures and hidden", "--screenshots=x|--hidden", "--screenshots and --hidden");
    }

    void refusesAMistake()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, named);
        const Ending ending = RunWithoutDisplay(arguments);
        QCOMPARE(ending.exitCode, 2);
        QCOMPARE(ending.output, QString());
        QVERIFY2(ending.error.startsWith(QLatin1String("px-scheduler: ")),
                 qPrintable(ending.error));
        QVERIFY2(ending.error.contains(named), qPrintable(ending.error));
        QCOMPARE(ending.error.count(QLatin1Char('\n')), 1);
    }

    void printsHelpAndVersion_data()
    {
        QTest::addColumn<QString>("option");
        QTest::addColumn<QString>("expected");
        QTest::newRow("help") << QStringLiteral("--help") << QStringLiteral("--screenshots");
        QTest::newRow("h") << QStringLiteral("-h") << QStringLiteral("--theme");
        QTest::newRow("version") << QStringLiteral("--version")
                                 << QStringLiteral("px-scheduler " PX_VERSION "\n");
        QTest::newRow("v") << QStringLiteral("-v")
                           << QStringLiteral("px-scheduler " PX_VERSION "\n");
        for (const char* option : {"--start", "--stop", "--pause", "--quit", "--hidden"}) {
            QTest::newRow(option) << QStringLiteral("--help") << QString::fromLatin1(option);
        }
    }

    void printsHelpAndVersion()
    {
        QFETCH(QString, option);
        QFETCH(QString, expected);
        const Ending ending = RunWithoutDisplay({option});
        QCOMPARE(ending.exitCode, 0);
        QVERIFY2(ending.output.contains(expected), qPrintable(ending.output));
        QCOMPARE(ending.error, QString());
    }

    void speaksTheLanguageOfTheRun_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("start");
        QTest::newRow("English") << "en"
                                 << "px-scheduler: cannot copy the settings file ";
        QTest::newRow("German") << "de"
                                << "px-scheduler: Die Einstellungsdatei ";
        QTest::newRow("French") << "fr"
                                << "px-scheduler : impossible de copier le fichier de paramètres ";
    }

    void speaksTheLanguageOfTheRun()
    {
        QFETCH(QString, language);
        QFETCH(QString, start);
        const Ending ending =
            RunOffscreen({QStringLiteral("--language"), language, QStringLiteral("--settings"),
                          QStringLiteral("/proc/none.json"), QStringLiteral("--screenshots"),
                          QStringLiteral("unused")});
        QCOMPARE(ending.exitCode, 2);
        QVERIFY2(ending.error.contains(start), qPrintable(ending.error));
    }

    void saysWhySettingsCannotBeUsed_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QStringList>("more");
        QTest::newRow("below a file") << QStringLiteral("file/settings.json") << QStringList();
        QTest::newRow("a folder") << QStringLiteral("folder") << QStringList();
        QTest::newRow("missing, for the tour")
            << QStringLiteral("missing.json")
            << QStringList{QStringLiteral("--screenshots"), QStringLiteral("unused")};
    }

    void saysWhySettingsCannotBeUsed()
    {
        QFETCH(QString, path);
        QFETCH(QStringList, more);
        const QTemporaryDir folder;
        QVERIFY(QFile(folder.filePath(QStringLiteral("file"))).open(QIODevice::WriteOnly));
        QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("folder")));
        const QString settings = folder.filePath(path);
        const Ending ending =
            RunOffscreen(QStringList{QStringLiteral("--settings"), settings} + more);
        QCOMPARE(ending.exitCode, 2);
        QVERIFY2(ending.error.contains(QStringLiteral("px-scheduler: ")), qPrintable(ending.error));
        QVERIFY2(ending.error.contains(settings), qPrintable(ending.error));
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_CommandLine)

#include "tst_CommandLine.moc"
