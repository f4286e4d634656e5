#pragma once

#include <memory>

#include <QMainWindow>

class QListWidget;
class QPushButton;
class QStackedWidget;
class QStatusBar;

namespace Zentor {
class ZLabel;
namespace App {
class ILookAndFeelManager;
}
namespace PX {
class SettingsStore;
namespace Scheduler::UI {
class RecordSchedulerWidget;
}
} // namespace PX
} // namespace Zentor

namespace Zentor::Desktop {

class FilesPage;
class GeneralPage;
class Page;
class PanelAnnouncer;

/// The window of the application: a list of settings pages, and the chosen page beside it.
///
/// Its place and its page are remembered in the settings from one run to the next.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    /// \a store has been opened. Apply a theme before: the scheduler panel is built here.
    MainWindow(std::shared_ptr<PX::SettingsStore> store,
               std::shared_ptr<App::ILookAndFeelManager> lookAndFeel, QWidget* parent = nullptr);
    ~MainWindow() override;

    /// The size at first, where the screen has room for it.
    static QSize FirstSize() { return {1040, 800}; }

    /// Shows the page called \a id, without a question about an unfinished task; does nothing when
    /// there is no such page.
    void ShowPage(const QString& id);

protected:
    void changeEvent(QEvent* event) override;
    /// Asks before closing when a task is unfinished and when the settings could not be saved.
    void closeEvent(QCloseEvent* event) override;

private:
    void BuildWidgets();
    QWidget* CreateFoot(QWidget* parent);
    QWidget* CreatePageColumn(QWidget* parent);
    void AddPage(Page* page);
    PX::Scheduler::UI::RecordSchedulerWidget* CreatePanel();
    Page* CreateSchedulePage();
    Page* CreateFilesPage();
    Page* CreateGeneralPage();
    void Connect();
    /// Gives the panel what it has not by itself: the use by keyboard alone, protection from
    /// mistaken clicks, a voice for what happens in it.
    void AssistPanel();
    /// Puts the controls of the panel behind the list of pages for the Tab key.
    void OrderTabs();
    /// Has the tasks in the list written in the language in use: a panel writes each only once.
    void RebuildPanel();
    void RetranslatePanel();
    void ColorCalendar();
    void RestorePlace();
    /// Makes the window no larger than its screen, and moves it there.
    void FitScreen();
    void RememberPlace();
    void Retranslate();
    void RetranslatePage(int index, const QString& title, const QString& description);
    void UpdateIcons();
    /// Shows the page that is chosen in the list, unless an unfinished task keeps the user here.
    void FollowPageList();
    bool IsTaskUnfinished() const;
    /// Has the panel ask what becomes of an unfinished task, which it would forget when it is
    /// hidden. Returns whether none is left.
    bool FinishTask();
    /// Starts a recording when the panel has nothing against it.
    void StartRecording();
    void ShowSaveProblem(const QString& reason);
    void ForgetSaveProblem();
    bool IsClosingWithoutSavingAccepted();

    std::shared_ptr<PX::SettingsStore> m_store;
    std::shared_ptr<App::ILookAndFeelManager> m_lookAndFeel;
    QListWidget* m_pageList = nullptr;
    QStackedWidget* m_pages = nullptr;
    PX::Scheduler::UI::RecordSchedulerWidget* m_panel = nullptr;
    FilesPage* m_filesPage = nullptr;
    GeneralPage* m_generalPage = nullptr;
    PanelAnnouncer* m_announcer = nullptr;
    QStatusBar* m_statusBar = nullptr;
    ZLabel* m_saveProblemLabel = nullptr;
    QPushButton* m_startButton = nullptr;
    bool m_isAskingAboutTask = false;
};

} // namespace Zentor::Desktop
