// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <cstdint>

#include <QLatin1String>

/// The names in the lines that px-recorder reads and writes, and the figures that those need who
/// plan a recording. Docs/RecorderProtocol.md has an example of each.
namespace Zentor::Capture {

/// Sent in the event "hello". Raised when a line changes its meaning, not when a member is added.
constexpr int ProtocolVersion = 1;

/// Bytes of the longest line that the recorder reads.
constexpr int MaximumLineLength = 65536;

template <int Size> constexpr QLatin1String Name(const char (&text)[Size])
{
    return QLatin1String(text, Size - 1);
}

namespace Command {
constexpr QLatin1String Probe = Name("probe");
constexpr QLatin1String Prepare = Name("prepare");
constexpr QLatin1String Start = Name("start");
constexpr QLatin1String Stop = Name("stop");
constexpr QLatin1String Pause = Name("pause");
constexpr QLatin1String Resume = Name("resume");
constexpr QLatin1String Cancel = Name("cancel");
constexpr QLatin1String Quit = Name("quit");
} // namespace Command

/// The member "type" of a source.
namespace SourceType {
constexpr QLatin1String X11 = Name("x11");
constexpr QLatin1String Portal = Name("portal");
constexpr QLatin1String Test = Name("test");
} // namespace SourceType

/// The member "quality" of "prepare".
namespace QualityName {
constexpr QLatin1String Small = Name("small");
constexpr QLatin1String Normal = Name("normal");
constexpr QLatin1String High = Name("high");
} // namespace QualityName

namespace Event {
constexpr QLatin1String Hello = Name("hello");
constexpr QLatin1String Encoders = Name("encoders");
constexpr QLatin1String Ready = Name("ready");
constexpr QLatin1String Recording = Name("recording");
constexpr QLatin1String Progress = Name("progress");
constexpr QLatin1String Warning = Name("warning");
constexpr QLatin1String Finished = Name("finished");
constexpr QLatin1String Cancelled = Name("cancelled");
constexpr QLatin1String Failed = Name("failed");
/// Of --levels only.
constexpr QLatin1String Levels = Name("levels");
} // namespace Event

/// Why a recording ended whose file is complete: the member "reason" of "finished".
namespace Reason {
constexpr QLatin1String Duration = Name("duration");
constexpr QLatin1String Stopped = Name("stopped");
constexpr QLatin1String DiskLow = Name("disk-low");
constexpr QLatin1String NoDisplay = Name("no-display");
constexpr QLatin1String ClientGone = Name("client-gone");
constexpr QLatin1String Quit = Name("quit");
} // namespace Reason

/// The member "code" of "failed".
namespace Code {
/// A second "prepare" while a recording is prepared or runs.
constexpr QLatin1String Busy = Name("busy");
/// The file exists, or the one that an MP4 is made from.
constexpr QLatin1String Exists = Name("exists");
constexpr QLatin1String NoFolder = Name("no-folder");
constexpr QLatin1String NotWritable = Name("not-writable");
/// Less space is free than is to be kept, or there was none left to write to.
constexpr QLatin1String DiskFull = Name("disk-full");
/// There is no display, no such screen, or nothing of the area is on one.
constexpr QLatin1String NoDisplay = Name("no-display");
/// The user or the desktop refused that the screen is recorded.
constexpr QLatin1String Refused = Name("refused");
/// No encoder works here, or the chosen one does not.
constexpr QLatin1String NoEncoder = Name("no-encoder");
/// A component failed in a way that has no code of its own.
constexpr QLatin1String Pipeline = Name("pipeline");
/// The file could not be converted to MP4; what was recorded is in the Matroska file.
constexpr QLatin1String Remux = Name("remux");
/// It was stopped before anything had been recorded.
constexpr QLatin1String Nothing = Name("nothing-recorded");
/// The line is not one of the protocol. Nothing has changed.
constexpr QLatin1String BadLine = Name("bad-line");
/// The command is about a recording that does not exist, or not any longer. Nothing has changed.
constexpr QLatin1String NoRecording = Name("no-recording");
} // namespace Code

enum class Quality { Small, Normal, High };

/// Bits a second that the picture of a recording does not exceed over a longer time, by its size in
/// pixels and its frames a second.
constexpr std::int64_t MaximumBitRate(int width, int height, int framesPerSecond, Quality quality)
{
    // 12 Mbit/s for 1920x1080 at 30 frames a second.
    constexpr double bitsPerPixel = 12'000'000.0 / (1920.0 * 1080.0 * 30.0);
    constexpr std::int64_t lowest = 500'000;
    const double factor = quality == Quality::Small ? 0.5 : quality == Quality::High ? 2.0 : 1.0;
    const double pixels = static_cast<double>(width) * height * framesPerSecond;
    return std::max(lowest, static_cast<std::int64_t>(pixels * bitsPerPixel * factor));
}

} // namespace Zentor::Capture
