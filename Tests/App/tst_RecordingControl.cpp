// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RecordingControl.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "AppWindow.h"
#include "Boxes.h"
#include "FakeLogin.h"
#include "FullDisk.h"
#include "Instance.h"
#include "PageRow.h"
#include "RecorderProgram.h"
#include "RecordingFooter.h"
#include "Resources.h"
#include "Theme.h"
#include "TrayIcon.h"
#include "WidgetTest.h"

namespace Zentor::Schedule {

QString RecorderProgram()
{
    return QStringLiteral(PX_LINE_RECORDER);
}

} // namespace Zentor::Schedule

namespace Zentor::Tests {
namespace {

using namespace std::chrono_literals;

using Desktop::Instance;
using Desktop::MainWindow;
using Desktop::RecordingControl;
using Schedule::Outcome;
using Schedule::RecordingEntry;
using Schedule::RecordingsList;

constexpr int NeverEnded = -1;

/// A task called "Lecture" that starts in a moment.
PX::RecordTime Lecture(std::chrono::seconds duration)
{
    const auto now = QDateTime::currentDateTimeUtc();
    PX::RecordTime task = Record(QStringLiteral("Lecture"), At(now.addSecs(4)), duration);
    task.screenIndex = 0;
    return task;
}

} // namespace

class tst_RecordingControl : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void recordsFromTheWindow();
    void obeysOtherCommandLines();
    void startsAnewAsSoonAsTheLastFileIsClosed();
    void takesATaskThatIsDoneOutOfThePanel();
    void recordsOnWhileItsWindowIsClosed();
    void tellsWhereNothingElseCan();
    void closesTheFileBeforeItQuits();
    void savesWhatIsTypedWhenItEnds();
    void saysThatSomethingIsNotSaved_data();
    void saysThatSomethingIsNotSaved();
    void endsWithTheActionQuit();

private:
    void Begin(const std::vector<PX::RecordTime>& tasks = {});
    int ExitCodeAfter(const std::function<void()>& request) const;
    MainWindow& Window() const { return *m_app->window; }
    QPushButton* Button(const char* name) const { return m_app->Find<QPushButton>(name); }
    std::vector<RecordingEntry> Entries() const;
    bool HasOutcomes(const std::vector<Outcome>& outcomes) const;
    int RowsInPanel() const;
    bool IsToldOnRaising() const;

    std::unique_ptr<AppWindow> m_app;
    std::shared_ptr<RecordingsList> m_list;
    std::unique_ptr<Desktop::TrayIcon> m_tray;
    std::unique_ptr<Instance> m_instance;
    std::unique_ptr<RecordingControl> m_control;
};

void tst_RecordingControl::initTestCase()
{
    FakeLogin::UseSessionBus();
    // As in the program: a hidden window is not the end.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    Desktop::RegisterResources();
    Desktop::ApplyTheme(Desktop::Theme::Light);
}

void tst_RecordingControl::cleanup()
{
    m_control.reset();
    m_instance.reset();
    m_tray.reset();
    m_list.reset();
    m_app.reset();
    WidgetTest::cleanup();
}

void tst_RecordingControl::Begin(const std::vector<PX::RecordTime>& tasks)
{
    m_app = std::make_unique<AppWindow>(tasks);
    const QString settings = m_app->folder.filePath("settings.json");
    m_list = std::make_shared<RecordingsList>(RecordingsList::PathFor(settings));
    QCOMPARE(m_list->Open(), QString());
    Window().ShowRecordings(m_list);
    m_tray = std::make_unique<Desktop::TrayIcon>();
    m_instance = std::make_unique<Instance>(settings, settings);
    m_control =
        std::make_unique<RecordingControl>(m_app->store, m_list, Window(), *m_tray, *m_instance);
    Window().AskBeforeClosing([this] { return m_control->Work(); }, [] { return true; });
    m_control->Begin();
    QVERIFY(m_app->Show());
}

/// What the program ends with when it is asked by \a request, or NeverEnded.
int tst_RecordingControl::ExitCodeAfter(const std::function<void()>& request) const
{
    QTimer::singleShot(0, m_control.get(), request);
    QTimer::singleShot(Patience, m_control.get(), [] { QApplication::exit(NeverEnded); });
    return QApplication::exec();
}

std::vector<RecordingEntry> tst_RecordingControl::Entries() const
{
    std::vector<RecordingEntry> entries;
    for (const auto& item : m_list->Items()) {
        entries.push_back(item.entry);
    }
    return entries;
}

bool tst_RecordingControl::HasOutcomes(const std::vector<Outcome>& outcomes) const
{
    const auto entries = Entries();
    return std::equal(entries.begin(), entries.end(), outcomes.begin(), outcomes.end(),
                      [](const auto& entry, Outcome outcome) { return entry.outcome == outcome; });
}

int tst_RecordingControl::RowsInPanel() const
{
    return int(Window().findChildren<QAbstractButton*>(Desktop::PanelPart::RowDeleteButton).size());
}

void tst_RecordingControl::recordsFromTheWindow()
{
    Begin();
    Button("startRecordingButton")->click();
    QTRY_VERIFY_WITH_TIMEOUT(HasOutcomes({Outcome::Recording}), Patience);
    QVERIFY(m_control->Work().isRecording);
    QTRY_VERIFY_WITH_TIMEOUT(Button("stopRecordingButton")->isVisible(), Patience);
    QVERIFY(!Button("startRecordingButton")->isVisible());
    Button("stopRecordingButton")->click();
    QTRY_VERIFY_WITH_TIMEOUT(HasOutcomes({Outcome::Stopped}), Patience);
    QVERIFY(QFile::exists(Entries().front().file));
    QTRY_VERIFY_WITH_TIMEOUT(Button("startRecordingButton")->isVisible(), Patience);
    QVERIFY(!m_control->Work().IsAny());
}

void tst_RecordingControl::obeysOtherCommandLines()
{
    Begin();
    Q_EMIT m_instance->StartRequested();
    QTRY_VERIFY_WITH_TIMEOUT(HasOutcomes({Outcome::Recording}), Patience);
    const auto* headline = m_app->Find<QLabel>("recordingHeadlineLabel");
    const QString running = headline->text();
    Q_EMIT m_instance->PauseRequested();
    QTRY_VERIFY_WITH_TIMEOUT(headline->text() != running, Patience);
    Q_EMIT m_instance->PauseRequested();
    QTRY_COMPARE_WITH_TIMEOUT(headline->text(), running, Patience);
    Q_EMIT m_instance->StopRequested();
    QTRY_VERIFY_WITH_TIMEOUT(HasOutcomes({Outcome::Stopped}), Patience);
    // A second one is none.
    Q_EMIT m_instance->StopRequested();
    QCOMPARE(ExitCodeAfter([this] { Q_EMIT m_instance->QuitRequested(); }), EXIT_SUCCESS);
    QVERIFY(HasOutcomes({Outcome::Stopped}));
}

void tst_RecordingControl::startsAnewAsSoonAsTheLastFileIsClosed()
{
    Begin();
    QVERIFY(m_instance->Do("start"));
    QTRY_VERIFY_WITH_TIMEOUT(HasOutcomes({Outcome::Recording}), Patience);
    QVERIFY(m_instance->Do("stop"));
    QVERIFY(m_instance->Do("start"));
    QVERIFY(HasOutcomes({Outcome::Recording}));
    QTRY_VERIFY_WITH_TIMEOUT(HasOutcomes({Outcome::Stopped, Outcome::Recording}), Patience);
}

void tst_RecordingControl::takesATaskThatIsDoneOutOfThePanel()
{
    PX::RecordTime other = Lecture(1h);
    other.title = QStringLiteral("Other");
    other.start += 24h;
    Begin({Lecture(2s), other});
    QCOMPARE(RowsInPanel(), 2);
    QCOMPARE(m_control->Work().taskCount, 2);
    QTRY_COMPARE_WITH_TIMEOUT(RowsInPanel(), 1, Patience);
    QCOMPARE(m_app->Titles(), QStringLiteral("Other"));
    QCOMPARE(m_control->Work().taskCount, 1);
    QCOMPARE(Entries().size(), std::size_t(1));
    QVERIFY(QFile::exists(Entries().front().file));
}

void tst_RecordingControl::recordsOnWhileItsWindowIsClosed()
{
    Begin();
    Button("startRecordingButton")->click();
    QTRY_VERIFY_WITH_TIMEOUT(HasOutcomes({Outcome::Recording}), Patience);
    QVERIFY(!Window().close());
    QVERIFY(!Window().isVisible());
    QVERIFY(m_control->Work().isRecording);
    Window().Raise();
    QTRY_VERIFY_WITH_TIMEOUT(Button("stopRecordingButton")->isVisible(), Patience);
    QVERIFY(HasOutcomes({Outcome::Recording}));
}

void tst_RecordingControl::tellsWhereNothingElseCan()
{
    Begin();
    Window().hide();
    Q_EMIT m_instance->StartRequested();
    QTRY_VERIFY_WITH_TIMEOUT(HasOutcomes({Outcome::Recording}), Patience);
    Q_EMIT m_instance->StopRequested();
    QTRY_VERIFY_WITH_TIMEOUT(HasOutcomes({Outcome::Stopped}), Patience);
    // The answer of the bus that there is nobody to show them.
    QVERIFY(QTest::qWaitFor([this] { return IsToldOnRaising(); }, Patience));
    QVERIFY(!IsToldOnRaising());
}

/// Whether the window says that there are no notifications when it is brought up.
bool tst_RecordingControl::IsToldOnRaising() const
{
    Window().findChild<QStatusBar*>()->clearMessage();
    Window().Raise();
    const bool isTold = m_app->StatusText().contains(QLatin1String("notifications"));
    Window().hide();
    return isTold;
}

void tst_RecordingControl::closesTheFileBeforeItQuits()
{
    Begin({Lecture(1h)});
    QTRY_VERIFY_WITH_TIMEOUT(HasOutcomes({Outcome::Recording}), Patience);
    const ExpectedBox box(QMessageBox::Ok);
    QCOMPARE(ExitCodeAfter([this] { Window().Quit(); }), EXIT_SUCCESS);
    QVERIFY(box.Came());
    QVERIFY(!Window().isVisible());
    QVERIFY(HasOutcomes({Outcome::Stopped}));
    // What ended after the window had been saved is saved as well.
    QFile file(m_app->folder.filePath("settings.json"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(!file.readAll().contains("Lecture"));
}

void tst_RecordingControl::savesWhatIsTypedWhenItEnds()
{
    Begin();
    m_app->PageList()->setCurrentRow(PageRow::Files);
    const QString folder = m_app->folder.filePath("other");
    m_app->Find<QLineEdit>("resultsFolderEdit")->setText(folder);
    QCOMPARE(ExitCodeAfter([this] { m_control->End(); }), EXIT_SUCCESS);
    QCOMPARE(m_app->store->Settings().resultsFolderPath, folder);
    QVERIFY(m_app->store->Flush());
}

void tst_RecordingControl::saysThatSomethingIsNotSaved_data()
{
    QTest::addColumn<bool>("isList");
    QTest::newRow("settings") << false;
    QTest::newRow("list of recordings") << true;
}

void tst_RecordingControl::saysThatSomethingIsNotSaved()
{
    QFETCH(bool, isList);
    Begin();
    QVERIFY(m_app->store->Flush());
    {
        const FullDisk disk(10);
        if (isList) {
            m_list->Add({});
        } else {
            m_app->store->Change([](auto& settings) { settings.scheduledCaptureEnabled = true; });
            QCOMPARE(ExitCodeAfter([this] { m_control->End(); }), EXIT_FAILURE);
        }
    }
    if (isList) {
        QCOMPARE(ExitCodeAfter([this] { m_control->End(); }), EXIT_FAILURE);
    }
}

void tst_RecordingControl::endsWithTheActionQuit()
{
    PX::RecordTime task = Lecture(2s);
    task.finishAction = PX::QuitApplication;
    Begin({task});
    QCOMPARE(ExitCodeAfter([] {}), EXIT_SUCCESS);
    QCOMPARE(Entries().size(), std::size_t(1));
    QVERIFY(Entries().front().outcome != Outcome::Recording);
    QCOMPARE(m_app->Titles(), QString());
}

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_RecordingControl)

#include "tst_RecordingControl.moc"
