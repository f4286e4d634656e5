// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "Log.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

#include <glog/logging.h>

#include "CoreInt/MakePrivateFolder.h"
#include "CoreInt/Printable.h"

namespace Zentor::Desktop {
namespace {

constexpr unsigned DaysToKeep = 14;
constexpr int ForTheUserAlone = 0600;

/// What takes Qt's messages besides the log.
QtMessageHandler otherHandler = nullptr;

void LogMessageOfQt(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    // A message may quote a path or what a file holds, and goes to the terminal, too.
    const std::string printable = Util::Printable(message);
    LOG(INFO) << "Qt: " << printable;
    otherHandler(type, context, QString::fromStdString(printable));
}

} // namespace

QString LogFolder()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation))
        .filePath(QStringLiteral("log"));
}

void KeepLog()
{
    const QDir folder(LogFolder());
    if (!Util::MakePrivateFolder(folder.path())) {
        LOG(WARNING) << "Zentor::Desktop::KeepLog: error=cannot create; folder="
                     << Util::Printable(folder.path());
        return;
    }
    FLAGS_logtostderr = false;
    FLAGS_logfile_mode = ForTheUserAlone;
    google::SetStderrLogging(google::GLOG_WARNING);
    // Of the files for each severity, the one for INFO has the lines of all.
    for (const auto severity : {google::GLOG_WARNING, google::GLOG_ERROR, google::GLOG_FATAL}) {
        google::SetLogDestination(severity, "");
    }
    const QString start = folder.filePath(QStringLiteral("px-scheduler."));
    google::SetLogDestination(google::GLOG_INFO, QFile::encodeName(start).constData());
    google::SetLogSymlink(google::GLOG_INFO, "");
    google::SetLogFilenameExtension(".log");
    google::EnableLogCleaner(DaysToKeep);
    otherHandler = qInstallMessageHandler(LogMessageOfQt);
}

QString LogFile()
{
    google::FlushLogFiles(google::GLOG_INFO);
    const QDir folder(LogFolder());
    // glog puts the time of the start and the process into the name.
    const QString ofThisRun =
        QStringLiteral("px-scheduler.*.%1.log").arg(QCoreApplication::applicationPid());
    const QStringList files = folder.entryList({ofThisRun}, QDir::Files, QDir::Name);
    return files.isEmpty() ? QString() : folder.filePath(files.constLast());
}

} // namespace Zentor::Desktop
