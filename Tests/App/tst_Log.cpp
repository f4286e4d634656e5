// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <glog/logging.h>

#include "Log.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

class tst_Log : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        WidgetTest::init();
        m_folder = std::make_unique<QTemporaryDir>();
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_folder->path()));
        FLAGS_logtostderr = true;
    }

    void cleanup()
    {
        m_folder.reset();
        WidgetTest::cleanup();
    }

    void isNoneWhereItCannotBeWritten()
    {
        // A file stands where the folder would be.
        const QString inTheWay = Desktop::LogFolder();
        QVERIFY(QDir().mkpath(QFileInfo(inTheWay).path()));
        QVERIFY(QFile(inTheWay).open(QIODevice::WriteOnly));
        Desktop::KeepLog();
        LOG(WARNING) << "nowhere";
        QCOMPARE(Desktop::LogFile(), QString());
        QVERIFY(QFile::remove(inTheWay));
    }

    void isOneFileOfThisRun()
    {
        Desktop::KeepLog();
        QCOMPARE(Desktop::LogFile(), QString());
        LOG(INFO) << "first";
        LOG(ERROR) << "second";
        const QString path = Desktop::LogFile();
        QCOMPARE(QFileInfo(path).path(), Desktop::LogFolder());
        QCOMPARE(QDir(Desktop::LogFolder()).entryList(QDir::Files).size(), 1);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray content = file.readAll();
        QVERIFY(content.contains("first"));
        QVERIFY(content.contains("second"));
        LOG(INFO) << "third";
        QCOMPARE(Desktop::LogFile(), path);
        QVERIFY(file.readAll().contains("third"));
        AllowWarning(QStringLiteral("fourth"));
        qWarning("fourth");
        QCOMPARE(Desktop::LogFile(), path);
        QVERIFY(file.readAll().contains("fourth"));
    }

    void isTheUsersAlone()
    {
        const mode_t mask = umask(0);
        Desktop::KeepLog();
        LOG(INFO) << "something";
        const QString path = Desktop::LogFile();
        umask(mask);
        const auto userOnly =
            QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
        QCOMPARE(QFile::permissions(path), userOnly);
        QCOMPARE(QFile::permissions(Desktop::LogFolder()),
                 userOnly | QFile::ExeOwner | QFile::ExeUser);
        QCOMPARE(QFile::permissions(QFileInfo(Desktop::LogFolder()).path()),
                 userOnly | QFile::ExeOwner | QFile::ExeUser);
    }

    void escapesWhatControlsATerminal()
    {
        static QString shown;
        const auto before = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext&, const QString& message) { shown = message; });
        Desktop::KeepLog();
        qWarning("cannot open \x1b[2Jfile\n");
        qInstallMessageHandler(before);
        QCOMPARE(shown, QStringLiteral("cannot open \\x1b[2Jfile\\x0a"));
        QFile file(Desktop::LogFile());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.readAll().contains("Qt: cannot open \\x1b[2Jfile\\x0a\n"));
    }

    void isNoneOnceItIsDeleted()
    {
        Desktop::KeepLog();
        LOG(INFO) << "something";
        QVERIFY(QFile::remove(Desktop::LogFile()));
        QCOMPARE(Desktop::LogFile(), QString());
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_Log)

#include "tst_Log.moc"
