#include "SettingsFormat.h"

#include <array>
#include <limits>
#include <optional>

#include <QJsonArray>
#include <QJsonDocument>

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
const QLatin1String appearance("appearance");
const QLatin1String language("language");
const QLatin1String theme("theme");
const QLatin1String windowGeometry("windowGeometry");
const QLatin1String page("page");

} // namespace Key

// Conversions of single values. From JSON: nothing when the value is not of the type.

std::optional<bool> ToBool(const QJsonValue& value)
{
    return value.isBool() ? std::make_optional(value.toBool()) : std::nullopt;
}

std::optional<QString> ToText(const QJsonValue& value)
{
    return value.isString() ? std::make_optional(value.toString()) : std::nullopt;
}

std::optional<qint64> ToInteger(const QJsonValue& value)
{
    // The parser keeps integers apart from numbers with a fraction or beyond 64 bits.
    const QVariant variant = value.toVariant();
    bool isInteger = value.isString() || variant.userType() == QMetaType::LongLong;
    const qint64 integer = isInteger ? variant.toLongLong(&isInteger) : 0;
    return isInteger ? std::make_optional(integer) : std::nullopt;
}

QJsonValue FromInteger(qint64 integer)
{
    // JSON numbers are doubles to most programs, and to Qt when it writes them.
    constexpr qint64 exactInDouble = 1LL << std::numeric_limits<double>::digits;
    const bool isExact = -exactInDouble <= integer && integer <= exactInDouble;
    return isExact ? QJsonValue(integer) : QJsonValue(QString::number(integer));
}

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

std::optional<QString> ToTheme(const QJsonValue& value)
{
    const bool isKnown =
        value == QString() || value == QLatin1String("light") || value == QLatin1String("dark");
    return isKnown ? ToText(value) : std::nullopt;
}

std::optional<QByteArray> ToBytes(const QJsonValue& value)
{
    const auto decoded = QByteArray::fromBase64Encoding(value.toString().toLatin1(),
                                                        QByteArray::AbortOnBase64DecodingErrors);
    return value.isString() && decoded ? std::make_optional(*decoded) : std::nullopt;
}

/// Reads the fields of one section and notes those that cannot be used.
class SectionReader {
public:
    SectionReader(const QJsonObject& fields, const QString& name, QStringList& problems)
        : m_fields(fields)
        , m_name(name)
        , m_problems(problems)
    {
    }

    /// The section \a key of \a parent; an empty one when there is none.
    SectionReader(const SectionReader& parent, QLatin1String key)
        : SectionReader(parent.m_fields.value(key).toObject(), parent.NameOf(key),
                        parent.m_problems)
    {
        const QJsonValue section = parent.m_fields.value(key);
        if (!section.isUndefined() && !section.isObject()) {
            parent.AddProblem(key, "not an object");
        }
    }

    const QJsonObject& Fields() const { return m_fields; }
    const QString& Name() const { return m_name; }

    /// Sets \a target when there is a usable field \a key. Whether there is no unusable one.
    template <typename T, typename Conversion>
    bool Read(const QString& key, T& target, Conversion convert) const
    {
        const QJsonValue value = m_fields.value(key);
        if (value.isUndefined()) {
            return true;
        }
        const auto converted = convert(value);
        if (!converted) {
            AddProblem(key, "unusable value");
            return false;
        }
        target = *converted;
        return true;
    }

    template <typename T, typename Conversion>
    bool ReadRequired(const QString& key, T& target, Conversion convert) const
    {
        if (!m_fields.contains(key)) {
            AddProblem(key, "missing");
            return false;
        }
        return Read(key, target, convert);
    }

    void AddProblem(const QString& key, const char* problem) const
    {
        m_problems << NameOf(key) + QLatin1String(": ") + QLatin1String(problem);
    }

private:
    QString NameOf(const QString& key) const
    {
        return m_name.isEmpty() ? key : m_name + QLatin1Char('.') + key;
    }

    QJsonObject m_fields;
    QString m_name;
    QStringList& m_problems;
};

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

UserSettings ParseSections(const QJsonObject& fields, QStringList& problems)
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

    const SectionReader appearance(root, Key::appearance);
    appearance.Read(Key::language, settings.language, ToText);
    appearance.Read(Key::theme, settings.theme, ToTheme);
    appearance.Read(Key::windowGeometry, settings.windowGeometry, ToBytes);
    appearance.Read(Key::page, settings.page, ToText);
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

using Fields = std::initializer_list<QPair<QLatin1String, QJsonValue>>;

/// Sets \a values in the section \a key of \a fields; the other values there stay.
void SetSection(QJsonObject& fields, QLatin1String key, const Fields& values)
{
    QJsonObject section = fields.value(key).toObject();
    for (const auto& value : values) {
        section.insert(value.first, value.second);
    }
    fields.insert(key, section);
}

} // namespace

SettingsDocument ParseSettings(const QByteArray& json)
{
    SettingsDocument document;
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
        document.settings = ParseSections(fields, document.problems);
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
    SetSection(fields, Key::appearance,
               {{Key::language, settings.language},
                {Key::theme, settings.theme},
                {Key::windowGeometry, QString::fromLatin1(settings.windowGeometry.toBase64())},
                {Key::page, settings.page}});
    // Every name in this section is a known one.
    QJsonObject confirmations;
    for (auto it = settings.confirmations.begin(); it != settings.confirmations.end(); ++it) {
        confirmations.insert(it.key(), it.value());
    }
    fields.insert(Key::confirmations, confirmations);
    return QJsonDocument(fields).toJson();
}

} // namespace Zentor::PX
