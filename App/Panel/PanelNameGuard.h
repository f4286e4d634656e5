// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>

#include "PanelParts.h"

class QTimer;

namespace Zentor::Desktop {

/// Says which characters the name field of a scheduler panel has refused, in a tool tip that goes
/// when others are taken, when the field loses the focus, and after some seconds; the field by
/// itself drops them silently.
class PanelNameGuard final : public QObject {
    Q_OBJECT

public:
    /// Belongs to \a panel.
    explicit PanelNameGuard(QWidget* panel);
    ~PanelNameGuard() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// Characters that were typed, pasted or dropped cannot be part of a name, and \a reason says
    /// which; it is empty when the tip has gone. Not sent for a text that is merely too long.
    void RefusalChanged(const QString& reason);

private:
    void NoteInput(QEvent* event);
    void ShowReason();
    void HideReason();

    const PanelParts m_parts;
    /// What the user was about to enter last.
    QString m_input;
    QString m_reason;
    /// Runs out with the tip.
    QTimer* m_timer;
};

} // namespace Zentor::Desktop
