// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RecorderTestSupport.h"

#include <csignal>

#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QtTest>

namespace Zentor::Tests {
namespace {

QByteArray OutputOf(const QString& program, const QStringList& arguments, QByteArray* errors)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(Patience);
    if (errors != nullptr) {
        *errors = process.readAllStandardError();
    }
    return process.readAllStandardOutput();
}

bool CanBeRead(QProcess& process)
{
    return process.canReadLine() || process.waitForReadyRead(Patience);
}

} // namespace

Surroundings::Surroundings()
    : m_environment(QProcessEnvironment::systemEnvironment())
{
    const QStringList machine{QStringLiteral("DISPLAY"), QStringLiteral("WAYLAND_DISPLAY"),
                              QStringLiteral("DBUS_SESSION_BUS_ADDRESS"),
                              QStringLiteral("PULSE_SERVER")};
    for (const auto& name : machine) {
        m_environment.remove(name);
    }
    Set(QStringLiteral("XDG_RUNTIME_DIR"), m_folder.path());
    Set(QStringLiteral("XDG_STATE_HOME"), Path(QStringLiteral("state")));
}

Surroundings::~Surroundings()
{
    for (auto program = m_programs.rbegin(); program != m_programs.rend(); ++program) {
        (*program)->terminate();
        constexpr int millisecondsToEnd = 5000;
        if (!(*program)->waitForFinished(millisecondsToEnd)) {
            (*program)->kill();
            (*program)->waitForFinished(Patience);
        }
    }
}

void Surroundings::Set(const QString& name, const QString& value)
{
    m_environment.insert(name, value);
}

QProcess& Surroundings::Start(const QString& program, const QStringList& arguments)
{
    m_programs.push_back(std::make_unique<QProcess>());
    auto& process = *m_programs.back();
    process.setProcessEnvironment(m_environment);
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program, arguments);
    if (!process.waitForStarted(Patience)) {
        qWarning("%s cannot be started", qPrintable(program));
    }
    return process;
}

QByteArray Surroundings::Run(const QString& program, const QStringList& arguments) const
{
    QProcess process;
    process.setProcessEnvironment(m_environment);
    process.start(program, arguments);
    process.waitForFinished(Patience);
    return process.readAllStandardOutput();
}

QProcess* StartDisplay(Surroundings& surroundings, const QString& size, const QStringList& options)
{
    auto& server = surroundings.Start(
        QStringLiteral("Xvfb"),
        QStringList{"-displayfd", "1", "-screen", "0", size + "x24", "-nolisten", "tcp"} + options);
    if (!CanBeRead(server)) {
        return nullptr;
    }
    surroundings.Set(QStringLiteral("DISPLAY"), ":" + server.readLine().trimmed());
    surroundings.Run(
        "xrandr",
        {"--newmode", "small", "23.75", "640", "664", "720", "800", "480", "483", "487", "500"});
    surroundings.Run("xrandr", {"--addmode", "screen", "small"});
    return &server;
}

void PaintDisplay(const Surroundings& surroundings, const QString& colour)
{
    surroundings.Run("xsetroot", {"-solid", colour});
}

void ResizeDisplay(const Surroundings& surroundings, const QString& mode)
{
    surroundings.Run("xrandr", {"--output", "screen", "--mode", mode});
}

void StartRecorder(const Surroundings& surroundings, QProcess& process,
                   const QStringList& arguments)
{
    process.setProcessEnvironment(surroundings.Environment());
    process.start(QStringLiteral(PX_RECORDER), arguments);
    process.waitForStarted(Patience);
}

Outcome EndOf(QProcess& process)
{
    Outcome outcome;
    const bool isEnded =
        process.state() == QProcess::NotRunning || process.waitForFinished(Patience);
    if (isEnded && process.exitStatus() == QProcess::NormalExit) {
        outcome.exitCode = process.exitCode();
    }
    outcome.errorLines = QString::fromUtf8(process.readAllStandardError())
                             .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    return outcome;
}

Outcome Record(const Surroundings& surroundings, const QStringList& arguments)
{
    QProcess process;
    StartRecorder(surroundings, process, arguments);
    return EndOf(process);
}

LineClient::LineClient(const Surroundings& surroundings)
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    StartRecorder(surroundings, m_process, {QStringLiteral("--lines")});
}

LineClient::~LineClient()
{
    if (m_process.state() != QProcess::NotRunning) {
        m_process.kill();
        m_process.waitForFinished(Patience);
    }
}

void LineClient::Send(const QJsonObject& line)
{
    SendRaw(QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n');
}

void LineClient::SendRaw(const QByteArray& line)
{
    m_process.write(line);
    m_process.waitForBytesWritten(Patience);
}

QJsonObject LineClient::NextLine()
{
    while (!m_process.canReadLine()) {
        if (!m_process.waitForReadyRead(Patience)) {
            return {};
        }
    }
    return QJsonDocument::fromJson(m_process.readLine()).object();
}

QJsonObject LineClient::NextEvent()
{
    QJsonObject line = NextLine();
    while (line.value("event") == "progress") {
        line = NextLine();
    }
    return line;
}

QJsonObject LineClient::Next(const QString& event)
{
    QJsonObject line = NextLine();
    while (!line.isEmpty() && line.value("event").toString() != event) {
        line = NextLine();
    }
    return line;
}

int LineClient::Close()
{
    m_process.closeWriteChannel();
    const bool isEnded =
        m_process.state() == QProcess::NotRunning || m_process.waitForFinished(Patience);
    return isEnded && m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

Media MediaIn(const QString& file)
{
    const QByteArray output = OutputOf(
        "ffprobe",
        {"-v", "error", "-of", "json", "-count_packets", "-show_entries",
         "stream=codec_type,codec_name,width,height,nb_read_packets:format=duration", file},
        nullptr);
    const auto found = QJsonDocument::fromJson(output).object();
    Media media;
    media.seconds = found.value("format").toObject().value("duration").toString().toDouble();
    const auto streams = found.value("streams").toArray();
    for (const auto& entry : streams) {
        const auto stream = entry.toObject();
        media.streams.push_back(
            {stream.value("codec_type").toString(), stream.value("codec_name").toString(),
             QSize(stream.value("width").toInt(), stream.value("height").toInt()),
             stream.value("nb_read_packets").toString().toInt()});
    }
    return media;
}

QString DecodingErrors(const QString& file)
{
    QByteArray errors;
    OutputOf("ffmpeg", {"-v", "error", "-i", file, "-f", "null", "-"}, &errors);
    return QString::fromUtf8(errors);
}

QColor ColourAt(const QString& file, double seconds, const QPoint& place)
{
    const QString part = QStringLiteral("crop=2:2:%1:%2").arg(place.x()).arg(place.y());
    const QByteArray pixels =
        OutputOf("ffmpeg",
                 {"-v", "error", "-ss", QString::number(seconds), "-i", file, "-frames:v", "1",
                  "-vf", part, "-f", "rawvideo", "-pix_fmt", "rgb24", "-"},
                 nullptr);
    const auto value = [&](int index) { return static_cast<unsigned char>(pixels.at(index)); };
    return pixels.size() < 3 ? QColor() : QColor(value(0), value(1), value(2));
}

bool IsAbout(const QColor& colour, const QColor& wanted)
{
    constexpr int tolerance = 24;
    return colour.isValid() && std::abs(colour.red() - wanted.red()) <= tolerance
        && std::abs(colour.green() - wanted.green()) <= tolerance
        && std::abs(colour.blue() - wanted.blue()) <= tolerance;
}

double VolumeOf(const QString& file, int track, double from, double to)
{
    QByteArray errors;
    OutputOf("ffmpeg",
             {"-hide_banner", "-i", file, "-map", QStringLiteral("0:a:%1").arg(track), "-af",
              QStringLiteral("atrim=%1:%2,volumedetect").arg(from).arg(to), "-f", "null", "-"},
             &errors);
    const QRegularExpression mean(QStringLiteral("mean_volume: (-?[0-9.]+) dB"));
    const auto match = mean.match(QString::fromUtf8(errors));
    return match.hasMatch() ? match.captured(1).toDouble() : 1000.0;
}

} // namespace Zentor::Tests
