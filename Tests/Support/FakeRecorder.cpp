// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "FakeRecorder.h"

#include <QFile>

#include "RecorderProgram.h"

namespace {

QString& Program()
{
    static QString program;
    return program;
}

} // namespace

namespace Zentor::Schedule {

QString RecorderProgram()
{
    return Program();
}

} // namespace Zentor::Schedule

namespace Zentor::Tests {

FakeRecorder::FakeRecorder()
{
    Write("px-recorder", R"(#!/bin/sh
folder=${0%/*}
echo "$*" >> "$folder/calls"
case $1 in
    --probe) cat "$folder/probe" ;;
    --levels) while cat "$folder/levels"; do sleep 0.05; done ;;
    --file) . "$folder/record" ;;
esac
)");
    SetProbe(R"({"soundDevices": ["speakers.monitor", "mic"],)"
             R"( "soundDeviceTitles": {"speakers.monitor": "Speakers", "mic": "Microphone"}})"
             "\n");
    SetLevels(R"({"event": "levels", "peaks": {"speakers.monitor": -6, "mic": -6}})"
              "\n");
    SetRecording("");
    Program() = m_folder.filePath("px-recorder");
    QFile::setPermissions(Program(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

FakeRecorder::~FakeRecorder()
{
    Program().clear();
}

QStringList FakeRecorder::Calls() const
{
    QFile file(m_folder.filePath("calls"));
    return file.open(QIODevice::ReadOnly)
        ? QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts)
        : QStringList();
}

int FakeRecorder::CallsWith(const QString& argument) const
{
    const QStringList calls = Calls();
    return static_cast<int>(std::count_if(calls.begin(), calls.end(), [&](const QString& call) {
        return call == argument || call.startsWith(argument + ' ');
    }));
}

void FakeRecorder::Write(const char* name, const QByteArray& text) const
{
    // In one go: the script may be reading it.
    const QString path = m_folder.filePath(name);
    QFile file(path + ".new");
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) {
        qFatal("%s cannot be written", name);
    }
    file.close();
    QFile::remove(path);
    file.rename(path);
}

} // namespace Zentor::Tests
