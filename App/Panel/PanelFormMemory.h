// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <QObject>

#include "PanelParts.h"

namespace Zentor::PX {
class SettingsStore;
}

namespace Zentor::Desktop {

/// Carries a task form that is being filled in over to the next start, or to when the window is
/// shown again: what it holds is stored, and the form opens with it, without a question, when the
/// panel is shown. It is forgotten when the form is closed.
class PanelFormMemory final : public QObject {
    Q_OBJECT

public:
    /// Belongs to \a panel, which has been restored and keeps its settings in \a store.
    PanelFormMemory(QWidget* panel, std::shared_ptr<PX::SettingsStore> store);
    ~PanelFormMemory() override;

    /// Stores what the form holds, or that there is none on screen.
    void Remember();

    /// Stores what the form holds and opens it anew when the panel, which is about to be hidden
    /// with its window, is shown again.
    void Keep();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void OpenForm();
    void ForgetWithoutForm();
    bool IsFormOpen() const;

    QWidget* m_panel;
    std::shared_ptr<PX::SettingsStore> m_store;
    const PanelParts m_parts;
    /// Whether a form that was stored is still to be opened.
    bool m_isPending;
};

} // namespace Zentor::Desktop
