// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

// What the application's window costs beside its floors: the panel alone under the same style sheet
// for opening it, and opening the window for a change of theme or language.
//
// Run it with QT_QPA_PLATFORM=offscreen. Arguments are the numbers of tasks; 10, 100 and 1000
// without any.
#include <cstdio>

#include <QApplication>
#include <QTemporaryDir>
#include <QVBoxLayout>

#include "Appearance.h"
#include "Application/LookAndFeelManager.h"
#include "Application/SettingsManager.h"
#include "ApplicationSettings.h"
#include "CountingStyle.h"
#include "CpuTimer.h"
#include "MainWindow.h"
#include "PXUserSettings/StoredSettings.h"
#include "RecordSchedulerWidget.h"
#include "Resources.h"
#include "Samples.h"

using namespace Zentor;
using PX::Scheduler::UI::RecordSchedulerWidget;

namespace {

/// Processor time and polishes of one action, everything included that it leaves to the event loop.
struct Cost {
    double milliseconds = 0;
    int polishes = 0;
};

template <typename Action> Cost CostOf(Tests::CountingStyle& style, const Action& action)
{
    style.TakePolishes();
    const Tests::CpuTimer timer;
    action();
    for (int pass = 0; pass < 5; ++pass) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
    return {timer.Milliseconds(), style.TakePolishes()};
}

std::shared_ptr<PX::SettingsStore> StoreWith(int taskCount, const QTemporaryDir& folder)
{
    auto store =
        std::make_shared<PX::SettingsStore>(folder.filePath(QStringLiteral("settings.json")));
    store->AddSection(Desktop::ApplicationSettingsSection());
    QString error;
    if (!store->Open(&error)) {
        qFatal("%s", qPrintable(error));
    }
    store->Change([&](PX::UserSettings& settings) {
        settings.schedule.clear();
        for (int number = 0; number < taskCount; ++number) {
            settings.schedule.push_back(Tests::Record(
                QStringLiteral("Lecture %1").arg(number),
                Tests::At("00:00") + std::chrono::minutes(number), std::chrono::minutes(1)));
        }
        settings.scheduledCaptureEnabled = true;
    });
    store->Flush();
    return store;
}

std::unique_ptr<QWidget> PanelAlone(const std::shared_ptr<PX::SettingsStore>& store,
                                    const std::shared_ptr<App::LookAndFeelManager>& lookAndFeel)
{
    auto window = std::make_unique<QWidget>();
    auto* panel = new RecordSchedulerWidget(
        lookAndFeel, std::make_shared<App::SettingsManager>(store), window.get());
    (new QVBoxLayout(window.get()))->addWidget(panel);
    panel->SetSchedulerSettings(std::make_shared<PX::StoredSchedulerSettings>(store));
    panel->SetCaptureFinishActionSettings(
        std::make_shared<PX::StoredCaptureFinishActionSettings>(store));
    panel->SetPathSettings(std::make_shared<PX::StoredPathsSettings>(store));
    panel->SetSettingsWatcher(std::make_shared<PX::StoringSettingsWatcher>(store));
    panel->RestoreSettings();
    window->resize(Desktop::MainWindow::FirstSize());
    window->show();
    return window;
}

void Print(const char* what, int taskCount, const Cost& cost, const Cost& floor)
{
    std::printf("| %-15s | %5d | %8.1f | %8.1f | %5.2f | %8d | %8d |\n", what, taskCount,
                cost.milliseconds, floor.milliseconds, cost.milliseconds / floor.milliseconds,
                cost.polishes, floor.polishes);
    std::fflush(stdout);
}

void Measure(int taskCount)
{
    const QTemporaryDir folder;
    const auto store = StoreWith(taskCount, folder);
    const auto lookAndFeel = std::make_shared<App::LookAndFeelManager>();
    const Desktop::Appearance appearance(store, lookAndFeel,
                                         {QStringLiteral("en"), QStringLiteral("light")});
    auto& style = *Tests::CountingStyle::Install();

    std::unique_ptr<QWidget> alone;
    const Cost ofPanel = CostOf(style, [&] { alone = PanelAlone(store, lookAndFeel); });
    alone.reset();
    std::unique_ptr<Desktop::MainWindow> window;
    const Cost ofWindow = CostOf(style, [&] {
        window = std::make_unique<Desktop::MainWindow>(store, lookAndFeel);
        window->show();
    });
    Print("open the window", taskCount, ofWindow, ofPanel);
    const Cost ofTheme = CostOf(style, [&] {
        Desktop::ChangeApplicationSettings(
            *store, [](auto& settings) { settings.theme = QStringLiteral("dark"); });
    });
    Print("change theme", taskCount, ofTheme, ofWindow);
    const Cost ofLanguage = CostOf(style, [&] {
        Desktop::ChangeApplicationSettings(
            *store, [](auto& settings) { settings.language = QStringLiteral("de"); });
    });
    Print("change language", taskCount, ofLanguage, ofWindow);
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    Desktop::RegisterResources();
    QStringList counts = QCoreApplication::arguments().mid(1);
    if (counts.isEmpty()) {
        counts = QStringList{"10", "100", "1000"};
    }
    std::puts("| action          | tasks |       ms | floor ms | ratio | polishes |    floor |\n"
              "| --------------- | ----- | -------- | -------- | ----- | -------- | -------- |");
    for (const QString& count : qAsConst(counts)) {
        Measure(count.toInt());
    }
    return 0;
}
