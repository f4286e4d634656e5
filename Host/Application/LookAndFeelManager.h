// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

/// \file
/// The language of the interface.
#pragma once

#include "HostInterfaces.h"

namespace Zentor::App {

/// Language of the interface; the system's by default.
class ZENTOR_HOST_API LookAndFeelManager final : public ILookAndFeelManager {
public:
    /// Starts with the language of QLocale::system().
    LookAndFeelManager();

    /// The language that was set last, or the system's, such as "de_DE".
    std::string GetLanguage() const override;

    /// Sets \a language, a name that QLocale understands; it is neither checked nor stored. Set it
    /// before the translations of the new language are installed: widgets ask for it while they
    /// retranslate themselves.
    void SetLanguage(const std::string& language);

private:
    std::string m_language;
};

} // namespace Zentor::App
