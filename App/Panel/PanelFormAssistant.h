// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <QObject>

#include "PanelParts.h"

class QDateTimeEdit;

namespace Zentor::PX {
class SettingsStore;
}

namespace Zentor::Desktop {

/// Fills and edits the task form of a scheduler panel as a person means it.
///
/// A form that opens at a moment that is taken starts at the first free one behind it, so that it
/// does not open with an error. A click into a time or date selects the section that was hit, so
/// that typing replaces it; a whole reading may be typed, or pasted, over the whole text.
///
/// Dates end on 7 February 2106: the panel counts the seconds to a start in 32 bits.
class PanelFormAssistant final : public QObject {
    Q_OBJECT

public:
    /// Belongs to \a panel, which stores its schedule in \a store.
    PanelFormAssistant(QWidget* panel, std::shared_ptr<PX::SettingsStore> store);
    ~PanelFormAssistant() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void MoveToFreeStart();
    void LimitStart();

    std::shared_ptr<PX::SettingsStore> m_store;
    const PanelParts m_parts;
};

} // namespace Zentor::Desktop
