// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "NoticeText.h"

#include <QCoreApplication>
#include <QFileInfo>

#include "CoreInt/Printable.h"
#include "DurationText.h"
#include "RecordingTexts.h"
#include "SizeText.h"

namespace Zentor::Desktop {
namespace {

using Schedule::Notice;
using Schedule::Outcome;

struct Text {
    Q_DECLARE_TR_FUNCTIONS(NoticeText)
};

QString TimeFromNow(Schedule::Moment moment)
{
    return TimeText(moment, Time::SystemClock().Now());
}

/// The sentences of \a all that say something.
QString Sentences(QStringList all)
{
    all.removeAll(QString());
    return all.join(QLatin1Char(' '));
}

QString TitleOfEnd(const Notice& notice)
{
    const QString name = NameInSentence(notice.title);
    switch (notice.entry.outcome) {
    case Outcome::Complete:
        return Text::tr("%1 has been recorded").arg(name);
    case Outcome::Stopped:
        return Text::tr("%1 has been stopped").arg(name);
    case Outcome::Partial:
        return Text::tr("%1 has been recorded in part").arg(name);
    case Outcome::Missed:
        return Text::tr("%1 has not been recorded").arg(name);
    case Outcome::Failed:
    case Outcome::Recording:
        break;
    }
    return Text::tr("%1 could not be recorded").arg(name);
}

QString ReasonSentence(const QString& reason)
{
    const QString text = Util::PrintableText(ReasonText(reason));
    return text.isEmpty() ? QString() : Text::tr("Reason: %1.").arg(text);
}

QString FileSentence(const QString& file)
{
    if (file.isEmpty()) {
        return {};
    }
    const QString name = Util::PrintableText(QFileInfo(file).fileName());
    return Text::tr("The file is %1.").arg(Isolated(name));
}

/// The text of a notice about an entry: its outcome, why, and the file.
NoticeText TextOfEntry(const Notice& notice)
{
    NoticeText text;
    // Where nothing was recorded yet, there is no rest.
    const bool hasRest = notice.goesOn && !notice.entry.file.isEmpty();
    const QString rest = hasRest ? Text::tr("The rest is recorded into a new file.") : QString();
    text.title = TitleOfEnd(notice);
    text.body =
        Sentences({ReasonSentence(notice.entry.reason), FileSentence(notice.entry.file), rest});
    if (!notice.entry.file.isEmpty()) {
        text.actions = {NoticeAction::Open, NoticeAction::ShowInFolder};
    }
    return text;
}

QString RefusalTitle(PX::PowerAction action)
{
    switch (action) {
    case PX::Sleep:
        return Text::tr("The computer cannot go to sleep");
    case PX::Hibernate:
        return Text::tr("The computer cannot hibernate");
    case PX::Restart:
        return Text::tr("The computer cannot be restarted");
    default:
        return Text::tr("The computer cannot be shut down");
    }
}

QString SkippedActionTitle(PX::PowerAction action)
{
    switch (action) {
    case PX::Sleep:
        return Text::tr("The computer does not go to sleep");
    case PX::Hibernate:
        return Text::tr("The computer does not hibernate");
    case PX::Restart:
        return Text::tr("The computer is not restarted");
    default:
        return Text::tr("The computer is not shut down");
    }
}

NoticeText TextOfTask(const Notice& notice)
{
    const QString name = NameInSentence(notice.title);
    const QString time = TimeFromNow(notice.when);
    const QString start = Text::tr("%1 starts at %2.").arg(name, time);
    switch (notice.kind) {
    case Notice::Kind::StartsSoon:
        return {Text::tr("%1 is about to be recorded").arg(name),
                Text::tr("The recording starts at %1.").arg(time),
                {NoticeAction::Skip}};
    case Notice::Kind::Started:
        return {Text::tr("%1 is being recorded").arg(name), QString(), {}};
    case Notice::Kind::GivingWay:
        return {Text::tr("Your recording ends in a moment"), start, {NoticeAction::Keep}, true};
    case Notice::Kind::ScreenAwaited:
        return {Text::tr("%1 waits for its screen").arg(name),
                Text::tr("It is recorded as soon as the screen is connected."),
                {},
                true};
    case Notice::Kind::ActionSkipped:
        return {SkippedActionTitle(notice.action), start, {}};
    default:
        return {Text::tr("%1 does not start").arg(name),
                Text::tr("The disk is full: %1 are free.").arg(SizeText(notice.freeBytes)),
                {},
                true};
    }
}

NoticeText TextOfSystem(const Notice& notice)
{
    const QString told = Util::PrintableText(notice.text);
    switch (notice.kind) {
    case Notice::Kind::Countdown: {
        const auto left = notice.when - Time::SystemClock().Now();
        return {CountdownText(notice.action, RemainingText(left)),
                Text::tr("The recording is finished."),
                {NoticeAction::Cancel, NoticeAction::Now},
                true};
    }
    case Notice::Kind::ActionRefused:
        return {RefusalTitle(notice.action), told, {}};
    case Notice::Kind::Warning:
        return {Text::tr("There is a problem with %1")
                    .arg(notice.title.isEmpty() ? Text::tr("your recording")
                                                : NameInSentence(notice.title)),
                told,
                {},
                true};
    case Notice::Kind::LowDisk:
        return {Text::tr("The disk may be too small for the scheduled tasks"),
                Text::tr("They are likely to need %1, and %2 can be used.")
                    .arg(SizeText(notice.neededBytes), SizeText(notice.freeBytes)),
                {},
                true};
    case Notice::Kind::RunsOn:
        return {Text::tr("The program runs on"),
                Text::tr("Its icon shows the window again. You can change this on the page "
                         "\"General\"."),
                {}};
    default:
        return {Text::tr("Not everything works on this desktop"), told, {}};
    }
}

} // namespace

QString ActionText(NoticeAction action)
{
    switch (action) {
    case NoticeAction::Skip:
        return Text::tr("Skip");
    case NoticeAction::Keep:
        return Text::tr("Keep recording");
    case NoticeAction::Open:
        return Text::tr("Open");
    case NoticeAction::ShowInFolder:
        return Text::tr("Show in folder");
    case NoticeAction::Cancel:
        return Text::tr("Cancel");
    case NoticeAction::Now:
        return Text::tr("Now");
    }
    return {};
}

NoticeText TextOf(const Notice& notice)
{
    NoticeText text;
    switch (notice.kind) {
    case Notice::Kind::Ended:
        return TextOfEntry(notice);
    case Notice::Kind::Missed:
    case Notice::Kind::Failed:
        text = TextOfEntry(notice);
        text.isUrgent = true;
        return text;
    case Notice::Kind::StartsSoon:
    case Notice::Kind::Started:
    case Notice::Kind::GivingWay:
    case Notice::Kind::ScreenAwaited:
    case Notice::Kind::ActionSkipped:
    case Notice::Kind::NoRoom:
        return TextOfTask(notice);
    default:
        return TextOfSystem(notice);
    }
}

QString CountdownText(PX::PowerAction action, const QString& wait)
{
    switch (action) {
    case PX::Sleep:
        return Text::tr("The computer goes to sleep in %1").arg(wait);
    case PX::Hibernate:
        return Text::tr("The computer hibernates in %1").arg(wait);
    case PX::Restart:
        return Text::tr("The computer restarts in %1").arg(wait);
    default:
        return Text::tr("The computer shuts down in %1").arg(wait);
    }
}

QString NameInSentence(const QString& title)
{
    return title.isEmpty() ? Text::tr("Your recording")
                           : Text::tr("“%1”").arg(Isolated(Util::PrintableText(title)));
}

} // namespace Zentor::Desktop
