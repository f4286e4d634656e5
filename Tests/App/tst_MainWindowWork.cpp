// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "Appearance.h"
#include "Application/LookAndFeelManager.h"
#include "Application/SettingsManager.h"
#include "CountingStyle.h"
#include "MainWindow.h"
#include "PXUserSettings/StoredSettings.h"
#include "RecordSchedulerWidget.h"
#include "Resources.h"
#include "Samples.h"
#include "StoreIn.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

using PX::Scheduler::UI::RecordSchedulerWidget;

/// How often widgets are polished by each of the actions.
struct Polishes {
    int panelAlone = 0;
    int open = 0;
    int theme = 0;
    int language = 0;
};

/// A row, its four labels and its button.
constexpr int WidgetsPerTask = 6;

void Settle()
{
    for (int pass = 0; pass < 5; ++pass) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

/// The panel without the application, under the same style sheet.
void ShowPanelAlone(const std::shared_ptr<PX::SettingsStore>& store)
{
    RecordSchedulerWidget panel(std::make_shared<App::LookAndFeelManager>(),
                                std::make_shared<App::SettingsManager>(store), nullptr);
    panel.SetSchedulerSettings(std::make_shared<PX::StoredSchedulerSettings>(store));
    panel.SetCaptureFinishActionSettings(
        std::make_shared<PX::StoredCaptureFinishActionSettings>(store));
    panel.SetSettingsWatcher(std::make_shared<PX::StoringSettingsWatcher>(store));
    panel.RestoreSettings();
    panel.show();
    Settle();
}

Polishes Count(int taskCount)
{
    const QTemporaryDir folder;
    const auto store = OpenStoreIn(folder);
    store->Change([&](PX::UserSettings& settings) {
        for (int number = 0; number < taskCount; ++number) {
            settings.schedule.push_back(Record(QStringLiteral("Task %1").arg(number),
                                               At("00:00") + std::chrono::minutes(number),
                                               std::chrono::minutes(1)));
        }
        settings.scheduledCaptureEnabled = true;
    });
    const auto lookAndFeel = std::make_shared<App::LookAndFeelManager>();
    const Desktop::Appearance appearance(store, lookAndFeel,
                                         {QStringLiteral("en"), QStringLiteral("light")});
    auto& style = *CountingStyle::Install();
    Polishes polishes;
    ShowPanelAlone(store);
    polishes.panelAlone = style.TakePolishes();
    Desktop::MainWindow window(store, lookAndFeel);
    window.show();
    Settle();
    polishes.open = style.TakePolishes();
    Desktop::ChangeApplicationSettings(
        *store, [](auto& settings) { settings.theme = QStringLiteral("dark"); });
    Settle();
    polishes.theme = style.TakePolishes();
    Desktop::ChangeApplicationSettings(
        *store, [](auto& settings) { settings.language = QStringLiteral("de"); });
    Settle();
    polishes.language = style.TakePolishes();
    return polishes;
}

} // namespace

/// What the window does for each task, counted: with the style sheet, polishing is what takes the
/// time.
class tst_MainWindowWork : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Desktop::RegisterResources();
        // Both more than fit into the window, also while no sheet makes the rows as high as they
        // are.
        constexpr int few = 60;
        constexpr int many = 160;
        const Polishes ofFew = Count(few);
        const Polishes ofMany = Count(many);
        const auto perTask = [](int less, int more) {
            return static_cast<double>(more - less) / (many - few);
        };
        m_panelAlone = perTask(ofFew.panelAlone, ofMany.panelAlone);
        m_open = perTask(ofFew.open, ofMany.open);
        m_theme = perTask(ofFew.theme, ofMany.theme);
        m_language = perTask(ofFew.language, ofMany.language);
    }

    void opensAtThePriceOfThePanel()
    {
        QCOMPARE(qRound(m_panelAlone), WidgetsPerTask);
        QCOMPARE(qRound(m_open), WidgetsPerTask);
    }

    /// Once when the sheet before is cleared, once for the new one.
    void changesTheThemeInTwoPasses() { QCOMPARE(qRound(m_theme), 2 * WidgetsPerTask); }

    void changesTheLanguageInOnePass() { QCOMPARE(qRound(m_language), WidgetsPerTask); }

private:
    double m_panelAlone = 0;
    double m_open = 0;
    double m_theme = 0;
    double m_language = 0;
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_MainWindowWork)

#include "tst_MainWindowWork.moc"
