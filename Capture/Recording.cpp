// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "Recording.h"

#include <cmath>

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include "CaptureSource.h"
#include "Encoders.h"
#include "FileWriter.h"
#include "Pipeline.h"
#include "PortalSource.h"
#include "Remuxer.h"
#include "Screens.h"
#include "SoundDevices.h"
#include "SoundTrack.h"
#include "SoundWriter.h"
#include "TestSource.h"
#include "X11Source.h"

namespace Zentor::Capture {
namespace {

using namespace std::chrono_literals;

/// The index of a file and what is on its way into it find room in this.
constexpr std::int64_t SmallestReserve = 2'000'000;
/// An encoder or a disk that hangs is not waited for any longer. The file can be played as it is.
constexpr auto ClosingLimit = 15s;

std::int64_t WallMicroseconds()
{
    return std::chrono::duration_cast<std::chrono::microseconds>(
               std::chrono::system_clock::now().time_since_epoch())
        .count();
}

/// The moment of the pipelines' clock at \a wallMicroseconds, or now where that is past.
GstClockTime MomentOf(std::int64_t wallMicroseconds)
{
    const std::int64_t wait = std::max<std::int64_t>(0, wallMicroseconds - WallMicroseconds());
    return ClockNow() + static_cast<GstClockTime>(wait) * GST_USECOND;
}

std::int64_t FramesIn(std::int64_t microseconds, int framesPerSecond)
{
    constexpr double microsecondsOfSecond = 1e6;
    const double frames =
        static_cast<double>(microseconds) * framesPerSecond / microsecondsOfSecond;
    return microseconds <= 0 ? 0 : std::max<std::int64_t>(1, std::llround(frames));
}

} // namespace

Recording::Recording(RecordingRequest request)
    : m_request(std::move(request))
{
    m_closingLimit.setSingleShot(true);
    connect(&m_closingLimit, &QTimer::timeout, this, [this] {
        Warn(tr("the file could not be closed in time"));
        CloseFile();
    });
}

Recording::~Recording()
{
    Release();
}

bool Recording::IsMp4() const
{
    return m_request.file.endsWith(QLatin1String(".mp4"), Qt::CaseInsensitive);
}

QString Recording::WorkingFile() const
{
    constexpr int lengthOfEnding = 4;
    return IsMp4() ? m_request.file.chopped(lengthOfEnding) + QStringLiteral(".mkv")
                   : m_request.file;
}

void Recording::Prepare()
{
    m_preparation.start();
    const auto failure = CreateFile();
    if (failure) {
        Fail(*failure);
        return;
    }
    SetUpSource();
}

std::optional<Failure> Recording::CreateFile()
{
    const QString folder = QFileInfo(m_request.file).absolutePath();
    const std::int64_t freeSpace = OutputFile::FreeSpaceIn(folder);
    if (freeSpace >= 0 && freeSpace < std::max(m_request.reserve, SmallestReserve)) {
        return Failure{Code::DiskFull,
                       tr("only %1 bytes are free in %2").arg(freeSpace).arg(folder)};
    }
    // The name of a broken link is taken, too.
    const QFileInfo final(m_request.file);
    if (final.exists() || final.isSymLink()) {
        return Failure{Code::Exists, tr("%1 exists already").arg(m_request.file)};
    }
    return m_output.Create(WorkingFile());
}

std::unique_ptr<CaptureSource> Recording::CreateSource(Failure* failure) const
{
    const int rate = m_request.framesPerSecond;
    if (m_request.source == RecordingRequest::Source::Portal) {
        return std::make_unique<PortalSource>(m_request.area, m_request.isPointerVisible, rate);
    }
    if (m_request.source == RecordingRequest::Source::Test) {
        const QSize size = m_request.area ? m_request.area->size() : QSize(1280, 720);
        return std::make_unique<TestSource>(size, rate);
    }
    const auto display = CurrentDisplay();
    if (!display) {
        *failure = {Code::NoDisplay, tr("there is no display")};
        return nullptr;
    }
    if (!m_request.area && static_cast<std::size_t>(m_request.screen) >= display->screens.size()) {
        *failure = {Code::NoDisplay, tr("there is no screen %1").arg(m_request.screen)};
        return nullptr;
    }
    const QRect wanted = m_request.area
        ? *m_request.area
        : display->screens[static_cast<std::size_t>(m_request.screen)].geometry;
    const QRect area = RecordableArea(wanted, display->geometry);
    if (area.isEmpty()) {
        *failure = {Code::NoDisplay, tr("nothing of the area is on the screen")};
        return nullptr;
    }
    return std::make_unique<X11Source>(area, m_request.isPointerVisible, rate);
}

void Recording::SetUpSource()
{
    Failure failure;
    m_source = CreateSource(&failure);
    if (m_source == nullptr) {
        Fail(failure);
        return;
    }
    connect(m_source.get(), &CaptureSource::Opened, this, &Recording::SetUpWriter);
    connect(m_source.get(), &CaptureSource::Failed, this, &Recording::HandleSourceFailure);
    connect(m_source.get(), &CaptureSource::Warned, this, &Recording::Warn);
    m_source->Open();
}

std::optional<Failure> Recording::ChooseEncoder(QString* name) const
{
    *name = m_request.encoder.isEmpty() ? BestEncoder(IsMp4()) : m_request.encoder;
    if (name->isEmpty()) {
        return Failure{Code::NoEncoder, tr("no encoder works on this machine")};
    }
    if (!DoesEncoderWork(*name)) {
        return Failure{Code::NoEncoder, tr("the encoder %1 does not work here").arg(*name)};
    }
    if (IsMp4() && !IsForMp4(*name)) {
        return Failure{Code::NoEncoder, tr("what %1 writes does not fit into an MP4").arg(*name)};
    }
    return std::nullopt;
}

void Recording::SetUpWriter()
{
    if (m_state != State::Preparing) {
        return;
    }
    QString encoder;
    auto failure = ChooseEncoder(&encoder);
    if (!failure) {
        SetUpSound();
        failure = OpenWriter(encoder);
    }
    if (failure) {
        Fail(*failure);
        return;
    }
    m_state = State::Ready;
    WatchDisk();
    constexpr double nanosecondsOfMillisecond = 1e6;
    Q_EMIT Ready(static_cast<double>(m_preparation.nsecsElapsed()) / nanosecondsOfMillisecond);
    if (m_order && m_state == State::Ready) {
        StartPump(*m_order);
    }
}

std::optional<Failure> Recording::OpenWriter(const QString& encoder)
{
    Encoding encoding{m_source->FrameSize(), m_request.framesPerSecond, m_request.quality};
    QStringList encoders{EncoderDescription(encoder, encoding)};
    if (HasFastMode(encoder)) {
        encoding.isFast = true;
        encoders << EncoderDescription(encoder, encoding);
    }
    m_writer = std::make_unique<FileWriter>();
    connect(m_writer.get(), &FileWriter::Closed, this, &Recording::CloseFile);
    connect(m_writer.get(), &FileWriter::Failed, this, &Recording::Fail);
    connect(m_writer.get(), &FileWriter::SteppedDown, this, [this] {
        Warn(tr("this machine is too slow for the encoder, which does less from now on; the file "
                "becomes larger"));
    });
    return m_writer->Open(m_output, encoders, m_source->Format(), m_sound->TrackCount());
}

void Recording::WatchDisk()
{
    m_output.Watch(std::max(m_request.reserve, SmallestReserve), IsMp4(), [this] {
        QMetaObject::invokeMethod(
            this, [this] { Stop(Reason::DiskLow); }, Qt::QueuedConnection);
    });
}

void Recording::SetUpSound()
{
    std::vector<SoundTrack*> tracks;
    const auto present = m_request.sound.isEmpty() ? QStringList() : CurrentSoundDevices();
    if (!present) {
        Warn(tr("there is no sound server; the recording has no sound"));
    }
    const auto devices = present ? m_request.sound : QStringList();
    for (const auto& device : devices) {
        // A change waits for the source to capture it, and then for the pump: half a frame each.
        const GstClockTime delay = GST_SECOND / static_cast<guint64>(m_request.framesPerSecond);
        m_tracks.push_back(std::make_unique<SoundTrack>(device, m_time, delay));
        connect(m_tracks.back().get(), &SoundTrack::Warned, this, &Recording::Warn);
        m_tracks.back()->Open(present->contains(device));
        tracks.push_back(m_tracks.back().get());
    }
    m_sound = std::make_unique<SoundWriter>(tracks, m_request.isSoundMixed,
                                            [this](int track, BufferHandle samples) {
                                                m_writer->PushSound(track, std::move(samples));
                                            });
}

void Recording::Start(std::int64_t atMicroseconds, std::int64_t durationMicroseconds)
{
    if (m_order) {
        return;
    }
    m_order = StartOrder{atMicroseconds, durationMicroseconds};
    if (m_state == State::Ready) {
        StartPump(*m_order);
    }
}

void Recording::StartPump(const StartOrder& order)
{
    m_state = State::Started;
    m_pump = std::make_unique<FramePump>(*m_source, m_time, m_request.framesPerSecond, PumpPorts());
    m_pump->Start(MomentOf(order.atMicroseconds),
                  FramesIn(order.durationMicroseconds, m_request.framesPerSecond));
}

FramePump::Ports Recording::PumpPorts()
{
    FramePump::Ports ports;
    ports.push = [this](BufferHandle frame) { return m_writer->PushFrame(std::move(frame)); };
    ports.tick = [this](GstClockTime position) { m_sound->Advance(position); };
    ports.begun = [this] {
        const qint64 now = WallMicroseconds();
        QMetaObject::invokeMethod(
            this, [this, now] { Q_EMIT Begun(now); }, Qt::QueuedConnection);
    };
    ports.ended = [this](bool isComplete) { EndStreams(isComplete); };
    return ports;
}

/// Called from the pump's thread.
void Recording::EndStreams(bool isComplete)
{
    QMetaObject::invokeMethod(
        this,
        [this, isComplete] {
            if (isComplete) {
                Stop(Reason::Duration);
            }
        },
        Qt::QueuedConnection);
    m_sound->Finish(m_pump->Length());
    m_writer->EndStreams();
}

void Recording::Stop(QLatin1String reason)
{
    if (m_state == State::Closing || m_state == State::Over) {
        return;
    }
    if (m_state != State::Started) {
        Fail(reason == Reason::DiskLow
                 ? Failure{Code::DiskFull, tr("the disk became full before the recording began")}
                 : Failure{Code::Nothing, tr("it was stopped before the recording began")});
        return;
    }
    m_state = State::Closing;
    m_reason = reason;
    m_closingLimit.start(ClosingLimit);
    m_pump->Stop();
}

void Recording::Pause()
{
    if (m_state == State::Started) {
        m_pump->Pause();
    }
}

void Recording::Resume()
{
    if (m_state == State::Started) {
        m_pump->Resume();
    }
}

void Recording::Cancel()
{
    if (m_state == State::Over) {
        return;
    }
    m_state = State::Over;
    Release();
    m_remuxer.reset();
    m_output.Remove();
    Q_EMIT Cancelled();
}

Recording::Progress Recording::CurrentProgress() const
{
    Progress progress = m_last;
    progress.bytes = m_output.Size();
    progress.free = m_output.FreeSpace();
    if (m_pump != nullptr) {
        progress.milliseconds = static_cast<std::int64_t>(m_pump->Length() / GST_MSECOND);
        progress.frames = m_pump->CurrentCounts();
    }
    return progress;
}

void Recording::Warn(const QString& text)
{
    if (m_state != State::Over) {
        Q_EMIT Warned(text);
    }
}

void Recording::CloseFile()
{
    if (m_state != State::Closing) {
        return;
    }
    m_closingLimit.stop();
    const bool isEmpty = CurrentProgress().frames.pushed == 0;
    Release();
    const bool isOnDisk = m_output.Close();
    if (m_failure) {
        Fail(*m_failure);
    } else if (isEmpty) {
        Fail({Code::Nothing, tr("it was stopped before the recording began")});
    } else if (!isOnDisk) {
        Fail({Code::NotWritable, tr("%1 could not be brought to the disk").arg(m_output.Path())});
    } else if (IsMp4()) {
        ConvertFile();
    } else {
        m_state = State::Over;
        Q_EMIT Finished(*m_reason);
    }
}

void Recording::ConvertFile()
{
    m_remuxer = std::make_unique<Remuxer>(m_output.Path(), m_request.file);
    connect(m_remuxer.get(), &Remuxer::Failed, this, [this](const Failure& failure) {
        m_state = State::Over;
        Q_EMIT Failed(failure);
    });
    connect(m_remuxer.get(), &Remuxer::Finished, this, [this] {
        m_state = State::Over;
        m_output.Remove();
        Q_EMIT Finished(*m_reason);
    });
    m_remuxer->Start();
}

void Recording::HandleSourceFailure(const Failure& failure)
{
    if (m_state != State::Started) {
        Fail(failure);
        return;
    }
    if (failure.code != Code::NoDisplay) {
        m_failure = failure;
    }
    Stop(Reason::NoDisplay);
}

void Recording::Fail(const Failure& failure)
{
    if (m_state == State::Over || (m_state == State::Closing && m_remuxer != nullptr)) {
        return;
    }
    m_state = State::Over;
    const bool isEmpty = CurrentProgress().frames.pushed == 0;
    Release();
    if (isEmpty) {
        m_output.Remove();
    }
    m_output.Close();
    Q_EMIT Failed(failure);
}

void Recording::Release()
{
    m_last = CurrentProgress();
    m_pump.reset();
    if (m_source != nullptr) {
        m_source->disconnect(this);
        m_source->Close();
    }
    m_tracks.clear();
    if (m_writer != nullptr) {
        m_writer->disconnect(this);
        m_writer->Stop();
    }
}

} // namespace Zentor::Capture
