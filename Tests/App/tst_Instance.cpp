// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <csignal>

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QFile>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>

#include "AppWindow.h"
#include "Instance.h"
#include "Resources.h"
#include "Theme.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

using Desktop::Instance;

const QString DesktopName = QStringLiteral("org.zentor.PxScheduler");
const QString ObjectPath = QStringLiteral("/org/zentor/PxScheduler");

/// The program, started anew. It is ended with this object.
class Program {
public:
    explicit Program(
        const QStringList& arguments,
        const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment())
    {
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(PX_PROGRAM), arguments);
    }
    ~Program()
    {
        process.kill();
        process.waitForFinished();
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// The exit code, or -1 when it does not end by itself. The bus is served meanwhile.
    int ExitCode()
    {
        constexpr int milliseconds = 60000;
        const bool isEnded =
            QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, milliseconds);
        return isEnded && process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }

    QProcess process;
};

/// Counts what an instance is asked for.
struct Requests {
    explicit Requests(Instance& instance)
        : shown(&instance, &Instance::Activated)
        , started(&instance, &Instance::StartRequested)
        , stopped(&instance, &Instance::StopRequested)
        , paused(&instance, &Instance::PauseRequested)
        , quit(&instance, &Instance::QuitRequested)
    {
    }

    /// As in "show start start".
    QString Names() const
    {
        const std::pair<const QSignalSpy&, const char*> all[] = {{shown, "show"},
                                                                 {started, "start"},
                                                                 {stopped, "stop"},
                                                                 {paused, "pause"},
                                                                 {quit, "quit"}};
        QStringList names;
        for (const auto& [spy, name] : all) {
            for (int count = 0; count < spy.count(); ++count) {
                names << QLatin1String(name);
            }
        }
        return names.join(QLatin1Char(' '));
    }

    QSignalSpy shown;
    QSignalSpy started;
    QSignalSpy stopped;
    QSignalSpy paused;
    QSignalSpy quit;
};

QProcessEnvironment WithoutBus()
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"),
                       QStringLiteral("unix:path=/nonexistent"));
    return environment;
}

bool IsOnBus(const QString& name)
{
    return QDBusConnection::sessionBus().interface()->isServiceRegistered(name).value();
}

QDBusMessage Call(const QString& name, const char* method, const QVariantList& arguments)
{
    auto message = QDBusMessage::createMethodCall(
        name, ObjectPath, QStringLiteral("org.freedesktop.Application"), method);
    message.setArguments(arguments);
    // By another connection: a call to itself would not go over the bus.
    auto bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("other"));
    const auto pending = bus.asyncCall(message);
    const bool isAnswered = QTest::qWaitFor([&] { return pending.isFinished(); });
    QDBusConnection::disconnectFromBus(QStringLiteral("other"));
    return isAnswered ? pending.reply() : QDBusMessage();
}

} // namespace

class tst_Instance : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Desktop::RegisterResources();
        Desktop::ApplyTheme(Desktop::Theme::Light);
    }

    void init()
    {
        WidgetTest::init();
        m_folder = std::make_unique<QTemporaryDir>();
    }

    void cleanup()
    {
        m_folder.reset();
        WidgetTest::cleanup();
    }

    void activatesTheFirst_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("same name") << "settings.json";
        QTest::newRow("round about") << "folder/../settings.json";
        QTest::newRow("by a link") << "link.json";
        QTest::newRow("by a link to its folder") << "loop/settings.json";
    }

    void activatesTheFirst()
    {
        QFETCH(QString, name);
        QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("folder")));
        QVERIFY(QFile::link(SettingsFile(), m_folder->filePath(QStringLiteral("link.json"))));
        QVERIFY(QFile::link(m_folder->path(), m_folder->filePath(QStringLiteral("loop"))));
        Instance first(SettingsFile(), DefaultFile());
        QVERIFY(first.IsFirst({}));
        const QSignalSpy activated(&first, &Instance::Activated);
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DESKTOP_STARTUP_ID"), QStringLiteral("id_TIME7"));
        environment.insert(QStringLiteral("XDG_ACTIVATION_TOKEN"), QStringLiteral("token"));
        Program second({QStringLiteral("--settings"), m_folder->filePath(name)}, environment);
        QCOMPARE(second.ExitCode(), 0);
        QCOMPARE(second.process.readAllStandardOutput(), QByteArray());
        QCOMPARE(activated.count(), 1);
        const auto platformData = activated.constFirst().constFirst().toMap();
        QCOMPARE(platformData,
                 (QVariantMap{{QStringLiteral("desktop-startup-id"), QStringLiteral("id_TIME7")},
                              {QStringLiteral("activation-token"), QStringLiteral("token")}}));
        // It has not touched the settings of the first.
        QVERIFY(!QFile::exists(SettingsFile()));
    }

    void leavesTheFirstAlone_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        QTest::newRow("help") << QStringList{"--help"} << 0;
        QTest::newRow("version") << QStringList{"--version"} << 0;
        QTest::newRow("mistake") << QStringList{"--theme=pink"} << 2;
        QTest::newRow("pictures") << QStringList{"--screenshots", "/proc/none"} << 1;
    }

    void leavesTheFirstAlone()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, exitCode);
        QVERIFY(QFile::copy(QStringLiteral(":/samples/settings.json"), SettingsFile()));
        Instance first(SettingsFile(), DefaultFile());
        QVERIFY(first.IsFirst({}));
        const QSignalSpy activated(&first, &Instance::Activated);
        Program second(QStringList{QStringLiteral("--settings"), SettingsFile()} + arguments);
        QCOMPARE(second.ExitCode(), exitCode);
        QCOMPARE(activated.count(), 0);
    }

    void servesWhileItRuns()
    {
        Program first({QStringLiteral("--settings"), SettingsFile()});
        QTRY_VERIFY_WITH_TIMEOUT(IsOnBus(Instance::BusName(SettingsFile())), Patience);
        QVERIFY(!IsOnBus(DesktopName));
        Program second({QStringLiteral("--settings"), SettingsFile()});
        QCOMPARE(second.ExitCode(), 0);
        const QString otherFile = m_folder->filePath(QStringLiteral("other.json"));
        Program other({QStringLiteral("--settings"), otherFile});
        QTRY_VERIFY_WITH_TIMEOUT(IsOnBus(Instance::BusName(otherFile)), Patience);
        QCOMPARE(first.process.state(), QProcess::Running);
        first.process.terminate();
        QCOMPARE(first.ExitCode(), 0);
        QTRY_VERIFY_WITH_TIMEOUT(!IsOnBus(Instance::BusName(SettingsFile())), Patience);
    }

    void hasTheNameOfTheDesktopEntryOnTheDefaultFile()
    {
        Instance instance(DefaultFile(), DefaultFile());
        QVERIFY(instance.IsFirst({}));
        QVERIFY(IsOnBus(DesktopName));
        QVERIFY(IsOnBus(Instance::BusName(DefaultFile())));
        const QSignalSpy activated(&instance, &Instance::Activated);
        QCOMPARE(Call(DesktopName, "Activate", {QVariantMap()}).type(), QDBusMessage::ReplyMessage);
        QCOMPARE(activated.count(), 1);
        QCOMPARE(Call(DesktopName, "Open", {QStringList{"file:///a"}, QVariantMap()}).type(),
                 QDBusMessage::ReplyMessage);
        QCOMPARE(activated.count(), 2);
        const auto answer =
            Call(DesktopName, "ActivateAction", {"none", QVariantList(), QVariantMap()});
        QCOMPARE(answer.type(), QDBusMessage::ErrorMessage);
        QCOMPARE(answer.errorName(), QStringLiteral("org.freedesktop.DBus.Error.InvalidArgs"));
        QCOMPARE(activated.count(), 2);
        const QSignalSpy started(&instance, &Instance::StartRequested);
        QCOMPARE(
            Call(DesktopName, "ActivateAction", {"start", QVariantList(), QVariantMap()}).type(),
            QDBusMessage::ReplyMessage);
        QCOMPARE(started.count(), 1);
        QCOMPARE(activated.count(), 2);
    }

    void passesOnWhatIsAsked_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QString>("expected");
        QTest::newRow("start") << QStringList{"--start"} << "start";
        QTest::newRow("start hidden") << QStringList{"--start", "--hidden"} << "start";
        QTest::newRow("stop") << QStringList{"--stop"} << "stop";
        QTest::newRow("pause") << QStringList{"--pause"} << "pause";
        QTest::newRow("quit") << QStringList{"--quit"} << "quit";
        QTest::newRow("hidden") << QStringList{"--hidden"} << "";
        QTest::newRow("nothing") << QStringList() << "show";
    }

    void passesOnWhatIsAsked()
    {
        QFETCH(QStringList, options);
        QFETCH(QString, expected);
        Instance first(SettingsFile(), DefaultFile());
        QVERIFY(first.IsFirst({}));
        const Requests requests(first);
        Program second(QStringList{QStringLiteral("--settings"), SettingsFile()} + options);
        QCOMPARE(second.ExitCode(), 0);
        QCOMPARE(requests.Names(), expected);
        QCOMPARE(second.process.readAllStandardOutput(), QByteArray());
        QVERIFY(!QFile::exists(SettingsFile()));
    }

    void saysThatNoneRuns_data()
    {
        QTest::addColumn<QString>("option");
        QTest::addColumn<bool>("hasBus");
        for (const char* option : {"--stop", "--pause", "--quit"}) {
            QTest::addRow("%s", option) << QString::fromLatin1(option) << true;
            QTest::addRow("%s without a bus", option) << QString::fromLatin1(option) << false;
        }
    }

    void saysThatNoneRuns()
    {
        QFETCH(QString, option);
        QFETCH(bool, hasBus);
        auto environment = hasBus ? QProcessEnvironment::systemEnvironment() : WithoutBus();
        // A display is not needed.
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("none"));
        Program program({QStringLiteral("--settings"), SettingsFile(), option}, environment);
        QCOMPARE(program.ExitCode(), 1);
        QCOMPARE(program.process.readAllStandardOutput(), QByteArray());
        const QByteArray error = program.process.readAllStandardError();
        QVERIFY2(error.startsWith("px-scheduler: "), error);
        QVERIFY2(error.count('\n') == 1, error);
        QVERIFY(!QFile::exists(SettingsFile()));
    }

    void startsHiddenAndIsQuit()
    {
        Program first({QStringLiteral("--settings"), SettingsFile(), QStringLiteral("--hidden")});
        QTRY_VERIFY_WITH_TIMEOUT(IsOnBus(Instance::BusName(SettingsFile())), Patience);
        for (const auto& options : {QStringList{"--hidden"}, QStringList{}, QStringList{"--start"},
                                    QStringList{"--stop"}}) {
            Program other(QStringList{QStringLiteral("--settings"), SettingsFile()} + options);
            QCOMPARE(other.ExitCode(), 0);
            QCOMPARE(first.process.state(), QProcess::Running);
        }
        Program last({QStringLiteral("--settings"), SettingsFile(), QStringLiteral("--quit")});
        QCOMPARE(last.ExitCode(), 0);
        QCOMPARE(first.ExitCode(), 0);
        QVERIFY(QFile::exists(SettingsFile()));
    }

    /// The lock of the settings file refuses then.
    void refusesWithoutABus()
    {
        const QProcessEnvironment environment = WithoutBus();
        const auto store = OpenStoreIn(*m_folder);
        Program program({QStringLiteral("--settings"), SettingsFile()}, environment);
        QCOMPARE(program.ExitCode(), 2);
        QVERIFY(program.process.readAllStandardError().contains("px-scheduler: "));
    }

    void raisesTheWindow()
    {
        const AppWindow app;
        app.window->showMinimized();
        QVERIFY(app.window->isMinimized());
        app.window->Raise();
        QVERIFY(QTest::qWaitForWindowActive(app.window.get()));
        QVERIFY(!app.window->isMinimized());
        app.window->hide();
        app.window->Raise();
        QVERIFY(QTest::qWaitForWindowActive(app.window.get()));
    }

private:
    QString SettingsFile() const { return m_folder->filePath(QStringLiteral("settings.json")); }
    QString DefaultFile() const { return m_folder->filePath(QStringLiteral("default.json")); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_Instance)

#include "tst_Instance.moc"
