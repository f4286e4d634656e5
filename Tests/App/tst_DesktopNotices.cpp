// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "DesktopNotices.h"
#include "FakeNotifications.h"
#include "Samples.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

using Desktop::DesktopNotices;
using Schedule::Notice;

Notice Of(Notice::Kind kind, const QString& title = QStringLiteral("Lecture"))
{
    Notice notice;
    notice.kind = kind;
    notice.title = title;
    notice.when = At("20:15");
    notice.action = PX::ShutDown;
    notice.entry = {title,     At("20:15"), At("21:15"), Schedule::Outcome::Complete,
                    QString(), QString()};
    if (kind == Notice::Kind::Ended) {
        notice.entry.file = QStringLiteral("/videos/") + title;
    }
    return notice;
}

/// A desktop, and the notices on it.
class Stage {
public:
    Stage()
        : notifier(QStringLiteral("org.example.Test"))
        , notices(notifier, [this] { return isLookedAt; })
    {
        const auto note = [this](const char* what) {
            return [this, what](const QString& text = {}) {
                asked << QStringLiteral("%1 %2").arg(QLatin1String(what), text).trimmed();
            };
        };
        QObject::connect(&notices, &DesktopNotices::Announced, note("announced"));
        QObject::connect(&notices, &DesktopNotices::SkipRequested, note("skip"));
        QObject::connect(&notices, &DesktopNotices::KeepRequested, note("keep"));
        QObject::connect(&notices, &DesktopNotices::OpenRequested, note("open"));
        QObject::connect(&notices, &DesktopNotices::ShowInFolderRequested, note("show"));
        QObject::connect(&notices, &DesktopNotices::CancelRequested, note("cancel"));
        QObject::connect(&notices, &DesktopNotices::NowRequested, note("now"));
        QObject::connect(&notices, &DesktopNotices::WindowRequested, note("window"));
    }

    /// Waits until \a count notifications are on the screen.
    bool Shows(std::size_t count)
    {
        return QTest::qWaitFor([&] { return desktop.Shown().size() == count; }, Patience);
    }
    /// Of the last notification on the screen; empty while there is none.
    QString Summary() const
    {
        return desktop.Shown().empty() ? QString() : desktop.Shown().back().summary;
    }

    FakeNotifications desktop;
    Schedule::DesktopNotifier notifier;
    bool isLookedAt = false;
    DesktopNotices notices;
    QStringList asked;
};

} // namespace

class tst_DesktopNotices : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void asksForWhatTheUserChooses_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("action");
        QTest::addColumn<QString>("asked");
        const auto row = [](const char* name, Notice::Kind kind, const char* action,
                            const char* asked) {
            QTest::newRow(name) << static_cast<int>(kind) << QString::fromLatin1(action)
                                << QString::fromLatin1(asked);
        };
        row("skip", Notice::Kind::StartsSoon, "skip", "skip Lecture");
        row("keep", Notice::Kind::GivingWay, "keep", "keep");
        row("open", Notice::Kind::Ended, "open", "open /videos/Lecture");
        row("show in folder", Notice::Kind::Ended, "show-in-folder", "show /videos/Lecture");
        row("cancel", Notice::Kind::Countdown, "cancel", "cancel");
        row("now", Notice::Kind::Countdown, "now", "now");
        row("click", Notice::Kind::Missed, "default", "window token");
    }

    void asksForWhatTheUserChooses()
    {
        QFETCH(int, kind);
        QFETCH(QString, action);
        QFETCH(QString, asked);
        Stage stage;
        stage.notices.Tell(Of(static_cast<Notice::Kind>(kind)));
        QVERIFY(stage.Shows(1));
        const auto shown = stage.desktop.Shown().front();
        QVERIFY(shown.actions.contains(action));
        stage.desktop.Invoke(shown.id, action, QStringLiteral("token"));
        QTRY_COMPARE_WITH_TIMEOUT(stage.asked, QStringList(asked), Patience);
    }

    void announcesWhileTheWindowIsLookedAt()
    {
        Stage stage;
        stage.isLookedAt = true;
        stage.notices.Tell(Of(Notice::Kind::Ended));
        stage.notices.Tell(Of(Notice::Kind::Started));
        QCOMPARE(stage.asked.size(), 2);
        QVERIFY(stage.asked.front().contains(QLatin1String("has been recorded. The file is")));
        stage.notices.Tell(Of(Notice::Kind::Countdown));
        QVERIFY(stage.Shows(1));
        QVERIFY(stage.Summary().contains(QLatin1String("shuts down")));
        QCOMPARE(stage.asked.size(), 2);
        QCOMPARE(stage.desktop.Asked(), 1);
    }

    void replacesWhatIsOutOfDate()
    {
        Stage stage;
        stage.notices.Tell(Of(Notice::Kind::StartsSoon));
        QVERIFY(stage.Shows(1));
        stage.notices.Tell(Of(Notice::Kind::Started));
        QTRY_VERIFY_WITH_TIMEOUT(stage.Summary().contains(QLatin1String("is being recorded")),
                                 Patience);
        QCOMPARE(stage.desktop.Shown().size(), std::size_t(1));
        stage.notices.Tell(Of(Notice::Kind::Ended));
        QTRY_VERIFY_WITH_TIMEOUT(stage.Summary().contains(QLatin1String("has been recorded")),
                                 Patience);
        QVERIFY(stage.Shows(1));
    }

    void closesWhatIsOutOfDateWhenTheWindowIsLookedAt()
    {
        Stage stage;
        stage.notices.Tell(Of(Notice::Kind::StartsSoon));
        QVERIFY(stage.Shows(1));
        stage.isLookedAt = true;
        stage.notices.Tell(Of(Notice::Kind::Started));
        QVERIFY(stage.Shows(0));
    }

    void keepsTheEndsOfSeveralRecordings()
    {
        Stage stage;
        stage.notices.Tell(Of(Notice::Kind::Ended, QStringLiteral("One")));
        stage.notices.Tell(Of(Notice::Kind::Ended, QStringLiteral("Two")));
        QVERIFY(stage.Shows(2));
        stage.desktop.Invoke(stage.desktop.Shown().front().id, QStringLiteral("open"));
        QTRY_COMPARE_WITH_TIMEOUT(stage.asked, QStringList("open /videos/One"), Patience);
    }

    void closesTheCountdown()
    {
        Stage stage;
        stage.notices.Tell(Of(Notice::Kind::Countdown));
        QVERIFY(stage.Shows(1));
        stage.notices.EndCountdown();
        QVERIFY(stage.Shows(0));
    }

    void saysUrgently()
    {
        Stage stage;
        stage.notices.Tell(Of(Notice::Kind::Missed));
        QVERIFY(stage.Shows(1));
        QCOMPARE(stage.desktop.Shown().front().hints.value("urgency"),
                 QVariant::fromValue(uchar(2)));
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_DesktopNotices)

#include "tst_DesktopNotices.moc"
