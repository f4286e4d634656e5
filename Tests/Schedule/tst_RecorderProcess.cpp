// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "System/RecorderProcess.h"

#include <csignal>
#include <cstdio>

#include <unistd.h>

#include "RecorderTestSupport.h"
#include "System/BackgroundProcess.h"
#include "System/MachineClock.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

using namespace std::chrono_literals;

using Schedule::Length;
using Schedule::Moment;
using Schedule::RecorderProcess;
using Schedule::RecorderRequest;
using Schedule::RecorderResult;
using Schedule::RecordingProgress;

Moment Now()
{
    return Schedule::MachineClock().Now().wall;
}

/// What a recorder has sent.
class Events {
public:
    explicit Events(RecorderProcess& recorder)
    {
        const auto add = [this](const QString& event) { all << event; };
        QObject::connect(&recorder, &RecorderProcess::Ready, [=] { add("ready"); });
        QObject::connect(&recorder, &RecorderProcess::Recording, [=](Moment moment) {
            add("recording");
            firstFrame = moment;
        });
        QObject::connect(&recorder, &RecorderProcess::Progressed,
                         [this](const auto& progress) { progresses.push_back(progress); });
        QObject::connect(&recorder, &RecorderProcess::Warned,
                         [=](const QString& text) { add("warned " + text); });
        QObject::connect(&recorder, &RecorderProcess::Finished, [=](const RecorderResult& end) {
            add("finished " + end.reason);
            result = end;
        });
        QObject::connect(
            &recorder, &RecorderProcess::Failed,
            [=](const QString& code, const QString& text) { add("failed " + code + ": " + text); });
        QObject::connect(&recorder, &RecorderProcess::Cancelled, [=] { add("cancelled"); });
        QObject::connect(&recorder, &RecorderProcess::Died,
                         [=](const QString& why) { add("died " + why); });
    }

    bool Have(const QString& event) const { return all.contains(event); }
    bool IsOver() const
    {
        static const QRegularExpression end(QStringLiteral("(finished|failed|cancelled|died).*"));
        return all.indexOf(end) >= 0;
    }

    QStringList all;
    std::vector<RecordingProgress> progresses;
    Moment firstFrame;
    RecorderResult result;
};

RecorderRequest RequestFor(const QString& file)
{
    RecorderRequest request;
    request.file = file;
    request.source = RecorderRequest::Source::Test;
    request.area = QRect(0, 0, 320, 240);
    return request;
}

/// A program with a process group of its own, to which Ctrl+C is sent as a terminal would. It is
/// ended with this object.
class Host final : public Schedule::BackgroundProcess {
public:
    ~Host() override
    {
        kill();
        waitForFinished(Patience);
    }
    Host() = default;
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    void Interrupt() const { ::kill(static_cast<pid_t>(-processId()), SIGINT); }
    /// How often it has printed \a text.
    int Count(const char* text)
    {
        m_output += readAllStandardOutput();
        return int(m_output.count(text));
    }

private:
    QByteArray m_output;
};

/// The processes that \a parent has started.
QList<pid_t> ChildrenOf(qint64 parent)
{
    QFile file(QStringLiteral("/proc/%1/task/%1/children").arg(parent));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QList<pid_t> children;
    const auto ids = file.readAll().simplified().split(' ');
    for (const auto& id : ids) {
        if (!id.isEmpty()) {
            children << id.toInt();
        }
    }
    return children;
}

} // namespace

class tst_RecorderProcess : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void recordsALength();
    void recordsUntilStopped();
    void startsAtAMoment();
    void leavesOutAPause();
    void cancels_data();
    void cancels();
    void failsWithTheRecordersReason();
    void saysThatThereIsNoRecorder_data();
    void saysThatThereIsNoRecorder();
    void saysThatTheRecorderDied_data();
    void saysThatTheRecorderDied();
    void understandsWhatItCan_data();
    void understandsWhatItCan();
    void sendsNothingAfterTheEnd();
    void sendsLinesInOrderAfterTheGreeting();
    void killsARecorderThatHangs_data();
    void killsARecorderThatHangs();
    void waitsAsLongAsThereIsProgress();
    void closesTheFileWhenItIsDeleted();
    void killsWhatDoesNotEndWhenItIsDeleted();
    void outlivesBeingStopped();
    void isNotReachedByCtrlC();
    void closesTheFileWhenTheProgramIsKilled();

private:
    QString FilePath() const { return m_folder->filePath(QStringLiteral("a.mkv")); }
    /// A recorder that does what \a body, a shell script, says.
    QString Script(const QString& body) const;
    /// Starts this program as one that records until it ends, and prints what its recorder sends.
    void StartHost(Host& host) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_RecorderProcess::init()
{
    WidgetTest::init();
    m_folder = std::make_unique<QTemporaryDir>();
}

void tst_RecorderProcess::cleanup()
{
    m_folder.reset();
    WidgetTest::cleanup();
}

QString tst_RecorderProcess::Script(const QString& body) const
{
    QFile file(m_folder->filePath(QStringLiteral("recorder")));
    file.open(QIODevice::WriteOnly);
    file.write("#!/bin/sh\nhello() { echo '{\"event\":\"hello\",\"version\":1}'; }\n"
               + body.toUtf8() + '\n');
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return file.fileName();
}

void tst_RecorderProcess::StartHost(Host& host) const
{
    host.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    host.start(QCoreApplication::applicationFilePath(), {"--host", FilePath()});
    QVERIFY(host.waitForStarted(Patience));
}

void tst_RecorderProcess::recordsALength()
{
    RecorderProcess recorder(PX_RECORDER);
    Events events(recorder);
    recorder.Prepare(RequestFor(FilePath()));
    QCOMPARE(events.all, QStringList());
    QTRY_COMPARE_WITH_TIMEOUT(events.all, QStringList{"ready"}, Patience);
    const Moment before = Now();
    recorder.Start(std::nullopt, 1500ms);
    QTRY_VERIFY_WITH_TIMEOUT(events.IsOver(), Patience);
    QCOMPARE(events.all, (QStringList{"ready", "recording", "finished duration"}));
    QVERIFY(events.firstFrame >= before);
    QVERIFY(events.firstFrame <= Now());
    QVERIFY(!events.progresses.empty());
    QVERIFY(events.progresses.front().freeBytes > 0);
    QCOMPARE(events.result.file, FilePath());
    QCOMPARE(events.result.length, Length(1500ms));
    QCOMPARE(events.result.frames, qint64(45));
    QCOMPARE(events.result.bytes, QFileInfo(FilePath()).size());
    QCOMPARE(MediaIn(FilePath()).streams.at(0).packets, 45);
}

void tst_RecorderProcess::recordsUntilStopped()
{
    RecorderProcess recorder(PX_RECORDER);
    Events events(recorder);
    recorder.Prepare(RequestFor(FilePath()));
    // Before it is ready, too.
    recorder.Start(std::nullopt, 0ms);
    QTRY_VERIFY_WITH_TIMEOUT(!events.progresses.empty(), Patience);
    QVERIFY(events.progresses.front().length > 0ms);
    QVERIFY(events.progresses.front().frames > 0);
    recorder.Stop();
    QTRY_VERIFY_WITH_TIMEOUT(events.IsOver(), Patience);
    QCOMPARE(events.all, (QStringList{"ready", "recording", "finished stopped"}));
    QCOMPARE(DecodingErrors(FilePath()), QString());
}

void tst_RecorderProcess::startsAtAMoment()
{
    RecorderProcess recorder(PX_RECORDER);
    Events events(recorder);
    recorder.Prepare(RequestFor(FilePath()));
    QTRY_VERIFY_WITH_TIMEOUT(events.Have("ready"), Patience);
    const Moment start = Now() + 500ms;
    recorder.Start(start, 100ms);
    QTRY_VERIFY_WITH_TIMEOUT(events.IsOver(), Patience);
    QVERIFY(events.firstFrame >= start);
    QVERIFY(events.firstFrame < start + 5s);
}

void tst_RecorderProcess::leavesOutAPause()
{
    RecorderProcess recorder(PX_RECORDER);
    Events events(recorder);
    recorder.Prepare(RequestFor(FilePath()));
    recorder.Start(std::nullopt, 0ms);
    QTRY_VERIFY_WITH_TIMEOUT(events.Have("recording"), Patience);
    recorder.Pause();
    QTRY_VERIFY_WITH_TIMEOUT(events.progresses.size() >= 3, Patience);
    const auto& lasts = events.progresses;
    QCOMPARE(lasts.at(2).length, lasts.at(1).length);
    recorder.Resume();
    QTRY_VERIFY_WITH_TIMEOUT(lasts.back().length > lasts.at(2).length, Patience);
    recorder.Stop();
    QTRY_VERIFY_WITH_TIMEOUT(events.IsOver(), Patience);
    QVERIFY(events.Have("finished stopped"));
}

void tst_RecorderProcess::cancels_data()
{
    QTest::addColumn<QString>("after");
    QTest::newRow("at once") << "";
    QTest::newRow("prepared") << "ready";
    QTest::newRow("recording") << "recording";
}

void tst_RecorderProcess::cancels()
{
    QFETCH(QString, after);
    RecorderProcess recorder(PX_RECORDER);
    Events events(recorder);
    recorder.Prepare(RequestFor(FilePath()));
    if (after == "recording") {
        recorder.Start(std::nullopt, 0ms);
    }
    QTRY_VERIFY_WITH_TIMEOUT(after.isEmpty() || events.Have(after), Patience);
    recorder.Cancel();
    QTRY_VERIFY_WITH_TIMEOUT(events.IsOver(), Patience);
    QCOMPARE(events.all.constLast(), QStringLiteral("cancelled"));
    QVERIFY(!QFile::exists(FilePath()));
}

void tst_RecorderProcess::failsWithTheRecordersReason()
{
    RecorderProcess recorder(PX_RECORDER);
    Events events(recorder);
    recorder.Prepare(RequestFor(m_folder->filePath("none/a.mkv")));
    QTRY_VERIFY_WITH_TIMEOUT(events.IsOver(), Patience);
    QCOMPARE(events.all.size(), 1);
    QVERIFY(events.all.constFirst().startsWith("failed no-folder: "));
}

void tst_RecorderProcess::saysThatThereIsNoRecorder_data()
{
    QTest::addColumn<QString>("program");
    QTest::newRow("missing") << "/nonexistent/px-recorder";
    QTest::newRow("a folder") << "/tmp";
    QTest::newRow("not executable") << "/etc/passwd";
    QTest::newRow("of another version") << "";
}

void tst_RecorderProcess::saysThatThereIsNoRecorder()
{
    QFETCH(QString, program);
    if (program.isEmpty()) {
        program = Script("echo '{\"event\":\"hello\",\"version\":2}'; read line");
    }
    RecorderProcess recorder(program);
    Events events(recorder);
    recorder.Prepare(RequestFor(FilePath()));
    recorder.Start(std::nullopt, 1s);
    QCOMPARE(events.all, QStringList());
    QTRY_VERIFY_WITH_TIMEOUT(events.IsOver(), Patience);
    recorder.Stop();
    QCOMPARE(events.all.size(), 1);
    QVERIFY(events.all.constFirst().startsWith("failed no-recorder: "));
    QVERIFY(events.all.constFirst().contains(program));
}

void tst_RecorderProcess::saysThatTheRecorderDied_data()
{
    QTest::addColumn<QString>("body");
    QTest::addColumn<QString>("why");
    const QString ended = "died The recorder ended unexpectedly (exit status %1).";
    const QString crashed = "died The recorder crashed (signal %1).";
    QTest::newRow("at once") << "exit 0" << ended.arg(0);
    QTest::newRow("with an error") << "echo broken >&2; exit 127" << ended.arg(127);
    QTest::newRow("after its greeting") << "hello; read line; exit 1" << ended.arg(1);
    QTest::newRow("by a signal") << "hello; kill -9 $$" << crashed.arg(9);
    QTest::newRow("with half an event")
        << "hello; read line; printf '{\"event\":\"ready\"'; exit 3" << ended.arg(3);
}

void tst_RecorderProcess::saysThatTheRecorderDied()
{
    QFETCH(QString, body);
    QFETCH(QString, why);
    RecorderProcess recorder(Script(body));
    Events events(recorder);
    recorder.Prepare(RequestFor(FilePath()));
    QTRY_VERIFY_WITH_TIMEOUT(events.IsOver(), Patience);
    QCOMPARE(events.all, QStringList{why});
}

void tst_RecorderProcess::understandsWhatItCan_data()
{
    QTest::addColumn<QString>("body");
    QTest::newRow("nonsense") << "echo; echo nonsense; echo '[1]'; echo 7; echo '{'; echo '{}'";
    QTest::newRow("no text") << R"(printf '\377\0\001\n')";
    QTest::newRow("wrong types") << R"(echo '{"event":7,"id":1}'; echo '{"event":["ready"]}')";
    QTest::newRow("unknown") << R"(echo '{"event":"applause","id":1}')";
    QTest::newRow("of another recording")
        << R"(echo '{"event":"finished","id":2}'; echo '{"event":"cancelled","id":"1"}')";
    QTest::newRow("answers to lines") << R"(echo '{"event":"failed","code":"bad-line"}')";
    QTest::newRow("another greeting") << "hello; hello";
    QTest::newRow("too long") << R"(head -c 3000000 /dev/zero | tr '\0' x; echo)";
    QTest::newRow("deep") << R"(head -c 60000 /dev/zero | tr '\0' '['; echo)";
    QTest::newRow("progress too early") << R"(echo '{"event":"progress","id":1,"ms":5}')";
}

void tst_RecorderProcess::understandsWhatItCan()
{
    QFETCH(QString, body);
    RecorderProcess recorder(Script(body + "; hello\nread line\n" + body + R"sh(
        printf '{"event":"rea'; printf 'dy","id":1,"more":{}}\n{"event":"ready","id":1}\n'
        echo '{"event":"warning","id":1,"text":"careful"}'
        echo '{"event":"recording","id":1,"wallUs":1e300}'
        echo '{"event":"progress","id":1,"ms":-5,"bytes":1e300,"free":"much","frames":{}}'
        echo '{"event":"finished","id":1,"file":7,"reason":"stopped","ms":"1","bytes":null}'
        read line)sh"));
    Events events(recorder);
    recorder.Prepare(RequestFor(FilePath()));
    QTRY_VERIFY_WITH_TIMEOUT(events.IsOver(), Patience);
    QCOMPARE(events.all, (QStringList{"ready", "warned careful", "recording", "finished stopped"}));
    QVERIFY(Now() - events.firstFrame < 1min);
    QCOMPARE(events.progresses.size(), std::size_t(1));
    const auto progress = events.progresses.front();
    QCOMPARE(progress.length, Length(0));
    QCOMPARE(progress.bytes, qint64(-1));
    QCOMPARE(progress.freeBytes, qint64(-1));
    QCOMPARE(progress.frames, qint64(0));
    QCOMPARE(events.result.file, QString());
}

void tst_RecorderProcess::sendsNothingAfterTheEnd()
{
    RecorderProcess recorder(Script(R"sh(
        hello; read line
        echo '{"event":"finished","id":1,"reason":"stopped"}'
        echo '{"event":"failed","id":1,"code":"pipeline"}'
        echo '{"event":"cancelled","id":1}'
        echo '{"event":"warning","id":1}'
        read line
        touch "$0.ended"
        exit 7)sh"));
    Events events(recorder);
    recorder.Prepare(RequestFor(FilePath()));
    QTRY_VERIFY_WITH_TIMEOUT(events.IsOver(), Patience);
    recorder.Stop();
    recorder.Cancel();
    // It leaves when its input ends, which nobody has to ask for.
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(m_folder->filePath("recorder.ended")), Patience);
    QTRY_VERIFY_WITH_TIMEOUT(ChildrenOf(QCoreApplication::applicationPid()).isEmpty(), Patience);
    QCOMPARE(events.all, QStringList{"finished stopped"});
}

void tst_RecorderProcess::sendsLinesInOrderAfterTheGreeting()
{
    RecorderProcess recorder(Script(R"sh(
        mkfifo "$0.go"; read go < "$0.go"
        hello
        for i in 1 2 3 4 5; do read -r line; echo "$line" >> "$0.lines"; done
        echo '{"event":"finished","id":1,"reason":"stopped"}'
        read line)sh"));
    Events events(recorder);
    recorder.Prepare(RequestFor(FilePath()));
    recorder.Start(Moment(7us), 5us);
    recorder.Pause();
    recorder.Resume();
    recorder.Stop();
    const QString gate = m_folder->filePath("recorder.go");
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(gate), Patience);
    QFile go(gate);
    QVERIFY(go.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    go.write("\n");
    QTRY_VERIFY_WITH_TIMEOUT(events.IsOver(), Patience);
    QCOMPARE(events.all, QStringList{"finished stopped"});
    QFile file(m_folder->filePath("recorder.lines"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readLine().contains(R"("cmd":"prepare")"));
    QCOMPARE(file.readLine(), QByteArray(R"({"atUs":7,"cmd":"start","durationUs":5})") + '\n');
    QCOMPARE(file.readLine(), QByteArray(R"({"cmd":"pause"})") + '\n');
    QCOMPARE(file.readLine(), QByteArray(R"({"cmd":"resume"})") + '\n');
    QCOMPARE(file.readLine(), QByteArray(R"({"cmd":"stop"})") + '\n');
}

void tst_RecorderProcess::killsARecorderThatHangs_data()
{
    QTest::addColumn<QString>("body");
    QTest::addColumn<bool>("isStopped");
    QTest::addColumn<int>("seconds");
    QTest::addColumn<QString>("why");
    const QString hangs = "exec sleep 600";
    const QString begins = R"(hello; echo '{"event":"recording","id":1}'; )";
    const QString silent = "died The recorder stopped responding.";
    QTest::newRow("without a greeting")
        << hangs << false << 15 << "died The recorder did not start in time.";
    QTest::newRow("while it records") << begins + hangs << false << 5 << silent;
    QTest::newRow("while it closes") << begins + hangs << true << 20 << silent;
    QTest::newRow("without a first frame")
        << R"(hello; echo '{"event":"ready","id":1}'; )" + hangs << false << 15 << silent;
}

void tst_RecorderProcess::killsARecorderThatHangs()
{
    QFETCH(QString, body);
    QFETCH(bool, isStopped);
    QFETCH(int, seconds);
    QFETCH(QString, why);
    RecorderProcess recorder(Script("echo $$ > \"$0.pid\"; " + body));
    Events events(recorder);
    QElapsedTimer timer;
    timer.start();
    recorder.Prepare(RequestFor(FilePath()));
    recorder.Start(std::nullopt, 0ms);
    if (isStopped) {
        recorder.Stop();
    }
    QTRY_VERIFY_WITH_TIMEOUT(events.IsOver(), Patience);
    QCOMPARE(events.all.constLast(), why);
    // Seconds are counted from the last event, and by a coarse timer.
    QVERIFY2(timer.elapsed() > seconds * 950, qPrintable(QString::number(timer.elapsed())));
    QFile file(m_folder->filePath("recorder.pid"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const pid_t id = file.readAll().trimmed().toInt();
    QVERIFY(id > 0);
    QCOMPARE(kill(id, 0), -1);
}

void tst_RecorderProcess::waitsAsLongAsThereIsProgress()
{
    RecorderProcess recorder(Script(R"sh(
        hello; echo '{"event":"recording","id":1}'
        for i in 1 2 3 4 5 6 7 8; do sleep 1; echo '{"event":"progress","id":1}'; done
        echo '{"event":"finished","id":1,"reason":"stopped"}'
        read line)sh"));
    Events events(recorder);
    recorder.Prepare(RequestFor(FilePath()));
    QTRY_VERIFY_WITH_TIMEOUT(events.IsOver(), Patience);
    QCOMPARE(events.all, (QStringList{"recording", "finished stopped"}));
    QCOMPARE(events.progresses.size(), std::size_t(8));
}

void tst_RecorderProcess::closesTheFileWhenItIsDeleted()
{
    auto recorder = std::make_unique<RecorderProcess>(PX_RECORDER);
    Events events(*recorder);
    recorder->Prepare(RequestFor(FilePath()));
    recorder->Start(std::nullopt, 0ms);
    QTRY_VERIFY_WITH_TIMEOUT(!events.progresses.empty(), Patience);
    recorder.reset();
    QVERIFY(!events.IsOver());
    QVERIFY(MediaIn(FilePath()).seconds > 0.5);
    QCOMPARE(DecodingErrors(FilePath()), QString());
}

void tst_RecorderProcess::killsWhatDoesNotEndWhenItIsDeleted()
{
    auto recorder = std::make_unique<RecorderProcess>(
        Script("hello; echo $$ > \"$0.new\"; mv \"$0.new\" \"$0.pid\"; exec sleep 600"));
    recorder->Prepare(RequestFor(FilePath()));
    QFile file(m_folder->filePath("recorder.pid"));
    QTRY_VERIFY_WITH_TIMEOUT(file.exists(), Patience);
    QVERIFY(file.open(QIODevice::ReadOnly));
    recorder.reset();
    QCOMPARE(kill(file.readAll().trimmed().toInt(), 0), -1);
}

void tst_RecorderProcess::outlivesBeingStopped()
{
    Host host;
    StartHost(host);
    QTRY_VERIFY_WITH_TIMEOUT(host.Count("progress") > 0, Patience);
    const auto id = static_cast<pid_t>(host.processId());
    kill(id, SIGSTOP);
    // Longer than the silence of a recorder that hangs.
    constexpr int milliseconds = 8000;
    QTest::qWait(milliseconds);
    const int before = host.Count("progress");
    kill(id, SIGCONT);
    QTRY_VERIFY_WITH_TIMEOUT(host.Count("progress") > before, Patience);
    host.write("stop\n");
    QVERIFY(host.waitForFinished(Patience));
    QCOMPARE(host.Count("finished stopped"), 1);
    QCOMPARE(host.Count("died"), 0);
}

void tst_RecorderProcess::isNotReachedByCtrlC()
{
    Host host;
    StartHost(host);
    QTRY_VERIFY_WITH_TIMEOUT(host.Count("progress") > 0, Patience);
    host.Interrupt();
    const int before = host.Count("progress");
    QTRY_VERIFY_WITH_TIMEOUT(host.Count("progress") >= before + 2 || host.Count("finished") > 0,
                             Patience);
    QCOMPARE(host.Count("finished"), 0);
    host.write("stop\n");
    QVERIFY(host.waitForFinished(Patience));
    QCOMPARE(host.Count("finished stopped"), 1);
}

void tst_RecorderProcess::closesTheFileWhenTheProgramIsKilled()
{
    Host host;
    StartHost(host);
    QTRY_VERIFY_WITH_TIMEOUT(host.Count("progress") > 0, Patience);
    const auto children = ChildrenOf(host.processId());
    QCOMPARE(children.size(), 1);
    host.kill();
    QVERIFY(host.waitForFinished(Patience));
    // As a process without a parent it is gone from the table at once.
    QTRY_COMPARE_WITH_TIMEOUT(kill(children.constFirst(), 0), -1, Patience);
    QVERIFY(MediaIn(FilePath()).seconds > 0.5);
    QCOMPARE(DecodingErrors(FilePath()), QString());
}

/// Records into \a file until a line comes in.
int RunHost(int argc, char** argv, const QString& file)
{
    // Without effect, but not ignored: a program that is started would ignore it, too.
    std::signal(SIGINT, [](int) {});
    QCoreApplication application(argc, argv);
    RecorderProcess recorder(PX_RECORDER);
    const auto print = [](const QString& text) {
        std::puts(qPrintable(text));
        std::fflush(stdout);
    };
    QObject::connect(&recorder, &RecorderProcess::Progressed, [=] { print("progress"); });
    QObject::connect(&recorder, &RecorderProcess::Died, [&](const QString& why) {
        print("died " + why);
        QCoreApplication::quit();
    });
    QObject::connect(&recorder, &RecorderProcess::Finished, [&](const RecorderResult& result) {
        print("finished " + result.reason);
        QCoreApplication::quit();
    });
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, [&] {
        input.setEnabled(false);
        recorder.Stop();
    });
    recorder.Prepare(RequestFor(file));
    recorder.Start(std::nullopt, 0ms);
    return QCoreApplication::exec();
}

} // namespace Zentor::Tests

int main(int argc, char** argv)
{
    if (argc == 3 && qstrcmp(argv[1], "--host") == 0) {
        return Zentor::Tests::RunHost(argc, argv, QString::fromLocal8Bit(argv[2]));
    }
    const Zentor::Tests::TestEnvironment environment;
    const QApplication application(argc, argv);
    Zentor::Tests::tst_RecorderProcess test;
    return Zentor::Tests::RunTest(argc, argv, test);
}

#include "tst_RecorderProcess.moc"
