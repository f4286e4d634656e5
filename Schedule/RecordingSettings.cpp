// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RecordingSettings.h"

#include <limits>

#include <QJsonArray>

namespace Zentor::Schedule {
namespace {

namespace Key {

const QString Section = QStringLiteral("recording");
const QString Container = QStringLiteral("container");
const QString FramesPerSecond = QStringLiteral("framesPerSecond");
const QString Quality = QStringLiteral("quality");
const QString ShowPointer = QStringLiteral("showPointer");
const QString SoundDevices = QStringLiteral("soundDevices");
const QString MixSound = QStringLiteral("mixSound");
const QString Source = QStringLiteral("source");
const QString ScreenIndex = QStringLiteral("screenIndex");
const QString Area = QStringLiteral("area");
const QString X = QStringLiteral("x");
const QString Y = QStringLiteral("y");
const QString Width = QStringLiteral("width");
const QString Height = QStringLiteral("height");
const QString ReserveBytes = QStringLiteral("reserveBytes");
const QString CountdownSeconds = QStringLiteral("countdownSeconds");

} // namespace Key

const QStringList Containers{QStringLiteral("mkv"), QStringLiteral("mp4")};
/// In the order of RecordingSettings::Quality.
const QStringList Qualities{QStringLiteral("small"), QStringLiteral("normal"),
                            QStringLiteral("high")};
/// In the order of RecordingSettings::Source.
const QStringList Sources{QStringLiteral("screen"), QStringLiteral("area")};

constexpr int HighestFrameRate = 240;
constexpr int LongestCountdownSeconds = 3600;
/// X counts pixels in 16 bits.
constexpr int FarthestPixel = std::numeric_limits<qint16>::max();

std::optional<QString> ToContainer(const QJsonValue& value)
{
    const auto name = PX::ToText(value);
    return name && Containers.contains(*name) ? name : std::nullopt;
}

/// Converts one of \a names to the enumerator that has its place.
template <typename Enum> auto ToOneOf(const QStringList& names)
{
    return [&names](const QJsonValue& value) {
        const auto index = names.indexOf(value.toString());
        return index < 0 ? std::nullopt : std::optional(static_cast<Enum>(index));
    };
}

template <typename T> auto ToWithin(T first, T last)
{
    return [=](const QJsonValue& value) {
        const auto integer = PX::ToInteger(value);
        return integer && *integer >= first && *integer <= last
            ? std::optional(static_cast<T>(*integer))
            : std::nullopt;
    };
}

std::optional<QStringList> ToDevices(const QJsonValue& value)
{
    QStringList devices;
    const QJsonArray array = value.toArray();
    for (const QJsonValue& entry : array) {
        const QString device = entry.toString();
        if (device.isEmpty()) {
            return std::nullopt;
        }
        devices << device;
    }
    devices.removeDuplicates();
    return value.isArray() ? std::optional(devices) : std::nullopt;
}

std::optional<QRect> ToArea(const QJsonValue& value)
{
    const QJsonObject fields = value.toObject();
    const auto place = ToWithin(-FarthestPixel, FarthestPixel);
    const auto size = ToWithin(0, FarthestPixel);
    const auto x = place(fields.value(Key::X));
    const auto y = place(fields.value(Key::Y));
    const auto width = size(fields.value(Key::Width));
    const auto height = size(fields.value(Key::Height));
    if (!x || !y || !width || !height || (*width == 0) != (*height == 0)) {
        return std::nullopt;
    }
    return *width == 0 ? QRect() : QRect(*x, *y, *width, *height);
}

QJsonObject FromArea(const QRect& area)
{
    return {{Key::X, area.x()},
            {Key::Y, area.y()},
            {Key::Width, area.width()},
            {Key::Height, area.height()}};
}

RecordingSettings Parse(const PX::SectionReader& section)
{
    using Settings = RecordingSettings;
    Settings settings;
    section.Read(Key::Container, settings.container, ToContainer);
    section.Read(Key::FramesPerSecond, settings.framesPerSecond, ToWithin(1, HighestFrameRate));
    section.Read(Key::Quality, settings.quality, ToOneOf<Settings::Quality>(Qualities));
    section.Read(Key::ShowPointer, settings.showPointer, PX::ToBool);
    section.Read(Key::SoundDevices, settings.soundDevices, ToDevices);
    section.Read(Key::MixSound, settings.mixSound, PX::ToBool);
    section.Read(Key::Source, settings.source, ToOneOf<Settings::Source>(Sources));
    section.Read(Key::ScreenIndex, settings.screenIndex,
                 ToWithin(0, std::numeric_limits<int>::max()));
    section.Read(Key::Area, settings.area, ToArea);
    section.Read(Key::ReserveBytes, settings.reserveBytes,
                 ToWithin(qint64(0), std::numeric_limits<qint64>::max()));
    section.Read(Key::CountdownSeconds, settings.countdownSeconds,
                 ToWithin(0, LongestCountdownSeconds));
    return settings;
}

QJsonObject Format(const RecordingSettings& settings)
{
    return {{Key::Container, settings.container},
            {Key::FramesPerSecond, settings.framesPerSecond},
            {Key::Quality, NameOf(settings.quality)},
            {Key::ShowPointer, settings.showPointer},
            {Key::SoundDevices, QJsonArray::fromStringList(settings.soundDevices)},
            {Key::MixSound, settings.mixSound},
            {Key::Source, Sources.at(static_cast<int>(settings.source))},
            {Key::ScreenIndex, settings.screenIndex},
            {Key::Area, FromArea(settings.area)},
            {Key::ReserveBytes, PX::FromInteger(settings.reserveBytes)},
            {Key::CountdownSeconds, settings.countdownSeconds}};
}

} // namespace

QString NameOf(RecordingSettings::Quality quality)
{
    return Qualities.at(static_cast<int>(quality));
}

PX::SettingsSection RecordingSettingsSection()
{
    return {Key::Section, [](const PX::SectionReader& found) { return Format(Parse(found)); }};
}

RecordingSettings RecordingSettingsIn(const PX::SettingsStore& store)
{
    QStringList problems;
    return Parse({store.Settings().sections.value(Key::Section), Key::Section, problems});
}

void ChangeRecordingSettings(PX::SettingsStore& store,
                             const std::function<void(RecordingSettings&)>& change)
{
    RecordingSettings settings = RecordingSettingsIn(store);
    change(settings);
    store.Change(
        [&](PX::UserSettings& all) { all.sections.insert(Key::Section, Format(settings)); });
}

} // namespace Zentor::Schedule
