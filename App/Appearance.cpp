#include "Appearance.h"

#include <QApplication>

#include "Application/LookAndFeelManager.h"
#include "PXUserSettings/SettingsStore.h"
#include "Theme.h"

namespace Zentor::App {
namespace {

Look LookOf(const PX::UserSettings& settings)
{
    return {settings.language, settings.theme};
}

QString FirstOf(const QString& wanted, const QString& otherwise)
{
    return wanted.isEmpty() ? otherwise : wanted;
}

} // namespace

Appearance::Appearance(std::shared_ptr<PX::SettingsStore> store,
                       std::shared_ptr<LookAndFeelManager> lookAndFeel, const Look& wanted)
    : m_store(std::move(store))
    , m_lookAndFeel(std::move(lookAndFeel))
    , m_stored(LookOf(m_store->Settings()))
    , m_wanted{FirstOf(wanted.language, m_stored.language), FirstOf(wanted.theme, m_stored.theme)}
{
    UseLanguage();
    UseTheme();
    connect(m_store.get(), &PX::SettingsStore::Changed, this, &Appearance::TakeOverChanges);
    connect(&m_desktop, &DesktopTheme::Changed, this, &Appearance::UseTheme);
}

Appearance::~Appearance() = default;

void Appearance::TakeOverChanges()
{
    // Applied only where it has changed: each costs every widget a new polish or new texts.
    const Look look = LookOf(m_store->Settings());
    const bool isLanguageNew = look.language != m_stored.language;
    const bool isThemeNew = look.theme != m_stored.theme;
    m_stored = look;
    const auto directionBefore = QGuiApplication::layoutDirection();
    if (isLanguageNew) {
        m_wanted.language = look.language;
        UseLanguage();
    }
    if (isThemeNew) {
        m_wanted.theme = look.theme;
    }
    // Some rules of the style sheet are for one direction of writing.
    if (isThemeNew || QGuiApplication::layoutDirection() != directionBefore) {
        UseTheme();
    }
}

void Appearance::UseLanguage()
{
    const QString code = LanguageFor(m_wanted.language);
    m_lookAndFeel->SetLanguage(LocaleOf(code).name().toStdString());
    m_translations.Use(code);
}

void Appearance::UseTheme()
{
    ApplyTheme(ThemeFromName(m_wanted.theme, m_desktop.Current()));
}

} // namespace Zentor::App
