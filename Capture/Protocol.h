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

namespace Command {
constexpr QLatin1String Probe("probe");
constexpr QLatin1String Prepare("prepare");
constexpr QLatin1String Start("start");
constexpr QLatin1String Stop("stop");
constexpr QLatin1String Pause("pause");
constexpr QLatin1String Resume("resume");
constexpr QLatin1String Cancel("cancel");
constexpr QLatin1String Quit("quit");
} // namespace Command

namespace Event {
constexpr QLatin1String Hello("hello");
constexpr QLatin1String Encoders("encoders");
constexpr QLatin1String Ready("ready");
constexpr QLatin1String Recording("recording");
constexpr QLatin1String Progress("progress");
constexpr QLatin1String Warning("warning");
constexpr QLatin1String Finished("finished");
constexpr QLatin1String Cancelled("cancelled");
constexpr QLatin1String Failed("failed");
} // namespace Event

/// Why a recording ended whose file is complete: the member "reason" of "finished".
namespace Reason {
constexpr QLatin1String Duration("duration");
constexpr QLatin1String Stopped("stopped");
constexpr QLatin1String DiskLow("disk-low");
constexpr QLatin1String NoDisplay("no-display");
constexpr QLatin1String ClientGone("client-gone");
constexpr QLatin1String Quit("quit");
} // namespace Reason

/// The member "code" of "failed".
namespace Code {
/// A second "prepare" while a recording is prepared or runs.
constexpr QLatin1String Busy("busy");
/// The file exists, or the one that an MP4 is made from.
constexpr QLatin1String Exists("exists");
constexpr QLatin1String NoFolder("no-folder");
constexpr QLatin1String NotWritable("not-writable");
/// Less space is free than is to be kept, or there was none left to write to.
constexpr QLatin1String DiskFull("disk-full");
/// There is no display, no such screen, or nothing of the area is on one.
constexpr QLatin1String NoDisplay("no-display");
/// The user or the desktop refused that the screen is recorded.
constexpr QLatin1String Refused("refused");
/// No encoder works here, or the chosen one does not.
constexpr QLatin1String NoEncoder("no-encoder");
/// A component failed in a way that has no code of its own.
constexpr QLatin1String Pipeline("pipeline");
/// The file could not be converted to MP4; what was recorded is in the Matroska file.
constexpr QLatin1String Remux("remux");
/// It was stopped before anything had been recorded.
constexpr QLatin1String Nothing("nothing-recorded");
/// The line is not one of the protocol. Nothing has changed.
constexpr QLatin1String BadLine("bad-line");
/// The command is about a recording that does not exist, or not any longer. Nothing has changed.
constexpr QLatin1String NoRecording("no-recording");
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
