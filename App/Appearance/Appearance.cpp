#include "Appearance.h"

#include <QApplication>

#include "Application/LookAndFeelManager.h"
#include "ApplicationSettings.h"
#include "Theme.h"

namespace Zentor::Desktop {
namespace {

Look LookIn(const PX::SettingsStore& store)
{
    const ApplicationSettings settings = ApplicationSettingsIn(store);
    return {settings.language, settings.theme};
}

QString FirstOf(const QString& wanted, const QString& otherwise)
{
    return wanted.isEmpty() ? otherwise : wanted;
}

} // namespace

Appearance::Appearance(std::shared_ptr<PX::SettingsStore> store,
                       std::shared_ptr<App::LookAndFeelManager> lookAndFeel, const Look& wanted)
    : m_store(std::move(store))
    , m_lookAndFeel(std::move(lookAndFeel))
    , m_stored(LookIn(*m_store))
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
    const Look before = std::exchange(m_stored, LookIn(*m_store));
    if (m_stored.language != before.language) {
        m_wanted.language = m_stored.language;
        UseLanguage();
    }
    if (m_stored.theme != before.theme) {
        m_wanted.theme = m_stored.theme;
    }
    UseTheme();
}

void Appearance::UseLanguage()
{
    const QString code = LanguageFor(m_wanted.language);
    m_lookAndFeel->SetLanguage(LocaleOf(code).name().toStdString());
    m_translations.Use(code);
}

void Appearance::UseTheme()
{
    const std::pair wanted(ThemeFromName(m_wanted.theme, m_desktop.Current()),
                           QGuiApplication::layoutDirection());
    if (m_applied != wanted) {
        m_applied = wanted;
        ApplyTheme(wanted.first);
    }
}

} // namespace Zentor::Desktop
