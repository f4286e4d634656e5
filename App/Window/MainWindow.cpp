// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "MainWindow.h"

#include <algorithm>

#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTimer>

#include "ApplicationSettings.h"
#include "BackgroundSettings.h"
#include "Controls.h"
#include "FilesPage.h"
#include "GeneralPage.h"
#include "HostInterfaces.h"
#include "NoticeBar.h"
#include "PageFrame.h"
#include "RecorderProgram.h"
#include "RecordingFooter.h"
#include "RecordingPage.h"
#include "RecordingsList.h"
#include "RecordingsPage.h"
#include "SchedulePage.h"

namespace Zentor::Desktop {
namespace {

constexpr QSize SmallestSize(480, 320);
/// The least width that has room for the widest page and for the titles of the pages beside it.
constexpr int WidthWithTitles = 1010;
/// The same with icons instead of the titles.
constexpr int WidthOfWidestPage = 864;
constexpr QSize PageIconSize(20, 20);
constexpr int MessageMilliseconds = 5000;
/// The log has them all.
constexpr int MostNotices = 3;

/// Shows \a text in the status line, for some time or, with 0, until something else is shown.
void Announce(QStatusBar* statusBar, const QString& text, int milliseconds)
{
    statusBar->showMessage(text, milliseconds);
    AlertScreenReaders(statusBar);
}

} // namespace

MainWindow::MainWindow(std::shared_ptr<PX::SettingsStore> store,
                       const std::shared_ptr<App::ILookAndFeelManager>& lookAndFeel,
                       QWidget* parent)
    : QMainWindow(parent)
    , m_store(std::move(store))
{
    setObjectName(QStringLiteral("mainWindow"));
    BuildWidgets(lookAndFeel);
    RestorePlace();
    // Now that its room is known, each task is styled only once.
    m_schedulePage->Restore();
    Connect();
    ConnectPages();
    Retranslate();
    UpdateIcons();
    m_pageList->setCurrentRow(0);
    ShowPage(ApplicationSettingsIn(*m_store).page);
}

MainWindow::~MainWindow() = default;

void MainWindow::Follow(Appearance& appearance)
{
    m_generalPage->Follow(appearance);
}

void MainWindow::ShowRecordings(const std::shared_ptr<Schedule::RecordingsList>& list)
{
    m_recordings = list;
    m_recordingsPage->SetList(list);
    connect(list.get(), &Schedule::RecordingsList::SaveProblemChanged, this,
            &MainWindow::ShowNotices);
    ShowNotices();
}

void MainWindow::BuildWidgets(const std::shared_ptr<App::ILookAndFeelManager>& lookAndFeel)
{
    auto* center = new QWidget(this);
    QWidget* sidebar = CreateSidebar(center);
    auto* layout = new QHBoxLayout(center);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(sidebar);
    layout->addWidget(CreatePageColumn(center, lookAndFeel), 1);
    setCentralWidget(center);
    setMinimumSize(SmallestSize);
}

QWidget* MainWindow::CreateSidebar(QWidget* parent)
{
    m_sidebar = new QFrame(parent);
    m_sidebar->setObjectName(QStringLiteral("sidebar"));
    m_pageList = new QListWidget(m_sidebar);
    m_pageList->setObjectName(QStringLiteral("pageList"));
    m_pageList->setIconSize(PageIconSize);
    m_pageList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* layout = new QVBoxLayout(m_sidebar);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_pageList);
    return m_sidebar;
}

QWidget* MainWindow::CreatePageColumn(QWidget* parent,
                                      const std::shared_ptr<App::ILookAndFeelManager>& lookAndFeel)
{
    auto* pageColumn = new QFrame(parent);
    pageColumn->setObjectName(QStringLiteral("pageColumn"));
    m_pages = new QStackedWidget(pageColumn);
    m_pages->setObjectName(QStringLiteral("pages"));
    m_schedulePage = new SchedulePage(m_store, lookAndFeel, m_pages);
    AddPage(m_schedulePage);
    AddPage(new RecordingPage(m_store, m_pages));
    AddPage(new FilesPage(m_store, m_pages));
    m_recordingsPage = new RecordingsPage(Schedule::RecorderProgram(), m_pages);
    AddPage(m_recordingsPage);
    m_generalPage = new GeneralPage(m_store, m_pages);
    AddPage(m_generalPage);

    m_noticeBar = new NoticeBar(pageColumn);
    m_footer = new RecordingFooter(pageColumn);
    m_statusBar = m_footer->StatusBar();
    auto* layout = new QVBoxLayout(pageColumn);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_pages, 1);
    layout->addWidget(m_noticeBar);
    layout->addWidget(m_footer);
    return pageColumn;
}

void MainWindow::AddPage(Page* page)
{
    m_frames << new PageFrame(page, m_pages);
    m_pages->addWidget(m_frames.constLast());
    auto* entry = new QListWidgetItem;
    entry->setData(Qt::UserRole, page->Id());
    m_pageList->addItem(entry);
}

void MainWindow::Connect()
{
    connect(m_pageList, &QListWidget::currentRowChanged, this, [this](int row) {
        if (!CurrentPage()->HasUnfinishedInput()) {
            m_pages->setCurrentIndex(row);
        } else {
            // Later: a list that is being clicked must not wait for an answer.
            QTimer::singleShot(0, this, &MainWindow::FollowPageList);
        }
    });
    connect(m_footer, &RecordingFooter::StartRequested, this, &MainWindow::StartRecording);
    connect(m_store.get(), &PX::SettingsStore::SaveFailed, m_footer,
            &RecordingFooter::SetSaveProblem);
    connect(m_store.get(), &PX::SettingsStore::Saved, this, &MainWindow::ForgetSaveProblem);
    connect(m_store.get(), &PX::SettingsStore::NoticeAdded, this, &MainWindow::ShowNotices);
    connect(m_noticeBar, &NoticeBar::CloseRequested, this, [this] {
        m_readNotices = m_store->Notices().size();
        m_readListProblems = ListProblems();
        ShowNotices();
    });
    const auto* quit = new QShortcut(QKeySequence(QStringLiteral("Ctrl+Q")), this);
    connect(quit, &QShortcut::activated, this, &MainWindow::Quit);
}

void MainWindow::ConnectPages()
{
    // The pages may still announce something while the window, no longer one itself, deletes them.
    QStatusBar* const statusBar = m_statusBar;
    for (const PageFrame* frame : qAsConst(m_frames)) {
        connect(frame->Content(), &Page::Announced, statusBar, [statusBar](const QString& text) {
            Announce(statusBar, text, MessageMilliseconds);
        });
    }
    // Longer on screen than the tip at the field, which goes after some seconds.
    connect(m_schedulePage, &SchedulePage::ProblemChanged, statusBar,
            [statusBar](const QString& problem) { Announce(statusBar, problem, 0); });
    connect(m_schedulePage, &SchedulePage::FilesRequested, this,
            [this] { ShowPage(FilesPage::PageId()); });
    m_schedulePage->SetTabPredecessor(m_pageList);
}

Page* MainWindow::CurrentPage() const
{
    return m_frames.at(m_pages->currentIndex())->Content();
}

void MainWindow::StartRecording()
{
    ApplyPages();
    // The window may be destroyed while the panel asks.
    const QPointer<MainWindow> self(this);
    const bool isReady = m_schedulePage->ValidateSettings();
    if (!self.isNull() && isReady && !ShowPageProblem()) {
        Q_EMIT RecordingRequested();
    }
}

void MainWindow::RemoveTask(const PX::RecordTime& task)
{
    m_schedulePage->RemoveTask(task);
}

void MainWindow::Tell(const QString& text)
{
    Announce(m_statusBar, text, MessageMilliseconds);
}

bool MainWindow::ShowPageProblem()
{
    for (const PageFrame* frame : qAsConst(m_frames)) {
        const QString problem = frame->Content()->Problem();
        if (!problem.isEmpty()) {
            ShowPage(frame->Content()->Id());
            frame->Content()->FocusInput();
            Announce(m_statusBar, problem, MessageMilliseconds);
            return true;
        }
    }
    return false;
}

void MainWindow::ApplyPages()
{
    for (const PageFrame* frame : qAsConst(m_frames)) {
        frame->Content()->Apply();
    }
}

void MainWindow::FollowPageList()
{
    // While it is asked, the list may be moved on: the answer counts for where it stands then.
    if (m_isAskingAboutInput || m_pageList->currentRow() == m_pages->currentIndex()) {
        return;
    }
    const QPointer<MainWindow> self(this);
    m_isAskingAboutInput = true;
    const bool isFinished = CurrentPage()->FinishInput();
    if (self.isNull()) {
        return;
    }
    m_isAskingAboutInput = false;
    if (isFinished) {
        m_pages->setCurrentIndex(m_pageList->currentRow());
    } else {
        m_pageList->setCurrentRow(m_pages->currentIndex());
        CurrentPage()->FocusInput();
    }
}

void MainWindow::ShowPage(const QString& id)
{
    for (int index = 0; index < m_frames.size(); ++index) {
        if (m_frames.at(index)->Content()->Id() == id) {
            m_pages->setCurrentIndex(index);
            m_pageList->setCurrentRow(index);
        }
    }
}

void MainWindow::RestorePlace()
{
    const ApplicationSettings settings = ApplicationSettingsIn(*m_store);
    if (settings.windowGeometry.isEmpty() || !restoreGeometry(settings.windowGeometry)) {
        resize(FirstSize());
    }
    FitScreen();
    FitWidth();
}

void MainWindow::FitWidth()
{
    SetSidebarNarrow(width() < WidthWithTitles);
    for (PageFrame* frame : qAsConst(m_frames)) {
        frame->SetCompact(width() < WidthOfWidestPage);
    }
}

void MainWindow::FitScreen()
{
    if (screen() == nullptr) {
        return;
    }
    // The frame that the desktop will draw is not known yet; it is much like the style's own.
    const int frame = style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth, nullptr, this);
    const int title = style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, this);
    const QRect room = screen()->availableGeometry().adjusted(frame, title, -frame, -frame);
    resize(size().boundedTo(room.size()));
    // A screen that is too small for the window shows its upper left part.
    const QPoint last(qMax(room.left(), room.right() + 1 - width()),
                      qMax(room.top(), room.bottom() + 1 - height()));
    const QPoint place(qBound(room.left(), geometry().x(), last.x()),
                       qBound(room.top(), geometry().y(), last.y()));
    // Only from a place that was remembered: where a new window comes is the desktop's choice.
    if (testAttribute(Qt::WA_Moved) && place != geometry().topLeft()) {
        setGeometry({place, size()});
    }
}

void MainWindow::RememberPlace()
{
    ChangeApplicationSettings(*m_store, [&](ApplicationSettings& settings) {
        settings.windowGeometry = saveGeometry();
        settings.page = CurrentPage()->Id();
    });
}

void MainWindow::AskBeforeClosing(std::function<PendingWork()> workNow,
                                  std::function<bool()> hasTray)
{
    m_workNow = std::move(workNow);
    m_hasTray = std::move(hasTray);
}

void MainWindow::Raise()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    QWidget* box = QApplication::activeModalWidget();
    for (QWidget* window : {static_cast<QWidget*>(this), box}) {
        if (window != nullptr) {
            window->raise();
            window->activateWindow();
        }
    }
}

bool MainWindow::SaveUnattended()
{
    m_schedulePage->RememberInput();
    return SaveChanges();
}

bool MainWindow::SaveChanges()
{
    ApplyPages();
    const bool isSaved = m_store->Flush();
    // Where the window stands is nothing that the user has changed.
    RememberPlace();
    return m_store->Flush() || isSaved;
}

void MainWindow::Retranslate()
{
    const QString name = tr("Recording Scheduler");
    // First: the desktop would add the name in the language before to the title. It shows the name
    // on boxes that have no title of their own.
    QApplication::setApplicationDisplayName(name);
    setWindowTitle(name);
    // What it says is in the language before.
    m_statusBar->clearMessage();
    m_pageList->setAccessibleName(tr("Settings pages"));
    m_footer->SetSaveProblem(m_store->SaveProblem());
    ShowNotices();
    ShowPageTitles();
    for (PageFrame* frame : qAsConst(m_frames)) {
        frame->Retranslate();
    }
}

void MainWindow::ShowPageTitles()
{
    for (int index = 0; index < m_frames.size(); ++index) {
        const QString title = m_frames.at(index)->Content()->Title();
        QListWidgetItem* entry = m_pageList->item(index);
        // No text at all: Qt 6 keeps room for an empty one.
        entry->setData(Qt::DisplayRole, m_isSidebarNarrow ? QVariant() : title);
        entry->setToolTip(m_isSidebarNarrow ? title : QString());
        entry->setData(Qt::AccessibleTextRole, title);
    }
}

void MainWindow::SetSidebarNarrow(bool isNarrow)
{
    if (isNarrow == m_isSidebarNarrow) {
        return;
    }
    m_isSidebarNarrow = isNarrow;
    Util::ApplyWidgetStyle(
        m_sidebar, isNarrow ? QStringLiteral("Narrow") : QStringLiteral("Normal"), "SubStyle");
    ShowPageTitles();
}

void MainWindow::UpdateIcons()
{
    for (int index = 0; index < m_frames.size(); ++index) {
        m_pageList->item(index)->setIcon(m_frames.at(index)->Content()->Icon());
    }
}

void MainWindow::ShowNotices()
{
    const auto& notices = m_store->Notices();
    const auto unread = std::min(notices.size() - m_readNotices, std::size_t(MostNotices));
    QStringList texts;
    for (auto notice = notices.end() - static_cast<std::ptrdiff_t>(unread); notice != notices.end();
         ++notice) {
        texts << notice->Text();
    }
    texts << UnreadListProblems();
    m_noticeBar->SetText(texts.join(QLatin1Char('\n')));
}

QStringList MainWindow::UnreadListProblems()
{
    QStringList problems = ListProblems();
    // What is over, and comes again, is told again.
    QStringList read;
    for (const QString& problem : qAsConst(m_readListProblems)) {
        if (problems.removeAll(problem) > 0) {
            read << problem;
        }
    }
    m_readListProblems = read;
    return problems;
}

QStringList MainWindow::ListProblems() const
{
    if (m_recordings == nullptr) {
        return {};
    }
    QStringList problems{m_recordings->Notice(), m_recordings->SaveProblem()};
    problems.removeAll({});
    return problems;
}

void MainWindow::ForgetSaveProblem()
{
    if (m_footer->SaveProblem().isEmpty()) {
        return;
    }
    m_footer->SetSaveProblem({});
    m_statusBar->showMessage(tr("Your changes are saved again."), MessageMilliseconds);
}

bool MainWindow::IsClosingWithoutSavingAccepted()
{
    Util::AlertBox box(Util::AlertBox::Warning, QString(),
                       tr("Your changes could not be saved. They will be lost if you close "
                          "the window now."),
                       QMessageBox::Ok | QMessageBox::Cancel, this,
                       Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    box.setObjectName(QStringLiteral("unsavedSettingsBox"));
    box.button(QMessageBox::Ok)->setText(tr("Close anyway"));
    return box.Exec() == QMessageBox::Ok;
}

bool MainWindow::IsLosingWorkAccepted()
{
    const PendingWork work = m_workNow();
    if (!work.IsAny()) {
        return true;
    }
    QStringList texts;
    if (work.isRecording) {
        texts << tr("The recording that is running will be stopped.");
    }
    if (work.taskCount > 0) {
        texts << tr("%n task(s) are still to come. They will not be recorded when the program is "
                    "not running.",
                    nullptr, work.taskCount);
    }
    // The window may be destroyed meanwhile, and the box with it.
    const QPointer<Util::AlertBox> box = new Util::AlertBox(
        Util::AlertBox::Question, QString(), texts.join(QLatin1Char('\n')),
        QMessageBox::Ok | QMessageBox::Cancel, this, Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    box->setObjectName(QStringLiteral("pendingWorkBox"));
    box->button(QMessageBox::Ok)->setText(tr("Quit"));
    const bool isAccepted = box->Exec() == QMessageBox::Ok;
    delete box;
    return isAccepted;
}

void MainWindow::changeEvent(QEvent* event)
{
    // Both arrive for the first time while the window is still being built.
    if (m_footer != nullptr && event->type() == QEvent::LanguageChange) {
        Retranslate();
        Q_EMIT LanguageChanged();
    }
    if (m_footer != nullptr && event->type() == QEvent::PaletteChange) {
        UpdateIcons();
    }
    QMainWindow::changeEvent(event);
}

void MainWindow::resizeEvent(QResizeEvent* event)
{
    FitWidth();
    QMainWindow::resizeEvent(event);
}

void MainWindow::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    Q_EMIT Shown();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    event->ignore();
    const auto decision =
        DecideClose(m_workNow(), BackgroundSettingsIn(*m_store).keepRunning, m_hasTray());
    if (decision != CloseDecision::Close && !m_isQuitting) {
        StepAside(decision);
        return;
    }
    // The window may be destroyed while the user is asked.
    const QPointer<MainWindow> self(this);
    // What is unfinished in a hidden window waits for the next start.
    const bool isFinished = !isVisible() || CurrentPage()->FinishInput();
    const bool isAccepted = isFinished && !self.isNull() && IsLosingWorkAccepted() && !self.isNull()
        && (SaveChanges() || IsClosingWithoutSavingAccepted());
    if (isAccepted && !self.isNull()) {
        event->accept();
        Q_EMIT Closed();
    }
}

void MainWindow::StepAside(CloseDecision decision)
{
    SaveChanges();
    if (decision == CloseDecision::Minimize) {
        showMinimized();
        return;
    }
    m_schedulePage->KeepInput();
    hide();
    if (!BackgroundSettingsIn(*m_store).toldAboutTray) {
        ChangeBackgroundSettings(*m_store, [](auto& settings) { settings.toldAboutTray = true; });
        Q_EMIT HiddenInTray();
    }
}

void MainWindow::Quit()
{
    if (QApplication::activeModalWidget() != nullptr) {
        // One question at a time.
        Raise();
        return;
    }
    const QPointer<MainWindow> self(this);
    m_isQuitting = true;
    close();
    if (!self.isNull()) {
        m_isQuitting = false;
    }
}

} // namespace Zentor::Desktop
