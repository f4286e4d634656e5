// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDesktopServices>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>

#include <glog/logging.h>

#include "AutostartEntry.h"
#include "GeneralPage.h"
#include "Languages.h"
#include "Log.h"
#include "MarkingTranslator.h"
#include "StoreIn.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

using Desktop::AutostartEntry;

/// Stands in for the desktop's programs: notes what they are asked to show.
class DesktopStandIn final : public QObject {
    Q_OBJECT

public:
    DesktopStandIn() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "Show"); }
    ~DesktopStandIn() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

    QStringList shown;

public Q_SLOTS:
    void Show(const QUrl& url) { shown << url.toLocalFile(); }
};

} // namespace

class tst_GeneralPage : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        WidgetTest::init();
        m_folder = std::make_unique<QTemporaryDir>();
        m_store = OpenStoreIn(*m_folder);
    }

    void cleanup()
    {
        m_page.reset();
        m_store.reset();
        m_folder.reset();
        WidgetTest::cleanup();
    }

    void offersEveryLanguageByItsOwnName()
    {
        Show();
        const auto codes = Desktop::LanguageCodes();
        QCOMPARE(Box("languageBox")->count(), codes.size() + 1);
        QCOMPARE(Box("languageBox")->itemText(0), QStringLiteral("System default (English)"));
        QCOMPARE(Box("languageBox")->itemText(2), QStringLiteral("Deutsch"));
        for (int index = 0; index < codes.size(); ++index) {
            QCOMPARE(Box("languageBox")->itemData(index + 1).toString(), codes.at(index));
            QCOMPARE(Box("languageBox")->itemText(index + 1),
                     Desktop::LanguageName(codes.at(index)));
        }
    }

    void showsWhatIsStored_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("theme");
        QTest::addColumn<QString>("shownLanguage");
        QTest::addColumn<QString>("shownTheme");
        const QString system = QStringLiteral("System default");
        const QString systemLanguage = QStringLiteral("System default (English)");
        QTest::newRow("nothing") << QString() << QString() << systemLanguage << system;
        QTest::newRow("both") << QStringLiteral("fr") << QStringLiteral("dark")
                              << QStringLiteral("Français") << QStringLiteral("Dark");
        QTest::newRow("region that is not offered")
            << QStringLiteral("de_AT") << QString() << QStringLiteral("Deutsch") << system;
        QTest::newRow("nonsense") << QStringLiteral("tlh") << QStringLiteral("blue")
                                  << systemLanguage << system;
    }

    void showsWhatIsStored()
    {
        QFETCH(QString, language);
        QFETCH(QString, theme);
        QFETCH(QString, shownLanguage);
        QFETCH(QString, shownTheme);
        const auto choose = [&](Desktop::ApplicationSettings& settings) {
            settings.language = language;
            settings.theme = theme;
        };
        Desktop::ChangeApplicationSettings(*m_store, choose);
        Show();
        QCOMPARE(Box("languageBox")->currentText(), shownLanguage);
        QCOMPARE(Box("themeBox")->currentText(), shownTheme);
        // Also when it is stored while the page is on screen.
        Desktop::ChangeApplicationSettings(*m_store, [](auto& settings) {
            settings.language = QStringLiteral("de");
            settings.theme = QStringLiteral("light");
        });
        QCOMPARE(Box("languageBox")->currentText(), QStringLiteral("Deutsch"));
        Desktop::ChangeApplicationSettings(*m_store, choose);
        QCOMPARE(Box("languageBox")->currentText(), shownLanguage);
        QCOMPARE(Box("themeBox")->currentText(), shownTheme);
    }

    void storesAChoiceAtOnce()
    {
        Show();
        const QSignalSpy changed(m_store.get(), &PX::SettingsStore::Changed);
        Choose("languageBox", Qt::Key_Down);
        QCOMPARE(Desktop::ApplicationSettingsIn(*m_store).language, QStringLiteral("en"));
        Choose("languageBox", Qt::Key_End);
        QCOMPARE(Desktop::ApplicationSettingsIn(*m_store).language, QStringLiteral("he"));
        Choose("themeBox", Qt::Key_End);
        QCOMPARE(Desktop::ApplicationSettingsIn(*m_store).theme, QStringLiteral("dark"));
        Choose("languageBox", Qt::Key_Home);
        Choose("themeBox", Qt::Key_Home);
        QCOMPARE(Desktop::ApplicationSettingsIn(*m_store).language, QString());
        QCOMPARE(Desktop::ApplicationSettingsIn(*m_store).theme, QString());
        QCOMPARE(changed.count(), 5);
    }

    void staysAsItIsUnderTheWheel()
    {
        Show();
        QComboBox* box = Box("languageBox");
        const QPoint center = box->rect().center();
        QWheelEvent event(center, box->mapToGlobal(center), QPoint(), QPoint(0, -120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(box, &event);
        QCOMPARE(box->currentIndex(), 0);
    }

    void storesWhetherItKeepsRunning()
    {
        Show();
        QVERIFY(CheckBox("keepRunningBox")->isChecked());
        CheckBox("keepRunningBox")->click();
        QVERIFY(!Desktop::BackgroundSettingsIn(*m_store).keepRunning);
        CheckBox("keepRunningBox")->click();
        QVERIFY(Desktop::BackgroundSettingsIn(*m_store).keepRunning);
        Desktop::ChangeBackgroundSettings(*m_store,
                                          [](auto& settings) { settings.keepRunning = false; });
        QVERIFY(!CheckBox("keepRunningBox")->isChecked());
    }

    void startsWithTheDesktop()
    {
        Show();
        QVERIFY(!CheckBox("autostartBox")->isChecked());
        CheckBox("autostartBox")->click();
        QVERIFY(CheckBox("autostartBox")->isChecked());
        QVERIFY(AutostartEntry::IsSet());
        QFile entry(AutostartEntry::FilePath());
        QVERIFY(entry.open(QIODevice::ReadOnly));
        const QByteArray text = entry.readAll();
        QVERIFY2(text.contains(QCoreApplication::applicationFilePath().toUtf8() + "\" --hidden "),
                 text);
        QVERIFY2(text.contains(m_store->FilePath().toUtf8()), text);

        // Switched off elsewhere while the page is not shown.
        QVERIFY(QFile::remove(AutostartEntry::FilePath()));
        m_page->hide();
        m_page->show();
        QVERIFY(!CheckBox("autostartBox")->isChecked());

        CheckBox("autostartBox")->click();
        CheckBox("autostartBox")->click();
        QVERIFY(!CheckBox("autostartBox")->isChecked());
        QVERIFY(!QFile::exists(AutostartEntry::FilePath()));
    }

    void saysWhyItCannotStartWithTheDesktop()
    {
        const QString folder = QFileInfo(AutostartEntry::FilePath()).path();
        QVERIFY(!QFileInfo::exists(folder) || QDir(folder).removeRecursively());
        QFile inTheWay(folder);
        QVERIFY(QDir().mkpath(QFileInfo(folder).path()) && inTheWay.open(QIODevice::WriteOnly));
        Show();
        QVERIFY(!Label("autostartProblemLabel")->isVisible());
        const QSignalSpy happened(m_page.get(), &Desktop::GeneralPage::Announced);
        CheckBox("autostartBox")->click();
        QVERIFY(!CheckBox("autostartBox")->isChecked());
        QVERIFY(Label("autostartProblemLabel")->isVisible());
        QVERIFY(Label("autostartProblemLabel")->text().contains(AutostartEntry::FilePath()));
        QCOMPARE(CheckBox("autostartBox")->accessibleDescription(),
                 Label("autostartProblemLabel")->text());
        QCOMPARE(happened.count(), 1);

        QVERIFY(inTheWay.remove());
        CheckBox("autostartBox")->click();
        QVERIFY(CheckBox("autostartBox")->isChecked());
        QVERIFY(Label("autostartProblemLabel")->isHidden());
        QVERIFY(QFile::remove(AutostartEntry::FilePath()));
    }

    void forgetsTheAnswers()
    {
        Show();
        QVERIFY(!Button("askAgainButton")->isEnabled());
        const QString allAsked = Label("questionsLabel")->text();
        m_store->Change([](PX::UserSettings& settings) {
            settings.confirmations.insert(QStringLiteral("one"), false);
        });
        QVERIFY(!Button("askAgainButton")->isEnabled());
        m_store->Change([](PX::UserSettings& settings) {
            settings.confirmations.insert(QStringLiteral("other"), true);
        });
        QVERIFY(Button("askAgainButton")->isEnabled());
        QVERIFY(Label("questionsLabel")->text() != allAsked);

        const QSignalSpy happened(m_page.get(), &Desktop::GeneralPage::Announced);
        Button("askAgainButton")->click();
        QVERIFY(!m_store->Settings().confirmations.value(QStringLiteral("other")));
        QVERIFY(!Button("askAgainButton")->isEnabled());
        QCOMPARE(Label("questionsLabel")->text(), allAsked);
        QCOMPARE(happened.count(), 1);
    }

    void opensTheFolderOfTheSettings()
    {
        const DesktopStandIn desktop;
        Show();
        QVERIFY(Button("openFolderButton")->toolTip().contains(m_folder->path()));
        Button("openFolderButton")->click();
        QCOMPARE(desktop.shown, QStringList{m_folder->path()});
        QVERIFY(Label("openProblemLabel")->isHidden());
    }

    void saysWhatCannotBeOpened()
    {
        const DesktopStandIn desktop;
        Show();
        const QSignalSpy happened(m_page.get(), &Desktop::GeneralPage::Announced);
        AllowWarning(QStringLiteral("lock file"));
        QVERIFY(m_folder->remove());
        Button("openFolderButton")->click();
        QCOMPARE(desktop.shown, QStringList());
        QVERIFY(Label("openProblemLabel")->isVisible());
        QVERIFY(Label("openProblemLabel")->text().contains(m_folder->path()));
        QCOMPARE(happened.count(), 1);

        // Gone when the user comes back to the page.
        m_page->hide();
        m_page->show();
        QVERIFY(Label("openProblemLabel")->isHidden());
    }

    void opensTheLog()
    {
        Show();
        QVERIFY(!Button("openLogButton")->isEnabled());
        QVERIFY(!Button("openLogButton")->toolTip().isEmpty());
        Desktop::KeepLog();
        LOG(INFO) << "something";
        const DesktopStandIn desktop;
        m_page->hide();
        m_page->show();
        QVERIFY(Button("openLogButton")->isEnabled());
        Button("openLogButton")->click();
        QCOMPARE(desktop.shown, QStringList{Desktop::LogFile()});

        QVERIFY(QFile::remove(Desktop::LogFile()));
        Button("openLogButton")->click();
        QCOMPARE(desktop.shown.size(), 1);
        QVERIFY(Label("openProblemLabel")->isVisible());
    }

    void keepsItsChoicesInAnotherLanguage()
    {
        Desktop::ChangeApplicationSettings(
            *m_store, [](auto& settings) { settings.theme = QStringLiteral("dark"); });
        Show();
        LanguageSwitch language;
        language.Toggle();
        QCOMPARE(Box("themeBox")->currentText(), QStringLiteral("~Dark"));
        QVERIFY(Label("languageLabel")->text().startsWith(QLatin1Char('~')));
        QVERIFY(Label("questionsLabel")->text().startsWith(QLatin1Char('~')));
        QVERIFY(Button("askAgainButton")->text().startsWith(QLatin1Char('~')));
        QCOMPARE(Box("languageBox")->itemText(2), QStringLiteral("Deutsch"));
    }

private:
    void Show()
    {
        m_page = std::make_unique<Desktop::GeneralPage>(m_store, nullptr);
        m_page->show();
    }

    QComboBox* Box(const char* name) const
    {
        return m_page->findChild<QComboBox*>(QLatin1String(name));
    }
    QCheckBox* CheckBox(const char* name) const
    {
        return m_page->findChild<QCheckBox*>(QLatin1String(name));
    }
    QLabel* Label(const char* name) const
    {
        return m_page->findChild<QLabel*>(QLatin1String(name));
    }
    QPushButton* Button(const char* name) const
    {
        return m_page->findChild<QPushButton*>(QLatin1String(name));
    }

    void Choose(const char* box, Qt::Key key) const { QTest::keyClick(Box(box), key); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::shared_ptr<PX::SettingsStore> m_store;
    std::unique_ptr<Desktop::GeneralPage> m_page;
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_GeneralPage)

#include "tst_GeneralPage.moc"
