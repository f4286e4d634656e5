// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <csignal>
#include <cstdlib>

#include <QtGui/private/qguiapplication_p.h>

#include <QFile>
#include <QLineEdit>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include "Application.h"
#include "ApplicationSettings.h"
#include "Boxes.h"
#include "PanelParts.h"
#include "StoreIn.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

/// Set in the environment of the program that is ended: what is on screen when it is.
constexpr const char* SceneVariable = "TERMINATION_SCENE";
constexpr const char* SignalVariable = "TERMINATION_SIGNAL";
constexpr int ExitOfTheSession = 42;

/// What the user of the program does: completes the name of the task, may try to close the window,
/// and is then interrupted.
class User final : public QObject {
public:
    explicit User(QString scene)
        : m_scene(std::move(scene))
    {
        connect(&m_timer, &QTimer::timeout, this, &User::Look);
        constexpr int millisecondsBetweenLooks = 10;
        m_timer.start(millisecondsBetweenLooks);
    }

private:
    void Look()
    {
        auto* window = Window();
        auto* name = NameField();
        if (IsBoxOpen() || (window != nullptr && m_scene == "list")) {
            EndByASignal();
        } else if (name != nullptr && name->text() == "Lecture" && m_scene == "ignored") {
            // A signal that counted would have ended the program by now.
            name->setText(QStringLiteral("Lecture heard"));
            m_timer.stop();
            std::raise(SIGTERM);
        } else if (name != nullptr && name->text() == "Lect") {
            name->setText(QStringLiteral("Lecture"));
            Continue(*window);
        }
    }
    void Continue(QWidget& window)
    {
        if (m_scene == "form") {
            EndByASignal();
        } else if (m_scene == "ignored") {
            std::raise(qEnvironmentVariableIntValue(SignalVariable));
        } else if (m_scene == "box") {
            QTimer::singleShot(0, &window, &QWidget::close);
        } else {
            EndTheSession();
        }
    }
    static QWidget* Window()
    {
        const auto windows = QApplication::topLevelWidgets();
        for (auto* window : windows) {
            if (window->objectName() == "mainWindow" && window->isVisible()) {
                return window;
            }
        }
        return nullptr;
    }
    static QLineEdit* NameField()
    {
        const auto* window = Window();
        return window == nullptr ? nullptr
                                 : window->findChild<QLineEdit*>(Desktop::PanelPart::NameField);
    }
    void EndByASignal()
    {
        m_timer.stop();
        std::raise(qEnvironmentVariableIntValue(SignalVariable));
    }
    /// Nothing but what is saved when the session asks for it may count.
    static void EndTheSession()
    {
        static_cast<QGuiApplicationPrivate*>(QObjectPrivate::get(qApp))->commitData();
        std::_Exit(IsBoxOpen() ? EXIT_FAILURE : ExitOfTheSession);
    }

    const QString m_scene;
    QTimer m_timer;
};

void StartUser()
{
    const QString scene = qEnvironmentVariable(SceneVariable);
    if (!scene.isEmpty() && qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr) {
        (new User(scene))->setParent(qApp);
    }
}
Q_COREAPP_STARTUP_FUNCTION(StartUser)

} // namespace

class tst_TerminationSignals : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void endsWithEverythingSaved_data()
    {
        QTest::addColumn<QString>("scene");
        QTest::addColumn<int>("signal");
        QTest::addColumn<QString>("title");
        QTest::newRow("terminated") << "list" << SIGTERM << "";
        QTest::newRow("interrupted") << "list" << SIGINT << "";
        QTest::newRow("hung up") << "list" << SIGHUP << "";
        QTest::newRow("in the form") << "form" << SIGTERM << "Lecture";
        QTest::newRow("under a question") << "box" << SIGTERM << "Lecture";
        QTest::newRow("interrupted under a question") << "box" << SIGINT << "Lecture";
    }

    void endsWithEverythingSaved()
    {
        QFETCH(QString, scene);
        QFETCH(int, signal);
        QFETCH(QString, title);
        const QTemporaryDir folder;
        if (!title.isEmpty()) {
            RememberTaskIn(folder);
        }
        QCOMPARE(RunIn(folder, scene, signal), 0);
        const auto store = OpenStoreIn(folder);
        QVERIFY(!Desktop::ApplicationSettingsIn(*store).windowGeometry.isEmpty());
        const auto task = Desktop::UnfinishedTaskIn(*store);
        QCOMPARE(task.has_value(), !title.isEmpty());
        QCOMPARE(task ? task->title : QString(), title);
        QVERIFY(store->Settings().schedule.empty());
    }

    void savesAtTheEndOfTheSession()
    {
        const QTemporaryDir folder;
        RememberTaskIn(folder);
        QCOMPARE(RunIn(folder, QStringLiteral("session"), 0), ExitOfTheSession);
        const auto task = Desktop::UnfinishedTaskIn(*OpenStoreIn(folder));
        QVERIFY(task.has_value());
        QCOMPARE(task->title, QStringLiteral("Lecture"));
    }

    /// As under nohup.
    void leavesAnIgnoredSignalIgnored()
    {
        const QTemporaryDir folder;
        RememberTaskIn(folder);
        QCOMPARE(RunIn(folder, QStringLiteral("ignored"), SIGHUP,
                       {QStringLiteral("/bin/sh"), QStringLiteral("-c"),
                        QStringLiteral("trap '' HUP; exec \"$0\" \"$@\"")}),
                 0);
        const auto task = Desktop::UnfinishedTaskIn(*OpenStoreIn(folder));
        QVERIFY(task.has_value());
        QCOMPARE(task->title, QStringLiteral("Lecture heard"));
    }

    /// As in the background of a shell without jobs.
    void endsByASignalThatAShellHasItIgnore()
    {
        const QTemporaryDir folder;
        RememberTaskIn(folder);
        QCOMPARE(RunIn(folder, QStringLiteral("form"), SIGINT,
                       {QStringLiteral("/bin/sh"), QStringLiteral("-c"),
                        QStringLiteral("trap '' INT; exec \"$0\" \"$@\"")}),
                 0);
        QVERIFY(Desktop::UnfinishedTaskIn(*OpenStoreIn(folder)).has_value());
    }

private:
    static void RememberTaskIn(const QTemporaryDir& folder)
    {
        Desktop::UnfinishedTask task;
        task.title = QStringLiteral("Lect");
        task.start = QDateTime::currentDateTime().addDays(1);
        Desktop::RememberUnfinishedTask(*OpenStoreIn(folder), task);
    }

    /// Runs the program, which this one becomes then, to its end by \a signal. Its exit code, or -1
    /// when it has none.
    static int RunIn(const QTemporaryDir& folder, const QString& scene, int signal,
                     QStringList command = {})
    {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QLatin1String(SceneVariable), scene);
        environment.insert(QLatin1String(SignalVariable), QString::number(signal));
        command << QCoreApplication::applicationFilePath() << QStringLiteral("--settings")
                << folder.filePath(QStringLiteral("settings.json"));
        QProcess process;
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(command.takeFirst(), command);
        const bool isEnded =
            process.waitForFinished() && process.exitStatus() == QProcess::NormalExit;
        return isEnded ? process.exitCode() : -1;
    }
};

} // namespace Zentor::Tests

int main(int argc, char** argv)
{
    const Zentor::Tests::TestEnvironment environment;
    if (qEnvironmentVariableIsSet(Zentor::Tests::SceneVariable)) {
        return Zentor::Desktop::RunApplication(argc, argv);
    }
    const QApplication application(argc, argv);
    Zentor::Tests::tst_TerminationSignals test;
    return Zentor::Tests::RunTest(argc, argv, test);
}

#include "tst_TerminationSignals.moc"
