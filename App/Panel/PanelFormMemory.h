#pragma once

#include <memory>

#include <QObject>

#include "PanelParts.h"

namespace Zentor::PX {
class SettingsStore;
}

namespace Zentor::Desktop {

/// Carries a task form that is being filled in over to the next start: Remember() stores what it
/// holds, and the form opens with it, without a question, when the panel is shown for the first
/// time. It is forgotten when the form is closed.
class PanelFormMemory final : public QObject {
    Q_OBJECT

public:
    /// Belongs to \a panel, which has been restored and keeps its settings in \a store.
    PanelFormMemory(QWidget* panel, std::shared_ptr<PX::SettingsStore> store);
    ~PanelFormMemory() override;

    /// Stores what the form holds, or that there is none on screen.
    void Remember();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void OpenForm();
    void ForgetWithoutForm();
    bool IsFormOpen() const;

    QWidget* m_panel;
    std::shared_ptr<PX::SettingsStore> m_store;
    const PanelParts m_parts;
    /// Whether a form of the last run is still to be opened.
    bool m_isPending;
};

} // namespace Zentor::Desktop
