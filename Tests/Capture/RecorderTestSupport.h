// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <vector>

#include <QColor>
#include <QJsonObject>
#include <QPoint>
#include <QProcess>
#include <QSize>
#include <QStringList>
#include <QTemporaryDir>

#include "Patience.h"

namespace Zentor::Tests {

/// The environment of all programs of a test: without a display, a session bus or a sound server of
/// the machine.
class Surroundings {
public:
    Surroundings();

    void Set(const QString& name, const QString& value);
    const QProcessEnvironment& Environment() const { return m_environment; }
    /// A file of the folder that belongs to the test.
    QString Path(const QString& name) const { return m_folder.filePath(name); }

    /// Starts a program that runs until the end of the test.
    QProcess& Start(const QString& program, const QStringList& arguments);
    /// Runs a program to its end; what it wrote to standard output.
    QByteArray Run(const QString& program, const QStringList& arguments) const;
    ~Surroundings();

private:
    QTemporaryDir m_folder;
    QProcessEnvironment m_environment;
    std::vector<std::unique_ptr<QProcess>> m_programs;
};

/// Starts an X server that nobody sees with one screen, and puts it into the surroundings. It can
/// be resized to 640x480. Usually an X server starts anew when its last client leaves; this one
/// stays as it is, unless \a options say otherwise.
QProcess* StartDisplay(Surroundings& surroundings, const QString& size = QStringLiteral("1280x720"),
                       const QStringList& options = {QStringLiteral("-noreset")});
void PaintDisplay(const Surroundings& surroundings, const QString& colour);
void ResizeDisplay(const Surroundings& surroundings, const QString& mode);

/// How the program ended.
struct Outcome {
    int exitCode = -1;
    QStringList errorLines;
};

/// Runs the recorder with a command line.
Outcome Record(const Surroundings& surroundings, const QStringList& arguments);
/// Starts the recorder with a command line, into \a process.
void StartRecorder(const Surroundings& surroundings, QProcess& process,
                   const QStringList& arguments);
Outcome EndOf(QProcess& process);

/// The recorder that is driven by lines.
class LineClient {
public:
    explicit LineClient(const Surroundings& surroundings);
    ~LineClient();

    void Send(const QJsonObject& line);
    void SendRaw(const QByteArray& line);
    /// The next event that is not one of progress; empty when none comes.
    QJsonObject NextEvent();
    /// The next event of that name; those before it are skipped.
    QJsonObject Next(const QString& event);
    /// Ends the input, and returns the exit code.
    int Close();
    QProcess& Process() { return m_process; }

private:
    QJsonObject NextLine();

    QProcess m_process;
};

/// What is in a file, as ffprobe counts it.
struct Media {
    struct Stream {
        QString kind;
        QString codec;
        QSize size;
        int packets = 0;
    };
    std::vector<Stream> streams;
    double seconds = 0;

    int Frames() const { return streams.empty() ? 0 : streams.front().packets; }
    QSize Size() const { return streams.empty() ? QSize() : streams.front().size; }
};

Media MediaIn(const QString& file);
/// What ffmpeg complains about when it decodes all of a file.
QString DecodingErrors(const QString& file);
/// The colour at a place of the picture that is shown at a time.
QColor ColourAt(const QString& file, double seconds, const QPoint& place);
bool IsAbout(const QColor& colour, const QColor& wanted);
/// The mean volume of a sound track between two times, in decibels; -91 is silence.
double VolumeOf(const QString& file, int track, double from, double to);

} // namespace Zentor::Tests
