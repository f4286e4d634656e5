// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "NoticeText.h"
#include "Samples.h"
#include "WidgetTest.h"

using namespace std::chrono_literals;

namespace Zentor::Tests {
namespace {

using Desktop::NoticeAction;
using Schedule::Notice;
using Schedule::Outcome;

/// \a text without the characters that keep its order.
QString Visible(QString text)
{
    return text.remove(QChar(0x2068)).remove(QChar(0x2069));
}

Notice Of(Notice::Kind kind)
{
    Notice notice;
    notice.kind = kind;
    notice.title = QStringLiteral("Lecture");
    notice.when = At("20:15");
    notice.action = PX::ShutDown;
    notice.text = QStringLiteral("said by others");
    notice.neededBytes = 5'000'000'000;
    notice.freeBytes = 2'000'000'000;
    return notice;
}

Notice OfEntry(Notice::Kind kind, Outcome outcome, const QString& file, const QString& reason)
{
    Notice notice = Of(kind);
    notice.entry = {notice.title, At("20:15"), At("21:15"), outcome, file, reason};
    return notice;
}

const QString File = QStringLiteral("/videos/Lecture.mkv");

} // namespace

class tst_NoticeText : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void hasATextForEachKind_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("part");
        QTest::addColumn<QVector<int>>("actions");
        QTest::addColumn<bool>("isUrgent");
        const auto row = [](const char* name, Notice::Kind kind, const char* part,
                            const std::vector<NoticeAction>& actions, bool isUrgent) {
            QVector<int> numbers;
            for (const NoticeAction action : actions) {
                numbers << static_cast<int>(action);
            }
            QTest::newRow(name) << static_cast<int>(kind) << QString::fromLatin1(part) << numbers
                                << isUrgent;
        };
        using Kind = Notice::Kind;
        row("starts soon", Kind::StartsSoon, "Lecture", {NoticeAction::Skip}, false);
        row("started", Kind::Started, "Lecture", {}, false);
        row("giving way", Kind::GivingWay, "Lecture", {NoticeAction::Keep}, true);
        row("screen awaited", Kind::ScreenAwaited, "Lecture", {}, true);
        row("countdown", Kind::Countdown, "shuts down", {NoticeAction::Cancel, NoticeAction::Now},
            true);
        row("action skipped", Kind::ActionSkipped, "Lecture", {}, false);
        row("action refused", Kind::ActionRefused, "said by others", {}, false);
        row("warning", Kind::Warning, "said by others", {}, true);
        row("low disk", Kind::LowDisk, "need 5.0 GB, and 2.0 GB", {}, true);
        row("no room", Kind::NoRoom, "2.0 GB", {}, true);
        row("unavailable", Kind::Unavailable, "said by others", {}, false);
    }

    void hasATextForEachKind()
    {
        QFETCH(int, kind);
        QFETCH(QString, part);
        QFETCH(QVector<int>, actions);
        QFETCH(bool, isUrgent);
        const auto text = Desktop::TextOf(Of(static_cast<Notice::Kind>(kind)));
        QVERIFY(!text.title.isEmpty());
        const QString all = Visible(text.title + QLatin1Char('\n') + text.body);
        QVERIFY2(all.contains(part), qPrintable(all));
        QVector<int> numbers;
        for (const NoticeAction action : text.actions) {
            QVERIFY(!Desktop::ActionText(action).isEmpty());
            numbers << static_cast<int>(action);
        }
        QCOMPARE(numbers, actions);
        QCOMPARE(text.isUrgent, isUrgent);
    }

    void tellsHowARecordingEnded_data()
    {
        QTest::addColumn<int>("outcome");
        QTest::addColumn<QString>("reason");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("body");
        const QString file = QStringLiteral("The file is Lecture.mkv.");
        QTest::newRow("complete") << static_cast<int>(Outcome::Complete) << QString()
                                  << "“Lecture” has been recorded" << file;
        QTest::newRow("stopped") << static_cast<int>(Outcome::Stopped) << Schedule::Why::User
                                 << "“Lecture” has been stopped" << file;
        QTest::newRow("partial") << static_cast<int>(Outcome::Partial) << Schedule::Why::Late
                                 << "“Lecture” has been recorded in part"
                                 << QStringLiteral("Reason: it started late. ") + file;
        QTest::newRow("failed") << static_cast<int>(Outcome::Failed) << QStringLiteral("pipeline")
                                << "“Lecture” could not be recorded"
                                << QStringLiteral("Reason: the recorder reported an error. ")
                + file;
    }

    void tellsHowARecordingEnded()
    {
        QFETCH(int, outcome);
        QFETCH(QString, reason);
        QFETCH(QString, title);
        QFETCH(QString, body);
        const auto text = Desktop::TextOf(
            OfEntry(Notice::Kind::Ended, static_cast<Outcome>(outcome), File, reason));
        QCOMPARE(Visible(text.title), title);
        QCOMPARE(Visible(text.body), body);
        QVERIFY(text.actions == std::vector({NoticeAction::Open, NoticeAction::ShowInFolder}));
    }

    void offersNoFileThatIsNotThere()
    {
        const auto text = Desktop::TextOf(
            OfEntry(Notice::Kind::Missed, Outcome::Missed, QString(), Schedule::Why::NotRunning));
        QVERIFY(text.actions.empty());
        QVERIFY(text.isUrgent);
        QCOMPARE(Visible(text.title), QStringLiteral("“Lecture” has not been recorded"));
        QCOMPARE(text.body, QStringLiteral("Reason: the program was not running."));
    }

    void tellsThatItGoesOn()
    {
        Notice notice =
            OfEntry(Notice::Kind::Failed, Outcome::Partial, File, Schedule::Why::RecorderDied);
        notice.goesOn = true;
        const auto text = Desktop::TextOf(notice);
        QVERIFY(text.body.endsWith(QLatin1String("The rest is recorded into a new file.")));
    }

    void speaksOfNoRestOfWhatHasNotBegun()
    {
        Notice notice =
            OfEntry(Notice::Kind::Failed, Outcome::Failed, QString(), Schedule::Why::NoRecorder);
        notice.goesOn = true;
        QCOMPARE(Desktop::TextOf(notice).body,
                 QStringLiteral("Reason: the recorder is not installed."));
    }

    void tellsEachAction_data()
    {
        QTest::addColumn<int>("action");
        QTest::newRow("sleep") << static_cast<int>(PX::Sleep);
        QTest::newRow("hibernate") << static_cast<int>(PX::Hibernate);
        QTest::newRow("restart") << static_cast<int>(PX::Restart);
        QTest::newRow("shut down") << static_cast<int>(PX::ShutDown);
    }

    void tellsEachAction()
    {
        QFETCH(int, action);
        static QStringList told;
        for (const auto kind :
             {Notice::Kind::Countdown, Notice::Kind::ActionSkipped, Notice::Kind::ActionRefused}) {
            Notice notice = Of(kind);
            notice.action = static_cast<PX::PowerAction>(action);
            const QString title = Desktop::TextOf(notice).title;
            QVERIFY2(!told.contains(title), qPrintable(title));
            told << title;
        }
    }

    void namesARecordingByHand()
    {
        QCOMPARE(Desktop::NameInSentence(QString()), QStringLiteral("Your recording"));
        QCOMPARE(Visible(Desktop::NameInSentence(QStringLiteral("a\x1b%2"))),
                 QStringLiteral("“a\\x1b%2”"));
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_NoticeText)

#include "tst_NoticeText.moc"
