// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "AppScenes.h"

#include <QCalendarWidget>
#include <QClipboard>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QScreen>
#include <QTimeEdit>
#include <QToolTip>

#include "AreaPicker.h"
#include "AutostartEntry.h"
#include "Boxes.h"
#include "FakeRecorder.h"
#include "FakeScreen.h"
#include "PageRow.h"
#include "PanelParts.h"
#include "RecordingSettings.h"
#include "RecordingsList.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

const QString& NothingButton = Desktop::PanelPart::OffModeButton;
const QString& LimitedButton = Desktop::PanelPart::LimitedModeButton;
const QString& ScheduleButton = Desktop::PanelPart::ScheduledModeButton;
const QString& AddButton = Desktop::PanelPart::AddButton;
const QString& NameEdit = Desktop::PanelPart::NameField;
const QString& StartEdit = Desktop::PanelPart::StartField;
constexpr const char* FolderEdit = "resultsFolderEdit";

/// More than the list shows without scrolling.
constexpr int ManyTasks = 8;

QString LongTitle()
{
    return QStringLiteral("Quarterly review with everybody who has something to say about it");
}

QString ReasonNotToSave()
{
    return QStringLiteral("/home/user/.config/px-scheduler/settings.json: no space is left");
}

QString AbsentDevice()
{
    return QStringLiteral("alsa_input.usb-0");
}

QString SecondScreen()
{
    return QStringLiteral("HDMI-A-1");
}

/// A small screen with the mouse on it, by which boxes choose their width. It is the same at every
/// scale, while the one of the offscreen platform shrinks when the scale grows.
class SmallScreen {
public:
    SmallScreen()
        : m_screen(Plug(SecondScreen(), false, QSize(800, 600) * qApp->devicePixelRatio()))
    {
        QCursor::setPos(m_screen->screen()->geometry().center());
    }
    ~SmallScreen()
    {
        QCursor::setPos(0, 0);
        Unplug(m_screen);
    }
    SmallScreen(const SmallScreen&) = delete;
    SmallScreen& operator=(const SmallScreen&) = delete;

private:
    FakeScreen* m_screen;
};

/// Takes one window from state to state.
class Stage {
public:
    Stage(int taskCount, const QSize& size, const SceneVisitor& visit)
        : m_app(taskCount)
        , m_visit(visit)
    {
        if (!size.isEmpty()) {
            m_app.window->resize(size);
        }
        TakeKeyboard();
    }

    /// Not every platform hands the keyboard back to the window when a popup is closed.
    void TakeKeyboard() const
    {
        // The platform's news about the popup come before those about the window.
        QTest::qWait(0);
        QVERIFY(m_app.Show());
        QTRY_COMPARE_WITH_TIMEOUT(QGuiApplication::focusWindow(), m_app.window->windowHandle(),
                                  Patience);
    }

    const AppWindow& App() const { return m_app; }
    template <typename T> T* Find(const QString& objectName) const
    {
        return m_app.Find<T>(objectName);
    }

    /// Lets the visitor look at \a scene, which \a isReached says has come.
    void Show(const QString& scene, bool isReached) const
    {
        QVERIFY2(isReached, qPrintable(scene));
        Settle();
        m_visit(scene, m_app);
    }

    /// Shows the box that \a ask opens, and answers it.
    void ShowBox(const QString& scene, QMessageBox::StandardButton answer,
                 const std::function<void()>& ask) const
    {
        const SmallScreen screen;
        const ExpectedBox box([&](QMessageBox& opened) {
            Show(scene, opened.isVisible());
            opened.button(answer)->click();
        });
        ask();
        QVERIFY2(box.Came(), qPrintable(scene));
        Settle();
    }

    void Click(const QString& objectName) const
    {
        m_app.Button(objectName)->click();
        Settle();
    }
    void ClickInBox(const QString& objectName, QMessageBox::StandardButton answer) const
    {
        const ExpectedBox box(answer);
        Click(objectName);
        QVERIFY2(box.Came(), qPrintable(objectName));
    }

    void ShowPage(int row) const
    {
        m_app.PageList()->setCurrentRow(row);
        Settle();
    }

    void EnterFolder(const QString& folder) const
    {
        auto* edit = Find<QLineEdit>(FolderEdit);
        edit->setText(folder);
        Q_EMIT edit->editingFinished();
    }

    bool IsMarked(const QString& objectName) const
    {
        return m_app.Find(objectName)->property("SubStyle") == QLatin1String("Invalid");
    }

private:
    AppWindow m_app;
    const SceneVisitor& m_visit;
};

void ShowListsOfPage(const Stage& stage, const QString& page)
{
    const auto boxes = stage.App().window->findChildren<QComboBox*>();
    for (QComboBox* box : boxes) {
        if (!box->isVisible() || !box->isEnabled()) {
            continue;
        }
        box->showPopup();
        stage.Show(page + QStringLiteral(", list of ") + box->objectName(),
                   box->view()->isVisible());
        box->hidePopup();
        stage.TakeKeyboard();
    }
}

void ShowPages(const Stage& stage)
{
    const int count = stage.App().PageList()->count();
    for (int row = 0; row < count; ++row) {
        stage.ShowPage(row);
        const QString page = QStringLiteral("page %1").arg(row);
        stage.Show(page, stage.Find<QStackedWidget>("pages")->currentIndex() == row);
        ShowListsOfPage(stage, page);
    }
    stage.ShowPage(PageRow::Schedule);
}

void ShowModes(const Stage& stage)
{
    stage.Click(LimitedButton);
    stage.Show(QStringLiteral("limited duration"),
               stage.App().Find(Desktop::PanelPart::LimitedSettings)->isVisible());
    ShowListsOfPage(stage, QStringLiteral("limited duration"));
    stage.Click(ScheduleButton);
    stage.Show(QStringLiteral("empty schedule"),
               stage.App().Find(Desktop::PanelPart::PlaceholderRow)->isVisible());
    stage.Click(NothingButton);
    stage.Show(QStringLiteral("nothing scheduled"), stage.App().Button(NothingButton)->isChecked());
}

void ShowFolderProblems(const Stage& stage)
{
    stage.ShowPage(PageRow::Files);
    const std::pair<const char*, const char*> folders[] = {
        {"folder that is no path", "recordings"},
        {"folder that is a file", "/etc/passwd"},
        // Not even the administrator may write there.
        {"folder without permission", "/proc/sys"}};
    for (const auto& [scene, folder] : folders) {
        stage.EnterFolder(QLatin1String(folder));
        stage.Show(QLatin1String(scene), stage.App().Find("folderProblemLabel")->isVisible());
    }
    stage.EnterFolder(stage.App().folder.filePath(QStringLiteral("not yet")));
    stage.Show(QStringLiteral("folder that will be created"), !stage.IsMarked(FolderEdit));
    stage.EnterFolder(stage.App().folder.path());
    stage.ShowPage(PageRow::Schedule);
}

void ShowAutostartProblem(const Stage& stage)
{
    const QString folder = QFileInfo(Desktop::AutostartEntry::FilePath()).path();
    QVERIFY(QDir().mkpath(QFileInfo(folder).path()));
    QFile inTheWay(folder);
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    stage.Click("autostartBox");
    stage.Show(QStringLiteral("entry of the desktop that cannot be written"),
               stage.App().Find("autostartProblemLabel")->isVisible());
    QVERIFY(inTheWay.remove());
}

void ChangeRecording(const Stage& stage,
                     const std::function<void(Schedule::RecordingSettings&)>& change)
{
    Schedule::ChangeRecordingSettings(*stage.App().store, change);
}

void ShowSources(const Stage& stage)
{
    using Source = Schedule::RecordingSettings::Source;
    const QWidget* problem = stage.App().Find("sourceProblemLabel");
    ChangeRecording(stage, [](auto& settings) {
        settings.source = Source::Area;
        settings.area = QRect(10, 20, 640, 480);
    });
    stage.Show(QStringLiteral("selected area"), !problem->isVisible());
    ChangeRecording(stage, [](auto& settings) { settings.area.translate(-9000, -9000); });
    stage.Show(QStringLiteral("area on no screen"), problem->isVisible());
    ChangeRecording(stage, [](auto& settings) {
        settings.source = Source::Screen;
        settings.screenIndex = 11;
    });
    stage.Show(QStringLiteral("screen that is not connected"), problem->isVisible());
    ChangeRecording(stage, [](auto& settings) { settings = {}; });
}

void ShowAreaPicker(const Stage& stage)
{
    stage.Click("pickAreaButton");
    auto* picker = stage.Find<Desktop::AreaPicker>(QString());
    stage.Show(QStringLiteral("area that is being drawn"), picker != nullptr);
    picker->Cancel();
    Settle();
    stage.TakeKeyboard();
}

void ShowSound(const Stage& stage)
{
    const auto count = [&] {
        return stage.App().window->findChildren<QWidget*>("soundDeviceBox").size();
    };
    QTRY_COMPARE_WITH_TIMEOUT(count(), 2, Patience);
    stage.Show(QStringLiteral("sound devices"), true);
    ChangeRecording(stage, [](auto& settings) {
        settings.soundDevices = QStringList{QStringLiteral("mic"), AbsentDevice()};
    });
    stage.Show(QStringLiteral("absent sound device"), count() == 3);
    ChangeRecording(stage, [](auto& settings) { settings = {}; });
}

void ShowTrial(const Stage& stage, FakeRecorder& recorder)
{
    const QWidget* result = stage.App().Find("trialResultLabel");
    recorder.SetRecording("exec sleep 1000");
    stage.Click("trialButton");
    stage.Show(QStringLiteral("trial recording"),
               stage.App().Find("trialProgressBar")->isVisible());
    stage.Click("trialButton");
    stage.Show(QStringLiteral("cancelled trial recording"), result->isVisible());
    recorder.SetRecording("echo px-recorder: 7 >&2; exit 1");
    stage.Click("trialButton");
    QTRY_VERIFY_WITH_TIMEOUT(result->isVisible(), Patience);
    stage.Show(QStringLiteral("trial recording that failed"), result->isVisible());
}

void ShowRecordingPage(const Stage& stage)
{
    FakeRecorder recorder;
    stage.ShowPage(PageRow::Recording);
    ShowSound(stage);
    ShowSources(stage);
    ShowAreaPicker(stage);
    ShowTrial(stage, recorder);
    stage.ShowPage(PageRow::Schedule);
}

void ShowGeneralPage(const Stage& stage)
{
    const auto forgo = [&](bool isForgone) {
        stage.App().store->Change([&](auto& settings) {
            settings.confirmations[QStringLiteral("remove_schedule_record_always")] = isForgone;
        });
    };
    stage.ShowPage(PageRow::General);
    forgo(true);
    stage.Show(QStringLiteral("question that is not asked"),
               stage.App().Button("askAgainButton")->isEnabled());
    stage.Click("askAgainButton");
    forgo(false);
    stage.Show(QStringLiteral("questions that are asked again"),
               !stage.App().Button("askAgainButton")->isEnabled());
    const QString folder = stage.App().folder.path();
    QVERIFY(QDir().rename(folder, folder + QStringLiteral("-1")));
    stage.Click("openFolderButton");
    stage.Show(QStringLiteral("folder that cannot be opened"),
               stage.App().Find("openProblemLabel")->isVisible());
    QVERIFY(QDir().rename(folder + QStringLiteral("-1"), folder));
    ShowAutostartProblem(stage);
    stage.ShowPage(PageRow::Schedule);
}

/// One of each kind: with and without a file, with and without a problem.
std::shared_ptr<Schedule::RecordingsList> SampleRecordings(const Stage& stage)
{
    const auto& folder = stage.App().folder;
    auto list = std::make_shared<Schedule::RecordingsList>(
        folder.filePath(QStringLiteral("recordings.json")));
    list->Open();
    const auto add = [&](const QString& title, Schedule::Outcome outcome, const QString& file,
                         const QString& reason) {
        list->Add({title, At("10:00"), At("11:00"), outcome, file, reason});
    };
    using Schedule::Outcome;
    const QString file = folder.filePath(QStringLiteral("Task 1.mkv"));
    QFile(file).open(QIODevice::WriteOnly);
    add(QStringLiteral("Task 1"), Outcome::Complete, file, {});
    add(QStringLiteral("Task 2"), Outcome::Missed, {}, Schedule::Why::NotRunning);
    add(QStringLiteral("Task 3"), Outcome::Failed, {}, QStringLiteral("no-encoder"));
    add(QStringLiteral("Task 4"), Outcome::Stopped, folder.filePath(QStringLiteral("Task 4.mkv")),
        Schedule::Why::User);
    add(LongTitle(), Outcome::Partial, file, Schedule::Why::ProgramDied);
    add(QStringLiteral("Task 5"), Outcome::Recording, {}, {});
    return list;
}

void ShowRecordings(const Stage& stage)
{
    stage.App().window->ShowRecordings(SampleRecordings(stage));
    stage.ShowPage(PageRow::Recordings);
    auto* view = stage.Find<QAbstractItemView>("recordingsList");
    stage.Show(QStringLiteral("recordings"), view->isVisible());
    // The one that can be repaired.
    view->setCurrentIndex(view->model()->index(1, 0));
    QTRY_VERIFY_WITH_TIMEOUT(stage.App().Button("repairRecordingButton")->isEnabled(), Patience);
    stage.Show(QStringLiteral("recording that can be repaired"), true);
    Q_EMIT view->customContextMenuRequested({});
    stage.Show(QStringLiteral("menu of a recording"), QApplication::activePopupWidget() != nullptr);
    QApplication::activePopupWidget()->close();
    stage.TakeKeyboard();
    stage.ShowBox(QStringLiteral("question about the trash"), QMessageBox::Cancel,
                  [&] { stage.Click("removeRecordingButton"); });
    view->setCurrentIndex(view->model()->index(2, 0));
    stage.ShowBox(QStringLiteral("question about the list"), QMessageBox::Cancel,
                  [&] { stage.Click("removeRecordingButton"); });
    Q_EMIT view->activated(view->currentIndex());
    stage.Show(QStringLiteral("recording that cannot be opened"),
               stage.App().Find("recordingsProblemLabel")->isVisible());
    stage.ShowPage(PageRow::Schedule);
}

void ShowCalendar(const Stage& stage)
{
    auto* date = stage.Find<QDateTimeEdit>(Desktop::PanelPart::DateField);
    constexpr int toButton = 8;
    const QRect rect = date->rect();
    QTest::mouseClick(date, Qt::LeftButton, {},
                      QStyle::visualPos(date->layoutDirection(), rect,
                                        QPoint(rect.right() - toButton, rect.center().y())));
    stage.Show(QStringLiteral("calendar"), date->calendarWidget()->isVisible());
    date->calendarWidget()->window()->close();
    stage.TakeKeyboard();
}

void ShowAreaTip(const Stage& stage)
{
    stage.Click(Desktop::PanelPart::SelectedAreaInfoButton);
    stage.Show(QStringLiteral("tip about the area"), QToolTip::isVisible());
    QToolTip::hideText();
}

void ShowRefusedCharacters(const Stage& stage)
{
    auto* name = stage.Find<QLineEdit>(NameEdit);
    QTest::keyClicks(name, QStringLiteral(":"));
    stage.Show(QStringLiteral("tip about a character"), QToolTip::isVisible());
    QGuiApplication::clipboard()->setText(QStringLiteral("1\n"));
    QTest::keyClick(name, Qt::Key_V, Qt::ControlModifier);
    stage.Show(QStringLiteral("tip about a line break"), QToolTip::isVisible());
    QToolTip::hideText();
}

void ShowScreens(const Stage& stage)
{
    FakeScreen* screen = Plug(SecondScreen());
    const auto* screens = stage.Find<QComboBox>(Desktop::PanelPart::ScreenBox);
    stage.Show(QStringLiteral("form with two screens"), screens->isVisible());
    ShowListsOfPage(stage, QStringLiteral("form with two screens"));
    Unplug(screen);
}

void ShowForm(const Stage& stage)
{
    stage.Click(ScheduleButton);
    stage.Click(AddButton);
    stage.Show(QStringLiteral("form"), stage.App().IsFormOpen());
    ShowAreaTip(stage);
    ShowRefusedCharacters(stage);
    ShowCalendar(stage);
    ShowListsOfPage(stage, QStringLiteral("form"));
    ShowScreens(stage);
    stage.Find<QLineEdit>(NameEdit)->clear();
    stage.Show(QStringLiteral("form without name"), stage.IsMarked(NameEdit));
    stage.ClickInBox(Desktop::PanelPart::BackButton, QMessageBox::No);
}

void ShowSaveProblems(const Stage& stage)
{
    auto* store = stage.App().store.get();
    Q_EMIT store->SaveFailed(ReasonNotToSave());
    stage.Show(QStringLiteral("changes that could not be saved"),
               stage.App().Find("saveProblemLabel")->isVisible());
    Q_EMIT store->Saved();
    stage.Show(QStringLiteral("changes that are saved again"), !stage.App().StatusText().isEmpty());
}

void ShowNotices(const Stage& stage)
{
    QFile file(stage.App().folder.filePath(QStringLiteral("settings.json")));
    QVERIFY(stage.App().store->Flush());
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("{}") == 2);
    file.close();
    stage.App().store->Change(
        [](PX::UserSettings& settings) { settings.resultsFolderPath += QStringLiteral("/1"); });
    QVERIFY(stage.App().store->Flush());
    stage.Show(QStringLiteral("settings that were changed outside"),
               stage.App().Find("noticeBar")->isVisible());
    stage.Click("noticeCloseButton");
}

void ShowClosingQuestion(const Stage& stage)
{
    const QString file = stage.App().folder.filePath(QStringLiteral("settings.json"));
    QVERIFY(stage.App().store->Flush());
    // Nothing can be written where a folder stands in the way.
    QVERIFY(QFile::remove(file));
    QVERIFY(QDir().mkpath(file + QStringLiteral("/1")));
    stage.App().store->Change(
        [](PX::UserSettings& settings) { settings.resultsFolderPath += QStringLiteral("/1"); });
    stage.ShowBox(QStringLiteral("question about closing"), QMessageBox::Cancel,
                  [&] { stage.App().window->close(); });
    QVERIFY(QDir(file).removeRecursively());
}

void ShowRefusedTasks(const Stage& stage)
{
    stage.Click(AddButton);
    stage.Find<QLineEdit>(NameEdit)->setText(QStringLiteral("Task 1"));
    stage.Show(QStringLiteral("form with a name that is taken"), stage.IsMarked(NameEdit));
    stage.Find<QLineEdit>(NameEdit)->setText(LongTitle());
    stage.Find<QDateTimeEdit>(Desktop::PanelPart::DateField)->setDate(QDate(2030, 3, 1));
    auto* start = stage.Find<QTimeEdit>(StartEdit);
    start->setTime(QTime(1, 10));
    stage.Show(QStringLiteral("form with a time that is taken"), stage.IsMarked(StartEdit));
    start->setTime(QTime(20, 0));
    stage.Show(QStringLiteral("form without problem"), !stage.IsMarked(StartEdit));
    stage.ShowBox(QStringLiteral("question about an unsaved task"), QMessageBox::Yes,
                  [&] { stage.Click(Desktop::PanelPart::BackButton); });
    stage.Show(QStringLiteral("long title"), stage.App().Titles().endsWith(LongTitle()));
}

void ShowRecordingStart(const Stage& stage)
{
    stage.Click("startRecordingButton");
    stage.Show(QStringLiteral("ready to record"), !stage.App().StatusText().isEmpty());
    // A file system that has no room for files.
    stage.App().store->Change(
        [](auto& settings) { settings.resultsFolderPath = QStringLiteral("/proc/recordings"); });
    stage.ShowBox(QStringLiteral("full disk"), QMessageBox::Cancel,
                  [&] { stage.Click("startRecordingButton"); });
}

void ShowQuestionAboutPendingWork(const Stage& stage)
{
    const auto none = [] { return false; };
    stage.App().window->AskBeforeClosing([] { return Desktop::PendingWork{true, 2}; }, none);
    stage.ShowBox(QStringLiteral("question about pending work"), QMessageBox::Cancel,
                  [&] { stage.App().window->Quit(); });
    stage.App().window->AskBeforeClosing([] { return Desktop::PendingWork(); }, none);
}

void ShowSchedule(const Stage& stage)
{
    stage.Show(QStringLiteral("schedule"), stage.App().Find(Desktop::PanelPart::Row)->isVisible());
    ShowRefusedTasks(stage);
    ShowRecordingStart(stage);
    ShowQuestionAboutPendingWork(stage);
    stage.ShowBox(QStringLiteral("question about leaving the schedule"), QMessageBox::Cancel,
                  [&] { stage.Click(NothingButton); });
    stage.ShowBox(QStringLiteral("question about deleting"), QMessageBox::Ok,
                  [&] { stage.Click(Desktop::PanelPart::RowDeleteButton); });
    stage.Show(QStringLiteral("deleted task"), !stage.App().StatusText().isEmpty());
    stage.ClickInBox(NothingButton, QMessageBox::Ok);
    stage.Show(QStringLiteral("deleted schedule"), stage.App().Titles().isEmpty());
}

void ShowLongSchedule(const Stage& stage)
{
    stage.Show(QStringLiteral("long schedule"),
               stage.App().Find(Desktop::PanelPart::Row)->isVisible());
}

} // namespace

void Settle()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    // It takes some rounds until the widths of a page and the heights of its wrapped texts agree.
    constexpr int rounds = 10;
    for (int round = 0; round < rounds; ++round) {
        QCoreApplication::sendPostedEvents();
    }
}

void VisitAppScenes(const QSize& size, const SceneVisitor& visit)
{
    // Qt's own platforms say so of themselves; a popup wants the keyboard for itself.
    WidgetTest::AllowWarning(QStringLiteral("^This plugin does not support grabbing the keyboard"));
    // At once on screen, not a while later.
    for (const auto effect : {Qt::UI_AnimateCombo, Qt::UI_AnimateTooltip, Qt::UI_FadeTooltip}) {
        QApplication::setEffectEnabled(effect, false);
    }
    using Play = void (*)(const Stage&);
    struct Part {
        int taskCount;
        std::vector<Play> plays;
    };
    const Part parts[] = {
        {0,
         {ShowPages, ShowModes, ShowRecordingPage, ShowFolderProblems, ShowRecordings,
          ShowGeneralPage, ShowForm, ShowSaveProblems, ShowNotices, ShowClosingQuestion}},
        {2, {ShowSchedule}},
        {ManyTasks, {ShowLongSchedule}}};
    for (const Part& part : parts) {
        const Stage stage(part.taskCount, size, visit);
        for (const Play play : part.plays) {
            play(stage);
            if (QTest::currentTestFailed()) {
                return;
            }
        }
    }
}

QStringList TextsOfTheUser(const AppWindow& app)
{
    QStringList texts{app.folder.filePath(QStringLiteral("settings.json")), app.folder.path(),
                      LongTitle(), SecondScreen(), ReasonNotToSave()};
    // What the recorder calls devices, and what these are called for people.
    texts << AbsentDevice() << QStringLiteral("speakers.monitor") << QStringLiteral("Speakers")
          << QStringLiteral("Microphone") << QStringLiteral("mic");
    // With the reason, which is the system's.
    texts << Desktop::AutostartEntry::FilePath() + QStringLiteral(": Not a directory");
    for (int number = 1; number <= ManyTasks; ++number) {
        texts << QStringLiteral("Task %1").arg(number);
    }
    for (const PX::SettingsNotice& notice : app.store->Notices()) {
        texts.prepend(notice.keptPath);
    }
    texts << QStringLiteral(".mkv");
    const auto screens = QGuiApplication::screens();
    for (const QScreen* screen : screens) {
        texts << screen->name();
    }
    return texts;
}

} // namespace Zentor::Tests
