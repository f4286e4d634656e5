// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <memory>

#include <QList>
#include <QMainWindow>

#include "CloseDecision.h"

class QFrame;
class QListWidget;
class QStackedWidget;
class QStatusBar;

namespace Zentor {
namespace App {
class ILookAndFeelManager;
}
namespace PX {
class SettingsStore;
struct RecordTime;
} // namespace PX
namespace Schedule {
class RecordingsList;
}
} // namespace Zentor

namespace Zentor::Desktop {

class Appearance;
class GeneralPage;
class NoticeBar;
class Page;
class PageFrame;
class RecordingFooter;
class RecordingsPage;
class SchedulePage;

/// The window of the application: a list of pages, the chosen page beside it, and a footer.
///
/// Its place and its page are remembered in the settings from one run to the next.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    /// \a store has been opened, with the application's section. Apply a theme before: the
    /// scheduler panel is built here.
    MainWindow(std::shared_ptr<PX::SettingsStore> store,
               const std::shared_ptr<App::ILookAndFeelManager>& lookAndFeel,
               QWidget* parent = nullptr);
    ~MainWindow() override;

    /// Shows what was chosen for this run only; \a appearance outlives the window.
    void Follow(Appearance& appearance);

    /// Shows \a list, which has been opened, on the page with the recordings, and on every page
    /// what could not be used of it or not be saved. Call it once.
    void ShowRecordings(const std::shared_ptr<Schedule::RecordingsList>& list);

    /// The size at first, where the screen has room for it.
    static QSize FirstSize() { return {1040, 800}; }

    /// Shows the page called \a id, without a question about unfinished input; does nothing when
    /// there is no such page.
    void ShowPage(const QString& id);

    /// Has \a workNow tell, whenever the window is to be closed, what is lost when the program
    /// ends, and \a hasTray, whether the desktop can show the window again. Without this nothing
    /// is lost and nothing can.
    void AskBeforeClosing(std::function<PendingWork()> workNow, std::function<bool()> hasTray);

    /// Ends the program as far as the user agrees: asks about unfinished input, about tasks that
    /// would be missed, and about changes that cannot be saved. Closed() is sent when it ends.
    void Quit();

    /// Sends RecordingRequested() when neither the panel nor a page has anything against a
    /// recording. The user may be asked.
    void StartRecording();

    /// Takes \a task out of the list of the panel, which is over.
    void RemoveTask(const PX::RecordTime& task);

    /// Shows \a text for a while, and has screen readers say it.
    void Tell(const QString& text);

    /// Brings the window to the front, and with it the box that it waits for.
    void Raise();

    /// The foot of the window, which shows what is recorded and asks for more.
    RecordingFooter* Footer() const { return m_footer; }

    /// Saves everything without a question: the program is about to be ended. A task form that is
    /// open is remembered as it is. Whether everything is saved.
    bool SaveUnattended();

Q_SIGNALS:
    /// A recording is to be started by hand.
    void RecordingRequested();
    void Shown();
    /// The texts of the window are those of another language.
    void LanguageChanged();
    /// The user has closed the window for good, and everything is saved that could be.
    void Closed();
    /// The window has been hidden by closing it, for the first time since the user was told of it.
    void HiddenInTray();

protected:
    void changeEvent(QEvent* event) override;
    /// Hides or minimizes the window where the program is to run on, otherwise ends as Quit() does.
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void BuildWidgets(const std::shared_ptr<App::ILookAndFeelManager>& lookAndFeel);
    QWidget* CreateSidebar(QWidget* parent);
    QWidget* CreatePageColumn(QWidget* parent,
                              const std::shared_ptr<App::ILookAndFeelManager>& lookAndFeel);
    void AddPage(Page* page);
    void Connect();
    void ConnectPages();
    Page* CurrentPage() const;
    void RestorePlace();
    /// Makes what is in the window as small as its width asks for.
    void FitWidth();
    /// Makes the window no larger than its screen, and moves it there.
    void FitScreen();
    void RememberPlace();
    void Retranslate();
    /// In the list of pages, or where that has only icons, in their tips.
    void ShowPageTitles();
    void SetSidebarNarrow(bool isNarrow);
    void UpdateIcons();
    /// Shows the page that is chosen in the list, unless unfinished input keeps the user here.
    void FollowPageList();
    void ApplyPages();
    /// Shows the first page that keeps a recording from being started. Whether there is one.
    bool ShowPageProblem();
    /// Shows what the store and the list of recordings have to say and the user has not read yet.
    void ShowNotices();
    /// What of the list of recordings could not be used or not be saved, for the user.
    QStringList ListProblems() const;
    /// Those that the user has not closed.
    QStringList UnreadListProblems();
    /// Saves what the user has changed, and the place of the window. Whether the former is saved.
    bool SaveChanges();
    void ForgetSaveProblem();
    bool IsClosingWithoutSavingAccepted();
    /// Whether nothing is lost when the program ends, or the user agrees.
    bool IsLosingWorkAccepted();
    /// Goes on without the window, as \a decision says.
    void StepAside(CloseDecision decision);

    std::shared_ptr<PX::SettingsStore> m_store;
    QFrame* m_sidebar = nullptr;
    QListWidget* m_pageList = nullptr;
    QStackedWidget* m_pages = nullptr;
    /// In the order of the list.
    QList<PageFrame*> m_frames;
    SchedulePage* m_schedulePage = nullptr;
    RecordingsPage* m_recordingsPage = nullptr;
    GeneralPage* m_generalPage = nullptr;
    NoticeBar* m_noticeBar = nullptr;
    /// How many of the store's notices the user has closed.
    std::size_t m_readNotices = 0;
    std::shared_ptr<Schedule::RecordingsList> m_recordings;
    /// Those of ListProblems() that the user has closed.
    QStringList m_readListProblems;
    RecordingFooter* m_footer = nullptr;
    QStatusBar* m_statusBar = nullptr;
    bool m_isSidebarNarrow = false;
    bool m_isAskingAboutInput = false;
    std::function<PendingWork()> m_workNow = [] { return PendingWork(); };
    std::function<bool()> m_hasTray = [] { return false; };
    /// The whole program is to end, not just the window to go.
    bool m_isQuitting = false;
};

} // namespace Zentor::Desktop
