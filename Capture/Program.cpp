// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "Program.h"

#include <clocale>
#include <csignal>
#include <cstdio>

#include <unistd.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTimer>

#include "ConsoleSession.h"
#include "DisplayLoss.h"
#include "Encoders.h"
#include "LevelSession.h"
#include "LineSession.h"
#include "PictureMaker.h"
#include "RecorderOptions.h"
#include "Remuxer.h"
#include "Screens.h"
#include "SoundDevices.h"

namespace Zentor::Capture {
namespace {

constexpr int WrongUsage = 2;

void Print(const QString& text)
{
    const QByteArray bytes = text.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stdout);
    std::fflush(stdout);
}

QJsonObject JsonOf(const Screen& screen)
{
    return {{QStringLiteral("name"), screen.name},
            {QStringLiteral("x"), screen.geometry.x()},
            {QStringLiteral("y"), screen.geometry.y()},
            {QStringLiteral("width"), screen.geometry.width()},
            {QStringLiteral("height"), screen.geometry.height()}};
}

int Probe()
{
    QJsonArray screens;
    if (const auto display = CurrentDisplay()) {
        for (const auto& screen : display->screens) {
            screens << JsonOf(screen);
        }
    }
    QJsonArray soundDevices;
    QJsonObject titles;
    const auto devices = DescribeSoundDevices().value_or(std::vector<SoundDevice>());
    for (const auto& device : devices) {
        soundDevices << device.name;
        titles.insert(device.name, device.title);
    }
    const QJsonObject found{{QStringLiteral("encoders"), EncoderStates()},
                            {QStringLiteral("screens"), screens},
                            {QStringLiteral("soundDevices"), soundDevices},
                            {QStringLiteral("soundDeviceTitles"), titles}};
    Print(QString::fromUtf8(QJsonDocument(found).toJson(QJsonDocument::Compact)));
    return EXIT_SUCCESS;
}

int Refuse(const QString& reason)
{
    SayToUser(QCoreApplication::translate("Program", "%1 (try --help)").arg(reason));
    return WrongUsage;
}

bool IsScreenMissing(const RecorderOptions& options)
{
    if (!options.isScreenChosen || options.request.source != RecordingRequest::Source::X11) {
        return false;
    }
    const auto display = CurrentDisplay();
    return display && static_cast<std::size_t>(options.request.screen) >= display->screens.size();
}

int Record(const RecorderOptions& options)
{
    if (IsScreenMissing(options)) {
        return Refuse(QCoreApplication::translate("Program", "there is no screen %1")
                          .arg(options.request.screen));
    }
    ConsoleSession session(options.request, options.durationMicroseconds);
    QObject::connect(&session, &ConsoleSession::Ended, QCoreApplication::instance(),
                     &QCoreApplication::exit, Qt::QueuedConnection);
    QTimer::singleShot(0, &session, &ConsoleSession::Start);
    return QCoreApplication::exec();
}

int ObeyLines()
{
    LineSession session;
    QObject::connect(&session, &LineSession::Ended, QCoreApplication::instance(),
                     &QCoreApplication::quit, Qt::QueuedConnection);
    return QCoreApplication::exec();
}

int WriteLevels(const QStringList& devices)
{
    LevelSession session(devices);
    QObject::connect(&session, &LevelSession::Ended, QCoreApplication::instance(),
                     &QCoreApplication::quit, Qt::QueuedConnection);
    return QCoreApplication::exec();
}

/// Runs \a worker to its end.
template <typename Worker> int ResultOf(Worker& worker)
{
    QObject::connect(&worker, &Worker::Finished, [] { QCoreApplication::exit(EXIT_SUCCESS); });
    QObject::connect(&worker, &Worker::Failed, [](const Failure& failure) {
        SayToUser(failure.text);
        QCoreApplication::exit(EXIT_FAILURE);
    });
    QTimer::singleShot(0, &worker, &Worker::Start);
    return QCoreApplication::exec();
}

int Repair(const QString& file)
{
    Remuxer remuxer(file, file);
    return ResultOf(remuxer);
}

int MakePicture(const RecorderOptions& options)
{
    PictureMaker maker(options.request.file, options.picture);
    return ResultOf(maker);
}

int Run(const RecorderOptions& options)
{
    switch (options.task) {
    case RecorderOptions::Task::Print:
        Print(options.message);
        return EXIT_SUCCESS;
    case RecorderOptions::Task::Refuse:
        return Refuse(options.message);
    default:
        break;
    }
    gst_init(nullptr, nullptr);
    if (options.task == RecorderOptions::Task::Levels) {
        return WriteLevels(options.request.sound);
    }
    // Displays are looked at more than once, with no client in between that would stay.
    const DisplayConnection presence;
    switch (options.task) {
    case RecorderOptions::Task::Lines:
        return ObeyLines();
    case RecorderOptions::Task::Probe:
        return Probe();
    case RecorderOptions::Task::Repair:
        return Repair(options.request.file);
    case RecorderOptions::Task::Picture:
        return MakePicture(options);
    default:
        return Record(options);
    }
}

} // namespace

int RunRecorder(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    // A client that has closed its end is told by the end of its lines.
    std::signal(SIGPIPE, SIG_IGN);
    const int result = Run(ParseRecorderOptions(QCoreApplication::arguments()));
    if (DisplayLoss::Count() > 0) {
        // A thread hangs in Xlib for good, and exit() would wait for it.
        std::fflush(nullptr);
        _exit(result);
    }
    return result;
}

} // namespace Zentor::Capture
