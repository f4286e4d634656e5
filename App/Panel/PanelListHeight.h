// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include "PanelParts.h"

class QTimer;

namespace Zentor::Desktop {

/// Gives the list of tasks in a scheduler panel the height that there is, in whole rows; at least
/// the rows that the style sheet asks for.
class PanelListHeight final : public QObject {
    Q_OBJECT

public:
    /// Belongs to \a panel.
    explicit PanelListHeight(QWidget* panel);
    ~PanelListHeight() override;

    /// Sets the height in pixels that the panel may take with its list on screen.
    void SetPanelHeight(int height);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int RowsThatFit() const;
    void Fit();
    void UpdateTableHeight();

    QWidget* m_panel;
    const PanelParts m_parts;
    /// Runs out when control is back in the event loop, where every size is up to date.
    QTimer* m_timer;
    int m_panelHeight = 0;
    /// What the style sheet asks for.
    int m_leastRows;
};

} // namespace Zentor::Desktop
