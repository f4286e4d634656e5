// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

/// \file
/// The texts of the library and of the reference host in the languages that these are translated
/// into. English is one of them: some of its wordings are only in its translation.
///
/// Texts of Qt, as on the buttons of a message box, come with Qt ("qtbase").
#pragma once

#include <memory>

#include <QLocale>
#include <QStringList>
#include <QTranslator>

#include "HostData.h"

namespace Zentor::App {

/// Codes of the languages, in alphabetical order, as QLocale names them: "de", "pt_BR", ...
///
/// Empty when the host was built without translations (SCHEDULER_BUILD_TRANSLATIONS).
ZENTOR_HOST_API QStringList TranslatedLanguages();

/// Loads the texts in the first of the languages of \a locale (QLocale::uiLanguages()) that there
/// are translations for; a language without country, as "de", is taken for "de_AT" too. English is
/// the language of the C locale.
///
/// For a program that installs its translators itself. Who gets the translator owns it and must
/// delete it, which takes it out of use, before the application object. Null when there are no
/// translations for any of the languages.
ZENTOR_HOST_API std::unique_ptr<QTranslator> LoadTranslations(const QLocale& locale = QLocale());

/// Installs the texts that LoadTranslations() has for \a locale, or English where it has none, in
/// place of those that an earlier call has installed. Returns whether there were any for \a locale.
///
/// Call it in the GUI thread when there is an application object, which owns the translator then;
/// without one nothing is done, and false returned. Widgets are sent QEvent::LanguageChange from
/// the event loop, once for all translators that are installed or removed until then. Tell
/// LookAndFeelManager::SetLanguage() of the new language before.
///
/// Default locale, layout direction and Qt's own texts are not changed.
ZENTOR_HOST_API bool InstallTranslations(const QLocale& locale = QLocale());

} // namespace Zentor::App
