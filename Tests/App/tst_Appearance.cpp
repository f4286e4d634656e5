// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QCalendarWidget>
#include <QComboBox>
#include <QLabel>
#include <QLocale>
#include <QToolButton>

#include "Appearance.h"
#include "Application/LookAndFeelManager.h"
#include "FakePortal.h"
#include "GeneralPage.h"
#include "MainWindow.h"
#include "Resources.h"
#include "StoreIn.h"
#include "Theme.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

using Desktop::Look;
using Desktop::Theme;

Theme CurrentTheme()
{
    return Desktop::ThemeOf(QApplication::palette());
}

/// What a widget is told of a change of theme: the sheet before is cleared, the new one is set.
constexpr int StyleChangesOfATheme = 2;

/// Counts what a widget on screen is told, and notes which language the host spoke then.
class Witness final : public QLabel {
public:
    explicit Witness(std::shared_ptr<App::LookAndFeelManager> lookAndFeel)
        : m_lookAndFeel(std::move(lookAndFeel))
    {
    }

    int languageChanges = 0;
    int styleChanges = 0;
    std::string languageSeen;

protected:
    void changeEvent(QEvent* event) override
    {
        languageChanges += event->type() == QEvent::LanguageChange ? 1 : 0;
        styleChanges += event->type() == QEvent::StyleChange ? 1 : 0;
        if (event->type() == QEvent::LanguageChange) {
            languageSeen = m_lookAndFeel->GetLanguage();
        }
        QLabel::changeEvent(event);
    }

private:
    std::shared_ptr<App::LookAndFeelManager> m_lookAndFeel;
};

} // namespace

class tst_Appearance : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Desktop::RegisterResources(); }

    void init()
    {
        WidgetTest::init();
        m_folder = std::make_unique<QTemporaryDir>();
        m_store = OpenStoreIn(*m_folder);
    }

    void cleanup()
    {
        m_appearance.reset();
        QCoreApplication::sendPostedEvents();
        m_store.reset();
        m_folder.reset();
        QApplication::setLayoutDirection(Qt::LeftToRight);
        QLocale::setDefault(QLocale::c());
        WidgetTest::cleanup();
    }

    /// Choosing takes over, also what is stored already.
    void saysWhatIsChosenForThisRun()
    {
        const FakePortal portal(2);
        Choose(QStringLiteral("fr"), QStringLiteral("light"));
        Start({QStringLiteral("de"), QStringLiteral("dark")});
        Desktop::GeneralPage page(m_store, nullptr);
        page.Follow(*m_appearance);
        page.show();
        const auto* languageLabel = page.findChild<QLabel*>(QStringLiteral("languageOfRunLabel"));
        const auto* themeLabel = page.findChild<QLabel*>(QStringLiteral("themeOfRunLabel"));
        auto* languageBox = page.findChild<QComboBox*>(QStringLiteral("languageBox"));
        auto* themeBox = page.findChild<QComboBox*>(QStringLiteral("themeBox"));
        QCOMPARE(languageLabel->text(),
                 QStringLiteral("In diesem Lauf: Deutsch (beim Start gewählt)"));
        QCOMPARE(themeLabel->text(), QStringLiteral("In diesem Lauf: Dunkel (beim Start gewählt)"));
        QVERIFY(languageLabel->isVisible() && themeLabel->isVisible());
        QCOMPARE(languageBox->currentData().toString(), QStringLiteral("fr"));
        QCOMPARE(themeBox->currentData().toString(), QStringLiteral("light"));

        Q_EMIT themeBox->activated(themeBox->currentIndex());
        QCOMPARE(CurrentTheme(), Theme::Light);
        QVERIFY(languageLabel->isVisible() && !themeLabel->isVisible());
        Q_EMIT languageBox->activated(languageBox->currentIndex());
        QCOMPARE(QLocale().name(), QStringLiteral("fr_FR"));
        QVERIFY(!languageLabel->isVisible());
        QCOMPARE(languageBox->currentData().toString(), QStringLiteral("fr"));
    }

    void takesTheFirstThatIsGiven_data()
    {
        QTest::addColumn<QString>("wantedLanguage");
        QTest::addColumn<QString>("storedLanguage");
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("wantedTheme");
        QTest::addColumn<QString>("storedTheme");
        QTest::addColumn<QString>("theme");
        const auto row = [](const char* name, const char* wantedLanguage,
                            const char* storedLanguage, const char* language,
                            const char* wantedTheme, const char* storedTheme, const char* theme) {
            QTest::newRow(name) << QString::fromLatin1(wantedLanguage)
                                << QString::fromLatin1(storedLanguage)
                                << QString::fromLatin1(language) << QString::fromLatin1(wantedTheme)
                                << QString::fromLatin1(storedTheme) << QString::fromLatin1(theme);
        };
        row("nothing chosen", "", "", "en_US", "", "", "light");
        row("stored", "", "fr", "fr_FR", "", "dark", "dark");
        row("wanted in this run", "de", "fr", "de_DE", "light", "dark", "light");
        row("wanted only", "pt_BR", "", "pt_BR", "dark", "", "dark");
        row("stored nonsense", "", "tlh", "en_US", "", "blue", "light");
    }

    void takesTheFirstThatIsGiven()
    {
        QFETCH(QString, wantedLanguage);
        QFETCH(QString, storedLanguage);
        QFETCH(QString, language);
        QFETCH(QString, wantedTheme);
        QFETCH(QString, storedTheme);
        QFETCH(QString, theme);
        const FakePortal portal(2);
        Choose(storedLanguage, storedTheme);
        Start({wantedLanguage, wantedTheme});
        QCOMPARE(QString::fromStdString(m_lookAndFeel->GetLanguage()), language);
        QCOMPARE(QLocale().name(), language);
        QCOMPARE(Desktop::ThemeName(CurrentTheme()), theme);
    }

    void takesOverAChoiceAtOnce()
    {
        // What was wanted for this run gives way to what the user chooses in it.
        Start({QStringLiteral("de"), QStringLiteral("light")});
        Choose(QStringLiteral("ar"), QStringLiteral("light"));
        QCoreApplication::sendPostedEvents();
        QCOMPARE(QLocale().language(), QLocale::Arabic);
        QCOMPARE(QApplication::layoutDirection(), Qt::RightToLeft);
        Choose(QStringLiteral("ar"), QStringLiteral("dark"));
        QCOMPARE(CurrentTheme(), Theme::Dark);
        Choose(QStringLiteral("fr"), QStringLiteral("dark"));
        QCoreApplication::sendPostedEvents();
        QCOMPARE(QLocale().language(), QLocale::French);
        QCOMPARE(QApplication::layoutDirection(), Qt::LeftToRight);
        Choose({}, QStringLiteral("dark"));
        QCOMPARE(QLocale().language(), QLocale::English);
    }

    void turnsTheArrowsOfACalendarWithTheDirectionOfWriting()
    {
        Start({QStringLiteral("en"), QStringLiteral("light")});
        QCalendarWidget calendar;
        calendar.show();
        const auto* next =
            calendar.findChild<QToolButton*>(QStringLiteral("qt_calendar_nextmonth"));
        const auto shows = [&](const char* icon) {
            constexpr int size = 16;
            return next->icon().pixmap(size).toImage()
                == Desktop::ThemedIcon(QLatin1String(icon)).pixmap(size).toImage();
        };
        QVERIFY(shows("arrow-right"));
        Choose(QStringLiteral("he"), QStringLiteral("light"));
        QVERIFY(shows("arrow-left"));
        Choose(QStringLiteral("en"), QStringLiteral("light"));
        QVERIFY(shows("arrow-right"));
    }

    void followsTheDesktopUnlessChosen()
    {
        FakePortal portal(1);
        Start({});
        QCOMPARE(CurrentTheme(), Theme::Dark);
        portal.Prefer(2);
        QTRY_COMPARE_WITH_TIMEOUT(CurrentTheme(), Theme::Light, Patience);
        Choose({}, QStringLiteral("light"));
        Witness witness(m_lookAndFeel);
        witness.show();
        QCoreApplication::sendPostedEvents();
        witness.styleChanges = 0;
        // Hears of the change after the application does.
        const Desktop::DesktopTheme other;
        portal.Prefer(1);
        QTRY_COMPARE_WITH_TIMEOUT(other.Current(), Theme::Dark, Patience);
        QCOMPARE(CurrentTheme(), Theme::Light);
        QCOMPARE(witness.styleChanges, 0);
        Choose({}, QStringLiteral("dark"));
        QCOMPARE(witness.styleChanges, StyleChangesOfATheme);
        // The same theme for another reason.
        Choose({}, {});
        QCOMPARE(witness.styleChanges, StyleChangesOfATheme);
        QCOMPARE(CurrentTheme(), Theme::Dark);
    }

    void tellsEachWidgetOnceOfEachChange()
    {
        Start({QStringLiteral("en"), QStringLiteral("light")});
        Witness witness(m_lookAndFeel);
        witness.show();
        QCoreApplication::sendPostedEvents();
        witness.languageChanges = 0;
        witness.styleChanges = 0;

        Choose({}, QStringLiteral("dark"));
        QCoreApplication::sendPostedEvents();
        QCOMPARE(witness.styleChanges, StyleChangesOfATheme);
        QCOMPARE(witness.languageChanges, 0);

        Choose(QStringLiteral("fr"), QStringLiteral("dark"));
        QCoreApplication::sendPostedEvents();
        QCOMPARE(witness.languageChanges, 1);
        QCOMPARE(witness.languageSeen, std::string("fr_FR"));
        QCOMPARE(witness.styleChanges, StyleChangesOfATheme);
    }

    void leavesTheRestAloneWhenOtherSettingsChange()
    {
        Start({});
        Witness witness(m_lookAndFeel);
        witness.show();
        QCoreApplication::sendPostedEvents();
        witness.languageChanges = 0;
        witness.styleChanges = 0;
        Desktop::ChangeApplicationSettings(
            *m_store, [](auto& settings) { settings.page = QStringLiteral("files"); });
        QCoreApplication::sendPostedEvents();
        QCOMPARE(witness.styleChanges, 0);
        QCOMPARE(witness.languageChanges, 0);
    }

private:
    void Start(const Look& wanted)
    {
        m_lookAndFeel = std::make_shared<App::LookAndFeelManager>();
        m_appearance = std::make_unique<Desktop::Appearance>(m_store, m_lookAndFeel, wanted);
    }

    void Choose(const QString& language, const QString& theme)
    {
        Desktop::ChangeApplicationSettings(*m_store, [&](auto& settings) {
            settings.language = language;
            settings.theme = theme;
        });
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::shared_ptr<PX::SettingsStore> m_store;
    std::shared_ptr<App::LookAndFeelManager> m_lookAndFeel;
    std::unique_ptr<Desktop::Appearance> m_appearance;
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_Appearance)

#include "tst_Appearance.moc"
