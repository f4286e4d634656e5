// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <optional>
#include <utility>

#include <QObject>
#include <QString>

#include "DesktopTheme.h"
#include "Languages.h"

namespace Zentor {
namespace App {
class LookAndFeelManager;
}
namespace PX {
class SettingsStore;
}
} // namespace Zentor

namespace Zentor::Desktop {

/// A language and a theme.
struct Look {
    /// One of LanguageCodes(), or empty for the language of the system.
    QString language;
    /// One of ThemeNames(), or empty for the theme of the desktop.
    QString theme;
};

/// Gives the application its language and its theme, and keeps them up to date while it runs: with
/// what the user chooses in the settings and, where nothing is chosen, with the desktop.
class Appearance : public QObject {
    Q_OBJECT

public:
    /// Applies language and theme at once: those of \a wanted, where it names any, else those in
    /// the settings, else the desktop's. A language or theme that is changed in the settings later
    /// takes the place of the one in \a wanted.
    ///
    /// \a lookAndFeel is told of the language before any widget is. Build the first scheduler panel
    /// after this.
    Appearance(std::shared_ptr<PX::SettingsStore> store,
               std::shared_ptr<App::LookAndFeelManager> lookAndFeel, const Look& wanted);
    ~Appearance() override;

    /// What of \a wanted still takes the place of the settings.
    const Look& LookOfRun() const { return m_ofRun; }

    /// From now on the language, or the theme, in the settings counts.
    void UseStoredLanguage();
    void UseStoredTheme();

private:
    void TakeOverChanges();
    void UseLanguage();
    /// Sets the style sheet where theme or direction of writing have changed: some of its rules are
    /// for one direction, and setting it costs every widget a new polish.
    void UseTheme();

    std::shared_ptr<PX::SettingsStore> m_store;
    std::shared_ptr<App::LookAndFeelManager> m_lookAndFeel;
    DesktopTheme m_desktop;
    Translations m_translations;
    /// What the settings held last.
    Look m_stored;
    Look m_ofRun;
    /// What the style sheet was set for last.
    std::optional<std::pair<Theme, Qt::LayoutDirection>> m_applied;
};

} // namespace Zentor::Desktop
