// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QPointer>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWindow>

#include "Boxes.h"
#include "FakeScreen.h"
#include "MarkingTranslator.h"
#include "Panel.h"
#include "UserInput.h"
#include "WidgetTest.h"

namespace {

std::int64_t s_freeBytes = 0;

} // namespace

/// Takes the place of the reference host's query.
std::int64_t Zentor::Util::GetAvailableDiskSpace(const ioPath& /*path*/)
{
    return s_freeBytes;
}

namespace Zentor::Tests {
namespace {

constexpr std::int64_t PlentyOfBytes = 1000000001;

/// Whether the platform shows windows on screens that exist for Qt only.
bool CanShowOnFakeScreens()
{
    return QGuiApplication::platformName() == QLatin1String("offscreen");
}

/// A screen for as long as this exists; windows that are shown meanwhile appear on it. None where
/// nothing can be shown on it.
class PrimaryScreen {
public:
    PrimaryScreen() = default;
    ~PrimaryScreen()
    {
        if (m_screen != nullptr) {
            Unplug(m_screen);
        }
    }
    PrimaryScreen(const PrimaryScreen&) = delete;
    PrimaryScreen& operator=(const PrimaryScreen&) = delete;

private:
    FakeScreen* m_screen = CanShowOnFakeScreens() ? Plug(QStringLiteral("DP-1"), true) : nullptr;
};

/// The panel with two tasks in the window of a host, whose button asks whether a capture may start.
struct Scene {
    Scene()
        : widget(panel.widget)
        , start(new QPushButton(QStringLiteral("Start"), panel.window.get()))
    {
        auto* layout = new QVBoxLayout(panel.window.get());
        layout->addWidget(panel.widget);
        layout->addWidget(start);
        QObject::connect(start, &QPushButton::clicked, start, [this] { RequestStart(); });
        QObject::connect(panel.widget, &RecordSchedulerWidget::OpenFilesSettingsRequested, start,
                         [this] { ++requestCount; });
        panel.RestoreScheduled({"A", "B"});
    }

    bool Show() const
    {
        panel.window->show();
        QApplication::setActiveWindow(panel.window.get());
        return QTest::qWaitForWindowActive(panel.window.get());
    }

    void RequestStart() { mayStart |= widget->ValidateSettings(); }

    QToolButton* DeleteButton(int row) const
    {
        return panel.Table()->findChildren<QToolButton*>().at(row);
    }

    /// As in "scheduled+stack A,B table".
    QString State() const
    {
        auto titles = panel.Titles().split(',');
        titles.sort();
        return panel.Mode() + ' ' + titles.join(',') + (panel.IsFormOpen() ? " form" : " table")
            + QStringLiteral(" !").repeated(requestCount);
    }

    const PrimaryScreen screen;
    Panel panel;
    const QPointer<RecordSchedulerWidget> widget;
    QPushButton* start;
    LanguageSwitch language;
    bool mayStart = false;
    /// How often the file settings were asked for; marks in the state.
    int requestCount = 0;
    QStringList problems;
};

/// One of the questions that the panel asks in a box.
struct Question {
    const char* name;
    void (*prepare)(Scene& scene);
    /// What the user clicks to be asked.
    QWidget* (*control)(const Scene& scene);
    /// What the user presses to be asked while this has the keyboard.
    QWidget* (*keyControl)(const Scene& scene);
    Qt::Key key;
    void (*askByProgram)(Scene& scene);
    void (*askAgain)(Scene& scene);
    QMessageBox::StandardButton accepting;
    const char* acceptingLabel;
    const char* accepted;
    const char* acceptedAfterAskingAgain;
};

QWidget* StartButton(const Scene& scene)
{
    return scene.start;
}

QWidget* BackButton(const Scene& scene)
{
    return scene.panel.Back();
}

QWidget* FirstDeleteButton(const Scene& scene)
{
    return scene.DeleteButton(0);
}

const Question LeaveSchedule{
    "leaving the schedule",
    [](Scene&) {},
    [](const Scene& scene) -> QWidget* { return scene.panel.Limited(); },
    [](const Scene& scene) -> QWidget* { return scene.panel.Scheduled(); },
    Qt::Key_Up,
    [](Scene& scene) { scene.panel.Limited()->setChecked(true); },
    [](Scene& scene) {
        scene.panel.Scheduled()->setChecked(true);
        scene.panel.None()->setChecked(true);
    },
    QMessageBox::Ok,
    "Continue",
    "limited+values  table",
    // The mode was chosen again meanwhile, so it stays; what the first box asked is done.
    "scheduled+stack  table",
};

const Question DeleteTask{
    "deleting a task",
    [](Scene&) {},
    FirstDeleteButton,
    FirstDeleteButton,
    Qt::Key_Space,
    [](Scene& scene) { scene.DeleteButton(0)->click(); },
    [](Scene& scene) { scene.DeleteButton(1)->click(); },
    QMessageBox::Ok,
    "Delete",
    "scheduled+stack B table",
    "scheduled+stack B table",
};

const Question UnsavedTask{
    "unsaved task",
    [](Scene& scene) { scene.panel.FillForm(QStringLiteral("C"), QTime(12, 0)); },
    BackButton,
    BackButton,
    Qt::Key_Space,
    [](Scene& scene) { scene.RequestStart(); },
    [](Scene& scene) { scene.RequestStart(); },
    QMessageBox::Yes,
    "Add",
    "scheduled+stack A,B,C table",
    "scheduled+stack A,B,C table",
};

const Question DiskSpace{
    "disk space",
    [](Scene&) { s_freeBytes = 0; },
    StartButton,
    StartButton,
    Qt::Key_Space,
    [](Scene& scene) { scene.RequestStart(); },
    [](Scene& scene) { scene.RequestStart(); },
    QMessageBox::Ok,
    "File Preferences",
    "scheduled+stack A,B table !",
    "scheduled+stack A,B table !",
};

/// What happens while a box is on screen.
struct Disturbance {
    const char* name;
    void (*happen)(Scene& scene, const Question& question, QMessageBox& box);
    bool endsBox;
};

void Expect(Scene& scene, bool condition, const char* problem)
{
    if (!condition) {
        scene.problems << QString::fromLatin1(problem);
    }
}

void ChangeLanguage(Scene& scene, const Question& /*question*/, QMessageBox& box)
{
    scene.language.Toggle();
    Expect(scene, box.button(QMessageBox::Cancel)->text().startsWith('~'), "not translated");
}

/// The window and the box stand on the screen that goes.
void RemoveScreen(Scene& scene, const Question& /*question*/, QMessageBox& box)
{
    FakeScreen* screen = Plug(QStringLiteral("DP-2"));
    scene.panel.window->windowHandle()->setScreen(screen->screen());
    box.windowHandle()->setScreen(screen->screen());
    Unplug(screen);
    Expect(scene, box.windowHandle()->screen() == QGuiApplication::primaryScreen(), "off screen");
}

/// Lets the form's timer go off with a start that has passed.
void LetStartPass(Scene& scene, const Question& /*question*/, QMessageBox& /*box*/)
{
    const auto past = QDateTime::currentDateTime().addSecs(-3600);
    auto* start = scene.panel.StartTime();
    start->setDateTimeRange(past, past);
    auto* timer = scene.panel.Form()->findChild<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
    QTimerEvent timeout(timer->timerId());
    QCoreApplication::sendEvent(timer, &timeout);
    Expect(scene, start->dateTime() > past.addSecs(3600), "start in the past");
}

/// The question that is asked meanwhile has a box of its own.
void AskAgain(Scene& scene, const Question& question, QMessageBox& box)
{
    bool isAnother = false;
    const ExpectedBox again([&](QMessageBox& top) {
        isAnother = &top != &box && box.isVisible();
        top.button(QMessageBox::Cancel)->click();
    });
    question.askAgain(scene);
    Expect(scene, again.Came() && isAnother, "not asked again");
}

const Disturbance Disturbances[] = {
    {"panel deleted", [](Scene& scene, const Question&, QMessageBox&) { delete scene.widget; },
     true},
    {"window deleted",
     [](Scene& scene, const Question&, QMessageBox&) { scene.panel.window.reset(); }, true},
    {"box deleted", [](Scene&, const Question&, QMessageBox& box) { delete &box; }, true},
    {"application quits", [](Scene&, const Question&, QMessageBox&) { QCoreApplication::quit(); },
     true},
    {"language change", ChangeLanguage, false},
    {"screen removed", RemoveScreen, false},
    {"tick", LetStartPass, false},
    {"asked again", AskAgain, false},
};

void Ask(const Question& question, Scene& scene, const QString& input)
{
    if (input == QLatin1String("mouse")) {
        UserInput::Click(question.control(scene));
    } else if (input == QLatin1String("key")) {
        question.keyControl(scene)->setFocus();
        UserInput::Press(scene.panel.window.get(), question.key);
    } else {
        question.askByProgram(scene);
    }
}

/// Expects the box to be as it was and answers it.
void Answer(const Question& question, Scene& scene, QMessageBox& box, bool accept)
{
    int boxCount = 0;
    const auto widgets = QApplication::topLevelWidgets();
    for (const QWidget* widget : widgets) {
        boxCount += widget->isVisible() && widget->inherits("QMessageBox") ? 1 : 0;
    }
    Expect(scene, boxCount == 1, "another box");
    Expect(scene, QApplication::activeModalWidget() == &box && box.isVisible(), "box is gone");
    Expect(scene, box.button(question.accepting)->text() == QLatin1String(question.acceptingLabel),
           "label is lost");
    if (accept) {
        UserInput::Click(box.button(question.accepting));
    } else {
        UserInput::Press(&box, Qt::Key_Escape);
    }
}

} // namespace
} // namespace Zentor::Tests

Q_DECLARE_METATYPE(const Zentor::Tests::Question*)
Q_DECLARE_METATYPE(const Zentor::Tests::Disturbance*)

namespace Zentor::Tests {

class tst_RecordSchedulerWidgetBoxes : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // Without it no row of the table is on screen.
        qApp->setStyleSheet(
            QStringLiteral("#recordTableScrollArea { qproperty-widgetResizable: true; }"
                           "Zentor--PX--Scheduler--UI--ScheduleRecordTableWidget {"
                           " min-width: 400px; qproperty-minHeight: 100; }"));
        // The application goes on without the window.
        QGuiApplication::setQuitOnLastWindowClosed(false);
    }

    void init()
    {
        WidgetTest::init();
        s_freeBytes = PlentyOfBytes;
    }

    void endsSoundly_data()
    {
        QTest::addColumn<const Question*>("question");
        QTest::addColumn<const Disturbance*>("disturbance");
        QTest::addColumn<QString>("moment");
        QTest::addColumn<QString>("input");
        QTest::addColumn<bool>("accept");
        for (const auto* question : {&LeaveSchedule, &DeleteTask, &UnsavedTask, &DiskSpace}) {
            for (const auto& disturbance : Disturbances) {
                AddRows(*question, disturbance);
            }
        }
    }

    void endsSoundly()
    {
        QFETCH(const Question*, question);
        QFETCH(const Disturbance*, disturbance);
        QFETCH(QString, moment);
        QFETCH(QString, input);
        QFETCH(bool, accept);
        if (disturbance->happen == RemoveScreen && !CanShowOnFakeScreens()) {
            QSKIP("This platform has no window on a screen that exists for Qt only");
        }
        Scene scene;
        QVERIFY(scene.Show());
        question->prepare(scene);
        const QString before = scene.State();

        QPointer<QMessageBox> asked;
        const auto disturb = [&] {
            disturbance->happen(scene, *question, *asked);
            if (!disturbance->endsBox) {
                Answer(*question, scene, *asked, accept);
            }
        };
        const ExpectedBox box([&](QMessageBox& shown) {
            asked = &shown;
            Do(disturb, moment);
        });
        RunApplication([&] { Ask(*question, scene, input); });

        QVERIFY(box.Came());
        QVERIFY(asked.isNull());
        QVERIFY(!IsBoxOpen());
        QCOMPARE(scene.problems.join(", "), QString());
        QVERIFY(!scene.mayStart || accept);
        ExpectState(scene, accept ? Accepted(*question, *disturbance) : before);
    }

    void keepsTheClickedButtonUntilTheClickIsOver_data()
    {
        QTest::addColumn<QString>("victim");
        QTest::newRow("the panel goes") << "panel";
        QTest::newRow("the window goes") << "window";
        QTest::newRow("the rows go") << "rows";
    }

    void keepsTheClickedButtonUntilTheClickIsOver()
    {
        QFETCH(QString, victim);
        Scene scene;
        QVERIFY(scene.Show());
        const QPointer<QToolButton> button(scene.DeleteButton(1));
        const ExpectedBox box([&](QMessageBox& question) {
            if (victim == QLatin1String("panel")) {
                delete scene.widget;
            } else if (victim == QLatin1String("window")) {
                scene.panel.window.reset();
            } else {
                scene.panel.Table()->ClearSchedule();
                question.button(QMessageBox::Ok)->click();
            }
        });
        // Comes after the table in the order of those that hear of the click.
        const QSignalSpy clicks(button, &QToolButton::clicked);
        RunApplication([&] { UserInput::Click(button); });
        QVERIFY(box.Came());
        QCOMPARE(clicks.count(), 1);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(button.isNull());
        if (!scene.widget.isNull()) {
            QCOMPARE(scene.State(), QString("scheduled+stack  table"));
        }
    }

private:
    static QString Accepted(const Question& question, const Disturbance& disturbance)
    {
        const bool wasAskedAgain = qstrcmp(disturbance.name, "asked again") == 0;
        return QString::fromLatin1(wasAskedAgain ? question.acceptedAfterAskingAgain
                                                 : question.accepted);
    }

    static void AddRows(const Question& question, const Disturbance& disturbance)
    {
        for (const char* moment : {"timer", "queued"}) {
            for (const char* input : {"mouse", "key", "program"}) {
                for (const bool accept : {false, true}) {
                    if (accept && disturbance.endsBox) {
                        continue;
                    }
                    QTest::addRow("%s, %s, %s, %s, %s", question.name, disturbance.name, moment,
                                  input, accept ? "accepted" : "refused")
                        << &question << &disturbance << moment << input << accept;
                }
            }
        }
    }

    /// Of a panel that is gone, only what it has reported is left.
    static void ExpectState(const Scene& scene, const QString& state)
    {
        if (scene.widget.isNull()) {
            QCOMPARE(scene.panel.watcher->TakeCalls().filter("Schedule"), QStringList());
        } else {
            QCOMPARE(scene.State(), state);
        }
    }

    /// Does \a action at once, which is from a timer, or has it called from the event loop.
    template <typename Action> static void Do(Action action, const QString& moment)
    {
        if (moment == QLatin1String("timer")) {
            action();
        } else {
            QMetaObject::invokeMethod(qApp, action, Qt::QueuedConnection);
        }
    }

    /// Runs \a action in the event loop of the application, as everything is that a user does.
    template <typename Action> static void RunApplication(Action action)
    {
        QTimer::singleShot(0, qApp, [&] {
            action();
            QCoreApplication::quit();
        });
        QCoreApplication::exec();
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_RecordSchedulerWidgetBoxes)

#include "tst_RecordSchedulerWidgetBoxes.moc"
