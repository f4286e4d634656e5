// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QDir>
#include <QLabel>
#include <QLocale>
#include <QPointer>

#include "Application/Translations.h"
#include "Panel.h"
#include "TranslationFile.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

/// What the call answers where there is no application object yet.
const bool InstalledBeforeApplication = App::InstallTranslations(QLocale::German);

std::vector<QTranslator*> InstalledTranslators()
{
    const auto children = QCoreApplication::instance()->findChildren<QTranslator*>();
    return {children.begin(), children.end()};
}

/// What stands for the wording of a tool tip in the sources.
QString AreaTip()
{
    return QCoreApplication::translate("CreateRecordTaskWidget", "Selected area tooltip");
}

/// A window that counts what it is told.
class Witness final : public QWidget {
public:
    int languageChanges = 0;

protected:
    void changeEvent(QEvent* event) override
    {
        languageChanges += event->type() == QEvent::LanguageChange ? 1 : 0;
        QWidget::changeEvent(event);
    }
};

/// What \a panel shows of its language; at the end, the date in the form.
QStringList Shown(const Panel& panel)
{
    const QString names[] = {QStringLiteral("disableScheduledCaptureLabel"),
                             Desktop::PanelPart::AddButton, Desktop::PanelPart::CreateButton};
    QStringList texts;
    for (const QString& name : names) {
        texts << panel.Find<QWidget>(name)->property("text").toString();
    }
    return texts << panel.FinishAction()->itemText(PX::Sleep) << panel.Date()->text();
}

} // namespace

class tst_InstallTranslations : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        for (const QTranslator* translator : InstalledTranslators()) {
            delete translator;
        }
        QCoreApplication::sendPostedEvents();
        WidgetTest::cleanup();
    }

    void needsAnApplication()
    {
        QVERIFY(!InstalledBeforeApplication);
        QVERIFY(InstalledTranslators().empty());
    }

    void tellsTheLanguages()
    {
        QCOMPARE(App::TranslatedLanguages(),
                 QStringList({"ar", "de", "en", "es", "fr", "he", "it", "ja", "ko", "pl", "pt_BR",
                              "ru", "tr", "zh_CN"}));
        const QDir folder(QStringLiteral(PX_TRANSLATIONS));
        QCOMPARE(folder.entryList({"*.ts"}).size(), App::TranslatedLanguages().size());
    }

    void speaksEveryLanguage_data()
    {
        QTest::addColumn<QString>("code");
        const auto codes = App::TranslatedLanguages();
        for (const QString& code : codes) {
            QTest::newRow(qPrintable(code)) << code;
        }
    }

    void speaksEveryLanguage()
    {
        QFETCH(const QString, code);
        QVERIFY(App::InstallTranslations(QLocale(code)));
        const auto entries = ReadTranslations(
            QDir(QStringLiteral(PX_TRANSLATIONS)).filePath("PXUiSchedulerWidgets_" + code + ".ts"));
        QVERIFY(entries.size() > 50);
        for (const Translation& entry : entries) {
            QVERIFY2(IsInUse(entry), qPrintable(entry.source));
        }
    }

    void picksTheLanguage_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("language");
        const auto row = [](const char* name, const QLocale& locale, const char* language) {
            QTest::newRow(name) << locale << QString::fromLatin1(language);
        };
        row("exact", QLocale("fr_FR"), "fr");
        row("language alone", QLocale("de"), "de");
        row("other country", QLocale("de_AT"), "de");
        row("language of one country", QLocale("pt"), "pt_BR");
        row("not the other country's", QLocale("pt_PT"), "");
        row("script", QLocale("zh_Hans_CN"), "zh_CN");
        row("not the other script", QLocale("zh_TW"), "");
        row("English", QLocale("en_GB"), "en");
        row("C", QLocale::c(), "en");
        row("not translated", QLocale("nl_NL"), "");
    }

    void picksTheLanguage()
    {
        QFETCH(const QLocale, locale);
        QFETCH(const QString, language);
        const auto translator = App::LoadTranslations(locale);
        QCOMPARE(translator != nullptr, !language.isEmpty());
        QCOMPARE(translator != nullptr ? translator->language() : QString(), language);
        QVERIFY(InstalledTranslators().empty());
    }

    /// What hosts do that are not this one.
    void loadsFromFiles_data() { speaksEveryLanguage_data(); }

    void loadsFromFiles()
    {
        QFETCH(const QString, code);
        QTranslator translator;
        QVERIFY(
            translator.load(QLocale(code), "PXUiSchedulerWidgets", "_", PX_COMPILED_TRANSLATIONS));
        QCOMPARE(translator.language(), code);
        const auto fromResource = App::LoadTranslations(QLocale(code));
        const auto back = [](const QTranslator& from) {
            return from.translate("CreateRecordTaskWidget", "Back");
        };
        QVERIFY(!back(translator).isEmpty());
        QCOMPARE(back(translator), back(*fromResource));
    }

    void takesTheDefaultLocale()
    {
        QLocale::setDefault(QLocale(QLocale::Polish));
        QVERIFY(App::InstallTranslations());
        QLocale::setDefault(QLocale::c());
        QCOMPARE(InstalledTranslators().front()->language(), QString("pl"));
    }

    void fallsBackToEnglish()
    {
        const QString key = AreaTip();
        QVERIFY(App::InstallTranslations(QLocale::German));
        QVERIFY(AreaTip().startsWith("Nimmt den"));
        QVERIFY(!App::InstallTranslations(QLocale::Dutch));
        QVERIFY(AreaTip().startsWith("Records the area"));
        QVERIFY(AreaTip() != key);
    }

    void replacesWhatItInstalled()
    {
        // Translators of the program itself stay what they are.
        QTranslator own(QCoreApplication::instance());
        QVERIFY(App::InstallTranslations(QLocale::German));
        const QPointer<QTranslator> first = InstalledTranslators().back();
        QVERIFY(first != &own);
        QVERIFY(App::InstallTranslations(QLocale::German));
        QVERIFY(first.isNull());
        QCOMPARE(InstalledTranslators().size(), std::size_t(2));
        QCOMPARE(InstalledTranslators().front(), &own);
    }

    void changesTheLanguageOfAPanel()
    {
        App::InstallTranslations(QLocale::German);
        Panel panel;
        panel.RestoreScheduled({"A"});
        panel.FillForm("B", QTime(12, 0));
        QCOMPARE(Shown(panel),
                 QStringList({"&Keine zeitliche Steuerung", "Aufnahme hinzufügen", "Erstellen",
                              "Energie sparen", "01.03.2030"}));

        const auto speak = [](QLocale::Language language) {
            App::InstallTranslations(language);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
        };
        speak(QLocale::Japanese);
        QCOMPARE(
            Shown(panel),
            QStringList({"録画を予約しない(&C)", "録画を追加", "作成", "スリープ", "2030/03/01"}));
        speak(QLocale::English);
        QCOMPARE(Shown(panel),
                 QStringList({"Do not schedule &capture", "Add record event", "Create", "Sleep",
                              "2030-03-01"}));
        QVERIFY(panel.IsFormOpen());
        QCOMPARE(panel.Name()->text(), QString("B"));
        QCOMPARE(panel.watcher->TakeCalls(), QStringList());
    }

    void namesTasksInTheLanguage()
    {
        App::InstallTranslations(QLocale::Japanese);
        const Panel panel;
        panel.Scheduled()->click();
        panel.Add()->click();
        QCOMPARE(panel.Name()->text(), QString("タスク1"));
    }

    /// A panel that shows a thousand tasks takes its time to change its language.
    void tellsEachWindowOnce()
    {
        Witness window;
        App::InstallTranslations(QLocale::German);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
        QCOMPARE(window.languageChanges, 1);
        App::InstallTranslations(QLocale::Japanese);
        QCOMPARE(window.languageChanges, 1);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
        QCOMPARE(window.languageChanges, 2);
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_InstallTranslations)

#include "tst_InstallTranslations.moc"
