// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "CommandLine.h"

#include <utility>

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
    QCommandLineOption start{
        QStringLiteral("start"),
        Text::tr("Start recording, in the program that runs already if there is one.")};
    QCommandLineOption stop{QStringLiteral("stop"),
                            Text::tr("Stop the recording of the program that runs already.")};
    QCommandLineOption pause{
        QStringLiteral("pause"),
        Text::tr("Pause the recording of the program that runs already, or go on with it.")};
    QCommandLineOption quit{QStringLiteral("quit"),
                            Text::tr("End the program that runs already, without a question.")};
    QCommandLineOption hidden{QStringLiteral("hidden"), Text::tr("Start without a window.")};
    QCommandLineOption help{{QStringLiteral("h"), QStringLiteral("help")},
                            Text::tr("Show this help.")};
    QCommandLineOption version{{QStringLiteral("v"), QStringLiteral("version")},
                               Text::tr("Show the version.")};

    QList<QCommandLineOption> All() const
    {
        return {settings, language, theme,  screenshots, start,  stop,
                pause,    quit,     hidden, help,        version};
    }
    QList<QCommandLineOption> WithValue() const { return {settings, language, theme, screenshots}; }
    /// Of these, one can be given.
    QList<QCommandLineOption> Exclusive() const { return {screenshots, start, stop, pause, quit}; }
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

/// Which options do not go together; empty when they do.
QString ConflictIn(const QCommandLineParser& parser, const Options& options)
{
    QStringList names;
    const auto exclusive = options.Exclusive();
    for (const auto& option : exclusive) {
        if (parser.isSet(option)) {
            names << option.names().constFirst();
        }
    }
    if (names.size() == 1 && names.constFirst() == options.screenshots.names().constFirst()
        && parser.isSet(options.hidden)) {
        names << options.hidden.names().constFirst();
    }
    return names.size() < 2
        ? QString()
        : Text::tr("options --%1 and --%2 cannot be used together").arg(names.at(0), names.at(1));
}

Request RequestIn(const QCommandLineParser& parser, const Options& options)
{
    const std::pair<const QCommandLineOption&, Request> requests[] = {
        {options.start, Request::Start},
        {options.stop, Request::Stop},
        {options.pause, Request::Pause},
        {options.quit, Request::Quit},
        // After the others: it says what is not to be shown, not what is to be done.
        {options.hidden, Request::Nothing}};
    for (const auto& [option, request] : requests) {
        if (parser.isSet(option)) {
            return request;
        }
    }
    return Request::Show;
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
    QString conflict = ConflictIn(parser, options);
    if (!conflict.isEmpty()) {
        return conflict;
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
    line.request = RequestIn(parser, options);
    line.isHidden = parser.isSet(options.hidden);
    return line;
}

QStringList ArgumentsToRestart(const QStringList& arguments, bool isHidden)
{
    const Options options;
    QCommandLineParser parser;
    parser.addOptions(options.All());
    parser.parse(arguments);
    QStringList result{arguments.value(0)};
    for (const auto& option : {options.settings, options.language, options.theme}) {
        if (parser.isSet(option)) {
            result << QStringLiteral("--%1=%2").arg(option.names().constFirst(),
                                                    parser.value(option));
        }
    }
    if (isHidden) {
        result << QStringLiteral("--%1").arg(options.hidden.names().constFirst());
    }
    return result;
}

} // namespace Zentor::Desktop
