// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RecordingTexts.h"

#include <algorithm>

#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>

#include "SizeText.h"

namespace Zentor::Desktop {
namespace {

using Schedule::Outcome;

class Text {
    Q_DECLARE_TR_FUNCTIONS(RecordingTexts)
};

struct Reason {
    const char* name;
    const char* text;
};

// Those of Schedule::Why, then those of the recorder.
constexpr Reason Reasons[] = {
    {"late", QT_TRANSLATE_NOOP("RecordingTexts", "it started late")},
    {"rest", QT_TRANSLATE_NOOP("RecordingTexts", "an earlier part of it broke off")},
    {"recorder-died", QT_TRANSLATE_NOOP("RecordingTexts", "the recorder broke down")},
    {"program-died", QT_TRANSLATE_NOOP("RecordingTexts", "the program ended unexpectedly")},
    {"gave-way", QT_TRANSLATE_NOOP("RecordingTexts", "a task was due")},
    {"shut-down", QT_TRANSLATE_NOOP("RecordingTexts", "the computer was shut down")},
    {"suspended", QT_TRANSLATE_NOOP("RecordingTexts", "the computer was asleep")},
    {"not-running", QT_TRANSLATE_NOOP("RecordingTexts", "the program was not running")},
    {"schedule-off", QT_TRANSLATE_NOOP("RecordingTexts", "the schedule was off")},
    {"clock-set", QT_TRANSLATE_NOOP("RecordingTexts", "the clock was set")},
    {"other-recording", QT_TRANSLATE_NOOP("RecordingTexts", "another recording was running")},
    {"screen-missing", QT_TRANSLATE_NOOP("RecordingTexts", "the screen was not connected")},
    {"skipped", QT_TRANSLATE_NOOP("RecordingTexts", "you skipped it")},
    {"no-recorder", QT_TRANSLATE_NOOP("RecordingTexts", "the recorder is not installed")},
    {"disk-low", QT_TRANSLATE_NOOP("RecordingTexts", "the disk was nearly full")},
    {"disk-full", QT_TRANSLATE_NOOP("RecordingTexts", "the disk was full")},
    {"no-display", QT_TRANSLATE_NOOP("RecordingTexts", "the display was gone")},
    {"client-gone", QT_TRANSLATE_NOOP("RecordingTexts", "the program ended unexpectedly")},
    {"quit", QT_TRANSLATE_NOOP("RecordingTexts", "the program was ended")},
    {"exists", QT_TRANSLATE_NOOP("RecordingTexts", "the file existed already")},
    {"no-folder", QT_TRANSLATE_NOOP("RecordingTexts", "the folder did not exist")},
    {"not-writable", QT_TRANSLATE_NOOP("RecordingTexts", "the folder could not be written to")},
    {"refused", QT_TRANSLATE_NOOP("RecordingTexts", "the desktop did not allow it")},
    {"no-encoder", QT_TRANSLATE_NOOP("RecordingTexts", "no encoder works on this computer")},
    {"nothing-recorded", QT_TRANSLATE_NOOP("RecordingTexts", "nothing was recorded")},
    {"remux", QT_TRANSLATE_NOOP("RecordingTexts", "the conversion to MP4 failed")},
    {"pipeline", QT_TRANSLATE_NOOP("RecordingTexts", "the recorder reported an error")},
    {"busy", QT_TRANSLATE_NOOP("RecordingTexts", "another recording was running")},
    // Their outcomes say it.
    {"user", ""},
    {"stopped", ""},
    {"duration", ""},
};

QString OutcomeName(Outcome outcome)
{
    switch (outcome) {
    case Outcome::Complete:
        return Text::tr("Complete");
    case Outcome::Partial:
        return Text::tr("Incomplete");
    case Outcome::Stopped:
        return Text::tr("Stopped by you");
    case Outcome::Missed:
        return Text::tr("Missed");
    case Outcome::Failed:
        return Text::tr("Failed");
    case Outcome::Recording:
        break;
    }
    return Text::tr("Recording now");
}

} // namespace

QString ReasonText(const QString& reason)
{
    const auto* const found = std::find_if(std::begin(Reasons), std::end(Reasons), [&](auto known) {
        return reason == QLatin1String(known.name);
    });
    if (found == std::end(Reasons)) {
        return reason;
    }
    return *found->text == '\0' ? QString()
                                : QCoreApplication::translate("RecordingTexts", found->text);
}

QString OutcomeText(const Schedule::RecordingEntry& entry)
{
    const QString outcome = OutcomeName(entry.outcome);
    const QString reason = ReasonText(entry.reason);
    return reason.isEmpty() ? outcome : Text::tr("%1: %2").arg(outcome, reason);
}

QString MomentText(Schedule::Moment moment)
{
    const auto milliseconds =
        std::chrono::floor<std::chrono::milliseconds>(moment.time_since_epoch());
    return Isolated(QLocale().toString(QDateTime::fromMSecsSinceEpoch(milliseconds.count()),
                                       QLocale::ShortFormat));
}

QString LengthText(Schedule::Length length)
{
    constexpr qint64 perUnit = 60;
    constexpr int base = 10;
    const auto seconds =
        std::max<qint64>(0, std::chrono::duration_cast<std::chrono::seconds>(length).count());
    const auto twoDigits = [](qint64 number) {
        return QStringLiteral("%1").arg(number % perUnit, 2, base, QLatin1Char('0'));
    };
    return Isolated(QStringLiteral("%1:%2:%3")
                        .arg(QString::number(seconds / (perUnit * perUnit)),
                             twoDigits(seconds / perUnit), twoDigits(seconds)));
}

} // namespace Zentor::Desktop
