// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "UnfinishedTask.h"

#include <limits>

namespace Zentor::Desktop {
namespace {

namespace Key {

const QString Section = QStringLiteral("unfinishedTask");
const QString IsOpen = QStringLiteral("isOpen");
const QString Title = QStringLiteral("title");
const QString Start = QStringLiteral("start");
const QString Duration = QStringLiteral("duration");
const QString ScreenIndex = QStringLiteral("screenIndex");
const QString FinishAction = QStringLiteral("finishAction");

} // namespace Key

constexpr qint64 MicrosecondsOfMillisecond = 1000;

/// \a value when it is an integer from \a first to \a last.
std::optional<qint64> ToIntegerWithin(const QJsonValue& value, qint64 first, qint64 last)
{
    const auto integer = PX::ToInteger(value);
    return integer && *integer >= first && *integer <= last ? integer : std::nullopt;
}

std::optional<QDateTime> ToStart(const QJsonValue& value)
{
    const auto microseconds = PX::ToInteger(value);
    return microseconds
        ? std::optional(QDateTime::fromMSecsSinceEpoch(*microseconds / MicrosecondsOfMillisecond))
        : std::nullopt;
}

std::optional<QTime> ToDuration(const QJsonValue& value)
{
    const auto microseconds =
        ToIntegerWithin(value, std::chrono::microseconds(PX::ShortestCaptureDuration).count(),
                        std::chrono::microseconds(PX::CaptureDurationLimit).count() - 1);
    return microseconds ? std::optional(QTime::fromMSecsSinceStartOfDay(
               static_cast<int>(*microseconds / MicrosecondsOfMillisecond)))
                        : std::nullopt;
}

std::optional<int> ToScreenIndex(const QJsonValue& value)
{
    return ToIntegerWithin(value, -1, std::numeric_limits<int>::max());
}

std::optional<PX::PowerAction> ToFinishAction(const QJsonValue& value)
{
    const auto action = ToIntegerWithin(value, PX::DoNothing, PX::ShutDown);
    return action ? std::optional(static_cast<PX::PowerAction>(*action)) : std::nullopt;
}

std::optional<UnfinishedTask> Parse(const PX::SectionReader& section)
{
    UnfinishedTask task;
    bool isOpen = false;
    section.Read(Key::IsOpen, isOpen, PX::ToBool);
    if (!isOpen || !section.ReadRequired(Key::Start, task.start, ToStart)) {
        return {};
    }
    section.Read(Key::Title, task.title, PX::ToText);
    section.Read(Key::Duration, task.duration, ToDuration);
    section.Read(Key::ScreenIndex, task.screenIndex, ToScreenIndex);
    section.Read(Key::FinishAction, task.finishAction, ToFinishAction);
    return task;
}

QJsonObject Format(const std::optional<UnfinishedTask>& open)
{
    // All fields, always: one that is left out would stay in the file as it is.
    const UnfinishedTask task = open.value_or(UnfinishedTask());
    const auto fromMilliseconds = [](qint64 milliseconds) {
        return PX::FromInteger(milliseconds * MicrosecondsOfMillisecond);
    };
    return {{Key::IsOpen, open.has_value()},
            {Key::Title, task.title},
            {Key::Start, fromMilliseconds(task.start.toMSecsSinceEpoch())},
            {Key::Duration, fromMilliseconds(task.duration.msecsSinceStartOfDay())},
            {Key::ScreenIndex, task.screenIndex},
            {Key::FinishAction, task.finishAction}};
}

} // namespace

PX::SettingsSection UnfinishedTaskSection()
{
    return {Key::Section, [](const PX::SectionReader& found) { return Format(Parse(found)); }};
}

std::optional<UnfinishedTask> UnfinishedTaskIn(const PX::SettingsStore& store)
{
    QStringList problems;
    return Parse({store.Settings().sections.value(Key::Section), Key::Section, problems});
}

void RememberUnfinishedTask(PX::SettingsStore& store, const std::optional<UnfinishedTask>& task)
{
    const QJsonObject section = Format(task);
    if (store.Settings().sections.value(Key::Section) != section) {
        store.Change([&](PX::UserSettings& all) { all.sections.insert(Key::Section, section); });
    }
}

} // namespace Zentor::Desktop
