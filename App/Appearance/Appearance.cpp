// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

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

QString FirstOf(const QString& ofRun, const QString& stored)
{
    return ofRun.isEmpty() ? stored : ofRun;
}

} // namespace

Appearance::Appearance(std::shared_ptr<PX::SettingsStore> store,
                       std::shared_ptr<App::LookAndFeelManager> lookAndFeel, const Look& wanted)
    : m_store(std::move(store))
    , m_lookAndFeel(std::move(lookAndFeel))
    , m_stored(LookIn(*m_store))
    , m_ofRun(wanted)
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
        m_ofRun.language.clear();
        UseLanguage();
    }
    if (m_stored.theme != before.theme) {
        m_ofRun.theme.clear();
    }
    UseTheme();
}

void Appearance::UseStoredLanguage()
{
    if (!m_ofRun.language.isEmpty()) {
        m_ofRun.language.clear();
        UseLanguage();
        UseTheme();
    }
}

void Appearance::UseStoredTheme()
{
    m_ofRun.theme.clear();
    UseTheme();
}

void Appearance::UseLanguage()
{
    const QString code = LanguageFor(FirstOf(m_ofRun.language, m_stored.language));
    m_lookAndFeel->SetLanguage(LocaleOf(code).name().toStdString());
    m_translations.Use(code);
}

void Appearance::UseTheme()
{
    const std::pair wanted(
        ThemeFromName(FirstOf(m_ofRun.theme, m_stored.theme), m_desktop.Current()),
        QGuiApplication::layoutDirection());
    if (m_applied != wanted) {
        m_applied = wanted;
        ApplyTheme(wanted.first);
    }
}

} // namespace Zentor::Desktop
