// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

/// \file
/// The answers that the user wants remembered.
#pragma once

#include "HostInterfaces.h"
#include "PXUserSettings/SettingsStore.h"

namespace Zentor::App {

/// Remembered answers, kept in the settings store.
class ZENTOR_HOST_API SettingsManager final : public ISettingsManager {
public:
    /// Keeps the answers in \a store, of which it takes a share and which must not be null.
    explicit SettingsManager(std::shared_ptr<PX::SettingsStore> store);

    /// Whether \a confirmationId is stored as confirmed; false for a name that is not stored.
    bool IsConfirmed(const QString& confirmationId) const override;
    /// Stores \a confirmed under \a confirmationId, as SettingsStore::Change() does.
    void SetConfirmed(const QString& confirmationId, bool confirmed) override;

    /// Forgets every answer: all questions are asked again.
    void ForgetAll();

private:
    std::shared_ptr<PX::SettingsStore> m_store;
};

} // namespace Zentor::App
