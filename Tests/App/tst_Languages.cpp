// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QLocale>

#include "Languages.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

/// A text of Qt's own that every desktop translates.
QString Cancel()
{
    return QCoreApplication::translate("QPlatformTheme", "Cancel");
}

} // namespace

class tst_Languages : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void picksTheBest_data()
    {
        QTest::addColumn<QStringList>("wanted");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char* name, const char* wanted, const char* expected) {
            QTest::newRow(name) << QString::fromLatin1(wanted).split(QLatin1Char(','))
                                << QString::fromLatin1(expected);
        };
        row("nothing", "", "en");
        row("exact", "fr", "fr");
        row("exact with region", "pt_BR", "pt_BR");
        row("hyphen", "zh-CN", "zh_CN");
        row("script", "zh-Hans-CN", "zh_CN");
        row("region that is not offered", "de-AT", "de");
        row("nobody speaks it", "tlh", "en");
        row("C", "C", "en");
        row("second choice", "nl-NL,pl-PL", "pl");
        row("empty ones are skipped", ",,he", "he");
        row("first of several", "ja,ko", "ja");
    }

    void picksTheBest()
    {
        QFETCH(QStringList, wanted);
        QFETCH(QString, expected);
        QCOMPARE(Desktop::BestLanguage(wanted), expected);
    }

    void writesTheSameDigitsInEveryLanguage()
    {
        const auto codes = Desktop::LanguageCodes();
        for (const QString& code : codes) {
            QCOMPARE(Desktop::LocaleOf(code).zeroDigit(), QLatin1Char('0'));
            QCOMPARE(Desktop::LocaleOf(code).language(), QLocale(code).language());
        }
    }

    void speaksQtsOwnTexts()
    {
        {
            Desktop::Translations translations;
            translations.Use(QStringLiteral("de"));
            QCOMPARE(Cancel(), QStringLiteral("Abbrechen"));
            QCOMPARE(QLocale().language(), QLocale::German);
            translations.Use(QStringLiteral("fr"));
            QCOMPARE(Cancel(), QStringLiteral("Annuler"));
            translations.Use(QStringLiteral("en"));
            QCOMPARE(Cancel(), QStringLiteral("Cancel"));
            translations.Use(QStringLiteral("de"));
        }
        QCOMPARE(Cancel(), QStringLiteral("Cancel"));
        QLocale::setDefault(QLocale::c());
    }

    void writesInTheRightDirection_data()
    {
        QTest::addColumn<QString>("code");
        const auto codes = Desktop::LanguageCodes();
        for (const QString& code : codes) {
            QTest::newRow(qPrintable(code)) << code;
        }
    }

    void writesInTheRightDirection()
    {
        QFETCH(QString, code);
        const bool rightToLeft = code == QLatin1String("ar") || code == QLatin1String("he");
        Desktop::Translations translations;
        translations.Use(code);
        // Qt sets the direction anew when it is told of the new language, which comes later.
        QCoreApplication::sendPostedEvents();
        QCOMPARE(QGuiApplication::layoutDirection(),
                 rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        translations.Use(QStringLiteral("en"));
        QCoreApplication::sendPostedEvents();
        QCOMPARE(QGuiApplication::layoutDirection(), Qt::LeftToRight);
        QLocale::setDefault(QLocale::c());
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_Languages)

#include "tst_Languages.moc"
