// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include "Page.h"

namespace Zentor::PX {
class SettingsStore;
}

namespace Zentor::Desktop {

class SourceCard;

/// The page "Recording": what is recorded, and how. A choice is stored at once.
class RecordingPage final : public Page {
    Q_OBJECT

public:
    /// The store has the section of Schedule::RecordingSettings.
    RecordingPage(const std::shared_ptr<PX::SettingsStore>& store, QWidget* parent);
    ~RecordingPage() override;

    /// The Id() of this page.
    static QString PageId();

    QString Title() const override;
    QString Description() const override;

    /// Why nothing can be recorded of the screen or area that is stored.
    QString Problem() const override;
    void FocusInput() override;

private:
    SourceCard* m_sourceCard;
};

} // namespace Zentor::Desktop
