// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RecordingService.h"

#include <QSignalSpy>

#include "RecordingSettings.h"
#include "StoreIn.h"
#include "System/MachineClock.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

using namespace std::chrono_literals;

using Schedule::Moment;
using Schedule::Notice;
using Schedule::Outcome;
using Schedule::RecordingEntry;
using Schedule::RecordingService;
using Schedule::RecordingsList;

constexpr qint64 PlentyOfBytes = 1'000'000'000'000;
class OneScreen final : public Schedule::IScreens {
public:
    bool IsThere(int screenIndex) const override { return screenIndex <= 0; }
    QSize SizeOf(int screenIndex) const override
    {
        return IsThere(screenIndex) ? QSize(1920, 1080) : QSize();
    }
};

Moment Now()
{
    return Schedule::MachineClock().Now().wall;
}

/// A whole second that is at least \a ahead of now.
Moment SoonAfter(Schedule::Length ahead)
{
    return Moment(std::chrono::ceil<std::chrono::seconds>((Now() + ahead).time_since_epoch()));
}

PX::RecordTime Task(const QString& title, Moment start, Schedule::Length duration)
{
    PX::RecordTime task;
    task.title = title;
    task.start = start;
    task.duration = duration;
    task.screenIndex = 0;
    return task;
}

} // namespace

class tst_RecordingService : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void recordsByHandUntilItIsStopped();
    void limitsARecordingByHand();
    void limitsNothingInTheScheduledMode();
    void recordsATaskInItsTime();
    void takesADoneTaskOutAgainThatAPanelHasStored();
    void stopsATaskThatIsTakenOut();
    void recordsTheRestWhenTheRecorderDies();
    void tellsOfARecorderThatIsMissing();
    void startsNoTaskWithoutRoom_data();
    void startsNoTaskWithoutRoom();
    void startsByHandWhateverTheRoom();
    void holdsTheTasksAgainstTheDisk();
    void settlesWhatACrashLeft();
    void closesTheFileBeforeItLeaves();
    void quitsAfterARecording();
    void isNotRunByWakingUpBetweenTasks();

private:
    void Begin(const QString& program = PX_LINE_RECORDER);
    void SetTasks(const std::vector<PX::RecordTime>& tasks);
    std::vector<RecordingEntry> Entries() const;
    bool HasOutcomes(const std::vector<Outcome>& outcomes) const;
    std::vector<Notice> NoticesOf(Notice::Kind kind) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::shared_ptr<PX::SettingsStore> m_store;
    std::shared_ptr<RecordingsList> m_list;
    std::unique_ptr<RecordingService> m_service;
    std::vector<Notice> m_notices;
    qint64 m_freeBytes = PlentyOfBytes;
};

void tst_RecordingService::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_store = OpenStoreIn(*m_folder);
    m_store->Change(
        [&](auto& settings) { settings.resultsFolderPath = m_folder->filePath("Videos"); });
    m_list = std::make_shared<RecordingsList>(m_folder->filePath("recordings.json"));
    QCOMPARE(m_list->Open(), QString());
    m_freeBytes = PlentyOfBytes;
    m_notices.clear();
    qunsetenv("LINE_RECORDER");
}

void tst_RecordingService::cleanup()
{
    m_service.reset();
    m_list.reset();
    m_store.reset();
}

void tst_RecordingService::Begin(const QString& program)
{
    m_service = std::make_unique<RecordingService>(Schedule::ServiceParts{
        m_store, m_list, std::make_shared<OneScreen>(), std::make_shared<Schedule::MachineClock>(),
        program, [this](const QString&) { return m_freeBytes; }});
    connect(m_service.get(), &RecordingService::Noticed, this,
            [this](const Notice& notice) { m_notices.push_back(notice); });
    m_service->Begin();
}

void tst_RecordingService::SetTasks(const std::vector<PX::RecordTime>& tasks)
{
    m_store->Change([&](auto& settings) {
        settings.schedule = tasks;
        settings.scheduledCaptureEnabled = true;
    });
}

std::vector<RecordingEntry> tst_RecordingService::Entries() const
{
    std::vector<RecordingEntry> entries;
    for (const auto& item : m_list->Items()) {
        entries.push_back(item.entry);
    }
    return entries;
}

bool tst_RecordingService::HasOutcomes(const std::vector<Outcome>& outcomes) const
{
    const auto entries = Entries();
    return std::equal(entries.begin(), entries.end(), outcomes.begin(), outcomes.end(),
                      [](const auto& entry, Outcome outcome) { return entry.outcome == outcome; });
}

std::vector<Notice> tst_RecordingService::NoticesOf(Notice::Kind kind) const
{
    std::vector<Notice> found;
    std::copy_if(m_notices.begin(), m_notices.end(), std::back_inserter(found),
                 [kind](const Notice& notice) { return notice.kind == kind; });
    return found;
}

void tst_RecordingService::recordsByHandUntilItIsStopped()
{
    Begin();
    QSignalSpy progressed(m_service.get(), &RecordingService::Progressed);
    QVERIFY(m_service->StartByHand());
    QVERIFY(!m_service->StartByHand());
    QTRY_VERIFY_WITH_TIMEOUT(HasOutcomes({Outcome::Recording}), Patience);
    QVERIFY(m_service->IsRecording());
    QTRY_VERIFY_WITH_TIMEOUT(progressed.count() > 0, Patience);
    m_service->Stop();
    QTRY_VERIFY_WITH_TIMEOUT(HasOutcomes({Outcome::Stopped}), Patience);
    QVERIFY(!m_service->IsRecording());
    const RecordingEntry entry = Entries().front();
    QVERIFY(QFile::exists(entry.file));
    QVERIFY(QFileInfo(entry.file).fileName().startsWith("Recording "));
    QVERIFY(entry.start <= entry.end);
    QCOMPARE(NoticesOf(Notice::Kind::Ended).size(), std::size_t(1));
}

void tst_RecordingService::limitsARecordingByHand()
{
    m_store->Change([](auto& settings) {
        settings.limitedCaptureEnabled = true;
        settings.limitedCaptureDuration = 1s;
    });
    Begin();
    QVERIFY(m_service->StartByHand());
    QTRY_VERIFY_WITH_TIMEOUT(HasOutcomes({Outcome::Complete}), Patience);
}

void tst_RecordingService::limitsNothingInTheScheduledMode()
{
    m_store->Change([](auto& settings) {
        settings.limitedCaptureEnabled = true;
        settings.scheduledCaptureEnabled = true;
        settings.limitedCaptureDuration = 1s;
    });
    Begin();
    QVERIFY(m_service->StartByHand());
    QTRY_VERIFY_WITH_TIMEOUT(HasOutcomes({Outcome::Recording}), Patience);
    QVERIFY(!m_service->Status().end.has_value());
}

void tst_RecordingService::recordsATaskInItsTime()
{
    Begin();
    const Moment start = SoonAfter(1s);
    SetTasks({Task("Lecture", start, 1s)});
    QCOMPARE(m_service->PendingTasks(), 1);
    int removed = 0;
    connect(m_service.get(), &RecordingService::TaskOver, this, [&](const PX::RecordTime& task) {
        ++removed;
        QCOMPARE(task.title, QStringLiteral("Lecture"));
        // A list finds its row by it.
        QCOMPARE(m_store->Settings().schedule.size(), std::size_t(1));
    });
    QTRY_VERIFY_WITH_TIMEOUT(HasOutcomes({Outcome::Complete}), Patience);
    QVERIFY(Entries().front().start == start);
    QVERIFY(m_store->Settings().schedule.empty());
    QCOMPARE(removed, 1);
    QCOMPARE(m_service->PendingTasks(), 0);
    QCOMPARE(NoticesOf(Notice::Kind::Started).size(), std::size_t(1));
    QVERIFY(QFileInfo(Entries().front().file).fileName().startsWith("Lecture "));
}

void tst_RecordingService::takesADoneTaskOutAgainThatAPanelHasStored()
{
    Begin();
    const PX::RecordTime task = Task("Lecture", SoonAfter(1s), 1s);
    const PX::RecordTime other = Task("Other", SoonAfter(1h), 1s);
    SetTasks({task, other});
    QTRY_VERIFY_WITH_TIMEOUT(HasOutcomes({Outcome::Complete}), Patience);
    SetTasks({task, other});
    QTRY_COMPARE_WITH_TIMEOUT(m_store->Settings().schedule.size(), std::size_t(1), Patience);
    QCOMPARE(m_store->Settings().schedule.front().title, other.title);
    QVERIFY(HasOutcomes({Outcome::Complete}));
}

void tst_RecordingService::stopsATaskThatIsTakenOut()
{
    Begin();
    SetTasks({Task("Lecture", SoonAfter(1s), 1h)});
    QTRY_VERIFY_WITH_TIMEOUT(HasOutcomes({Outcome::Recording}), Patience);
    SetTasks({});
    QTRY_VERIFY_WITH_TIMEOUT(HasOutcomes({Outcome::Stopped}), Patience);
}

void tst_RecordingService::recordsTheRestWhenTheRecorderDies()
{
    qputenv("LINE_RECORDER", "die");
    Begin();
    SetTasks({Task("Lecture", SoonAfter(1s), 1h)});
    QTRY_VERIFY_WITH_TIMEOUT(HasOutcomes({Outcome::Partial}) || Entries().size() > 1, Patience);
    qunsetenv("LINE_RECORDER");
    QTRY_VERIFY_WITH_TIMEOUT(Entries().size() > 1 && Entries().back().outcome == Outcome::Recording
                                 && m_service->Status().progress.length > 500ms,
                             Patience);
    QVERIFY(Entries().front().file != Entries().back().file);
    QVERIFY(QFile::exists(Entries().front().file));
    QCOMPARE(Entries().front().reason, Schedule::Why::RecorderDied);
}

void tst_RecordingService::tellsOfARecorderThatIsMissing()
{
    Begin(m_folder->filePath("px-recorder"));
    QVERIFY(m_service->StartByHand());
    QTRY_VERIFY_WITH_TIMEOUT(HasOutcomes({Outcome::Failed}), Patience);
    QCOMPARE(Entries().front().reason, Schedule::Why::NoRecorder);
    QCOMPARE(NoticesOf(Notice::Kind::Failed).size(), std::size_t(1));
}

void tst_RecordingService::startsNoTaskWithoutRoom_data()
{
    QTest::addColumn<qint64>("freeBytes");
    QTest::addColumn<bool>("isStarted");
    QTest::newRow("just too little") << qint64(1'000'000'000) << false;
    QTest::newRow("just enough") << qint64(1'000'000'001) << true;
    QTest::newRow("nobody knows") << qint64(-1) << true;
}

void tst_RecordingService::startsNoTaskWithoutRoom()
{
    QFETCH(qint64, freeBytes);
    QFETCH(bool, isStarted);
    m_freeBytes = freeBytes;
    Begin();
    SetTasks({Task("Lecture", SoonAfter(1s), 5s)});
    QTRY_VERIFY_WITH_TIMEOUT(HasOutcomes({isStarted ? Outcome::Complete : Outcome::Failed}),
                             Patience);
    // Once, however often it was tried.
    QCOMPARE(NoticesOf(Notice::Kind::NoRoom).size(), std::size_t(isStarted ? 0 : 1));
    if (!isStarted) {
        QCOMPARE(Entries().front().reason, QString("disk-full"));
        QCOMPARE(NoticesOf(Notice::Kind::NoRoom).front().freeBytes, freeBytes);
    }
}

void tst_RecordingService::startsByHandWhateverTheRoom()
{
    m_freeBytes = 1;
    Begin();
    QVERIFY(m_service->StartByHand());
    QTRY_VERIFY_WITH_TIMEOUT(HasOutcomes({Outcome::Recording}), Patience);
}

void tst_RecordingService::holdsTheTasksAgainstTheDisk()
{
    Begin();
    m_freeBytes = 20'000'000'000;
    SetTasks({Task("Short", SoonAfter(1h), 1h)});
    QTRY_COMPARE_WITH_TIMEOUT(m_service->Status().next.has_value(), true, Patience);
    QVERIFY(NoticesOf(Notice::Kind::LowDisk).empty());
    SetTasks({Task("Short", SoonAfter(1h), 1h), Task("Long", SoonAfter(24h), 23h)});
    QTRY_COMPARE_WITH_TIMEOUT(NoticesOf(Notice::Kind::LowDisk).size(), std::size_t(1), Patience);
    const Notice notice = NoticesOf(Notice::Kind::LowDisk).front();
    QCOMPARE(notice.freeBytes, m_freeBytes - 1'000'000'000);
    QVERIFY(notice.neededBytes > notice.freeBytes);
}

void tst_RecordingService::settlesWhatACrashLeft()
{
    const Moment start = SoonAfter(-1min);
    m_list->Add({"Lecture", start, start, Outcome::Recording,
                 m_folder->filePath("Videos/Lecture.mkv"), QString()});
    SetTasks({Task("Lecture", start, 1h)});
    Begin();
    QTRY_VERIFY_WITH_TIMEOUT(HasOutcomes({Outcome::Failed, Outcome::Recording}), Patience);
}

void tst_RecordingService::closesTheFileBeforeItLeaves()
{
    Begin();
    QSignalSpy atRest(m_service.get(), &RecordingService::AtRest);
    QVERIFY(m_service->StartByHand());
    QTRY_VERIFY_WITH_TIMEOUT(HasOutcomes({Outcome::Recording}), Patience);
    m_service->Leave();
    QCOMPARE(atRest.count(), 0);
    QTRY_COMPARE_WITH_TIMEOUT(atRest.count(), 1, Patience);
    QVERIFY(HasOutcomes({Outcome::Stopped}));
    QVERIFY(!m_service->StartByHand());
}

void tst_RecordingService::quitsAfterARecording()
{
    m_store->Change([](auto& settings) {
        settings.limitedCaptureEnabled = true;
        settings.limitedCaptureDuration = 1s;
        settings.captureFinishAction = PX::QuitApplication;
    });
    Begin();
    QSignalSpy quit(m_service.get(), &RecordingService::QuitRequested);
    QVERIFY(m_service->StartByHand());
    QTRY_COMPARE_WITH_TIMEOUT(quit.count(), 1, Patience);
    QVERIFY(HasOutcomes({Outcome::Complete}));
}

void tst_RecordingService::isNotRunByWakingUpBetweenTasks()
{
    std::vector<PX::RecordTime> tasks;
    constexpr int count = 100;
    for (int day = 1; day <= count; ++day) {
        tasks.push_back(Task(QString("Task %1").arg(day), SoonAfter(24h * day), 1h));
    }
    SetTasks(tasks);
    Begin();
    QCOMPARE(m_service->PendingTasks(), count);
    QSignalSpy changed(m_service.get(), &RecordingService::StatusChanged);
    QTest::qWait(1500);
    // At most for the settings, which were stored meanwhile.
    QVERIFY(changed.count() <= 1);
}

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_RecordingService)

#include "tst_RecordingService.moc"
