// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <optional>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <utime.h>

#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>

#include <glog/logging.h>

#include "FaultyDisk.h"
#include "FullDisk.h"
#include "PXUserSettings/SettingsFormat.h"
#include "PXUserSettings/SettingsStore.h"
#include "Samples.h"
#include "WidgetTest.h"

using namespace Zentor;
using namespace Zentor::Tests;
using namespace std::chrono_literals;
using PX::SettingsNotice;
using PX::SettingsStore;
using PX::UserSettings;

namespace {

// What this program does as the other process, when it is started with one of these.
constexpr const char* SaveManyOption = "--save-many";
constexpr const char* HoldFileOption = "--hold-file";

/// Collects the log lines of the store.
class Log final : public google::LogSink {
public:
    Log() { google::AddLogSink(this); }
    ~Log() override { google::RemoveLogSink(this); }
    Q_DISABLE_COPY(Log)

    void send(google::LogSeverity, const char*, const char*, int, const std::tm*,
              const char* message, std::size_t length) override
    {
        lines << QString::fromUtf8(message, int(length));
    }

    QStringList lines;
};

/// Acts as a user whom file permissions apply to, also where the tests run as the administrator.
class OrdinaryUser {
public:
    OrdinaryUser() { m_isOrdinary = m_before != 0 || seteuid(65534) == 0; }
    ~OrdinaryUser() { m_isOrdinary = seteuid(m_before) == 0; }
    Q_DISABLE_COPY(OrdinaryUser)

    bool IsOrdinary() const { return m_isOrdinary; }

private:
    const uid_t m_before = geteuid();
    bool m_isOrdinary = false;
};

/// The permission bits of a file, or -1 where there is none.
int PermissionsOf(const QString& path)
{
    struct stat status { };
    return stat(qPrintable(path), &status) == 0 ? int(status.st_mode & 07777) : -1;
}

/// A folder with room for a settings file.
class Place {
public:
    QString Path() const { return m_folder.filePath(QStringLiteral("settings.json")); }

    bool Write(const QByteArray& content) const
    {
        QFile file(Path());
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    }

    QByteArray Read(const QString& name = QStringLiteral("settings.json")) const
    {
        QFile file(m_folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
    }

    QStringList DamagedFiles() const
    {
        return QDir(m_folder.path()).entryList({QStringLiteral("settings.json.damaged-*")});
    }
    QStringList ChangedFiles() const
    {
        return QDir(m_folder.path()).entryList({QStringLiteral("settings.json.changed-*")});
    }

    /// The names of all that is in the folder.
    QStringList Names() const
    {
        return QDir(m_folder.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    /// Gives the folder and the file these permissions.
    bool Protect(QFile::Permissions folder, QFile::Permissions file) const
    {
        return QFile::setPermissions(Path(), file)
            && QFile::setPermissions(m_folder.path(), folder);
    }

    /// Whoever owns the folder.
    bool Unprotect() const
    {
        const uid_t user = geteuid();
        const bool isOwner = seteuid(getuid()) == 0;
        return QFile::setPermissions(m_folder.path(), Everything) && isOwner && seteuid(user) == 0;
    }

    ~Place() { QFile::setPermissions(m_folder.path(), Everything); }

    static constexpr QFile::Permissions Reading = QFile::ReadOwner | QFile::ExeOwner
        | QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;
    static constexpr QFile::Permissions Everything =
        Reading | QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;

private:
    QTemporaryDir m_folder;
};

/// Each store keeps a section "appearance" with a page and a language.
QString Field(const UserSettings& settings, const char* name)
{
    return settings.sections.value(QStringLiteral("appearance"))
        .value(QLatin1String(name))
        .toString();
}

QString PageOf(const UserSettings& settings)
{
    return Field(settings, "page");
}

void SetFields(UserSettings& settings, const QString& page, const QString& language)
{
    settings.sections.insert(
        QStringLiteral("appearance"),
        QJsonObject{{QStringLiteral("page"), page}, {QStringLiteral("language"), language}});
}

PX::SettingsSection AppearanceSection()
{
    const auto read = [](const PX::SectionReader& found) {
        QString page;
        QString language;
        found.Read(QStringLiteral("page"), page, PX::ToText);
        found.Read(QStringLiteral("language"), language, PX::ToText);
        UserSettings settings;
        SetFields(settings, page, language);
        return settings.sections.first();
    };
    return {QStringLiteral("appearance"), read};
}

bool Open(SettingsStore& store)
{
    store.AddSection(AppearanceSection());
    QString error;
    return store.Open(&error) && error.isEmpty();
}

/// Why the store cannot be opened, or nothing.
QString OpenError(const QString& path)
{
    SettingsStore store(path);
    QString error;
    return store.Open(&error) ? QString() : error;
}

void SetPage(SettingsStore& store, const QString& page)
{
    store.Change([&page](UserSettings& settings) { SetFields(settings, page, {}); });
}

/// Settings in which Everything tells the same number.
UserSettings State(int number)
{
    UserSettings settings;
    SetFields(settings, QString::number(number), QString::number(number));
    for (int i = 0; i < 50; ++i) {
        settings.schedule.push_back(Record(QStringLiteral("Task %1 of %2").arg(i).arg(number),
                                           At("00:00") + i * 1min, 1min));
    }
    return settings;
}

int SaveMany(const QString& path)
{
    SettingsStore store(path);
    if (!Open(store)) {
        return 1;
    }
    for (int number = 0; number < 1000; ++number) {
        store.Change([number](UserSettings& settings) { settings = State(number); });
        if (!store.Flush()) {
            return 2;
        }
        puts("saved");
        fflush(stdout);
    }
    return 0;
}

int HoldFile(const QString& path)
{
    SettingsStore store(path);
    puts(Open(store) ? "open" : "refused");
    fflush(stdout);
    return getchar();
}

/// This program as another process.
class OtherProcess {
public:
    OtherProcess(const char* mode, const QString& path)
    {
        m_process.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(mode), path});
    }
    ~OtherProcess()
    {
        m_process.kill();
        m_process.waitForFinished();
    }
    Q_DISABLE_COPY(OtherProcess)

    QByteArray ReadLine()
    {
        while (!m_process.canReadLine() && m_process.waitForReadyRead(30000)) { }
        return m_process.readLine().trimmed();
    }

    bool Kill()
    {
        m_process.kill();
        return m_process.waitForFinished() && m_process.exitStatus() == QProcess::CrashExit;
    }

private:
    QProcess m_process;
};

} // namespace

Q_DECLARE_METATYPE(Zentor::Tests::FaultyDisk::Fault)
Q_DECLARE_METATYPE(Zentor::PX::SettingsNotice::Cause)

class tst_SettingsStore : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void startsWithDefaults()
    {
        const Place place;
        SettingsStore store(place.Path());
        const QSignalSpy changed(&store, &SettingsStore::Changed);
        QVERIFY(Open(store));
        QCOMPARE(store.FilePath(), place.Path());
        QVERIFY(PageOf(store.Settings()).isEmpty());
        QVERIFY(store.Flush());
        QVERIFY(!QFile::exists(place.Path()));
        QCOMPARE(changed.count(), 0);
    }

    void keepsChanges()
    {
        const Place place;
        {
            SettingsStore store(place.Path());
            QVERIFY(Open(store));
            const QSignalSpy changed(&store, &SettingsStore::Changed);
            const QSignalSpy saved(&store, &SettingsStore::Saved);
            store.Change([](UserSettings& settings) { settings = State(7); });
            QCOMPARE(changed.count(), 1);
            QCOMPARE(saved.count(), 0);
            QCOMPARE(PageOf(store.Settings()), QStringLiteral("7"));
            QTRY_COMPARE_WITH_TIMEOUT(saved.count(), 1, Patience);
            QVERIFY(store.Flush());
            QCOMPARE(saved.count(), 1);
        }
        SettingsStore store(place.Path());
        QVERIFY(Open(store));
        QCOMPARE(PageOf(store.Settings()), QStringLiteral("7"));
        QCOMPARE(store.Settings().schedule.size(), std::size_t(50));
        QVERIFY(place.DamagedFiles().isEmpty());
    }

    void aThousandChangesAreOneWrite()
    {
        const Place place;
        SettingsStore store(place.Path());
        QVERIFY(Open(store));
        const QSignalSpy changed(&store, &SettingsStore::Changed);
        const QSignalSpy saved(&store, &SettingsStore::Saved);
        for (int i = 0; i < 1000; ++i) {
            SetPage(store, QString::number(i));
        }
        QCOMPARE(changed.count(), 1000);
        QTRY_COMPARE_WITH_TIMEOUT(saved.count(), 1, Patience);
        QCoreApplication::sendPostedEvents();
        QVERIFY(store.Flush());
        QCOMPARE(saved.count(), 1);
        QVERIFY(place.Read().contains("\"999\""));
    }

    void savesAtTheEnd()
    {
        const Place place;
        {
            SettingsStore store(place.Path());
            QVERIFY(Open(store));
            SetPage(store, QStringLiteral("end"));
        }
        QVERIFY(place.Read().contains("\"end\""));
    }

    void savesWhenTheApplicationQuits()
    {
        const Place place;
        SettingsStore* lateStore = nullptr;
        QObject context;
        connect(qApp, &QCoreApplication::aboutToQuit, &context,
                [&] { SetPage(*lateStore, QStringLiteral("quit")); });
        SettingsStore store(place.Path());
        lateStore = &store;
        QVERIFY(Open(store));
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        QCoreApplication::exec();
        QVERIFY(place.Read().contains("\"quit\""));
    }

    void savesNothingBeforeItIsOpen()
    {
        const Place place;
        {
            SettingsStore store(place.Path());
            QVERIFY(store.Flush());
            SetPage(store, QStringLiteral("early"));
            QVERIFY(!store.Flush());
            QCOMPARE(PageOf(store.Settings()), QStringLiteral("early"));
        }
        QVERIFY(!QFile::exists(place.Path()));
    }

    void createsMissingFolders()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("a/b/c/settings.json"));
        SettingsStore store(path);
        QVERIFY(Open(store));
        SetPage(store, QStringLiteral("x"));
        QVERIFY(store.Flush());
        QVERIFY(QFile::exists(path));
    }

    void keepsUnknownFields()
    {
        const Place place;
        QVERIFY(place.Write(R"({"version": 1, "extra": 5, "paths": {"more": "m"}})"));
        SettingsStore store(place.Path());
        QVERIFY(Open(store));
        QVERIFY(place.DamagedFiles().isEmpty());
        SetPage(store, QStringLiteral("x"));
        QVERIFY(store.Flush());
        const auto fields = QJsonDocument::fromJson(place.Read()).object();
        QCOMPARE(fields.value(QLatin1String("extra")).toInt(), 5);
        QCOMPARE(fields.value(QLatin1String("paths")).toObject().value(QLatin1String("more")),
                 QJsonValue(QStringLiteral("m")));
    }

    void unknownFieldsGoWithTheirTask()
    {
        const Place place;
        QVERIFY(place.Write(R"({"version": 1, "scheduledCapture": {"tasks":
            [{"title": "A", "start": 1, "duration": 1, "color": "green"}]}})"));
        SettingsStore store(place.Path());
        QVERIFY(Open(store));
        const std::vector<PX::RecordTime> schedule = store.Settings().schedule;
        const auto setSchedule = [&](const std::vector<PX::RecordTime>& tasks) {
            store.Change([&](UserSettings& settings) { settings.schedule = tasks; });
            return store.Flush();
        };
        QVERIFY(setSchedule(schedule));
        QVERIFY(place.Read().contains("green"));
        QVERIFY(setSchedule({}));
        QVERIFY(!place.Read().contains("green"));
        // Another task of that name.
        QVERIFY(setSchedule(schedule));
        QVERIFY(place.Read().contains("\"A\""));
        QVERIFY(!place.Read().contains("green"));
    }

    void cannotBeOpened_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("a folder") << QStringLiteral("/folder");
        QTest::newRow("in a folder's name") << QStringLiteral("/folder/");
        QTest::newRow("below a file") << QStringLiteral("/file/settings.json");
        QTest::newRow("far below a file") << QStringLiteral("/file/a/b/settings.json");
    }

    void cannotBeOpened()
    {
        QFETCH(QString, path);
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("folder")));
        QFile file(folder.filePath(QStringLiteral("file")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        const QString error = OpenError(folder.path() + path);
        QVERIFY2(error.contains(folder.path() + path), qPrintable(error));
        QVERIFY(!OpenError({}).isEmpty());
    }

    void saysNothingThatControlsATerminal()
    {
        const QString error = OpenError(QStringLiteral("/dev/null/\x1b[2J\nsettings"));
        QVERIFY2(error.contains(QLatin1String("/dev/null/\\x1b[2J\\x0asettings")),
                 qPrintable(error));
    }

    void devicesAreNoSettingsFiles() { QVERIFY(!OpenError(QStringLiteral("/dev/zero")).isEmpty()); }

    void unreadableFile()
    {
        const Place place;
        QVERIFY(place.Write("{\"version\": 1}"));
        QVERIFY(place.Protect(Place::Everything, {}));
        const OrdinaryUser user;
        QVERIFY(user.IsOrdinary());
        const QString error = OpenError(place.Path());
        QVERIFY2(error.contains(place.Path()), qPrintable(error));
    }

    void failingDiskIsNoDamage_data()
    {
        QTest::addColumn<FaultyDisk::Fault>("fault");
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("error") << FaultyDisk::Fault::Read << QByteArray("{\"version\": 1}");
        QTest::newRow("error in an empty file") << FaultyDisk::Fault::Read << QByteArray();
        QTest::newRow("early end")
            << FaultyDisk::Fault::ShortRead << QByteArray("{\"version\": 1}");
    }

    void failingDiskIsNoDamage()
    {
        QFETCH(FaultyDisk::Fault, fault);
        QFETCH(QByteArray, content);
        const Place place;
        QVERIFY(place.Write(content));
        {
            const FaultyDisk disk(fault, "settings.json");
            SettingsStore store(place.Path());
            QString error;
            QVERIFY(!store.Open(&error));
            QVERIFY(disk.Failures() > 0);
            QVERIFY2(error.contains(place.Path()), qPrintable(error));
            const bool isError = fault == FaultyDisk::Fault::Read;
            QCOMPARE(error.contains(QStringLiteral("Input/output error")), isError);
            SetPage(store, QStringLiteral("x"));
            QVERIFY(!store.Flush());
            // The lock is free for others.
            QCOMPARE(place.Names(), QStringList(QStringLiteral("settings.json")));
        }
        QCOMPARE(place.Read(), content);
        QCOMPARE(place.Names(), QStringList(QStringLiteral("settings.json")));
    }

    void folderThatCannotBeWrittenTo()
    {
        const Place place;
        QVERIFY(place.Write("{\"version\": 1, \"appearance\": {\"page\": \"old\"}}"));
        QVERIFY(place.Protect(Place::Reading, Place::Reading));
        const OrdinaryUser user;
        QVERIFY(user.IsOrdinary());

        const QString missing = place.Path() + QStringLiteral(".missing");
        QVERIFY2(OpenError(missing).contains(missing), qPrintable(OpenError(missing)));

        // What is there can be used, but not changed.
        SettingsStore store(place.Path());
        QVERIFY(Open(store));
        QCOMPARE(PageOf(store.Settings()), QStringLiteral("old"));
        const QSignalSpy failed(&store, &SettingsStore::SaveFailed);
        const QByteArray before = place.Read();
        SetPage(store, QStringLiteral("new"));
        QVERIFY(!store.Flush());
        QCOMPARE(failed.count(), 1);
        QVERIFY(failed.at(0).at(0).toString().contains(place.Path()));
        QCOMPARE(place.Read(), before);
        QCOMPARE(PageOf(store.Settings()), QStringLiteral("new"));
    }

    void damagedFileThatCannotBeKept()
    {
        const Place place;
        const QByteArray damaged = "{\"version\": 1, \"appearance\": {\"page\": \"ol";
        QVERIFY(place.Write(damaged));
        QVERIFY(place.Protect(Place::Reading, Place::Reading));
        const OrdinaryUser user;
        QVERIFY(user.IsOrdinary());
        {
            SettingsStore store(place.Path());
            QString error;
            QVERIFY(!store.Open(&error));
            QVERIFY2(error.contains(place.Path()), qPrintable(error));
            SetPage(store, QStringLiteral("x"));
            QVERIFY(!store.Flush());
        }
        QCOMPARE(place.Read(), damaged);
    }

    void damagedFileOnAFullDisk()
    {
        const Place place;
        const QByteArray damaged = "{\"version\": 1, " + QByteArray(4000, 'x');
        QVERIFY(place.Write(damaged));
        const FullDisk disk(2000);
        const QString error = OpenError(place.Path());
        QVERIFY2(error.contains(place.Path()), qPrintable(error));
        QCOMPARE(place.Read(), damaged);
        QVERIFY(place.DamagedFiles().isEmpty());
    }

    void truncatedAtEveryByte()
    {
        UserSettings settings = State(3);
        settings.schedule.resize(2);
        const QByteArray whole = PX::FormatSettings(settings, {}).trimmed();
        const Place place;
        for (int size = 0; size <= whole.size(); ++size) {
            QVERIFY(place.Write(whole.left(size)));
            const Log log;
            SettingsStore store(place.Path());
            QVERIFY(Open(store));
            const bool isWhole = size == whole.size();
            QCOMPARE(PageOf(store.Settings()), isWhole ? QStringLiteral("3") : QString());
            QCOMPARE(log.lines.count(), isWhole ? 0 : 1);
            const QStringList kept = place.DamagedFiles();
            QCOMPARE(kept.count(), isWhole ? 0 : 1);
            if (!isWhole) {
                QCOMPARE(place.Read(kept.first()), whole.left(size));
                QVERIFY(log.lines.first().contains(kept.first()));
                QVERIFY(QFile::remove(QFileInfo(place.Path()).path() + QLatin1Char('/')
                                      + kept.first()));
                QVERIFY(store.Flush());
                QVERIFY(PX::ParseSettings(place.Read()).isUnderstood);
            }
        }
    }

    void keepsWhatIsDropped_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("page");
        QTest::newRow("newer version")
            << QByteArray(R"({"version": 2, "appearance": {"page": "p"}})") << QString();
        QTest::newRow("wrong type") << QByteArray(
            R"({"version": 1, "paths": 5, "appearance": {"page": "p", "language": 5}})")
                                    << QStringLiteral("p");
        QTest::newRow("value and another value")
            << QByteArray(R"({"version": 1, "appearance": {"page": "o", "page": "p"}})")
            << QStringLiteral("p");
        QTest::newRow("bad task") << QByteArray(
            R"({"version": 1, "scheduledCapture": {"tasks": [{}]}, "appearance": {"page": "p"}})")
                                  << QStringLiteral("p");
    }

    void keepsWhatIsDropped()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, page);
        const Place place;
        QVERIFY(place.Write(content));
        const Log log;
        SettingsStore store(place.Path());
        const QSignalSpy saved(&store, &SettingsStore::Saved);
        QVERIFY(Open(store));
        QCOMPARE(PageOf(store.Settings()), page);
        QCOMPARE(log.lines.count(), 1);
        QVERIFY(log.lines.first().startsWith(
            QLatin1String("Zentor::PX::SettingsStore::Open: damaged=")));
        QVERIFY(!log.lines.first().trimmed().contains(QLatin1Char('\n')));
        QCOMPARE(place.DamagedFiles().count(), 1);
        QCOMPARE(place.Read(place.DamagedFiles().first()), content);
        // So that the next start does not find the same damage.
        QTRY_COMPARE_WITH_TIMEOUT(saved.count(), 1, Patience);
        QCOMPARE(PX::ParseSettings(place.Read(), {AppearanceSection()}).problems, QStringList());
    }

    void keepsEveryDamagedFile()
    {
        const Place place;
        for (int i = 1; i <= 5; ++i) {
            QVERIFY(place.Write("damage " + QByteArray::number(i)));
            QCOMPARE(OpenError(place.Path()), QString());
            QCOMPARE(place.DamagedFiles().count(), i);
        }
    }

    void logLinesHoldNoControlCharacters()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("\x1b[2J\nsettings.json"));
        const auto write = [&](const char* content) {
            QFile file(path);
            return file.open(QIODevice::WriteOnly) && file.write(content) > 0;
        };
        QVERIFY(write("{\"version\": 1, \"confirmations\": {\"\\u001b[31m\\n\": 5}}"));
        const Log log;
        SettingsStore store(path);
        QVERIFY(Open(store));
        QVERIFY(write("changed"));
        QVERIFY(store.Flush());
        SetPage(store, QStringLiteral("x"));
        const FullDisk disk(10);
        QVERIFY(!store.Flush());
        QCOMPARE(log.lines.size(), 3);
        QVERIFY(log.lines.first().contains(QStringLiteral("confirmations.\\x1b[31m\\x0a: ")));
        for (const QString& line : log.lines) {
            QVERIFY(line.contains(QStringLiteral("/\\x1b[2J\\x0asettings.json")));
            QVERIFY(!line.contains(QLatin1Char('\x1b')));
            QVERIFY(!line.trimmed().contains(QLatin1Char('\n')));
        }
    }

    void manyProblemsAreOneLine()
    {
        const Place place;
        QByteArray tasks = "{}";
        for (int i = 1; i < 1000; ++i) {
            tasks += ", {}";
        }
        QVERIFY(
            place.Write("{\"version\": 1, \"scheduledCapture\": {\"tasks\": [" + tasks + "]}}"));
        const Log log;
        QCOMPARE(OpenError(place.Path()), QString());
        QCOMPARE(log.lines.count(), 1);
        QVERIFY(log.lines.first().contains(QLatin1String("and 995 more")));
    }

    void fullDisk()
    {
        const Place place;
        SettingsStore store(place.Path());
        QVERIFY(Open(store));
        SetPage(store, QStringLiteral("before"));
        QVERIFY(store.Flush());
        const QByteArray before = place.Read();

        const QSignalSpy saved(&store, &SettingsStore::Saved);
        const QSignalSpy failed(&store, &SettingsStore::SaveFailed);
        const Log log;
        {
            const FullDisk disk(rlim_t(before.size()));
            store.Change([](UserSettings& settings) { settings = State(1); });
            QTRY_COMPARE_WITH_TIMEOUT(failed.count(), 1, Patience);
            QVERIFY(failed.at(0).at(0).toString().contains(place.Path()));
            QCOMPARE(place.Read(), before);
            // Said once, however often it is tried.
            SetPage(store, QStringLiteral("during"));
            QVERIFY(!store.Flush());
            QVERIFY(!store.Flush());
            QCOMPARE(failed.count(), 1);
            QCOMPARE(log.lines.count(), 1);
            QCOMPARE(saved.count(), 0);
            QCOMPARE(PageOf(store.Settings()), QStringLiteral("during"));
        }
        // Nothing but time is needed.
        QTRY_COMPARE_WITH_TIMEOUT(saved.count(), 1, Patience);
        const auto document = PX::ParseSettings(place.Read(), {AppearanceSection()});
        QCOMPARE(PageOf(document.settings), QStringLiteral("during"));
        QCOMPARE(document.settings.schedule.size(), std::size_t(50));
        QCOMPARE(QDir(QFileInfo(place.Path()).path()).entryList(QDir::Files).count(), 2);

        // The next failure is a new one.
        const FullDisk disk(10);
        SetPage(store, QStringLiteral("again"));
        QVERIFY(!store.Flush());
        QCOMPARE(failed.count(), 2);
        QCOMPARE(log.lines.count(), 2);
    }

    void fullDiskIsTriedAgainAtTheEnd()
    {
        const Place place;
        {
            SettingsStore store(place.Path());
            QVERIFY(Open(store));
            {
                const FullDisk disk(10);
                SetPage(store, QStringLiteral("late"));
                QVERIFY(!store.Flush());
                QVERIFY(!QFile::exists(place.Path()));
            }
        }
        QVERIFY(place.Read().contains("\"late\""));
    }

    void diskThatIsFullFromTheStart()
    {
        const Place place;
        QVERIFY(place.Write("{\"version\": 1}"));
        SettingsStore store(place.Path());
        {
            const FullDisk disk(0);
            QVERIFY(Open(store));
            SetPage(store, QStringLiteral("a"));
            QVERIFY(!store.Flush());
            QVERIFY2(store.SaveProblem().startsWith(QLatin1String("No space left on device")),
                     qPrintable(store.SaveProblem()));
        }
        QVERIFY(store.Flush());
        QVERIFY(place.Read().contains("\"a\""));
    }

    void secondWriterIsRefused()
    {
        const Place place;
        SettingsStore store(place.Path());
        QVERIFY(Open(store));
        // However long the first one has been running.
        const utimbuf longAgo{1000000000, 1000000000};
        const QByteArray lock = QFile::encodeName(place.Path()) + ".lock";
        QCOMPARE(utime(lock.constData(), &longAgo), 0);
        const QString error = OpenError(place.Path());
        QVERIFY2(error.contains(place.Path()), qPrintable(error));
        OtherProcess other(HoldFileOption, place.Path());
        QCOMPARE(other.ReadLine(), QByteArray("refused"));
    }

    void secondWriterByALinkIsRefused_data()
    {
        QTest::addColumn<QString>("target");
        QTest::addColumn<QString>("link");
        QTest::addColumn<QString>("second");
        QTest::newRow("of the file") << "settings.json"
                                     << "link.json"
                                     << "link.json";
        QTest::newRow("of the folder") << "."
                                       << "link"
                                       << "link/settings.json";
        QTest::newRow("of no file yet") << "other/settings.json"
                                        << "link.json"
                                        << "link.json";
    }

    void secondWriterByALinkIsRefused()
    {
        QFETCH(QString, target);
        QFETCH(QString, link);
        QFETCH(QString, second);
        const QTemporaryDir folder;
        QVERIFY(QFile::link(target, folder.filePath(link)));
        const bool isOther = target.startsWith(QLatin1String("other"));
        const QString path = folder.filePath(isOther ? target : QStringLiteral("settings.json"));
        for (const QString& first : {path, folder.filePath(second)}) {
            SettingsStore store(first);
            QVERIFY(Open(store));
            QCOMPARE(store.FilePath(), first);
            QVERIFY(QFile::exists(path + QStringLiteral(".lock")));
            for (const QString& other : {path, folder.filePath(second)}) {
                const QString error = OpenError(other);
                QVERIFY2(error.contains(other), qPrintable(error));
            }
        }
    }

    void linkStaysALink_data()
    {
        QTest::addColumn<QString>("target");
        QTest::addColumn<bool>("isThere");
        QTest::newRow("to a file") << "real.json" << true;
        QTest::newRow("to a file elsewhere") << "folder/real.json" << true;
        QTest::newRow("to no file") << "real.json" << false;
        QTest::newRow("into no folder") << "not/there/real.json" << false;
        QTest::newRow("to a link") << "second.json" << false;
        QTest::newRow("beside a folder's link") << "far/../real.json" << false;
    }

    void linkStaysALink()
    {
        QFETCH(QString, target);
        QFETCH(bool, isThere);
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkpath(QStringLiteral("folder/inner")));
        QVERIFY(
            QFile::link(QStringLiteral("folder/inner"), folder.filePath(QStringLiteral("far"))));
        QVERIFY(QFile::link(QStringLiteral("third.json"),
                            folder.filePath(QStringLiteral("second.json"))));
        const QByteArray link = QFile::encodeName(folder.filePath(QStringLiteral("settings.json")));
        QCOMPARE(symlink(qPrintable(target), link.constData()), 0);
        QFile real(folder.filePath(target));
        QVERIFY(!isThere || (real.open(QIODevice::WriteOnly) && real.write("{\"version\": 1}")));
        real.close();

        for (const char* page : {"first", "second"}) {
            SettingsStore store(QFile::decodeName(link));
            QVERIFY(Open(store));
            SetPage(store, QLatin1String(page));
            QVERIFY(store.Flush());
            QVERIFY(QFileInfo(QFile::decodeName(link)).isSymLink());
            QVERIFY(real.open(QIODevice::ReadOnly));
            QVERIFY(real.readAll().contains(page));
            real.close();
        }
        QVERIFY(QFileInfo(folder.filePath(QStringLiteral("second.json"))).isSymLink());
    }

    void linkInACircleIsRefused()
    {
        const Place place;
        QVERIFY(QFile::link(place.Path(), place.Path() + QStringLiteral(".other")));
        QVERIFY(QFile::link(place.Path() + QStringLiteral(".other"), place.Path()));
        const QString error = OpenError(place.Path());
        QVERIFY2(error.contains(place.Path()), qPrintable(error));
        QCOMPARE(place.Names().size(), 2);
    }

    void fileOfAnotherProcessIsRefused()
    {
        const Place place;
        OtherProcess other(HoldFileOption, place.Path());
        QCOMPARE(other.ReadLine(), QByteArray("open"));
        const QString error = OpenError(place.Path());
        QVERIFY2(error.contains(place.Path()), qPrintable(error));
        QVERIFY(other.Kill());
        QCOMPARE(OpenError(place.Path()), QString());
    }

    void readOnlyFileIsNotReplaced()
    {
        const Place place;
        QVERIFY(place.Write("{\"version\": 1}"));
        QVERIFY(place.Protect(Place::Everything, Place::Reading));
        const OrdinaryUser user;
        QVERIFY(user.IsOrdinary());
        SettingsStore store(place.Path());
        QVERIFY(Open(store));
        SetPage(store, QStringLiteral("x"));
        QVERIFY(!store.Flush());
        QCOMPARE(place.Read(), QByteArray("{\"version\": 1}"));
    }

    void keepsWhatOthersWrite_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("others");
        QTest::addColumn<int>("kept");
        const QByteArray some = "{\"version\": 1, \"appearance\": {\"page\": \"a\"}}";
        const QByteArray other = "{\"version\": 1, \"appearance\": {\"page\": \"b\"}}";
        QTest::newRow("another content") << some << other << 1;
        QTest::newRow("nonsense") << some << QByteArray("b") << 1;
        QTest::newRow("nothing") << some << QByteArray() << 1;
        QTest::newRow("the same again") << some << some << 0;
        QTest::newRow("where there was none") << QByteArray() << other << 1;
    }

    void keepsWhatOthersWrite()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, others);
        QFETCH(int, kept);
        const Place place;
        QVERIFY(before.isEmpty() || place.Write(before));
        SettingsStore store(place.Path());
        QVERIFY(Open(store));
        const Log log;
        for (int round = 1; round <= 2; ++round) {
            // Another program has it in another file, as a rule.
            QVERIFY(round == 1 || QFile::remove(place.Path()));
            QVERIFY(place.Write(round == 1 ? others : others + ' '));
            const QByteArray found = place.Read();
            SetPage(store, QString::number(round));
            QVERIFY(store.Flush());
            QCOMPARE(place.ChangedFiles().size(), kept + round - 1);
            if (!place.ChangedFiles().isEmpty()) {
                QCOMPARE(place.Read(place.ChangedFiles().last()), found);
                QVERIFY(log.lines.last().contains(QStringLiteral("Flush: changed=")));
                QVERIFY(log.lines.last().contains(place.ChangedFiles().last()));
            }
            QCOMPARE(log.lines.size(), place.ChangedFiles().size());
            QCOMPARE(PageOf(PX::ParseSettings(place.Read(), {AppearanceSection()}).settings),
                     QString::number(round));
        }
        // Its own is no other's.
        SetPage(store, QStringLiteral("more"));
        QVERIFY(store.Flush());
        QCOMPARE(place.ChangedFiles().size(), kept + 1);
    }

    void tellsTheUser_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<SettingsNotice::Cause>("cause");
        QTest::addColumn<int>("droppedTasks");
        const QByteArray task = R"({"title": "A", "start": 1, "duration": 1})";
        const auto tasks = [](const QByteArray& list) {
            return "{\"version\": 1, \"scheduledCapture\": {\"tasks\": [" + list + "]}}";
        };
        QTest::newRow("empty") << QByteArray() << SettingsNotice::Cause::NotUnderstood << 0;
        QTest::newRow("cut off") << tasks(task).chopped(2) << SettingsNotice::Cause::NotUnderstood
                                 << 0;
        QTest::newRow("newer") << QByteArray("{\"version\": 2}")
                               << SettingsNotice::Cause::NotUnderstood << 0;
        QTest::newRow("a value") << QByteArray("{\"version\": 1, \"paths\": 5}")
                                 << SettingsNotice::Cause::PartlyUnusable << 0;
        QTest::newRow("two of three tasks")
            << tasks(task + ',' + task + ", 5") << SettingsNotice::Cause::PartlyUnusable << 2;
    }

    void tellsTheUser()
    {
        QFETCH(QByteArray, content);
        QFETCH(SettingsNotice::Cause, cause);
        QFETCH(int, droppedTasks);
        const Place place;
        QVERIFY(place.Write(content));
        SettingsStore store(place.Path());
        const QSignalSpy added(&store, &SettingsStore::NoticeAdded);
        QVERIFY(Open(store));
        QCOMPARE(added.count(), 0);
        QCOMPARE(store.Notices().size(), std::size_t(1));
        const SettingsNotice& notice = store.Notices().front();
        QCOMPARE(notice.cause, cause);
        QCOMPARE(notice.droppedTasks, droppedTasks);
        QCOMPARE(QFileInfo(notice.keptPath).path(), QFileInfo(place.Path()).path());
        QCOMPARE(place.Read(QFileInfo(notice.keptPath).fileName()), content);
        QVERIFY(notice.Text().contains(notice.keptPath));
        const QString tasks = QStringLiteral(": %1. ").arg(droppedTasks);
        QCOMPARE(notice.Text().contains(tasks), droppedTasks > 0);
        QVERIFY(!notice.Text().contains(QLatin1Char('%')));
    }

    void tellsTheUserNothingWithoutNeed()
    {
        const Place place;
        for (const char* page : {"a", "b"}) {
            SettingsStore store(place.Path());
            QVERIFY(Open(store));
            SetPage(store, QLatin1String(page));
            QVERIFY(store.Flush());
            QVERIFY(store.Notices().empty());
        }
    }

    void tellsTheUserOfOtherPrograms()
    {
        const Place place;
        SettingsStore store(place.Path());
        QVERIFY(Open(store));
        const QSignalSpy added(&store, &SettingsStore::NoticeAdded);
        connect(&store, &SettingsStore::NoticeAdded, &store,
                [&] { QVERIFY(!store.Notices().empty()); });
        for (int round = 1; round <= 2; ++round) {
            QVERIFY(place.Write("others " + QByteArray::number(round)));
            SetPage(store, QString::number(round));
            QVERIFY(store.Flush());
            QCOMPARE(added.count(), round);
            QCOMPARE(store.Notices().size(), std::size_t(round));
            const SettingsNotice& notice = store.Notices().back();
            QCOMPARE(notice.cause, SettingsNotice::Cause::ChangedOutside);
            QCOMPARE(QFileInfo(notice.keptPath).fileName(), place.ChangedFiles().last());
            QVERIFY(notice.Text().contains(notice.keptPath));
        }
    }

    void writesADeletedFileAgain()
    {
        const Place place;
        SettingsStore store(place.Path());
        QVERIFY(Open(store));
        SetPage(store, QStringLiteral("a"));
        QVERIFY(store.Flush());
        QVERIFY(QFile::remove(place.Path()));
        SetPage(store, QStringLiteral("b"));
        QVERIFY(store.Flush());
        QVERIFY(place.Read().contains("\"b\""));
        QVERIFY(place.ChangedFiles().isEmpty());
    }

    void keepsWhatOthersWriteOnceOnly()
    {
        const Place place;
        QVERIFY(place.Write("{\"version\": 1}"));
        SettingsStore store(place.Path());
        QVERIFY(Open(store));
        QVERIFY(place.Write("{\"version\": 1 }"));
        {
            const FullDisk disk(20);
            SetPage(store, QStringLiteral("a"));
            QVERIFY(!store.Flush());
            QVERIFY(!store.Flush());
            QCOMPARE(place.Read(), QByteArray("{\"version\": 1 }"));
        }
        QVERIFY(store.Flush());
        QCOMPARE(place.ChangedFiles().size(), 1);
    }

    void replacesNothingThatCannotBeKept_data()
    {
        QTest::addColumn<bool>("isReadError");
        QTest::newRow("disk is full") << false;
        QTest::newRow("cannot be read") << true;
    }

    void replacesNothingThatCannotBeKept()
    {
        QFETCH(bool, isReadError);
        const Place place;
        QVERIFY(place.Write("{\"version\": 1}"));
        SettingsStore store(place.Path());
        QVERIFY(Open(store));
        const QByteArray others = "{\"version\": 1, \"more\": \"" + QByteArray(1000, 'x') + "\"}";
        QVERIFY(place.Write(others));
        {
            std::optional<FullDisk> fullDisk;
            std::optional<FaultyDisk> faultyDisk;
            if (isReadError) {
                faultyDisk.emplace(FaultyDisk::Fault::Read, "settings.json");
            } else {
                fullDisk.emplace(900);
            }
            SetPage(store, QStringLiteral("a"));
            QVERIFY(!store.Flush());
            QVERIFY(!store.SaveProblem().isEmpty());
        }
        QCOMPARE(place.Read(), others);
        QVERIFY(place.ChangedFiles().isEmpty());
        QVERIFY(store.Flush());
        QCOMPARE(place.ChangedFiles().size(), 1);
    }

    void readsAgainWhatItReadWithoutALock_data()
    {
        QTest::addColumn<bool>("isChanged");
        QTest::newRow("changed meanwhile") << true;
        QTest::newRow("as it was") << false;
    }

    void readsAgainWhatItReadWithoutALock()
    {
        QFETCH(bool, isChanged);
        const Place place;
        QVERIFY(place.Write("{\"version\": 1}"));
        QVERIFY(place.Protect(Place::Reading, Place::Everything));
        const OrdinaryUser user;
        QVERIFY(user.IsOrdinary());
        SettingsStore store(place.Path());
        QVERIFY(Open(store));
        QVERIFY(!isChanged || place.Write("{\"version\": 1, \"more\": 1}"));
        SetPage(store, QStringLiteral("a"));
        QVERIFY(!store.Flush());

        QVERIFY(place.Unprotect());
        QVERIFY(store.Flush());
        QCOMPARE(place.ChangedFiles().size(), isChanged ? 1 : 0);
        QVERIFY(!OpenError(place.Path()).isEmpty());
    }

    void waitsForAnotherWriter()
    {
        const Place place;
        QVERIFY(place.Write("{\"version\": 1}"));
        QVERIFY(place.Protect(Place::Reading, Place::Everything));
        std::optional<SettingsStore> store;
        {
            const OrdinaryUser user;
            QVERIFY(user.IsOrdinary());
            store.emplace(place.Path());
            QVERIFY(Open(*store));
        }
        QVERIFY(place.Unprotect());
        {
            SettingsStore other(place.Path());
            QVERIFY(Open(other));
            SetPage(other, QStringLiteral("other"));
            QVERIFY(other.Flush());
            SetPage(*store, QStringLiteral("mine"));
            QVERIFY(!store->Flush());
            QVERIFY(store->SaveProblem().contains(QStringLiteral("another process")));
            QVERIFY(place.Read().contains("\"other\""));
        }
        QVERIFY(store->Flush());
        QVERIFY(place.Read().contains("\"mine\""));
        QVERIFY(place.Read(place.ChangedFiles().value(0)).contains("\"other\""));
    }

    void writesNothingWhenNothingHasChanged()
    {
        const Place place;
        SettingsStore store(place.Path());
        QVERIFY(Open(store));
        SetPage(store, QStringLiteral("a"));
        QVERIFY(store.Flush());
        const QSignalSpy saved(&store, &SettingsStore::Saved);
        const QSignalSpy failed(&store, &SettingsStore::SaveFailed);
        {
            const FullDisk disk(10);
            SetPage(store, QStringLiteral("b"));
            SetPage(store, QStringLiteral("a"));
            QVERIFY(store.Flush());
        }
        QCOMPARE(saved.count() + failed.count(), 0);
        SetPage(store, QStringLiteral("b"));
        QVERIFY(store.Flush());
        QCOMPARE(saved.count(), 1);
    }

    void diskThatCannotSync_data()
    {
        QTest::addColumn<bool>("isFolder");
        QTest::newRow("the file") << false;
        QTest::newRow("its folder") << true;
    }

    void diskThatCannotSync()
    {
        QFETCH(bool, isFolder);
        const Place place;
        SettingsStore store(place.Path());
        QVERIFY(Open(store));
        SetPage(store, QStringLiteral("before"));
        QVERIFY(store.Flush());
        const QSignalSpy saved(&store, &SettingsStore::Saved);
        const QSignalSpy failed(&store, &SettingsStore::SaveFailed);
        const QStringList names = place.Names();
        {
            const QString folder = QFileInfo(QFileInfo(place.Path()).path()).fileName();
            const FaultyDisk disk(FaultyDisk::Fault::Sync,
                                  isFolder ? QFile::encodeName(folder) : "settings.json");
            SetPage(store, QStringLiteral("during"));
            QVERIFY(!store.Flush());
            QVERIFY(!store.Flush());
            QCOMPARE(disk.Failures(), 2);
        }
        QCOMPARE(failed.count(), 1);
        QVERIFY(store.SaveProblem().contains(QStringLiteral("Input/output error")));
        QCOMPARE(saved.count(), 0);
        QCOMPARE(place.Names(), names);
        QCOMPARE(place.Read().contains("\"before\""), !isFolder);
        QVERIFY(store.Flush());
        QCOMPARE(saved.count(), 1);
        QVERIFY(place.Read().contains("\"during\""));
        // What reached the file in spite of a failure is no other program's.
        QVERIFY(place.ChangedFiles().isEmpty());
    }

    void damagedFileOnADiskThatCannotSync()
    {
        const Place place;
        QVERIFY(place.Write("damage"));
        const FaultyDisk disk(FaultyDisk::Fault::Sync, "settings.json");
        QVERIFY(OpenError(place.Path()).contains(QStringLiteral("Input/output error")));
        QCOMPARE(place.Names(), QStringList(QStringLiteral("settings.json")));
    }

    void sweepsUpAfterAKilledSave()
    {
        const Place place;
        QVERIFY(place.Write("{\"version\": 1}"));
        const QStringList unfinished{
            QStringLiteral("settings.json.saving-aB3dEf"),
            QStringLiteral("settings.json.damaged-20301231-235959.saving-aaaaaa"),
            QStringLiteral("settings.json.changed-20301231-235959-2.saving-ZZZ999")};
        const QStringList others{QStringLiteral("settings.json.backup"),
                                 QStringLiteral("settings.json.saving-aaaaa"),
                                 QStringLiteral("settings.json.saving-aaaaaaa"),
                                 QStringLiteral("settings.json.saving-aaaa.a"),
                                 QStringLiteral("settings.json.other.saving-aaaaaa"),
                                 QStringLiteral("settingsXjson.saving-aaaaaa"),
                                 QStringLiteral("xsettings.json.saving-aaaaaa")};
        const QDir folder(QFileInfo(place.Path()).path());
        for (const QString& name : unfinished + others) {
            QVERIFY(QFile(folder.filePath(name)).open(QIODevice::WriteOnly));
        }
        const QStringList never{QStringLiteral("settings.json.saving-Folder"),
                                QStringLiteral("settings.json.saving-Linked")};
        QVERIFY(folder.mkdir(never.first()));
        QVERIFY(QFile::link(place.Path(), folder.filePath(never.last())));
        {
            SettingsStore store(place.Path());
            QVERIFY(Open(store));
        }
        QStringList names = others + never + QStringList(QStringLiteral("settings.json"));
        names.sort();
        QStringList found = place.Names();
        found.sort();
        QCOMPARE(found, names);
    }

    void isTheUsersAlone_data()
    {
        QTest::addColumn<int>("before");
        QTest::addColumn<int>("kept");
        QTest::newRow("for all") << 0666 << 0600;
        QTest::newRow("to read for all") << 0644 << 0600;
        QTest::newRow("for the user") << 0600 << 0600;
        QTest::newRow("to read for the user") << 0400 << 0400;
    }

    void isTheUsersAlone()
    {
        QFETCH(int, before);
        QFETCH(int, kept);
        const mode_t mask = umask(0);
        const QTemporaryDir folder;
        const QString inner = folder.filePath(QStringLiteral("new/inner"));
        const QString path = inner + QStringLiteral("/settings.json");
        chmod(qPrintable(folder.path()), 0755);
        {
            SettingsStore store(path);
            QVERIFY(Open(store));
            QCOMPARE(PermissionsOf(path + QStringLiteral(".lock")), 0600);
            SetPage(store, QStringLiteral("x"));
        }
        QCOMPARE(PermissionsOf(path), 0600);
        QCOMPARE(PermissionsOf(inner), 0700);
        QCOMPARE(PermissionsOf(folder.filePath(QStringLiteral("new"))), 0700);
        QCOMPARE(PermissionsOf(folder.path()), 0755);
        // A damaged one, and one that is changed later.
        chmod(qPrintable(inner), 0755);
        for (const bool isDamaged : {true, false}) {
            KeepFileOf(path, mode_t(before), isDamaged, kept);
        }
        QCOMPARE(PermissionsOf(inner), 0755);
        umask(mask);
    }

    void killedWhileSaving()
    {
        const Place place;
        for (int round = 0; round < 20; ++round) {
            OtherProcess other(SaveManyOption, place.Path());
            int number = -1;
            // Every round is killed at another moment of another save.
            for (int line = 0; line <= round * 3; ++line) {
                QCOMPARE(other.ReadLine(), QByteArray("saved"));
                ++number;
            }
            std::this_thread::sleep_for(std::chrono::microseconds(round * 100));
            QVERIFY(other.Kill());

            SettingsStore store(place.Path());
            QVERIFY(Open(store));
            QVERIFY(place.DamagedFiles().isEmpty());
            QCOMPARE(place.Names().size(), 2);
            const UserSettings& settings = store.Settings();
            QVERIFY(PageOf(settings).toInt() >= number);
            QCOMPARE(Field(settings, "language"), PageOf(settings));
            QCOMPARE(settings.schedule.size(), std::size_t(50));
            for (const auto& record : settings.schedule) {
                QVERIFY(record.title.endsWith(QStringLiteral(" of ") + PageOf(settings)));
            }
        }
    }

private:
    /// Has the store keep what is in the file \a path, with the permissions \a before.
    static void KeepFileOf(const QString& path, mode_t before, bool isDamaged,
                           int permissionsOfKept)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(isDamaged ? "damage" : "{\"version\": 1}");
        file.close();
        chmod(qPrintable(path), before);
        SettingsStore store(path);
        QVERIFY(Open(store));
        QVERIFY(isDamaged || (file.open(QIODevice::WriteOnly) && file.write("changed") > 0));
        file.close();
        SetPage(store, QStringLiteral("y"));
        // An administrator may write to it nevertheless.
        chmod(qPrintable(path), before | 0200U);
        chmod(qPrintable(path), before);
        QCOMPARE(store.Flush(), geteuid() == 0 || (before & 0200U) != 0);
        QCOMPARE(store.Notices().empty(), false);
        QCOMPARE(PermissionsOf(store.Notices().back().keptPath), permissionsOfKept);
    }
};

int main(int argc, char** argv)
{
    const TestEnvironment environment;
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String(SaveManyOption)) {
        return SaveMany(arguments.value(2));
    }
    if (arguments.value(1) == QLatin1String(HoldFileOption)) {
        return HoldFile(arguments.value(2));
    }
    tst_SettingsStore test;
    return RunTest(argc, argv, test);
}
#include "tst_SettingsStore.moc"
