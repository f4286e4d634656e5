// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "HostInterfaces.h"
#include "PXUserSettings/SettingsStore.h"

namespace Zentor::App {

/// Remembered answers, kept in the settings store.
class ZENTOR_HOST_API SettingsManager final : public ISettingsManager {
public:
    /// \a store must not be null.
    explicit SettingsManager(std::shared_ptr<PX::SettingsStore> store);

    bool IsConfirmed(const QString& confirmationId) const override;
    void SetConfirmed(const QString& confirmationId, bool confirmed) override;

    /// Forgets every answer: all questions are asked again.
    void ForgetAll();

private:
    std::shared_ptr<PX::SettingsStore> m_store;
};

} // namespace Zentor::App
