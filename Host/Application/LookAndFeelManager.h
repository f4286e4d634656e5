// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "HostInterfaces.h"

namespace Zentor::App {

/// Language of the interface; the system's by default.
class ZENTOR_HOST_API LookAndFeelManager final : public ILookAndFeelManager {
public:
    LookAndFeelManager();

    std::string GetLanguage() const override;

    /// \a language is a name that QLocale understands. Set it before the translations of the new
    /// language are installed: widgets ask for it while they retranslate themselves.
    void SetLanguage(const std::string& language);

private:
    std::string m_language;
};

} // namespace Zentor::App
