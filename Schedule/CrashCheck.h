// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include "RecordingEntry.h"

namespace Zentor::Schedule {

class RecordingsList;

/// Whether the Matroska file \a path holds any frame. It looks at the beginning only, whatever the
/// size.
bool HasFrames(const QString& path);

/// What became of \a entry, whose program died while it was recorded: "partial" when its file holds
/// something, else "failed". It ended with the last change of the file, as far as that is known. Of
/// a file that was to be converted it names the ".mkv" that it was still recorded as.
RecordingEntry AfterCrash(RecordingEntry entry);

/// Brings the entries of \a list up to date that are in the state Recording. Call it at the start,
/// before anything is recorded.
void CheckAfterCrash(RecordingsList& list);

} // namespace Zentor::Schedule
