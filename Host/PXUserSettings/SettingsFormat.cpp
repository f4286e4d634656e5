// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "SettingsFormat.h"

#include <array>
#include <limits>
#include <optional>

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>

#include "DuplicateKeys.h"
#include "SectionReader.h"

namespace Zentor::PX {
namespace {

constexpr int CurrentVersion = 1;

constexpr std::array ActionNames{"doNothing", "quitApplication", "sleep",
                                 "hibernate", "restart",         "shutDown"};
static_assert(ActionNames.size() == ShutDown + 1);

namespace Key {

const QLatin1String Version("version");
const QLatin1String LimitedCapture("limitedCapture");
const QLatin1String ScheduledCapture("scheduledCapture");
const QLatin1String Enabled("enabled");
const QLatin1String Duration("duration");
const QLatin1String Tasks("tasks");
const QLatin1String Title("title");
const QLatin1String Start("start");
const QLatin1String ScreenIndex("screenIndex");
const QLatin1String FinishAction("finishAction");
const QLatin1String CaptureFinishAction("captureFinishAction");
const QLatin1String Paths("paths");
const QLatin1String ResultsFolder("resultsFolder");
const QLatin1String Confirmations("confirmations");

} // namespace Key

std::optional<std::chrono::microseconds> ToDuration(const QJsonValue& value)
{
    const auto integer = ToInteger(value);
    return integer ? std::make_optional(std::chrono::microseconds(*integer)) : std::nullopt;
}

std::optional<std::chrono::microseconds> ToLimitedCaptureDuration(const QJsonValue& value)
{
    const auto duration = ToDuration(value);
    const bool isInRange =
        duration && *duration >= ShortestCaptureDuration && *duration < CaptureDurationLimit;
    return isInRange ? duration : std::nullopt;
}

std::optional<PowerAction> ToAction(const QJsonValue& value)
{
    for (std::size_t action = 0; action < ActionNames.size(); ++action) {
        if (value == QLatin1String(ActionNames[action])) {
            return static_cast<PowerAction>(action);
        }
    }
    return std::nullopt;
}

QJsonValue FromAction(PowerAction action)
{
    const auto index = static_cast<std::size_t>(action);
    return QLatin1String(ActionNames[index < ActionNames.size() ? index : 0]);
}

// Reading and writing, section by section.

std::optional<RecordTime> ParseTask(const SectionReader& reader)
{
    RecordTime task;
    std::chrono::microseconds start{0};
    const auto toIndex = [](const QJsonValue& value) {
        const auto index = ToInteger(value);
        const bool isInRange =
            index && *index >= -1 && *index <= std::numeric_limits<std::int32_t>::max();
        return isInRange ? index : std::nullopt;
    };
    qint64 screenIndex = task.screenIndex;
    const bool isRead = reader.ReadRequired(Key::Title, task.title, ToText)
        && reader.ReadRequired(Key::Start, start, ToDuration)
        && reader.ReadRequired(Key::Duration, task.duration, ToDuration)
        && reader.Read(Key::ScreenIndex, screenIndex, toIndex)
        && reader.Read(Key::FinishAction, task.finishAction, ToAction);
    task.start = Time::IClock::time_point(start);
    task.screenIndex = static_cast<std::int32_t>(screenIndex);
    return isRead ? std::make_optional(task) : std::nullopt;
}

QLatin1String WhyRefused(const SchedulerHelper& schedule, const RecordTime& task)
{
    if (task.title.trimmed().isEmpty()) {
        return QLatin1String("empty title");
    }
    if (task.duration < std::chrono::microseconds::zero()) {
        return QLatin1String("negative duration");
    }
    return QLatin1String(schedule.DoesTitleAlreadyExists(task.title) ? "title of another task"
                                                                     : "overlaps another task");
}

std::vector<RecordTime> ParseTasks(const SectionReader& section, QStringList& problems)
{
    const QJsonValue tasks = section.Fields().value(Key::Tasks);
    if (!tasks.isUndefined() && !tasks.isArray()) {
        section.AddProblem(Key::Tasks, "not an array");
    }
    SchedulerHelper schedule;
    int number = 0;
    const auto values = tasks.toArray();
    for (const QJsonValue& value : values) {
        const SectionReader reader(value.toObject(), QStringLiteral("task %1").arg(++number),
                                   problems);
        const auto task = ParseTask(reader);
        if (task && schedule.AddRecord(*task) < 0) {
            problems << reader.Name() + QLatin1String(": ") + WhyRefused(schedule, *task);
        }
    }
    return schedule.GetPreparedSchedule();
}

UserSettings ParseSections(const QJsonObject& fields, const std::vector<SettingsSection>& sections,
                           QStringList& problems)
{
    UserSettings settings;
    const SectionReader root(fields, {}, problems);
    root.Read(Key::CaptureFinishAction, settings.captureFinishAction, ToAction);

    const SectionReader limited(root, Key::LimitedCapture);
    limited.Read(Key::Enabled, settings.limitedCaptureEnabled, ToBool);
    limited.Read(Key::Duration, settings.limitedCaptureDuration, ToLimitedCaptureDuration);

    const SectionReader scheduled(root, Key::ScheduledCapture);
    scheduled.Read(Key::Enabled, settings.scheduledCaptureEnabled, ToBool);
    settings.schedule = ParseTasks(scheduled, problems);

    const SectionReader paths(root, Key::Paths);
    paths.Read(Key::ResultsFolder, settings.resultsFolderPath, ToText);

    const SectionReader confirmations(root, Key::Confirmations);
    const auto ids = confirmations.Fields().keys();
    for (const QString& id : ids) {
        bool isConfirmed = false;
        if (confirmations.Read(id, isConfirmed, ToBool)) {
            settings.confirmations.insert(id, isConfirmed);
        }
    }

    for (const SettingsSection& section : sections) {
        settings.sections.insert(section.name, section.read(SectionReader(root, section.name)));
    }
    return settings;
}

/// \a values in \a fields; the other values there stay.
QJsonObject Merged(QJsonObject fields, const QJsonObject& values)
{
    for (auto it = values.begin(); it != values.end(); ++it) {
        fields.insert(it.key(), it.value());
    }
    return fields;
}

/// The tasks of \a previousTasks by title, the only thing that stays the same of a task. Of two
/// that have the same the first is the one in use.
QHash<QString, QJsonObject> ByTitle(const QJsonArray& previousTasks)
{
    QHash<QString, QJsonObject> tasks;
    for (const QJsonValue& value : previousTasks) {
        const QJsonObject task = value.toObject();
        const QString title = task.value(Key::Title).toString();
        if (!tasks.contains(title)) {
            tasks.insert(title, task);
        }
    }
    return tasks;
}

QJsonArray FormatTasks(const std::vector<RecordTime>& schedule, const QJsonArray& previousTasks)
{
    const QHash<QString, QJsonObject> previous = ByTitle(previousTasks);
    QJsonArray tasks;
    for (const RecordTime& task : schedule) {
        tasks.append(Merged(previous.value(task.title),
                            {
                                {Key::Title, task.title},
                                {Key::Start, FromInteger(task.start.time_since_epoch().count())},
                                {Key::Duration, FromInteger(task.duration.count())},
                                {Key::ScreenIndex, task.screenIndex},
                                {Key::FinishAction, FromAction(task.finishAction)},
                            }));
    }
    return tasks;
}

/// Sets \a values in the section \a key of \a fields; the other values there stay.
void SetSection(QJsonObject& fields, const QString& key, const QJsonObject& values)
{
    fields.insert(key, Merged(fields.value(key).toObject(), values));
}

QJsonArray TasksIn(const QJsonObject& fields)
{
    return fields.value(Key::ScheduledCapture).toObject().value(Key::Tasks).toArray();
}

} // namespace

UserSettings DefaultSettings(const std::vector<SettingsSection>& sections)
{
    QStringList problems;
    return ParseSections({}, sections, problems);
}

SettingsDocument ParseSettings(const QByteArray& json, const std::vector<SettingsSection>& sections)
{
    SettingsDocument document;
    document.settings = DefaultSettings(sections);
    QJsonParseError error;
    const QJsonObject fields = QJsonDocument::fromJson(json, &error).object();
    const auto version = ToInteger(fields.value(Key::Version));
    if (error.error != QJsonParseError::NoError) {
        document.problems
            << QStringLiteral("not JSON at byte %1: %2").arg(error.offset).arg(error.errorString());
    } else if (!version || *version < 1) {
        document.problems << QStringLiteral("no version that is known");
    } else if (*version > CurrentVersion) {
        document.problems << QStringLiteral("written by a newer version: %1").arg(*version);
    } else {
        document.isUnderstood = true;
        document.fields = fields;
        document.settings = ParseSections(fields, sections, document.problems);
        document.droppedTasks = static_cast<int>(TasksIn(fields).size())
            - static_cast<int>(document.settings.schedule.size());
        const QStringList duplicates = DuplicateKeys(json);
        for (const QString& key : duplicates) {
            document.problems << key + QLatin1String(": given more than once");
        }
    }
    return document;
}

QJsonObject FieldsOf(const UserSettings& settings, const QJsonObject& previousFields)
{
    QJsonObject fields = previousFields;
    fields.insert(Key::Version, CurrentVersion);
    fields.insert(Key::CaptureFinishAction, FromAction(settings.captureFinishAction));
    SetSection(fields, Key::LimitedCapture,
               {{Key::Enabled, settings.limitedCaptureEnabled},
                {Key::Duration, FromInteger(settings.limitedCaptureDuration.count())}});
    SetSection(fields, Key::ScheduledCapture,
               {{Key::Enabled, settings.scheduledCaptureEnabled},
                {Key::Tasks, FormatTasks(settings.schedule, TasksIn(previousFields))}});
    SetSection(fields, Key::Paths, {{Key::ResultsFolder, settings.resultsFolderPath}});
    for (auto it = settings.sections.begin(); it != settings.sections.end(); ++it) {
        SetSection(fields, it.key(), it.value());
    }
    // Every name in this section is a known one.
    QJsonObject confirmations;
    for (auto it = settings.confirmations.begin(); it != settings.confirmations.end(); ++it) {
        confirmations.insert(it.key(), it.value());
    }
    fields.insert(Key::Confirmations, confirmations);
    return fields;
}

QByteArray FormatSettings(const UserSettings& settings, const QJsonObject& previousFields)
{
    return QJsonDocument(FieldsOf(settings, previousFields)).toJson();
}

} // namespace Zentor::PX
