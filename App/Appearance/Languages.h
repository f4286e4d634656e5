// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <vector>

#include <QLocale>
#include <QString>
#include <QStringList>

class QTranslator;

namespace Zentor::Desktop {

/// Codes of the languages that the application offers, as QLocale names: "en", "de", "pt_BR", ...
QStringList LanguageCodes();

/// Whether \a code is one of LanguageCodes().
bool IsLanguage(const QString& code);

/// What the language \a code, one of LanguageCodes(), is called by those who speak it.
QString LanguageName(const QString& code);

/// The locale in which the application speaks \a code, one of LanguageCodes(). Its digits are 0 to
/// 9 in every language.
QLocale LocaleOf(const QString& code);

/// The offered language that \a name (such as "de", "de-AT" or "pt_BR") stands for; empty when
/// there is none. A region that is not offered falls back on its language: "de-AT" gives "de".
QString OfferedLanguage(const QString& name);

/// The first of \a wanted (names such as "de-AT" or "pt_BR", best first) that is offered, or "en".
QString BestLanguage(const QStringList& wanted);

/// BestLanguage() of \a wanted, which may be empty, and after it of the system's languages.
QString LanguageFor(const QString& wanted);

/// The translations that are in use; takes them out of use when it is destroyed.
class Translations {
public:
    Translations();
    ~Translations();
    Translations(const Translations&) = delete;
    Translations& operator=(const Translations&) = delete;

    /// Replaces what was in use by \a code, one of LanguageCodes(): the texts of Qt, of
    /// the panel with its host and of the application, the default locale and the direction of
    /// writing. Every widget receives QEvent::LanguageChange. A text that has no translation stays
    /// English.
    ///
    /// Needs an application object; a QCoreApplication is enough for the texts.
    void Use(const QString& code);

private:
    /// Takes over \a translator, which may be null.
    void Install(std::unique_ptr<QTranslator> translator);
    void Remove();

    std::vector<std::unique_ptr<QTranslator>> m_translators;
};

} // namespace Zentor::Desktop
