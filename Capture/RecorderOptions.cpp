// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RecorderOptions.h"

#include <cmath>

#include <QCommandLineParser>
#include <QDir>

#include "Encoders.h"
#include "LineRequest.h"

namespace Zentor::Capture {
namespace {

class Text {
    Q_DECLARE_TR_FUNCTIONS(RecorderOptions)
};

QCommandLineOption Flag(const char* name, const QString& description)
{
    return {QString::fromLatin1(name), description};
}

QCommandLineOption Valued(const char* name, const QString& description, const QString& value)
{
    return {QString::fromLatin1(name), description, value};
}

QList<QCommandLineOption> OptionsOfRecording()
{
    return {
        Valued("file", Text::tr("Record into <file>, which ends in .mkv or .mp4."),
               Text::tr("file")),
        Valued("screen", Text::tr("Record the screen <number>, counted from 0."),
               Text::tr("number")),
        Valued("area", Text::tr("Record this part of the display."), Text::tr("x,y,width,height")),
        Valued("source", Text::tr("Take the picture from x11, portal or test."),
               Text::tr("source")),
        Valued("fps", Text::tr("Record <rate> frames a second (30)."), Text::tr("rate")),
        Valued("duration", Text::tr("End after <seconds>; fractions are allowed."),
               Text::tr("seconds")),
        Valued("sound", Text::tr("Record the sound of <device>. May be given several times."),
               Text::tr("device")),
        Flag("mix", Text::tr("Record all devices as one track.")),
        Valued("encoder", Text::tr("Use the encoder <name> instead of the best one."),
               Text::tr("name")),
        Valued("quality", Text::tr("Choose small, normal or high."), Text::tr("quality")),
        Flag("no-pointer", Text::tr("Leave the mouse pointer out.")),
        Valued("reserve", Text::tr("End when fewer than <bytes> are free."), Text::tr("bytes"))};
}

QList<QCommandLineOption> AllOptions()
{
    return OptionsOfRecording()
        + QList<QCommandLineOption>{
            Flag("lines", Text::tr("Be driven by lines on standard input.")),
            Flag("levels",
                 Text::tr("Print how loud the devices of --sound are, ten times a second.")),
            Flag("probe", Text::tr("Print encoders, screens and sound devices as JSON.")),
            Valued("repair", Text::tr("Complete the Matroska file <file> that a crash has left."),
                   Text::tr("file")),
            Valued("picture",
                   Text::tr("Make a small PNG of the first seconds of <file>, named after it."),
                   Text::tr("file")),
            {{QStringLiteral("h"), QStringLiteral("help")}, Text::tr("Show this help.")},
            {{QStringLiteral("v"), QStringLiteral("version")}, Text::tr("Show the version.")}};
}

RecorderOptions Say(RecorderOptions::Task task, const QString& message)
{
    RecorderOptions options;
    options.task = task;
    options.message = message;
    return options;
}

/// Reads the values of a command line one after the other, up to the first that is wrong.
class ValueReader {
public:
    explicit ValueReader(const QCommandLineParser& parser)
        : m_parser(parser)
    {
    }

    const QString& Problem() const { return m_problem; }
    void Require(bool isRight, const QString& problem)
    {
        if (m_problem.isEmpty() && !isRight) {
            m_problem = problem;
        }
    }
    bool IsSet(const char* name) const { return m_parser.isSet(QLatin1String(name)); }
    QString Value(const char* name) const { return m_parser.value(QLatin1String(name)); }

    template <typename Number>
    Number Integer(const char* name, Number usual, Number lowest, Number highest)
    {
        if (!IsSet(name)) {
            return usual;
        }
        bool isNumber = false;
        const qint64 number = Value(name).toLongLong(&isNumber);
        Require(isNumber && number >= lowest && number <= highest,
                Text::tr("--%1 is a whole number from %2 to %3")
                    .arg(QLatin1String(name))
                    .arg(lowest)
                    .arg(highest));
        return static_cast<Number>(number);
    }

    std::int64_t Duration()
    {
        if (!IsSet("duration")) {
            return 0;
        }
        constexpr double microseconds = 1e6;
        constexpr double longest = 1e9;
        bool isNumber = false;
        const double seconds = Value("duration").toDouble(&isNumber);
        const bool isRight = isNumber && seconds > 0 && seconds <= longest;
        Require(isRight, Text::tr("--duration is a number of seconds above 0"));
        return isRight ? std::max<std::int64_t>(1, std::llround(seconds * microseconds)) : 0;
    }

    std::optional<QRect> Area()
    {
        if (!IsSet("area")) {
            return std::nullopt;
        }
        const QStringList parts = Value("area").split(QLatin1Char(','));
        QList<int> numbers;
        for (const auto& part : parts) {
            bool isNumber = false;
            numbers << part.toInt(&isNumber);
            Require(isNumber, Text::tr("--area is four whole numbers: x,y,width,height"));
        }
        Require(numbers.size() == 4, Text::tr("--area is four whole numbers: x,y,width,height"));
        return numbers.size() == 4
            ? std::optional(QRect(numbers[0], numbers[1], numbers[2], numbers[3]))
            : std::nullopt;
    }

private:
    const QCommandLineParser& m_parser;
    QString m_problem;
};

void ReadPicture(ValueReader& reader, RecorderOptions& options)
{
    constexpr int mostScreens = 1000;
    auto& request = options.request;
    options.isScreenChosen = reader.IsSet("screen");
    request.screen = reader.Integer("screen", 0, 0, mostScreens);
    request.area = reader.Area();
    reader.Require(!options.isScreenChosen || !request.area,
                   Text::tr("--screen and --area exclude each other"));
    const auto source =
        reader.IsSet("source") ? SourceNamed(reader.Value("source")) : std::optional(UsualSource());
    reader.Require(source.has_value(), Text::tr("--source is x11, portal or test"));
    request.source = source.value_or(request.source);
    request.framesPerSecond =
        reader.Integer("fps", request.framesPerSecond, LowestRate, HighestRate);
    request.isPointerVisible = !reader.IsSet("no-pointer");
}

void ReadFile(ValueReader& reader, RecorderOptions& options)
{
    auto& request = options.request;
    request.file = QDir::current().absoluteFilePath(reader.Value("file"));
    reader.Require(!reader.Value("file").isEmpty(), Text::tr("--file is missing"));
    reader.Require(HasKnownEnding(request.file), Text::tr("--file ends in .mkv or .mp4"));
    const auto quality = reader.IsSet("quality") ? QualityNamed(reader.Value("quality"))
                                                 : std::optional(Quality::Normal);
    reader.Require(quality.has_value(), Text::tr("--quality is small, normal or high"));
    request.quality = quality.value_or(Quality::Normal);
    request.encoder = reader.Value("encoder");
    reader.Require(!reader.IsSet("encoder") || EncoderNames().contains(request.encoder),
                   Text::tr("unknown encoder '%1'; the encoders are %2")
                       .arg(request.encoder, EncoderNames().join(QStringLiteral(", "))));
    request.reserve =
        reader.Integer<std::int64_t>("reserve", 0, 0, std::numeric_limits<std::int64_t>::max());
    request.isSoundMixed = reader.IsSet("mix");
    options.durationMicroseconds = reader.Duration();
}

RecorderOptions::Task TaskOf(const ValueReader& reader)
{
    using Task = RecorderOptions::Task;
    return reader.IsSet("lines")  ? Task::Lines
        : reader.IsSet("levels")  ? Task::Levels
        : reader.IsSet("probe")   ? Task::Probe
        : reader.IsSet("repair")  ? Task::Repair
        : reader.IsSet("picture") ? Task::Picture
                                  : Task::Record;
}

QString WithoutFullStop(QString text)
{
    if (text.endsWith(QLatin1Char('.'))) {
        text.chop(1);
    }
    return text;
}

RecorderOptions Read(const QCommandLineParser& parser)
{
    RecorderOptions options;
    ValueReader reader(parser);
    const auto rest = parser.positionalArguments();
    options.task = TaskOf(reader);
    const int expected = options.task == RecorderOptions::Task::Picture ? 1 : 0;
    reader.Require(rest.size() <= expected,
                   Text::tr("unexpected argument '%1'").arg(rest.value(expected)));
    if (options.task == RecorderOptions::Task::Repair) {
        options.request.file = QDir::current().absoluteFilePath(reader.Value("repair"));
    } else if (options.task == RecorderOptions::Task::Picture) {
        options.request.file = QDir::current().absoluteFilePath(reader.Value("picture"));
        options.picture = QDir::current().absoluteFilePath(rest.value(0));
        reader.Require(!rest.isEmpty()
                           && options.picture.endsWith(QLatin1String(".png"), Qt::CaseInsensitive),
                       Text::tr("--picture needs the name of a .png after the recording's"));
    } else if (options.task == RecorderOptions::Task::Record) {
        ReadFile(reader, options);
        ReadPicture(reader, options);
    }
    options.request.sound = parser.values(QStringLiteral("sound"));
    return reader.Problem().isEmpty() ? options
                                      : Say(RecorderOptions::Task::Refuse, reader.Problem());
}

} // namespace

RecorderOptions ParseRecorderOptions(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(Text::tr("Records a screen and sound into a file."));
    parser.addOptions(AllOptions());
    if (!parser.parse(arguments)) {
        return Say(RecorderOptions::Task::Refuse, WithoutFullStop(parser.errorText()));
    }
    if (parser.isSet(QStringLiteral("help"))) {
        return Say(RecorderOptions::Task::Print, parser.helpText().trimmed());
    }
    if (parser.isSet(QStringLiteral("version"))) {
        return Say(RecorderOptions::Task::Print, QStringLiteral("px-recorder " PX_VERSION));
    }
    return Read(parser);
}

} // namespace Zentor::Capture
