// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <map>
#include <memory>

#include <QObject>

#include "DiskBudget.h"
#include "PXUserSettings/SettingsStore.h"
#include "RecordingSession.h"

namespace Zentor::Schedule {

class RecorderProcess;

/// Free bytes of the volume of a folder; negative when that cannot be told.
using FreeBytes = std::function<qint64(const QString& folder)>;

/// The recorders that run: a process for each recording, so that what goes wrong with one concerns
/// no other. What they record and where to is in the settings.
///
/// A task needs more free space than the panel asks for when a recording is started by hand;
/// otherwise it fails with the recorder's code for a full disk, and NoRoomFound() tells of it.
class RecorderPool final : public QObject, public IRecorder {
    Q_OBJECT

public:
    /// The smallest space that is too small for a task's start.
    static constexpr qint64 RoomThatIsTooSmall = 1'000'000'000;

    /// \a program is the recorder's path. \a screens outlives the pool.
    RecorderPool(QString program, std::shared_ptr<PX::SettingsStore> store, const IScreens& screens,
                 FreeBytes freeBytes);
    ~RecorderPool() override;

    void Prepare(RecordingId id, const RecordingPlan& plan) override;
    void Start(RecordingId id, std::optional<Moment> at, Length length) override;
    void Stop(RecordingId id) override;
    void Pause(RecordingId id) override;
    void Resume(RecordingId id) override;
    void Cancel(RecordingId id) override;

    /// The recordings that were finished since the start, newest last.
    const std::vector<MadeRecording>& Made() const { return m_made; }

Q_SIGNALS:
    // Each is sent from the event loop, never from a call of the functions above.
    void Ready(RecordingId id);
    void Recording(RecordingId id, Moment firstFrame, const QString& file);
    void Progressed(RecordingId id, const RecordingProgress& progress);
    void Warned(RecordingId id, const QString& text);
    void Finished(RecordingId id, const RecordingResult& result);
    void Failed(RecordingId id, const QString& code, const QString& file);
    void Died(RecordingId id, const QString& file);
    void Cancelled(RecordingId id);
    /// \a title is not recorded, as only \a freeBytes are free.
    void NoRoomFound(const QString& title, qint64 freeBytes);

private:
    struct Recorder {
        std::unique_ptr<RecorderProcess> process;
        /// Where the recording is going to be.
        QString file;
        RecordingShape shape;
    };

    bool HasRoom(const RecordingPlan& plan, const QString& folder);
    void Connect(RecordingId id, RecorderProcess& process);
    void Refuse(RecordingId id, const QString& code);
    RecorderProcess* Find(RecordingId id) const;
    /// Takes leave of the recorder of \a id, and returns what there is of its recording.
    QString Release(RecordingId id);

    const QString m_program;
    const std::shared_ptr<PX::SettingsStore> m_store;
    const IScreens& m_screens;
    const FreeBytes m_freeBytes;
    std::map<RecordingId, Recorder> m_recorders;
    std::vector<MadeRecording> m_made;
};

} // namespace Zentor::Schedule
