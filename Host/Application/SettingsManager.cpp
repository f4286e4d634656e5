// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "SettingsManager.h"

namespace Zentor::App {

SettingsManager::SettingsManager(std::shared_ptr<PX::SettingsStore> store)
    : m_store(std::move(store))
{
}

bool SettingsManager::IsConfirmed(const QString& confirmationId) const
{
    return m_store->Settings().confirmations.value(confirmationId, false);
}

void SettingsManager::SetConfirmed(const QString& confirmationId, bool confirmed)
{
    m_store->Change([&](PX::UserSettings& settings) {
        settings.confirmations.insert(confirmationId, confirmed);
    });
}

void SettingsManager::ForgetAll()
{
    m_store->Change([](PX::UserSettings& settings) { settings.confirmations.clear(); });
}

} // namespace Zentor::App
