// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QAccessible>
#include <QPushButton>
#include <QStatusBar>
#include <QVBoxLayout>

#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include "Languages.h"
#include "LayoutProblems.h"
#include "RecordingFooter.h"
#include "Resources.h"
#include "Samples.h"
#include "Theme.h"
#include "WidgetTest.h"

using namespace std::chrono_literals;

namespace Zentor::Tests {
namespace {

using Desktop::RecordingFooter;
using Schedule::RunnerStatus;
using Phase = RunnerStatus::Phase;

/// \a text without the characters that keep its order.
QString Visible(QString text)
{
    return text.remove(QChar(0x2068)).remove(QChar(0x2069));
}

/// What screen readers are told, as in "alert Recording".
QStringList& Told()
{
    static QStringList told;
    return told;
}

void NoteTold(QAccessibleEvent* event)
{
    QAccessibleInterface* source = event->accessibleInterface();
    if (event->type() == QAccessible::Alert) {
        Told() << QStringLiteral("alert ") + Visible(source->text(QAccessible::Name));
    } else if (event->type() == QAccessible::NameChanged
               || event->type() == QAccessible::DescriptionChanged) {
        Told() << QStringLiteral("change ") + source->object()->objectName();
    }
}

/// Has accessibility on, and notes what is told.
class Listener {
public:
    Listener()
    {
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(true);
        QAccessible::installUpdateHandler(NoteTold);
        Told().clear();
    }
    ~Listener()
    {
        QAccessible::installUpdateHandler(nullptr);
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(false);
    }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;
};

const Schedule::Moment Noon = At("12:00");

RunnerStatus NextIn(Schedule::Length wait, const QString& title = QStringLiteral("Lecture"))
{
    RunnerStatus status;
    status.next = Record(title, Noon + wait, 30min);
    return status;
}

RunnerStatus Preparing(Schedule::Length wait)
{
    RunnerStatus status;
    status.phase = Phase::Preparing;
    status.title = QStringLiteral("Lecture");
    status.isTask = true;
    status.start = Noon + wait;
    return status;
}

RunnerStatus Recording(const QString& title, Schedule::Length length = 12min + 34s)
{
    RunnerStatus status;
    status.phase = Phase::Recording;
    status.title = title;
    status.isTask = !title.isEmpty();
    status.start = Noon - length;
    status.progress.length = length;
    status.progress.bytes = 120'500'000;
    status.progress.freeBytes = 72'400'000'000;
    return status;
}

RunnerStatus GivingWay(Schedule::Length wait)
{
    RunnerStatus status = Recording(QString());
    status.next = Record(QStringLiteral("Lecture"), Noon + wait, 30min);
    return status;
}

RunnerStatus Closing()
{
    RunnerStatus status = Recording(QStringLiteral("Lecture"));
    status.phase = Phase::Closing;
    return status;
}

RunnerStatus CountingDown(Schedule::Length wait, PX::PowerAction action = PX::ShutDown)
{
    RunnerStatus status;
    status.phase = Phase::Countdown;
    status.action = action;
    status.countdownEnd = Noon + wait;
    return status;
}

RunnerStatus Everything()
{
    RunnerStatus status =
        Recording(QStringLiteral("A lecture with a title that has no end ").repeated(4));
    status.end = Noon + 17min;
    status.progress.droppedFrames = 1234;
    return status;
}

RunnerStatus Paused()
{
    RunnerStatus status = Recording(QStringLiteral("Lecture"));
    status.isPaused = true;
    return status;
}

RunnerStatus Kept()
{
    RunnerStatus status = GivingWay(5s);
    status.isKept = true;
    return status;
}

/// As \a status while what the next task records is not there.
RunnerStatus WithoutScreen(RunnerStatus status)
{
    status.isNextThere = false;
    return status;
}

/// A window that has nothing but the footer and something else that takes the focus.
class Stage {
public:
    explicit Stage(int width = 900)
        : footer(new RecordingFooter(&window))
    {
        auto* layout = new QVBoxLayout(&window);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(&other);
        layout->addStretch(1);
        layout->addWidget(footer);
        window.resize(width, 160);
        window.show();
        window.activateWindow();
    }

    bool IsReady() { return QTest::qWaitForWindowActive(&window); }

    void Set(const RunnerStatus& status) { footer->SetStatus(status, Noon); }

    template <typename T = QWidget> T* Find(const char* name) const
    {
        return footer->findChild<T*>(QString::fromLatin1(name));
    }
    QString Text(const char* name) const
    {
        const auto* label = Find<QLabel>(name);
        return label->isVisible() ? Visible(label->text()) : QString();
    }
    /// The names of the buttons that are shown, from the first to the last.
    QString Buttons() const
    {
        QStringList names;
        const QLayout* layout = footer->layout();
        for (int index = 0; index < layout->count(); ++index) {
            const auto* button = qobject_cast<QPushButton*>(layout->itemAt(index)->widget());
            if (button != nullptr && button->isVisible()) {
                names << button->text().remove(QLatin1Char('&'));
            }
        }
        return names.join(QLatin1Char(','));
    }
    QString Focused() const
    {
        const QWidget* focused = window.focusWidget();
        return focused == nullptr ? QStringLiteral("nothing") : focused->objectName();
    }

    QWidget window;
    QPushButton other;
    RecordingFooter* footer;
};

} // namespace
} // namespace Zentor::Tests

Q_DECLARE_METATYPE(Zentor::Schedule::RunnerStatus)

namespace Zentor::Tests {

class tst_RecordingFooter : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Desktop::RegisterResources();
        Desktop::ApplyTheme(Desktop::Theme::Light);
    }

    void showsEachState_data()
    {
        QTest::addColumn<RunnerStatus>("status");
        QTest::addColumn<QString>("headline");
        QTest::addColumn<QString>("note");
        QTest::addColumn<QString>("buttons");
        const auto row = [](const char* name, const RunnerStatus& status, const char* headline,
                            const char* note, const char* buttons) {
            QTest::newRow(name) << status << QString::fromUtf8(headline) << QString::fromUtf8(note)
                                << QString::fromUtf8(buttons);
        };
        row("nothing", {}, "", "", "Start recording");
        row("next", NextIn(2h + 5min), "", "Next: “Lecture” in 2 h 5 min", "Start recording");
        row("next within a minute", NextIn(45s), "", "Next: “Lecture” in 45 s", "Start recording");
        row("next after a day", NextIn(24h), "", "Next: “Lecture” in 24 h 0 min",
            "Start recording");
        row("next is late", NextIn(-1s), "", "Next: “Lecture”, as soon as possible",
            "Start recording");
        row("preparing", Preparing(8s), "“Lecture” starts in 8 s", "", "Skip");
        row("preparing, late", Preparing(0s), "“Lecture” is about to start", "", "Skip");
        row("recording", Recording(QStringLiteral("Lecture")), "Lecture", "", "Pause,Stop");
        row("recording by hand", Recording({}), "Recording", "", "Pause,Stop");
        row("paused", Paused(), "Paused: Lecture", "", "Resume,Stop");
        row("giving way", GivingWay(55s), "Recording", "Ends in 45 s for “Lecture”",
            "Keep recording,Stop");
        row("giving way later", GivingWay(61s), "Recording", "", "Pause,Stop");
        row("kept", Kept(), "Recording", "“Lecture” starts when this recording has ended",
            "Pause,Stop");
        row("giving way to nothing", WithoutScreen(GivingWay(55s)), "Recording", "", "Pause,Stop");
        row("kept for nothing", WithoutScreen(Kept()), "Recording", "", "Pause,Stop");
        row("closing", Closing(), "“Lecture” is being saved", "", "Stop");
        row("countdown", CountingDown(45s), "The computer shuts down in 45 s", "", "Now,Cancel");
        row("countdown to sleep", CountingDown(60s, PX::Sleep),
            "The computer goes to sleep in 60 s", "", "Now,Cancel");
    }

    void showsEachState()
    {
        QFETCH(RunnerStatus, status);
        QFETCH(QString, headline);
        QFETCH(QString, note);
        QFETCH(QString, buttons);
        Stage stage;
        stage.Set(status);
        QCOMPARE(stage.Text("recordingHeadlineLabel"), headline);
        QCOMPARE(stage.Text("recordingNoteLabel"), note);
        QCOMPARE(stage.Buttons(), buttons);
        QCOMPARE(stage.Find("recordingDot")->isVisible(), status.phase == Phase::Recording);
        QCOMPARE(stage.Find("stopRecordingButton")->isEnabled(), status.phase != Phase::Closing);
        QVERIFY(stage.footer->StatusBar()->isVisible());
    }

    void namesTheDateOfATaskThatIsFarAway()
    {
        Stage stage;
        stage.Set(NextIn(24h + 1s));
        const QString note = stage.Text("recordingNoteLabel");
        QVERIFY2(note.startsWith(QStringLiteral("Next: “Lecture” on ")), qPrintable(note));
        QVERIFY2(note.contains(QLatin1String("12:00:01")) || note.contains(QLatin1String("12:00")),
                 qPrintable(note));
    }

    void showsFigures()
    {
        Stage stage;
        RunnerStatus status = Recording(QStringLiteral("Lecture"));
        stage.Set(status);
        QCOMPARE(stage.Text("recordingLengthLabel"), QStringLiteral("0:12:34"));
        QCOMPARE(stage.Text("recordingSizeLabel"), QStringLiteral("120.5 MB"));
        QCOMPARE(stage.Text("recordingFreeSpaceLabel"), QStringLiteral("72.4 GB free"));
        QCOMPARE(stage.Text("recordingEndLabel"), QString());
        QCOMPARE(stage.Text("droppedFramesLabel"), QString());
        status.end = Noon + 17min;
        status.progress.droppedFrames = 3;
        status.progress.bytes = -1;
        status.progress.freeBytes = -1;
        stage.Set(status);
        QVERIFY(stage.Text("recordingEndLabel").contains(QLatin1String("12:17")));
        QVERIFY(stage.Text("droppedFramesLabel").contains(QLatin1Char('3')));
        QCOMPARE(stage.Text("recordingSizeLabel"), QString());
        QCOMPARE(stage.Text("recordingFreeSpaceLabel"), QString());
        stage.Set({});
        QCOMPARE(stage.Text("recordingLengthLabel"), QString());
        QCOMPARE(stage.Text("recordingEndLabel"), QString());
    }

    void movesNothingWhenFiguresChange()
    {
        Stage stage;
        RunnerStatus status = Recording(QStringLiteral("Lecture"), 0s);
        stage.Set(status);
        QCoreApplication::sendPostedEvents();
        QMap<QString, QRect> before;
        const auto labels = stage.footer->findChildren<QLabel*>();
        for (const QLabel* label : labels) {
            before[label->objectName()] = label->geometry();
        }
        for (int second = 1; second < 60; ++second) {
            status.progress.length = std::chrono::seconds(second * 61);
            status.progress.bytes = 100'000'000 + second * 11'100'000;
            status.progress.freeBytes -= 111'000'000;
            stage.Set(status);
            QCoreApplication::sendPostedEvents();
            for (const QLabel* label : labels) {
                QCOMPARE(label->geometry(), before[label->objectName()]);
            }
        }
    }

    void asks_data()
    {
        QTest::addColumn<RunnerStatus>("status");
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("asked");
        QTest::newRow("start") << RunnerStatus() << "startRecordingButton"
                               << "start";
        QTest::newRow("skip") << Preparing(8s) << "skipTaskButton"
                              << "skip Lecture";
        QTest::newRow("pause") << Recording({}) << "pauseRecordingButton"
                               << "pause";
        QTest::newRow("resume") << Paused() << "pauseRecordingButton"
                                << "pause";
        QTest::newRow("stop") << Recording({}) << "stopRecordingButton"
                              << "stop";
        QTest::newRow("keep") << GivingWay(30s) << "keepRecordingButton"
                              << "keep";
        QTest::newRow("cancel") << CountingDown(30s) << "cancelFinishButton"
                                << "cancel";
        QTest::newRow("now") << CountingDown(30s) << "finishNowButton"
                             << "now";
    }

    void asks()
    {
        QFETCH(RunnerStatus, status);
        QFETCH(QString, button);
        QFETCH(QString, asked);
        Stage stage;
        QVERIFY(stage.IsReady());
        QStringList all;
        const auto note = [&](const char* what) { return [&, what] { all << what; }; };
        connect(stage.footer, &RecordingFooter::StartRequested, note("start"));
        connect(stage.footer, &RecordingFooter::StopRequested, note("stop"));
        connect(stage.footer, &RecordingFooter::PauseRequested, note("pause"));
        connect(stage.footer, &RecordingFooter::SkipRequested,
                [&](const QString& title) { all << QStringLiteral("skip ") + title; });
        connect(stage.footer, &RecordingFooter::KeepRequested, note("keep"));
        connect(stage.footer, &RecordingFooter::CancelRequested, note("cancel"));
        connect(stage.footer, &RecordingFooter::NowRequested, note("now"));
        stage.Set(status);
        QTest::mouseClick(stage.Find(qPrintable(button)), Qt::LeftButton);
        QCOMPARE(all, QStringList(asked));
        stage.Find(qPrintable(button))->setFocus();
        QTest::keyClick(stage.window.focusWidget(), Qt::Key_Return);
        QCOMPARE(all, QStringList({asked, asked}));
    }

    void ignoresTheSecondHalfOfADoubleClick()
    {
        Stage stage;
        QSignalSpy stopped(stage.footer, &RecordingFooter::StopRequested);
        connect(stage.footer, &RecordingFooter::StartRequested,
                [&] { stage.Set(Recording(QString())); });
        QTest::mouseClick(stage.Find("startRecordingButton"), Qt::LeftButton);
        QTest::mouseClick(stage.Find("stopRecordingButton"), Qt::LeftButton);
        QCOMPARE(stopped.count(), 0);
        const auto clickAgain = [&] {
            QTest::mouseClick(stage.Find("stopRecordingButton"), Qt::LeftButton);
            return stopped.count() == 1;
        };
        QVERIFY(QTest::qWaitFor(clickAgain, 20000));
    }

    void ignoresAKeyThatIsHeld()
    {
        Stage stage;
        QVERIFY(stage.IsReady());
        const QSignalSpy started(stage.footer, &RecordingFooter::StartRequested);
        auto* button = stage.Find("startRecordingButton");
        button->setFocus();
        QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, {}, QString(), true);
        QCoreApplication::sendEvent(button, &repeated);
        QCOMPARE(started.count(), 0);
        QTest::keyClick(button, Qt::Key_Return);
        QCOMPARE(started.count(), 1);
    }

    void takesTheFocusAlong_data()
    {
        QTest::addColumn<RunnerStatus>("before");
        QTest::addColumn<QString>("focused");
        QTest::addColumn<RunnerStatus>("after");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char* name, const RunnerStatus& before, const char* focused,
                            const RunnerStatus& after, const char* expected) {
            QTest::newRow(name) << before << QString::fromLatin1(focused) << after
                                << QString::fromLatin1(expected);
        };
        row("start to stop", {}, "startRecordingButton", Recording({}), "stopRecordingButton");
        row("stop to start", Recording({}), "stopRecordingButton", {}, "startRecordingButton");
        row("start to skip", NextIn(11s), "startRecordingButton", Preparing(10s), "skipTaskButton");
        row("skip to pause", Preparing(1s), "skipTaskButton", Recording({}),
            "pauseRecordingButton");
        row("pause to keep", GivingWay(61s), "pauseRecordingButton", GivingWay(60s),
            "keepRecordingButton");
        row("keep to pause", GivingWay(30s), "keepRecordingButton", Kept(), "pauseRecordingButton");
        row("pause stays", Recording({}), "pauseRecordingButton", Paused(), "pauseRecordingButton");
        row("stop to closing", Recording({}), "stopRecordingButton", Closing(),
            "recordingHeadlineLabel");
        row("start to cancel", {}, "startRecordingButton", CountingDown(60s), "cancelFinishButton");
        row("now to start", CountingDown(60s), "finishNowButton", {}, "startRecordingButton");
    }

    void takesTheFocusAlong()
    {
        QFETCH(RunnerStatus, before);
        QFETCH(QString, focused);
        QFETCH(RunnerStatus, after);
        QFETCH(QString, expected);
        Stage stage;
        QVERIFY(stage.IsReady());
        stage.Set(before);
        stage.Find(qPrintable(focused))->setFocus();
        stage.Set(after);
        QCOMPARE(stage.Focused(), expected);
        stage.Set(Closing());
        stage.Set({});
        QCOMPARE(stage.Focused(), QStringLiteral("startRecordingButton"));
    }

    void leavesTheFocusElsewhereAlone()
    {
        Stage stage;
        QVERIFY(stage.IsReady());
        stage.other.setObjectName(QStringLiteral("other"));
        stage.other.setFocus();
        for (const RunnerStatus& status :
             {Preparing(5s), Recording({}), Closing(), CountingDown(60s), RunnerStatus()}) {
            stage.Set(status);
            QCOMPARE(stage.Focused(), QStringLiteral("other"));
        }
    }

    void tellsScreenReadersOfPhasesOnly()
    {
        Stage stage;
        const Listener listener;
        stage.Set(Preparing(10s));
        stage.Set(Preparing(9s));
        stage.Set(Preparing(8s));
        QCOMPARE(Told().filter("alert"), QStringList("alert “Lecture” starts in 10 s"));
        stage.Set(Recording(QStringLiteral("Lecture"), 0s));
        Told().clear();
        for (int second = 1; second < 5; ++second) {
            RunnerStatus status =
                Recording(QStringLiteral("Lecture"), std::chrono::seconds(second));
            status.progress.bytes += second * 1'000'000;
            stage.Set(status);
        }
        QCOMPARE(Told(), QStringList());
        stage.Set(Paused());
        QCOMPARE(Told().filter("alert"), QStringList("alert Paused: Lecture"));
    }

    void letsScreenReadersReadTheFigures()
    {
        Stage stage;
        const Listener listener;
        stage.Set(Recording(QStringLiteral("Lecture")));
        const auto nameOf = [&](const char* name) {
            return Visible(
                QAccessible::queryAccessibleInterface(stage.Find(name))->text(QAccessible::Name));
        };
        QCOMPARE(nameOf("recordingDot"), QStringLiteral("Recording"));
        QCOMPARE(nameOf("recordingHeadlineLabel"), QStringLiteral("Lecture"));
        QCOMPARE(nameOf("recordingLengthLabel"), QStringLiteral("Recorded: 0:12:34"));
        QCOMPARE(nameOf("recordingSizeLabel"), QStringLiteral("Size of the file: 120.5 MB"));
    }

    void countsOnlyWhileItIsSeen_data()
    {
        QTest::addColumn<RunnerStatus>("status");
        QTest::addColumn<int>("milliseconds");
        QTest::newRow("nothing") << RunnerStatus() << -1;
        QTest::newRow("recording") << Recording({}) << -1;
        QTest::newRow("closing") << Closing() << -1;
        QTest::newRow("next in hours") << NextIn(2h + 5min) << 60000;
        QTest::newRow("next in hours and a bit") << NextIn(2h + 5min + 1500ms) << 1500;
        QTest::newRow("next within a minute") << NextIn(45s) << 1000;
        QTest::newRow("next in days") << NextIn(48h) << 3600000;
        QTest::newRow("next tomorrow") << NextIn(24h + 5min) << 300000;
        QTest::newRow("preparing") << Preparing(8250ms) << 250;
        QTest::newRow("preparing, late") << Preparing(0s) << -1;
        QTest::newRow("giving way") << GivingWay(30s) << 1000;
        QTest::newRow("giving way later") << GivingWay(100s) << 40000;
        QTest::newRow("kept") << Kept() << -1;
        QTest::newRow("countdown") << CountingDown(30s) << 1000;
    }

    void countsOnlyWhileItIsSeen()
    {
        QFETCH(RunnerStatus, status);
        QFETCH(int, milliseconds);
        Stage stage;
        const auto* timer = stage.footer->findChild<QTimer*>();
        QVERIFY(timer != nullptr);
        const auto interval = [&] { return timer->isActive() ? timer->interval() : -1; };
        stage.Set(status);
        QCOMPARE(interval(), milliseconds);
        stage.window.hide();
        QVERIFY(!timer->isActive());
        stage.Set(status);
        QVERIFY(!timer->isActive());
    }

    void countsDownByItself()
    {
        Stage stage;
        const QSignalSpy timeouts(stage.footer->findChild<QTimer*>(), &QTimer::timeout);
        const Schedule::Moment now = Time::SystemClock().Now();
        RunnerStatus status;
        status.next = Record(QStringLiteral("Lecture"), now + 60s + 300ms, 30min);
        stage.footer->SetStatus(status, now);
        QCOMPARE(stage.Text("recordingNoteLabel"), QStringLiteral("Next: “Lecture” in 2 min"));
        QStringList texts;
        const auto isCounted = [&] {
            const QString text = stage.Text("recordingNoteLabel");
            if (!texts.contains(text)) {
                texts << text;
            }
            return text == QStringLiteral("Next: “Lecture” in 58 s");
        };
        QVERIFY(QTest::qWaitFor(isCounted, 20000));
        // A timer may be a little early, and is started once more then.
        QVERIFY2(timeouts.count() <= 6, qPrintable(QString::number(timeouts.count())));
        QVERIFY(texts.contains(QStringLiteral("Next: “Lecture” in 2 min")));
    }

    void keepsTheStateWhileAMessageIsShown()
    {
        Stage stage;
        stage.Set(Recording(QStringLiteral("Lecture")));
        stage.footer->StatusBar()->showMessage(QStringLiteral("Message"));
        QCOMPARE(stage.Text("recordingSizeLabel"), QString());
        QCOMPARE(stage.Text("recordingHeadlineLabel"), QStringLiteral("Lecture"));
        stage.Set(NextIn(45s));
        QCOMPARE(stage.Text("recordingNoteLabel"), QString());
        stage.footer->StatusBar()->clearMessage();
        QCOMPARE(stage.Text("recordingNoteLabel"), QStringLiteral("Next: “Lecture” in 45 s"));
        QCOMPARE(stage.Text("recordingSizeLabel"), QString());
    }

    void elidesTheTitleOnly()
    {
        Stage stage(640);
        const QString title = QStringLiteral("<b>Title</b> ").repeated(20);
        RunnerStatus status = Preparing(8s);
        status.title = title;
        stage.Set(status);
        QTRY_VERIFY_WITH_TIMEOUT(
            stage.Text("recordingHeadlineLabel").endsWith(QStringLiteral("…” starts in 8 s")),
            Patience);
        const auto* label = stage.Find<QLabel>("recordingHeadlineLabel");
        QCOMPARE(label->textFormat(), Qt::PlainText);
        QVERIFY(label->toolTip().contains(title.trimmed().toHtmlEscaped()));
        stage.window.resize(4000, 160);
        QTRY_VERIFY_WITH_TIMEOUT(stage.Text("recordingHeadlineLabel").contains(title), Patience);
        QCOMPARE(label->toolTip(), QString());
    }

    void isLaidOutInEachLanguage_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<int>("width");
        const auto codes = Desktop::LanguageCodes();
        for (const QString& code : codes) {
            for (const int width : {640, 1040}) {
                QTest::addRow("%s, %d", qPrintable(code), width) << code << width;
            }
        }
    }

    void isLaidOutInEachLanguage()
    {
        QFETCH(QString, language);
        QFETCH(int, width);
        Desktop::Translations translations;
        translations.Use(language);
        QStringList problems;
        {
            // Beside the narrow list of pages.
            constexpr int sidebar = 57;
            Stage stage(width - sidebar);
            for (const RunnerStatus& status :
                 {RunnerStatus(), NextIn(2h + 5min), Preparing(8s), Everything(), Paused(),
                  GivingWay(55s), Kept(), Closing(), CountingDown(45s, PX::Sleep)}) {
                stage.Set(status);
                QCoreApplication::sendPostedEvents();
                QCOMPARE(stage.window.width(), width - sidebar);
                problems << LayoutProblems();
            }
        }
        QLocale::setDefault(QLocale::c());
        QVERIFY2(problems.isEmpty(), qPrintable(problems.join(QLatin1Char('\n'))));
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_RecordingFooter)

#include "tst_RecordingFooter.moc"
