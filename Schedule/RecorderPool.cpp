// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RecorderPool.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTimer>

#include "FileNames.h"
#include "Protocol.h"
#include "RecordingSettings.h"
#include "System/RecorderProcess.h"

namespace Zentor::Schedule {
namespace {

/// How many recordings the estimate of their size is made from.
constexpr std::size_t MostMade = 50;

/// The file that is written while a recording that is to be in \a file runs.
QString WrittenFile(const QString& file)
{
    const QFileInfo info(file);
    return QDir(info.path()).filePath(info.completeBaseName() + QStringLiteral(".mkv"));
}

/// What is there of a recording that broke off; an empty file is removed.
QString LeftOf(const QString& file)
{
    for (const QString& path : {file, WrittenFile(file)}) {
        if (QFileInfo(path).size() > 0) {
            return path;
        }
    }
    QFile::remove(WrittenFile(file));
    return {};
}

RecorderRequest RequestFor(const RecordingPlan& plan, const RecordingSettings& settings,
                           const QString& file)
{
    RecorderRequest request;
    request.file = file;
    const bool isArea =
        plan.isTask ? plan.screenIndex < 0 : settings.source == RecordingSettings::Source::Area;
    if (isArea && settings.area.isValid()) {
        request.area = settings.area;
    } else if (!isArea) {
        request.screenIndex = plan.isTask ? plan.screenIndex : settings.screenIndex;
    }
    request.framesPerSecond = settings.framesPerSecond;
    request.quality = settings.quality;
    request.showPointer = settings.showPointer;
    request.soundDevices = settings.soundDevices;
    request.mixSound = settings.mixSound;
    request.reserveBytes = settings.reserveBytes;
    return request;
}

} // namespace

RecorderPool::RecorderPool(QString program, std::shared_ptr<PX::SettingsStore> store,
                           const IScreens& screens, FreeBytes freeBytes)
    : m_program(std::move(program))
    , m_store(std::move(store))
    , m_screens(screens)
    , m_freeBytes(std::move(freeBytes))
{
}

RecorderPool::~RecorderPool() = default;

void RecorderPool::Prepare(RecordingId id, const RecordingPlan& plan)
{
    const RecordingSettings settings = RecordingSettingsIn(*m_store);
    const QString folder = m_store->Settings().resultsFolderPath;
    if (!QDir().mkpath(folder)) {
        Refuse(id, Capture::Code::NoFolder);
    } else if (!HasRoom(plan, folder)) {
        Refuse(id, Capture::Code::DiskFull);
    } else {
        Recorder& recorder = m_recorders[id];
        recorder.file = RecordingFilePath(folder, plan.title, plan.start, settings.container);
        const bool isArea = settings.source == RecordingSettings::Source::Area;
        const int screen = plan.isTask ? plan.screenIndex : isArea ? -1 : settings.screenIndex;
        recorder.shape = ShapeOf(settings, m_screens.SizeOf(screen));
        recorder.process = std::make_unique<RecorderProcess>(m_program);
        Connect(id, *recorder.process);
        recorder.process->Prepare(RequestFor(plan, settings, recorder.file));
    }
}

bool RecorderPool::HasRoom(const RecordingPlan& plan, const QString& folder)
{
    const qint64 freeBytes = plan.isTask ? m_freeBytes(folder) : -1;
    if (freeBytes < 0 || freeBytes > RoomThatIsTooSmall) {
        return true;
    }
    QTimer::singleShot(0, this,
                       [this, plan, freeBytes] { Q_EMIT NoRoomFound(plan.title, freeBytes); });
    return false;
}

void RecorderPool::Refuse(RecordingId id, const QString& code)
{
    QTimer::singleShot(0, this, [this, id, code] { Q_EMIT Failed(id, code, QString()); });
}

void RecorderPool::Connect(RecordingId id, RecorderProcess& process)
{
    connect(&process, &RecorderProcess::Ready, this, [this, id] { Q_EMIT Ready(id); });
    connect(&process, &RecorderProcess::Recording, this, [this, id](Moment firstFrame) {
        Q_EMIT Recording(id, firstFrame, WrittenFile(m_recorders.at(id).file));
    });
    connect(&process, &RecorderProcess::Progressed, this,
            [this, id](const RecordingProgress& progress) { Q_EMIT Progressed(id, progress); });
    connect(&process, &RecorderProcess::Warned, this,
            [this, id](const QString& text) { Q_EMIT Warned(id, text); });
    connect(&process, &RecorderProcess::Finished, this, [this, id](const RecorderResult& result) {
        m_made.push_back({m_recorders.at(id).shape, result.length, result.bytes});
        if (m_made.size() > MostMade) {
            m_made.erase(m_made.begin());
        }
        Release(id);
        Q_EMIT Finished(id, {result.file, result.reason, result.length});
    });
    connect(&process, &RecorderProcess::Failed, this,
            [this, id](const QString& code) { Q_EMIT Failed(id, code, Release(id)); });
    connect(&process, &RecorderProcess::Died, this, [this, id] { Q_EMIT Died(id, Release(id)); });
    connect(&process, &RecorderProcess::Cancelled, this, [this, id] {
        Release(id);
        Q_EMIT Cancelled(id);
    });
}

RecorderProcess* RecorderPool::Find(RecordingId id) const
{
    const auto recorder = m_recorders.find(id);
    return recorder == m_recorders.end() ? nullptr : recorder->second.process.get();
}

QString RecorderPool::Release(RecordingId id)
{
    const auto recorder = m_recorders.find(id);
    QString left = LeftOf(recorder->second.file);
    // It is sending a signal.
    recorder->second.process.release()->deleteLater();
    m_recorders.erase(recorder);
    return left;
}

void RecorderPool::Start(RecordingId id, std::optional<Moment> at, Length length)
{
    if (RecorderProcess* process = Find(id)) {
        process->Start(at, length);
    }
}

void RecorderPool::Stop(RecordingId id)
{
    if (RecorderProcess* process = Find(id)) {
        process->Stop();
    }
}

void RecorderPool::Pause(RecordingId id)
{
    if (RecorderProcess* process = Find(id)) {
        process->Pause();
    }
}

void RecorderPool::Resume(RecordingId id)
{
    if (RecorderProcess* process = Find(id)) {
        process->Resume();
    }
}

void RecorderPool::Cancel(RecordingId id)
{
    if (RecorderProcess* process = Find(id)) {
        process->Cancel();
    }
}

} // namespace Zentor::Schedule
