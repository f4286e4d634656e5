// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "Languages.h"

#include <algorithm>

#include <QGuiApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace Zentor::Desktop {
namespace {

struct Language {
    const char* code;
    const char* name;
};

constexpr Language Languages[] = {
    {"en", "English"}, {"de", "Deutsch"},  {"fr", "Français"},
    {"es", "Español"}, {"it", "Italiano"}, {"pt_BR", "Português (Brasil)"},
    {"pl", "Polski"},  {"ru", "Русский"},  {"tr", "Türkçe"},
    {"ja", "日本語"},  {"ko", "한국어"},   {"zh_CN", "简体中文"},
    {"ar", "العربية"}, {"he", "עברית"},
};

} // namespace

QStringList LanguageCodes()
{
    QStringList codes;
    for (const Language& language : Languages) {
        codes << QString::fromLatin1(language.code);
    }
    return codes;
}

QString LanguageName(const QString& code)
{
    const auto* language =
        std::find_if(std::begin(Languages), std::end(Languages), [&](const Language& candidate) {
            return code == QLatin1String(candidate.code);
        });
    return QString::fromUtf8(language->name);
}

bool IsLanguage(const QString& code)
{
    return LanguageCodes().contains(code);
}

QLocale LocaleOf(const QString& code)
{
    if (code == QLatin1String("ar")) {
        // In Qt's default region for Arabic, editors write Arabic-Indic digits; the list of tasks
        // writes the same digits in every language, and the two stand side by side.
        return {QLocale::Arabic, QLocale::Morocco};
    }
    return QLocale(code);
}

QString OfferedLanguage(const QString& name)
{
    const QString underscored = QString(name).replace(QLatin1Char('-'), QLatin1Char('_'));
    const QLocale locale(underscored);
    if (locale.language() == QLocale::C) {
        return {};
    }
    // QLocale knows that "zh_Hans" is at home in China and "pt" in Brazil.
    const QString withRegion = locale.name();
    const QString withoutRegion = withRegion.section(QLatin1Char('_'), 0, 0);
    for (const QString& code : {underscored, withRegion, withoutRegion}) {
        if (IsLanguage(code)) {
            return code;
        }
    }
    return {};
}

QString BestLanguage(const QStringList& wanted)
{
    for (const QString& name : wanted) {
        QString code = OfferedLanguage(name);
        if (!code.isEmpty()) {
            return code;
        }
    }
    return LanguageCodes().constFirst();
}

QString LanguageFor(const QString& wanted)
{
    return BestLanguage(QStringList{wanted} + QLocale::system().uiLanguages());
}

Translations::Translations() = default;

Translations::~Translations()
{
    Remove();
}

void Translations::Use(const QString& code)
{
    Remove();
    const QLocale locale = LocaleOf(code);
    QLocale::setDefault(locale);
    const QString ofQt = QStringLiteral("qtbase");
    const QString ofApplication = QStringLiteral("px-scheduler");
    const QString separator = QStringLiteral("_");
    const std::pair<QString, QString> sources[] = {
        {ofQt, QLibraryInfo::location(QLibraryInfo::TranslationsPath)},
        {ofApplication, QStringLiteral(":/translations")}};
    for (const auto& [name, folder] : sources) {
        auto translator = std::make_unique<QTranslator>();
        if (translator->load(locale, name, separator, folder)) {
            QCoreApplication::installTranslator(translator.get());
            m_translators.push_back(std::move(translator));
        }
    }
    if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr) {
        QGuiApplication::setLayoutDirection(locale.textDirection());
    }
}

void Translations::Remove()
{
    for (const auto& translator : m_translators) {
        QCoreApplication::removeTranslator(translator.get());
    }
    m_translators.clear();
}

} // namespace Zentor::Desktop
