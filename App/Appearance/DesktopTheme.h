// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <QObject>

#include "Theme.h"

class OrgFreedesktopPortalSettingsInterface;

namespace Zentor::Desktop {

/// Which theme the user of the desktop prefers.
///
/// Asks the desktop's settings portal. Where there is none, or where it knows of no preference, the
/// theme is the one that goes with the palette the application started with.
class DesktopTheme : public QObject {
    Q_OBJECT

public:
    /// Create it before a theme is applied: that replaces the palette.
    DesktopTheme();
    ~DesktopTheme() override;

    Theme Current() const { return m_current; }

Q_SIGNALS:
    /// The desktop now prefers the other theme, Current().
    void Changed();

private:
    void Connect();
    void Ask();
    /// Waits for the answer without holding up anything.
    void AskPatiently();
    /// Takes over what the portal says: 1 for dark, 2 for light, anything else for no preference.
    void TakeOver(unsigned preference);

    const Theme m_ofPalette;
    Theme m_current;
    std::unique_ptr<OrgFreedesktopPortalSettingsInterface> m_portal;
};

} // namespace Zentor::Desktop
