// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QMenu>
#include <QSignalSpy>
#include <QSystemTrayIcon>

#include "FakeTray.h"
#include "MarkingTranslator.h"
#include "Resources.h"
#include "Theme.h"
#include "TrayIcon.h"
#include "WidgetTest.h"

Q_DECLARE_METATYPE(Zentor::Desktop::TrayState)

namespace Zentor::Tests {

using Desktop::TrayIcon;
using Desktop::TrayState;

namespace {

QMenu* Menu()
{
    const auto widgets = QApplication::topLevelWidgets();
    for (QWidget* widget : widgets) {
        if (widget->objectName() == QLatin1String("trayMenu")) {
            return qobject_cast<QMenu*>(widget);
        }
    }
    return nullptr;
}

/// The visible entries: "|" between them, those that cannot be chosen in brackets.
QString Entries()
{
    QStringList entries;
    const auto actions = Menu()->actions();
    for (const QAction* action : actions) {
        if (action->isVisible() && !action->isSeparator()) {
            QString text = action->text().replace(QLatin1String("&&"), QLatin1String("+"));
            text.remove(QLatin1Char('&'));
            entries << (action->isEnabled() ? text : QLatin1Char('[') + text + QLatin1Char(']'));
        }
    }
    return entries.join(QLatin1Char('|'));
}

/// Qt says so of platforms that have no trays of their own.
void AllowMissingTrays()
{
    WidgetTest::AllowWarning(QStringLiteral("QPlatformNativeInterface::systemTrayWindowChanged"));
}

TrayState Recording(const QString& text, bool isPaused)
{
    TrayState state;
    state.text = text;
    state.isRecording = true;
    state.isPaused = isPaused;
    return state;
}

} // namespace

class tst_TrayIcon : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Desktop::RegisterResources();
        Desktop::ApplyTheme(Desktop::Theme::Light);
    }

    void offersWhatFitsTheState_data()
    {
        QTest::addColumn<TrayState>("state");
        QTest::addColumn<QString>("entries");
        const QString more = QStringLiteral("|Show window|Quit");
        QTest::newRow("idle") << TrayState() << "[Not recording]|Start recording" + more;
        TrayState next;
        next.text = QStringLiteral("R&D starts at 10:00");
        QTest::newRow("next task") << next << "[R+D starts at 10:00]|Start recording" + more;
        TrayState refused;
        refused.canStart = false;
        QTest::newRow("no start") << refused << "[Not recording]|[Start recording]" + more;
        QTest::newRow("recording") << Recording({}, false) << "[Recording]|Stop|Pause" + more;
        QTest::newRow("paused") << Recording({}, true) << "[Paused]|Stop|Resume" + more;
        TrayState closing = Recording(QStringLiteral("Closing the file"), false);
        closing.canStop = closing.canPause = false;
        QTest::newRow("closing") << closing << "[Closing the file]|[Stop]|[Pause]" + more;
    }

    void offersWhatFitsTheState()
    {
        QFETCH(TrayState, state);
        QFETCH(QString, entries);
        TrayIcon icon;
        icon.SetState(state);
        QCOMPARE(Entries(), entries);
        // Nothing is left of a state that has gone.
        icon.SetState(Recording(QStringLiteral("other"), true));
        icon.SetState(state);
        QCOMPARE(Entries(), entries);
    }

    void asksForWhatIsChosen_data()
    {
        QTest::addColumn<QString>("action");
        QTest::addColumn<int>("wanted");
        int wanted = 0;
        for (const char* name :
             {"showAction", "startAction", "stopAction", "pauseAction", "quitAction"}) {
            QTest::newRow(name) << QString::fromLatin1(name) << wanted++;
        }
    }

    void asksForWhatIsChosen()
    {
        QFETCH(QString, action);
        QFETCH(int, wanted);
        const TrayIcon icon;
        const QSignalSpy spies[] = {QSignalSpy(&icon, &TrayIcon::ShowRequested),
                                    QSignalSpy(&icon, &TrayIcon::StartRequested),
                                    QSignalSpy(&icon, &TrayIcon::StopRequested),
                                    QSignalSpy(&icon, &TrayIcon::PauseRequested),
                                    QSignalSpy(&icon, &TrayIcon::QuitRequested)};
        Menu()->findChild<QAction*>(action)->trigger();
        for (int number = 0; number < int(std::size(spies)); ++number) {
            QCOMPARE(spies[number].count(), number == wanted ? 1 : 0);
        }
    }

    void followsTheLanguage()
    {
        TrayIcon icon;
        icon.SetState(Recording({}, true));
        LanguageSwitch language;
        language.Toggle();
        QCOMPARE(Entries(), QStringLiteral("[~Paused]|~Stop|~Resume|~Show window|~Quit"));
        language.Toggle();
        QCOMPARE(Entries(), QStringLiteral("[Paused]|Stop|Resume|Show window|Quit"));
    }

    /// Whatever the colour of the panel: each icon has dark and light parts.
    void hasIconsForEveryPanel_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* name : {"px-scheduler", "tray-recording", "tray-paused"}) {
            QTest::newRow(name) << QString::fromLatin1(name);
        }
    }

    void hasIconsForEveryPanel()
    {
        QFETCH(QString, name);
        const QImage image = Desktop::ThemedIcon(name).pixmap(22).toImage();
        QVERIFY(!image.isNull());
        constexpr int many = 20;
        int darkPixels = 0;
        int lightPixels = 0;
        for (int x = 0; x < image.width(); ++x) {
            for (int y = 0; y < image.height(); ++y) {
                const QColor color = image.pixelColor(x, y);
                const bool isSolid = color.alphaF() > 0.9;
                darkPixels += isSolid && color.lightnessF() < 0.6 ? 1 : 0;
                lightPixels += isSolid && color.lightnessF() > 0.9 ? 1 : 0;
            }
        }
        QVERIFY2(darkPixels > many && lightPixels > many,
                 qPrintable(QStringLiteral("%1 %2").arg(darkPixels).arg(lightPixels)));
    }

    void showsTheStateInTheTray_data()
    {
        QTest::addColumn<TrayState>("state");
        QTest::addColumn<QString>("icon");
        QTest::addColumn<QString>("text");
        QTest::newRow("idle") << TrayState() << "px-scheduler"
                              << "Not recording";
        QTest::newRow("recording")
            << Recording(QStringLiteral("Lecture"), false) << "tray-recording"
            << "Lecture";
        QTest::newRow("paused") << Recording({}, true) << "tray-paused"
                                << "Paused";
    }

    void showsTheStateInTheTray()
    {
        QFETCH(TrayState, state);
        QFETCH(QString, icon);
        QFETCH(QString, text);
        AllowMissingTrays();
        const FakeTray tray(true);
        TrayIcon shown;
        // Before there is an icon, and after.
        shown.SetState(state);
        QTRY_VERIFY_WITH_TIMEOUT(shown.IsAvailable(), Patience);
        const auto* inTray = shown.findChild<QSystemTrayIcon*>();
        const auto pixels = [](const QIcon& of) { return of.pixmap(22).toImage(); };
        for (const TrayState& before : {state, TrayState(), Recording({}, true)}) {
            shown.SetState(before);
            shown.SetState(state);
            QCOMPARE(pixels(inTray->icon()), pixels(Desktop::ThemedIcon(icon)));
            QVERIFY2(inTray->toolTip().endsWith(text), qPrintable(inTray->toolTip()));
        }
        QVERIFY(inTray->isVisible());
    }

    void asksForTheWindowWhenItIsClicked()
    {
        AllowMissingTrays();
        const FakeTray tray(true);
        const TrayIcon icon;
        QTRY_VERIFY_WITH_TIMEOUT(icon.IsAvailable(), Patience);
        auto* inTray = icon.findChild<QSystemTrayIcon*>();
        const QSignalSpy wanted(&icon, &TrayIcon::ShowRequested);
        Q_EMIT inTray->activated(QSystemTrayIcon::Trigger);
        QCOMPARE(wanted.count(), 1);
        Q_EMIT inTray->activated(QSystemTrayIcon::Context);
        QCOMPARE(wanted.count(), 1);
    }

    void isAvailableWithATray()
    {
        AllowMissingTrays();
        TrayIcon icon;
        QVERIFY(!icon.IsAvailable());
        FakeTray tray(true);
        QVERIFY(tray.IsRegistered());
        QTRY_VERIFY_WITH_TIMEOUT(icon.IsAvailable(), Patience);
        tray.SetHasHost(false);
        QTRY_VERIFY_WITH_TIMEOUT(!icon.IsAvailable(), Patience);
        tray.SetHasHost(true);
        QTRY_VERIFY_WITH_TIMEOUT(icon.IsAvailable(), Patience);
        // With an icon on screen.
        icon.SetState(Recording({}, false));
        QCOMPARE(Entries().section(QLatin1Char('|'), 0, 0), QStringLiteral("[Recording]"));
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_TrayIcon)

#include "tst_TrayIcon.moc"
