#include "MainWindow.h"

#include <QAccessible>
#include <QApplication>
#include <QCalendarWidget>
#include <QCloseEvent>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QStackedWidget>
#include <QStatusBar>
#include <QStyledItemDelegate>
#include <QTextCharFormat>
#include <QTimer>

#include "Application/SettingsManager.h"
#include "FilesPage.h"
#include "GeneralPage.h"
#include "HostInterfaces.h"
#include "Page.h"
#include "PanelAnnouncer.h"
#include "PanelKeyboard.h"
#include "PanelMouse.h"
#include "PXUserSettings/SettingsStore.h"
#include "PXUserSettings/StoredSettings.h"
#include "RecordSchedulerWidget.h"
#include "StatusLine.h"
#include "Theme.h"

namespace Zentor::Desktop {
namespace {

constexpr QSize smallestSize(480, 320);
constexpr int messageMilliseconds = 5000;

QString ScheduleId()
{
    return QStringLiteral("schedule");
}

QString FilesId()
{
    return QStringLiteral("files");
}

QString GeneralId()
{
    return QStringLiteral("general");
}

/// A combo box draws the entries of its list past the style sheet unless it is given this delegate.
void LetSheetDrawLists(const QWidget& parent)
{
    const auto boxes = parent.findChildren<QComboBox*>();
    for (QComboBox* box : boxes) {
        box->setItemDelegate(new QStyledItemDelegate(box));
    }
}

/// Shows \a text in the status line, for some time or, with 0, until something else is shown.
void Announce(QStatusBar* statusBar, const QString& text, int milliseconds)
{
    statusBar->showMessage(text, milliseconds);
    QAccessibleEvent event(statusBar, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

} // namespace

MainWindow::MainWindow(std::shared_ptr<PX::SettingsStore> store,
                       std::shared_ptr<App::ILookAndFeelManager> lookAndFeel, QWidget* parent)
    : QMainWindow(parent)
    , m_store(std::move(store))
    , m_lookAndFeel(std::move(lookAndFeel))
{
    setObjectName(QStringLiteral("mainWindow"));
    BuildWidgets();
    Connect();
    AssistPanel();
    Retranslate();
    UpdateIcons();
    RestorePlace();
}

MainWindow::~MainWindow() = default;

void MainWindow::BuildWidgets()
{
    auto* center = new QWidget(this);
    auto* sidebar = new QFrame(center);
    sidebar->setObjectName(QStringLiteral("sidebar"));
    m_pageList = new QListWidget(sidebar);
    m_pageList->setObjectName(QStringLiteral("pageList"));
    m_pageList->setIconSize(QSize(20, 20));
    m_pageList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* sidebarLayout = new QVBoxLayout(sidebar);
    sidebarLayout->setContentsMargins(0, 0, 0, 0);
    sidebarLayout->addWidget(m_pageList);

    auto* layout = new QHBoxLayout(center);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(sidebar);
    layout->addWidget(CreatePageColumn(center), 1);
    setCentralWidget(center);
    setMinimumSize(smallestSize);
}

QWidget* MainWindow::CreatePageColumn(QWidget* parent)
{
    auto* pageColumn = new QFrame(parent);
    pageColumn->setObjectName(QStringLiteral("pageColumn"));
    m_pages = new QStackedWidget(pageColumn);
    m_pages->setObjectName(QStringLiteral("pages"));
    AddPage(CreateSchedulePage());
    AddPage(CreateFilesPage());
    AddPage(CreateGeneralPage());

    QWidget* foot = CreateFoot(pageColumn);
    auto* layout = new QVBoxLayout(pageColumn);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_pages, 1);
    layout->addWidget(foot);
    return pageColumn;
}

QWidget* MainWindow::CreateFoot(QWidget* parent)
{
    auto* foot = new QFrame(parent);
    foot->setObjectName(QStringLiteral("foot"));
    m_statusBar = new StatusLine(foot);
    m_statusBar->setSizeGripEnabled(false);
    m_saveProblemLabel = new ZLabel(m_statusBar);
    m_saveProblemLabel->setObjectName(QStringLiteral("saveProblemLabel"));
    // A long reason is shortened; it takes no room from the button.
    m_saveProblemLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_saveProblemLabel->hide();
    m_statusBar->addWidget(m_saveProblemLabel, 1);
    m_startButton = new QPushButton(foot);
    m_startButton->setObjectName(QStringLiteral("startRecordingButton"));
    // Lets Enter press it when it has the focus.
    m_startButton->setAutoDefault(true);

    auto* layout = new QHBoxLayout(foot);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_statusBar, 1);
    layout->addWidget(m_startButton);
    return foot;
}

void MainWindow::AddPage(Page* page)
{
    m_pages->addWidget(page);
    m_pageList->addItem(new QListWidgetItem);
}

PX::Scheduler::UI::RecordSchedulerWidget* MainWindow::CreatePanel()
{
    auto* panel = new PX::Scheduler::UI::RecordSchedulerWidget(
        m_lookAndFeel, std::make_shared<App::SettingsManager>(m_store), m_pages);
    panel->setObjectName(QStringLiteral("recordSchedulerWidget"));
    panel->SetSchedulerSettings(std::make_shared<PX::StoredSchedulerSettings>(m_store));
    panel->SetCaptureFinishActionSettings(
        std::make_shared<PX::StoredCaptureFinishActionSettings>(m_store));
    panel->SetPathSettings(std::make_shared<PX::StoredPathsSettings>(m_store));
    panel->SetSettingsWatcher(std::make_shared<PX::StoringSettingsWatcher>(m_store));
    panel->RestoreSettings();
    LetSheetDrawLists(*panel);
    connect(panel, &PX::Scheduler::UI::RecordSchedulerWidget::OpenFilesSettingsRequested, this,
            [this] { ShowPage(FilesId()); });
    return panel;
}

Page* MainWindow::CreateSchedulePage()
{
    m_panel = CreatePanel();
    return new Page(ScheduleId(), m_panel, m_pages);
}

Page* MainWindow::CreateFilesPage()
{
    m_filesPage = new FilesPage(m_store, m_pages);
    return new Page(FilesId(), m_filesPage, m_pages);
}

Page* MainWindow::CreateGeneralPage()
{
    m_generalPage = new GeneralPage(m_store, m_pages);
    LetSheetDrawLists(*m_generalPage);
    return new Page(GeneralId(), m_generalPage, m_pages);
}

void MainWindow::Connect()
{
    connect(m_pageList, &QListWidget::currentRowChanged, this, [this](int row) {
        if (!IsTaskUnfinished()) {
            m_pages->setCurrentIndex(row);
        } else {
            // Later: a list that is being clicked must not wait for an answer.
            QTimer::singleShot(0, this, &MainWindow::FollowPageList);
        }
    });
    connect(m_generalPage, &GeneralPage::Happened, m_statusBar,
            [this](const QString& text) { Announce(m_statusBar, text, messageMilliseconds); });
    connect(m_startButton, &QPushButton::clicked, this, &MainWindow::StartRecording);
    connect(m_store.get(), &PX::SettingsStore::SaveFailed, this, &MainWindow::ShowSaveProblem);
    connect(m_store.get(), &PX::SettingsStore::Saved, this, &MainWindow::ForgetSaveProblem);
    const auto* quit = new QShortcut(QKeySequence::Quit, this);
    connect(quit, &QShortcut::activated, this, &MainWindow::close);
}

void MainWindow::AssistPanel()
{
    new PanelKeyboard(m_panel);
    new PanelMouse(m_panel);
    m_announcer = new PanelAnnouncer(m_panel, m_store);
    // The form is hidden once more at the end of the window, when only its widgets are left.
    QStatusBar* const bar = m_statusBar;
    connect(m_announcer, &PanelAnnouncer::Happened, bar,
            [bar](const QString& text) { Announce(bar, text, messageMilliseconds); });
    // Longer on screen than the tip at the field, which goes after some seconds.
    connect(m_announcer, &PanelAnnouncer::ProblemChanged, bar,
            [bar](const QString& problem) { Announce(bar, problem, 0); });
}

void MainWindow::RebuildPanel()
{
    // While a panel is restored it stores the schedule anew, task by task. That is no news.
    delete m_announcer;
    auto* page = qobject_cast<Page*>(m_pages->widget(0));
    m_panel = CreatePanel();
    page->ReplaceSettings(m_panel);
    AssistPanel();
    RetranslatePanel();
    OrderTabs();
}

void MainWindow::OrderTabs()
{
    QList<QWidget*> stops;
    for (QWidget* widget = m_panel->nextInFocusChain(); m_panel->isAncestorOf(widget);
         widget = widget->nextInFocusChain()) {
        if (widget->focusPolicy() != Qt::NoFocus && widget->focusProxy() == nullptr) {
            stops << widget;
        }
    }
    QWidget* previous = m_pageList;
    for (QWidget* stop : qAsConst(stops)) {
        setTabOrder(previous, stop);
        previous = stop;
    }
}

void MainWindow::RetranslatePanel()
{
    m_panel->findChild<QWidget*>(QStringLiteral("recordTableScrollArea"))
        ->setAccessibleName(tr("Recording schedule"));
    // Which days are the weekend is a matter of the language, too.
    ColorCalendar();
}

void MainWindow::ColorCalendar()
{
    QTextCharFormat ofWeekend;
    ofWeekend.setForeground(
        QColor(ColorsOf(ThemeOf(QApplication::palette())).value(QStringLiteral("danger"))));
    const auto workdays = QLocale().weekdays();
    auto* calendar = m_panel->findChild<QCalendarWidget*>();
    for (int day = Qt::Monday; day <= Qt::Sunday; ++day) {
        const auto weekday = static_cast<Qt::DayOfWeek>(day);
        calendar->setWeekdayTextFormat(weekday,
                                       workdays.contains(weekday) ? QTextCharFormat() : ofWeekend);
    }
}

void MainWindow::StartRecording()
{
    m_filesPage->Apply();
    // The window may be destroyed while the panel asks.
    const QPointer<MainWindow> self(this);
    const bool isReady = m_panel->ValidateSettings();
    if (!self.isNull() && isReady) {
        Announce(m_statusBar, tr("Ready to record"), messageMilliseconds);
    }
}

bool MainWindow::IsTaskUnfinished() const
{
    return m_panel->findChild<QWidget*>(QStringLiteral("createRecordTaskWidget"))->isVisible();
}

bool MainWindow::FinishTask()
{
    if (!IsTaskUnfinished()) {
        return true;
    }
    // The window may be destroyed while the panel asks.
    const QPointer<MainWindow> self(this);
    m_panel->findChild<QPushButton*>(QStringLiteral("scheduledCaptureSettingsBackButton"))->click();
    return !self.isNull() && !IsTaskUnfinished();
}

void MainWindow::FollowPageList()
{
    // While it is asked, the list may be moved on: the answer counts for where it stands then.
    if (m_isAskingAboutTask || m_pageList->currentRow() == m_pages->currentIndex()) {
        return;
    }
    const QPointer<MainWindow> self(this);
    m_isAskingAboutTask = true;
    const bool isFinished = FinishTask();
    if (self.isNull()) {
        return;
    }
    m_isAskingAboutTask = false;
    if (isFinished) {
        m_pages->setCurrentIndex(m_pageList->currentRow());
    } else {
        m_pageList->setCurrentRow(m_pages->currentIndex());
        m_panel->findChild<QWidget*>(QStringLiteral("scheduledCaptureSettingsNameLineEdit"))
            ->setFocus(Qt::OtherFocusReason);
    }
}

void MainWindow::ShowPage(const QString& id)
{
    for (int index = 0; index < m_pages->count(); ++index) {
        if (qobject_cast<Page*>(m_pages->widget(index))->Id() == id) {
            m_pages->setCurrentIndex(index);
            m_pageList->setCurrentRow(index);
        }
    }
}

void MainWindow::RestorePlace()
{
    const PX::UserSettings& settings = m_store->Settings();
    if (settings.windowGeometry.isEmpty() || !restoreGeometry(settings.windowGeometry)) {
        resize(FirstSize());
    }
    FitScreen();
    m_pageList->setCurrentRow(0);
    ShowPage(settings.page);
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
    const QPoint place(qBound(room.left(), geometry().x(), room.right() + 1 - width()),
                       qBound(room.top(), geometry().y(), room.bottom() + 1 - height()));
    // Only from a place that was remembered: where a new window comes is the desktop's choice.
    if (testAttribute(Qt::WA_Moved) && place != geometry().topLeft()) {
        setGeometry({place, size()});
    }
}

void MainWindow::RememberPlace()
{
    const auto* page = qobject_cast<Page*>(m_pages->currentWidget());
    m_store->Change([&](PX::UserSettings& settings) {
        settings.windowGeometry = saveGeometry();
        settings.page = page->Id();
    });
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
    m_startButton->setText(tr("&Start recording"));
    RetranslatePanel();
    if (!m_saveProblemLabel->isHidden()) {
        ShowSaveProblem(m_store->SaveProblem());
    }
    RetranslatePage(0, tr("Schedule"), tr("Choose when a recording stops or starts by itself."));
    RetranslatePage(1, tr("Files"), tr("Choose where recordings are kept."));
    RetranslatePage(2, tr("General"), tr("Choose language and theme."));
}

void MainWindow::RetranslatePage(int index, const QString& title, const QString& description)
{
    m_pageList->item(index)->setText(title);
    qobject_cast<Page*>(m_pages->widget(index))->SetTexts(title, description);
}

void MainWindow::UpdateIcons()
{
    for (int index = 0; index < m_pages->count(); ++index) {
        const auto* page = qobject_cast<Page*>(m_pages->widget(index));
        m_pageList->item(index)->setIcon(ThemedIcon(page->Id()));
    }
}

void MainWindow::ShowSaveProblem(const QString& reason)
{
    m_saveProblemLabel->setOriginalText(tr("Your changes could not be saved: %1").arg(reason));
    m_saveProblemLabel->show();
}

void MainWindow::ForgetSaveProblem()
{
    if (m_saveProblemLabel->isHidden()) {
        return;
    }
    m_saveProblemLabel->hide();
    m_statusBar->showMessage(tr("Your changes are saved again."), messageMilliseconds);
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

void MainWindow::changeEvent(QEvent* event)
{
    // Both arrive for the first time while the window is still being built.
    if (m_startButton != nullptr && event->type() == QEvent::LanguageChange) {
        Retranslate();
        // A form is left as the user has it; it is closed before the page with the languages is
        // shown.
        if (!m_store->Settings().schedule.empty() && !IsTaskUnfinished()) {
            RebuildPanel();
        }
    }
    if (m_startButton != nullptr && event->type() == QEvent::PaletteChange) {
        UpdateIcons();
        ColorCalendar();
    }
    QMainWindow::changeEvent(event);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!FinishTask()) {
        event->ignore();
        return;
    }
    m_filesPage->Apply();
    RememberPlace();
    event->setAccepted(m_store->Flush() || IsClosingWithoutSavingAccepted());
}

} // namespace Zentor::Desktop
