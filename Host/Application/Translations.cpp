// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "Translations.h"

#include <QCoreApplication>
#include <QDir>

// Q_INIT_RESOURCE has to stand outside every namespace. A shared library does without; in a static
// one, nothing else keeps the resource from being left out.
static void InitializeTranslations()
{
#ifdef ZENTOR_HOST_HAS_TRANSLATIONS
    Q_INIT_RESOURCE(PXUiSchedulerWidgets_translations);
#endif
}

namespace Zentor::App {
namespace {

constexpr char Folder[] = ":/PXUiSchedulerWidgets/translations";
/// How the files are named: this, "_" and the language. The installed translator, too.
constexpr char Name[] = "PXUiSchedulerWidgets";

} // namespace

QStringList TranslatedLanguages()
{
    InitializeTranslations();
    QStringList codes = QDir(QLatin1String(Folder)).entryList();
    for (QString& code : codes) {
        code = code.section(QLatin1Char('_'), 1).section(QLatin1Char('.'), 0, 0);
    }
    return codes;
}

std::unique_ptr<QTranslator> LoadTranslations(const QLocale& locale)
{
    InitializeTranslations();
    auto translator = std::make_unique<QTranslator>();
    const QLocale spoken = locale.language() == QLocale::C ? QLocale(QLocale::English) : locale;
    const bool isTranslated =
        translator->load(spoken, QLatin1String(Name), QStringLiteral("_"), QLatin1String(Folder));
    return isTranslated ? std::move(translator) : nullptr;
}

bool InstallTranslations(const QLocale& locale)
{
    auto* application = QCoreApplication::instance();
    if (application == nullptr) {
        return false;
    }
    std::unique_ptr<QTranslator> translator = LoadTranslations(locale);
    const bool isTranslated = translator != nullptr;
    if (!isTranslated) {
        translator = LoadTranslations(QLocale(QLocale::English));
    }
    // The previous one goes after the new one has come: in between, no text is without either.
    const std::unique_ptr<QTranslator> previous(
        application->findChild<QTranslator*>(QLatin1String(Name), Qt::FindDirectChildrenOnly));
    if (translator != nullptr) {
        translator->setObjectName(QLatin1String(Name));
        translator->setParent(application);
        QCoreApplication::installTranslator(translator.release());
    }
    return isTranslated;
}

} // namespace Zentor::App
