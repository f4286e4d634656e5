#include "CommandLine.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include "CoreInt/Printable.h"
#include "Languages.h"
#include "ThemeName.h"

namespace Zentor::Desktop {
namespace {

class Text {
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

struct Options {
    QCommandLineOption settings{
        QStringLiteral("settings"),
        Text::tr("Keep the settings in <file> instead of the platform's configuration folder."),
        QStringLiteral("file")};
    QCommandLineOption language{QStringLiteral("language"),
                                Text::tr("Use <language> in this run, for example de or pt_BR."),
                                QStringLiteral("language")};
    QCommandLineOption theme{QStringLiteral("theme"),
                             Text::tr("Use the theme light or dark in this run."),
                             QStringLiteral("theme")};
    QCommandLineOption screenshots{
        QStringLiteral("screenshots"),
        Text::tr(
            "Walk through the window on a copy of the settings (of a sample without --settings), "
            "write a picture of each state into <folder>, and end."),
        QStringLiteral("folder")};
    QCommandLineOption help{{QStringLiteral("h"), QStringLiteral("help")},
                            Text::tr("Show this help.")};
    QCommandLineOption version{{QStringLiteral("v"), QStringLiteral("version")},
                               Text::tr("Show the version.")};

    QList<QCommandLineOption> All() const
    {
        return {settings, language, theme, screenshots, help, version};
    }
    QList<QCommandLineOption> WithValue() const { return {settings, language, theme, screenshots}; }
};

QString ProgramName()
{
    return QStringLiteral("px-scheduler");
}

CommandLine Print(const QString& message)
{
    CommandLine line;
    line.task = CommandLine::Task::Print;
    line.message = message.trimmed();
    return line;
}

CommandLine Refuse(const QString& reason)
{
    CommandLine line;
    line.task = CommandLine::Task::Refuse;
    line.message = Text::tr("%1: %2 (try --help)").arg(ProgramName(), Util::PrintableText(reason));
    return line;
}

/// Why the values that were given cannot be used; empty when they can.
QString ProblemOf(const QCommandLineParser& parser, const Options& options)
{
    const auto withValue = options.WithValue();
    for (const auto& option : withValue) {
        if (parser.isSet(option) && parser.value(option).isEmpty()) {
            return Text::tr("option --%1 needs a value").arg(option.names().constFirst());
        }
    }
    if (!parser.positionalArguments().isEmpty()) {
        return Text::tr("unexpected argument '%1'").arg(parser.positionalArguments().constFirst());
    }
    const QString theme = parser.value(options.theme);
    if (!theme.isEmpty() && !ThemeNames().contains(theme)) {
        return Text::tr("unknown theme '%1'; the themes are light and dark").arg(theme);
    }
    const QString language = parser.value(options.language);
    if (!language.isEmpty() && !IsLanguage(language)) {
        return Text::tr("unknown language '%1'; the languages are %2")
            .arg(language, LanguageCodes().join(QStringLiteral(", ")));
    }
    return {};
}

/// The parser's own complaint as part of a sentence: without its full stop.
QString WithoutFullStop(QString text)
{
    if (text.endsWith(QLatin1Char('.'))) {
        text.chop(1);
    }
    return text;
}

} // namespace

CommandLine ParseCommandLine(const QStringList& arguments)
{
    const Options options;
    QCommandLineParser parser;
    parser.setApplicationDescription(Text::tr("Choose how screen recordings are timed."));
    parser.addOptions(options.All());
    if (!parser.parse(arguments)) {
        return Refuse(WithoutFullStop(parser.errorText()));
    }
    if (parser.isSet(options.help)) {
        return Print(parser.helpText());
    }
    if (parser.isSet(options.version)) {
        return Print(QStringLiteral("%1 %2").arg(ProgramName(), QStringLiteral(PX_VERSION)));
    }
    const QString problem = ProblemOf(parser, options);
    if (!problem.isEmpty()) {
        return Refuse(problem);
    }
    CommandLine line;
    line.settingsFile = parser.value(options.settings);
    line.language = parser.value(options.language);
    line.theme = parser.value(options.theme);
    line.screenshotsFolder = parser.value(options.screenshots);
    return line;
}

} // namespace Zentor::Desktop
