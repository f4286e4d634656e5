// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "DiskBudget.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>

#include "Protocol.h"

namespace Zentor::Schedule {
namespace {

using Quality = RecordingSettings::Quality;

constexpr double SoundBytesPerSecond = 128'000.0 / 8;
/// Files are this much larger than what is in them: clusters, time stamps, an index.
constexpr double ContainerFactor = 1.01;

/// What a desk at work took of the disk, at 30 frames a second and normal quality.
struct MeasuredRate {
    double pixels;
    double bytesPerSecond;
};
constexpr std::array DeskRates{
    MeasuredRate{0, 0},
    MeasuredRate{640.0 * 360, 76'000},
    MeasuredRate{1280.0 * 720, 189'000},
    MeasuredRate{1920.0 * 1080, 413'000},
};
constexpr double FrameRateOfDesk = 30;

double PixelsOf(const RecordingShape& shape)
{
    return static_cast<double>(shape.size.width()) * shape.size.height();
}

double SecondsOf(Length length)
{
    return std::chrono::duration<double>(length).count();
}

double SoundRateOf(const RecordingShape& shape)
{
    return SoundBytesPerSecond * shape.soundTracks;
}

Capture::Quality NameOfRecorder(Quality quality)
{
    switch (quality) {
    case Quality::Small:
        return Capture::Quality::Small;
    case Quality::High:
        return Capture::Quality::High;
    default:
        return Capture::Quality::Normal;
    }
}

double MostRateOf(const RecordingShape& shape)
{
    const auto bits = Capture::MaximumBitRate(shape.size.width(), shape.size.height(),
                                              shape.framesPerSecond, NameOfRecorder(shape.quality));
    return (static_cast<double>(bits) / 8 + SoundRateOf(shape)) * ContainerFactor;
}

/// How much larger or smaller than in normal quality the picture of a desk is.
double FactorOf(Quality quality)
{
    switch (quality) {
    case Quality::Small:
        return 0.75;
    case Quality::High:
        return 1.4;
    default:
        return 1;
    }
}

/// Between two areas that were measured, the rate is between theirs; beyond the largest, it grows
/// with the area.
double DeskRateOf(double pixels)
{
    const auto above = std::find_if(std::next(DeskRates.begin()), DeskRates.end(),
                                    [&](const auto& rate) { return rate.pixels >= pixels; });
    if (above == DeskRates.end()) {
        return DeskRates.back().bytesPerSecond * pixels / DeskRates.back().pixels;
    }
    const MeasuredRate& below = *std::prev(above);
    const double part = (pixels - below.pixels) / (above->pixels - below.pixels);
    return below.bytesPerSecond + part * (above->bytesPerSecond - below.bytesPerSecond);
}

bool IsLike(const RecordingShape& made, const RecordingShape& planned)
{
    constexpr double mostDifference = 1.25;
    const double ratio = PixelsOf(made) / PixelsOf(planned);
    return ratio <= mostDifference && ratio >= 1 / mostDifference;
}

/// How many times as large as the picture of \a made that of \a planned is.
double PictureRatio(const RecordingShape& planned, const RecordingShape& made)
{
    return PixelsOf(planned) / PixelsOf(made) * FactorOf(planned.quality) / FactorOf(made.quality)
        * planned.framesPerSecond / made.framesPerSecond;
}

/// The mean rate of the picture in recordings like \a shape; nothing when there are none.
std::optional<double> LearnedPictureRate(const RecordingShape& shape,
                                         const std::vector<MadeRecording>& made)
{
    constexpr int mostRecordings = 5;
    constexpr Length shortest = std::chrono::seconds(5);
    int count = 0;
    double bytes = 0;
    double seconds = 0;
    for (auto one = made.rbegin(); one != made.rend() && count < mostRecordings; ++one) {
        if (one->length >= shortest && !one->shape.size.isEmpty() && IsLike(one->shape, shape)) {
            const double length = SecondsOf(one->length);
            const double sound = SoundRateOf(one->shape) * length;
            bytes += std::max(0.0, static_cast<double>(one->bytes) - sound)
                * PictureRatio(shape, one->shape);
            seconds += length;
            ++count;
        }
    }
    return count == 0 ? std::nullopt : std::optional(bytes / seconds);
}

double TypicalRateOf(const RecordingShape& shape, const std::vector<MadeRecording>& made)
{
    if (shape.size.isEmpty()) {
        return SoundRateOf(shape);
    }
    const double ofDesk = DeskRateOf(PixelsOf(shape)) * FactorOf(shape.quality)
        * shape.framesPerSecond / FrameRateOfDesk;
    const double picture = LearnedPictureRate(shape, made).value_or(ofDesk);
    return std::min(picture + SoundRateOf(shape), MostRateOf(shape));
}

qint64 Rounded(double bytes)
{
    constexpr auto most = std::numeric_limits<qint64>::max();
    return bytes >= static_cast<double>(most) ? most : std::llround(std::max(0.0, bytes));
}

qint64 Sum(qint64 first, qint64 second)
{
    constexpr auto most = std::numeric_limits<qint64>::max();
    return first > most - second ? most : first + second;
}

} // namespace

RecordingShape ShapeOf(const RecordingSettings& settings, const QSize& size)
{
    const auto devices = static_cast<int>(settings.soundDevices.size());
    return {size, settings.framesPerSecond, settings.quality,
            settings.mixSound ? std::min(1, devices) : devices};
}

qint64 MostBytes(const PlannedRecording& planned)
{
    return Rounded(MostRateOf(planned.shape) * SecondsOf(planned.length));
}

qint64 TypicalBytes(const PlannedRecording& planned, const std::vector<MadeRecording>& made)
{
    return Rounded(TypicalRateOf(planned.shape, made) * SecondsOf(planned.length));
}

bool DiskBudget::FitsAlways() const
{
    return availableBytes < 0 || mostBytes <= availableBytes;
}

bool DiskBudget::FitsTypically() const
{
    return availableBytes < 0 || typicalBytes <= availableBytes;
}

DiskBudget BudgetOf(const std::vector<PlannedRecording>& planned, qint64 freeBytes,
                    qint64 reserveBytes, const std::vector<MadeRecording>& made)
{
    DiskBudget budget;
    budget.availableBytes = freeBytes < 0 ? -1 : std::max<qint64>(0, freeBytes - reserveBytes);
    for (const PlannedRecording& one : planned) {
        budget.mostBytes = Sum(budget.mostBytes, MostBytes(one));
        budget.typicalBytes = Sum(budget.typicalBytes, TypicalBytes(one, made));
    }
    return budget;
}

} // namespace Zentor::Schedule
