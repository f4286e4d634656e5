// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "Application.h"

#include <cstdio>
#include <memory>
#include <optional>
#include <utility>

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QSessionManager>
#include <QTemporaryDir>
#include <QTimer>

#include <glog/logging.h>

#include "Appearance.h"
#include "Application/LookAndFeelManager.h"
#include "ApplicationSettings.h"
#include "BackgroundSettings.h"
#include "CommandLine.h"
#include "CoreInt/Printable.h"
#include "DefaultSettingsFile.h"
#include "DesktopEntryName.h"
#include "Instance.h"
#include "Languages.h"
#include "Log.h"
#include "MainWindow.h"
#include "QtNames.h"
#include "RecordingControl.h"
#include "RecordingSettings.h"
#include "RecordingsList.h"
#include "RecordingTour.h"
#include "Resources.h"
#include "ScreenshotTour.h"
#include "TerminationSignals.h"
#include "TourScript.h"
#include "TrayIcon.h"
#include "UnfinishedTask.h"

namespace Zentor::Desktop {
namespace {

constexpr int ExitFailed = 1;
constexpr int ExitRefused = 2;

void PrintLine(FILE* stream, const QString& text)
{
    std::fprintf(stream, "%s\n", qUtf8Printable(text));
}

class Text {
    Q_DECLARE_TR_FUNCTIONS(Application)
};

void PrintProblem(const QString& problem)
{
    PrintLine(stderr, Text::tr("%1: %2").arg(QCoreApplication::applicationName(), problem));
}

int Refuse(const QString& reason)
{
    PrintProblem(reason);
    return ExitRefused;
}

CommandLine ReadCommandLine(int& argc, char** argv)
{
    // Without widgets, so that it needs no display.
    const QCoreApplication application(argc, argv);
    Translations translations;
    translations.Use(LanguageFor({}));
    return ParseCommandLine(QCoreApplication::arguments());
}

int RunTour(MainWindow& window, const QString& folder)
{
    // Pictures of the same state are the same: of one size, whatever the screen, with no blinking
    // cursor and no half-way animation.
    window.resize(MainWindow::FirstSize());
    QApplication::setCursorFlashTime(0);
    QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false);
    QString problem;
    ScreenshotTour tour(window, folder);
    WriteTourScript(tour);
    WriteRecordingTour(tour, window);
    QObject::connect(
        &tour, &ScreenshotTour::Finished, &window,
        [&](const QString& reason) {
            problem = reason;
            QCoreApplication::exit(reason.isEmpty() ? 0 : ExitFailed);
        },
        Qt::QueuedConnection);
    tour.Start();
    const int result = QApplication::exec();
    if (!problem.isEmpty()) {
        PrintProblem(problem);
    }
    return result;
}

/// Opens \a store. Returns the reason of a failure, or nothing.
QString Open(PX::SettingsStore& store)
{
    store.AddSection(ApplicationSettingsSection());
    store.AddSection(BackgroundSettingsSection());
    store.AddSection(UnfinishedTaskSection());
    store.AddSection(Schedule::RecordingSettingsSection());
    QString reason;
    store.Open(&reason);
    return reason;
}

/// Lets the end of the desktop's session save \a window, and not ask.
void FollowSession(MainWindow& window)
{
    // Qt's own way is to close the windows, which may ask.
    KeepWindowsInSession();
    QObject::connect(
        qGuiApp, &QGuiApplication::commitDataRequest, &window, [&] { window.SaveUnattended(); },
        Qt::DirectConnection);
    QObject::connect(
        qGuiApp, &QGuiApplication::saveStateRequest, &window,
        [&](QSessionManager& manager) {
            // Qt's own would add the name of the session, which is no option of ours.
            manager.setRestartCommand(
                ArgumentsToRestart(QCoreApplication::arguments(), !window.isVisible()));
        },
        Qt::DirectConnection);
}

void Raise(MainWindow& window, const QVariantMap& platformData)
{
    const QString token = platformData.value(QStringLiteral("activation-token")).toString();
    if (!token.isEmpty()) {
        // Where Qt's Wayland platform looks for it.
        qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8());
    }
    window.Raise();
}

/// Has \a window go and come by \a tray, whose other requests are made to \a instance.
void ConnectTray(const TrayIcon& tray, MainWindow& window, Instance& instance)
{
    QObject::connect(&tray, &TrayIcon::ShowRequested, &window, &MainWindow::Raise);
    QObject::connect(&tray, &TrayIcon::QuitRequested, &window, &MainWindow::Quit);
    QObject::connect(&tray, &TrayIcon::StartRequested, &instance, &Instance::StartRequested);
    QObject::connect(&tray, &TrayIcon::StopRequested, &instance, &Instance::StopRequested);
    QObject::connect(&tray, &TrayIcon::PauseRequested, &instance, &Instance::PauseRequested);
}

int RunWindow(const std::shared_ptr<PX::SettingsStore>& store,
              const std::shared_ptr<Schedule::RecordingsList>& recordings, MainWindow& window,
              Instance& instance, const CommandLine& line)
{
    const auto raise = [&](const QVariantMap& platformData) { Raise(window, platformData); };
    QObject::connect(&instance, &Instance::Activated, &window, raise);
    TrayIcon tray;
    ConnectTray(tray, window, instance);
    RecordingControl control(store, recordings, window, tray, instance);
    QObject::connect(&control, &RecordingControl::WindowRequested, &window,
                     [&](const QString& token) {
                         raise({{QStringLiteral("activation-token"), token}});
                     });
    const TerminationSignals signalsToEnd;
    // Also out of the loop of an open box, whose question stays unanswered.
    QObject::connect(&signalsToEnd, &TerminationSignals::Received, &control,
                     &RecordingControl::End);
    FollowSession(window);
    window.AskBeforeClosing([&] { return control.Work(); }, [&] { return tray.IsAvailable(); });
    // A hidden window is not the end, nor is a box that is closed over one.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    control.Begin();
    if (!line.isHidden) {
        window.show();
    }
    if (line.request == Request::Start) {
        QTimer::singleShot(0, &instance, &Instance::StartRequested);
    }
    return QApplication::exec();
}

/// The list that belongs to \a settingsFile; where that cannot be used it is kept in memory, and
/// says so.
std::shared_ptr<Schedule::RecordingsList> OpenRecordings(const QString& settingsFile)
{
    auto list =
        std::make_shared<Schedule::RecordingsList>(Schedule::RecordingsList::PathFor(settingsFile));
    list->Open();
    return list;
}

/// Runs the tour or, as \a instance, the window on the settings in \a file, whatever they are.
int RunOn(const QString& file, const CommandLine& line, Instance* instance)
{
    LOG(INFO) << "Zentor::Desktop::RunOn: version=" << PX_VERSION
              << "; settings=" << Util::Printable(file);
    const auto store = std::make_shared<PX::SettingsStore>(file);
    // Which language the user has chosen is not known before the settings are.
    std::optional<Translations> translations(std::in_place);
    translations->Use(LanguageFor(line.language));
    const QString problem = Open(*store);
    if (!problem.isEmpty()) {
        return Refuse(problem);
    }
    translations.reset();
    const auto lookAndFeel = std::make_shared<App::LookAndFeelManager>();
    Appearance appearance(store, lookAndFeel, {line.language, line.theme});
    MainWindow window(store, lookAndFeel);
    window.Follow(appearance);
    const auto recordings = OpenRecordings(file);
    window.ShowRecordings(recordings);
    if (instance != nullptr) {
        return RunWindow(store, recordings, window, *instance, line);
    }
    AddSampleRecordings(*recordings, QFileInfo(file).path());
    return RunTour(window, line.screenshotsFolder);
}

/// Runs the tour on a copy: it deletes tasks, which it must not do to the user's own.
int RunOnCopy(const CommandLine& line)
{
    const QString original =
        line.settingsFile.isEmpty() ? QStringLiteral(":/samples/settings.json") : line.settingsFile;
    const QTemporaryDir folder;
    const QString copy = folder.filePath(QStringLiteral("settings.json"));
    {
        Translations translations;
        translations.Use(LanguageFor(line.language));
        QFile source(original);
        if (!source.copy(copy)) {
            return Refuse(Text::tr("cannot copy the settings file %1: %2")
                              .arg(Util::PrintableText(original), source.errorString()));
        }
    }
    QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner);
    return RunOn(copy, line, nullptr);
}

/// Whether \a request is for an instance that runs already, and for no other.
bool IsForRunning(Request request)
{
    return request == Request::Stop || request == Request::Pause || request == Request::Quit;
}

QString SettingsFileOf(const CommandLine& line)
{
    return line.settingsFile.isEmpty() ? DefaultSettingsFile() : line.settingsFile;
}

/// Has the instance that runs do what was asked.
int PassOn(const CommandLine& line, int& argc, char** argv)
{
    // Without widgets, so that it needs no display.
    const QCoreApplication application(argc, argv);
    const Instance instance(SettingsFileOf(line), DefaultSettingsFile());
    if (instance.PassOn(line.request, PlatformDataOfStart())) {
        return 0;
    }
    Translations translations;
    translations.Use(LanguageFor(line.language));
    PrintProblem(Text::tr("the program does not run on these settings"));
    return ExitFailed;
}

/// Runs the window, unless there is one on these settings: then that one does what was asked.
int RunOnce(const CommandLine& line, const QVariantMap& platformData)
{
    const QString file = SettingsFileOf(line);
    Instance instance(file, DefaultSettingsFile());
    return instance.IsFirst(platformData, line.request) ? RunOn(file, line, &instance) : 0;
}

} // namespace

int RunApplication(int argc, char** argv)
{
    RegisterResources();
    QCoreApplication::setApplicationName(QStringLiteral("px-scheduler"));
    const CommandLine line = ReadCommandLine(argc, argv);
    if (line.task == CommandLine::Task::Refuse) {
        PrintLine(stderr, line.message);
        return ExitRefused;
    }
    if (line.task == CommandLine::Task::Print) {
        PrintLine(stdout, line.message);
        return 0;
    }
    google::InitGoogleLogging(argv[0]);
    FLAGS_logtostderr = true;
    KeepLog();
    if (IsForRunning(line.request)) {
        return PassOn(line, argc, argv);
    }
    FollowScreenScale();
    const QVariantMap platformData = PlatformDataOfStart();
    const QApplication application(argc, argv);
    // So that the desktop finds name and icon of the window in the installed desktop entry.
    QGuiApplication::setDesktopFileName(DesktopEntryName());
    return line.screenshotsFolder.isEmpty() ? RunOnce(line, platformData) : RunOnCopy(line);
}

} // namespace Zentor::Desktop
