// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QStringList>
#include <QTemporaryDir>

namespace Zentor::Tests {

/// Stands in for px-recorder as long as it lives: a script that the application finds in its place.
/// A test that links it has no other recorder, and none at all where it has no FakeRecorder.
class FakeRecorder {
public:
    /// It finds the devices "speakers.monitor", called "Speakers", and "mic", called "Microphone",
    /// hears half of the full scale, and records nothing, successfully.
    FakeRecorder();
    ~FakeRecorder();
    FakeRecorder(const FakeRecorder&) = delete;
    FakeRecorder& operator=(const FakeRecorder&) = delete;

    /// What it prints when it is asked what there is.
    void SetProbe(const QByteArray& line) { Write("probe", line); }
    /// What it prints again and again when it is asked for levels.
    void SetLevels(const QByteArray& line) { Write("levels", line); }
    /// What it does instead of a recording, in the language of the shell; the second argument is
    /// the file.
    void SetRecording(const QByteArray& commands) { Write("record", commands); }

    /// With what it was called, a line each, oldest first.
    QStringList Calls() const;
    /// How many of its calls have \a argument first.
    int CallsWith(const QString& argument) const;

private:
    void Write(const char* name, const QByteArray& text) const;

    const QTemporaryDir m_folder;
};

} // namespace Zentor::Tests
