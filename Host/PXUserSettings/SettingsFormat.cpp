#include "SettingsFormat.h"

#include <array>
#include <limits>
#include <optional>

#include <QJsonArray>
#include <QJsonDocument>

#include "SectionReader.h"

namespace Zentor::PX {
namespace {

constexpr int currentVersion = 1;

constexpr std::array actionNames{"doNothing", "quitApplication", "sleep",
                                 "hibernate", "restart",         "shutDown"};
static_assert(actionNames.size() == ShutDown + 1);

namespace Key {

const QLatin1String version("version");
const QLatin1String limitedCapture("limitedCapture");
const QLatin1String scheduledCapture("scheduledCapture");
const QLatin1String enabled("enabled");
const QLatin1String duration("duration");
const QLatin1String tasks("tasks");
const QLatin1String title("title");
const QLatin1String start("start");
const QLatin1String screenIndex("screenIndex");
const QLatin1String finishAction("finishAction");
const QLatin1String captureFinishAction("captureFinishAction");
const QLatin1String paths("paths");
const QLatin1String resultsFolder("resultsFolder");
const QLatin1String confirmations("confirmations");

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
        duration && *duration >= std::chrono::seconds(5) && *duration < std::chrono::hours(24);
    return isInRange ? duration : std::nullopt;
}

std::optional<PowerAction> ToAction(const QJsonValue& value)
{
    for (std::size_t action = 0; action < actionNames.size(); ++action) {
        if (value == QLatin1String(actionNames[action])) {
            return static_cast<PowerAction>(action);
        }
    }
    return std::nullopt;
}

QJsonValue FromAction(PowerAction action)
{
    const auto index = static_cast<std::size_t>(action);
    return QLatin1String(actionNames[index < actionNames.size() ? index : 0]);
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
    const bool isRead = reader.ReadRequired(Key::title, task.title, ToText)
        && reader.ReadRequired(Key::start, start, ToDuration)
        && reader.ReadRequired(Key::duration, task.duration, ToDuration)
        && reader.Read(Key::screenIndex, screenIndex, toIndex)
        && reader.Read(Key::finishAction, task.finishAction, ToAction);
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
    const QJsonValue tasks = section.Fields().value(Key::tasks);
    if (!tasks.isUndefined() && !tasks.isArray()) {
        section.AddProblem(Key::tasks, "not an array");
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
    root.Read(Key::captureFinishAction, settings.captureFinishAction, ToAction);

    const SectionReader limited(root, Key::limitedCapture);
    limited.Read(Key::enabled, settings.limitedCaptureEnabled, ToBool);
    limited.Read(Key::duration, settings.limitedCaptureDuration, ToLimitedCaptureDuration);

    const SectionReader scheduled(root, Key::scheduledCapture);
    scheduled.Read(Key::enabled, settings.scheduledCaptureEnabled, ToBool);
    settings.schedule = ParseTasks(scheduled, problems);

    const SectionReader paths(root, Key::paths);
    paths.Read(Key::resultsFolder, settings.resultsFolderPath, ToText);

    const SectionReader confirmations(root, Key::confirmations);
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

QJsonArray FormatTasks(const std::vector<RecordTime>& schedule)
{
    QJsonArray tasks;
    for (const RecordTime& task : schedule) {
        tasks.append(QJsonObject{
            {Key::title, task.title},
            {Key::start, FromInteger(task.start.time_since_epoch().count())},
            {Key::duration, FromInteger(task.duration.count())},
            {Key::screenIndex, task.screenIndex},
            {Key::finishAction, FromAction(task.finishAction)},
        });
    }
    return tasks;
}

/// Sets \a values in the section \a key of \a fields; the other values there stay.
void SetSection(QJsonObject& fields, const QString& key, const QJsonObject& values)
{
    QJsonObject section = fields.value(key).toObject();
    for (auto it = values.begin(); it != values.end(); ++it) {
        section.insert(it.key(), it.value());
    }
    fields.insert(key, section);
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
    const auto version = ToInteger(fields.value(Key::version));
    if (error.error != QJsonParseError::NoError) {
        document.problems
            << QStringLiteral("not JSON at byte %1: %2").arg(error.offset).arg(error.errorString());
    } else if (!version || *version < 1) {
        document.problems << QStringLiteral("no version that is known");
    } else if (*version > currentVersion) {
        document.problems << QStringLiteral("written by a newer version: %1").arg(*version);
    } else {
        document.isUnderstood = true;
        document.fields = fields;
        document.settings = ParseSections(fields, sections, document.problems);
    }
    return document;
}

QByteArray FormatSettings(const UserSettings& settings, const QJsonObject& previousFields)
{
    QJsonObject fields = previousFields;
    fields.insert(Key::version, currentVersion);
    fields.insert(Key::captureFinishAction, FromAction(settings.captureFinishAction));
    SetSection(fields, Key::limitedCapture,
               {{Key::enabled, settings.limitedCaptureEnabled},
                {Key::duration, FromInteger(settings.limitedCaptureDuration.count())}});
    SetSection(fields, Key::scheduledCapture,
               {{Key::enabled, settings.scheduledCaptureEnabled},
                {Key::tasks, FormatTasks(settings.schedule)}});
    SetSection(fields, Key::paths, {{Key::resultsFolder, settings.resultsFolderPath}});
    for (auto it = settings.sections.begin(); it != settings.sections.end(); ++it) {
        SetSection(fields, it.key(), it.value());
    }
    // Every name in this section is a known one.
    QJsonObject confirmations;
    for (auto it = settings.confirmations.begin(); it != settings.confirmations.end(); ++it) {
        confirmations.insert(it.key(), it.value());
    }
    fields.insert(Key::confirmations, confirmations);
    return QJsonDocument(fields).toJson();
}

} // namespace Zentor::PX
