// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "Languages.h"

#include <algorithm>

#include <QGuiApplication>
#include <QTranslator>

#include "Application/Translations.h"
#include "QtNames.h"

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

/// The texts of \a name in the language of \a locale; null when \a folder has none.
std::unique_ptr<QTranslator> LoadFrom(const QString& folder, const QString& name,
                                      const QLocale& locale)
{
    auto translator = std::make_unique<QTranslator>();
    const bool isLoaded = translator->load(locale, name, QStringLiteral("_"), folder);
    return isLoaded ? std::move(translator) : nullptr;
}

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
    Install(LoadFrom(QtTranslationsFolder(), QStringLiteral("qtbase"), locale));
    Install(App::LoadTranslations(locale));
    Install(LoadFrom(QStringLiteral(":/translations"), QStringLiteral("px-scheduler"), locale));
    if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr) {
        QGuiApplication::setLayoutDirection(locale.textDirection());
    }
}

void Translations::Install(std::unique_ptr<QTranslator> translator)
{
    if (translator != nullptr) {
        QCoreApplication::installTranslator(translator.get());
        m_translators.push_back(std::move(translator));
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
