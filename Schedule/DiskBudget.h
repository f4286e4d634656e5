// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include <QSize>

#include "Moment.h"
#include "RecordingSettings.h"

namespace Zentor::Schedule {

/// What the size of a recording depends on, besides its length and what is on the screen.
struct RecordingShape {
    /// Of the picture, in pixels.
    QSize size;
    int framesPerSecond = 30;
    RecordingSettings::Quality quality = RecordingSettings::Quality::Normal;
    /// Tracks in the file: one of all devices, or one of each.
    int soundTracks = 0;
};

/// The shape of a recording with \a settings of what has \a size on the screen.
RecordingShape ShapeOf(const RecordingSettings& settings, const QSize& size);

/// A recording that was made.
struct MadeRecording {
    RecordingShape shape;
    Length length{0};
    qint64 bytes = 0;
};

/// A recording that is to be made.
struct PlannedRecording {
    RecordingShape shape;
    Length length{0};
};

/// Bytes that \a planned does not exceed, whatever the screen shows.
qint64 MostBytes(const PlannedRecording& planned);

/// Bytes that \a planned is likely to have: by the mean rate of the newest of \a made, newest last,
/// whose picture is about as large; where there is none, by what was measured on a desk at work.
qint64 TypicalBytes(const PlannedRecording& planned, const std::vector<MadeRecording>& made = {});

/// All recordings that are to be made, held against the disk.
struct DiskBudget {
    /// What the recordings may take: what is free without the reserve, at least 0; -1 when that
    /// cannot be told.
    qint64 availableBytes = -1;
    qint64 typicalBytes = 0;
    qint64 mostBytes = 0;

    /// Whether there is room whatever the screen shows. True when the room is unknown.
    bool FitsAlways() const;
    /// Whether there is room when the screen shows what it usually does. True when it is unknown.
    bool FitsTypically() const;
};

/// The budget of \a planned on a disk with \a freeBytes (-1 when that cannot be told), of which
/// \a reserveBytes are to stay free. Sums that are too large for an integer are the largest one.
DiskBudget BudgetOf(const std::vector<PlannedRecording>& planned, qint64 freeBytes,
                    qint64 reserveBytes, const std::vector<MadeRecording>& made = {});

} // namespace Zentor::Schedule
