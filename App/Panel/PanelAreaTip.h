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

/// Has the tip beside "Selected area" in the task form say which area that is.
class PanelAreaTip final : public QObject {
    Q_OBJECT

public:
    /// Belongs to \a panel. \a store has the section of Schedule::RecordingSettings.
    PanelAreaTip(QWidget* panel, std::shared_ptr<PX::SettingsStore> store);
    ~PanelAreaTip() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QString Text() const;
    void Update();

    std::shared_ptr<PX::SettingsStore> m_store;
    const PanelParts m_parts;
};

} // namespace Zentor::Desktop
