// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QTimer;
class QWidget;

namespace Zentor::Desktop {

/// Has the task form of a scheduler panel keep its start in the future only while it is on screen,
/// so that an idle program is not woken up several times a second. A form that is opened is brought
/// up to date first.
class PanelFormTimer final : public QObject {
    Q_OBJECT

public:
    /// Belongs to \a panel.
    explicit PanelFormTimer(QWidget* panel);
    ~PanelFormTimer() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// Does what the timer is for.
    void Fire();

    QWidget* const m_form;
    QTimer* const m_timer;
};

} // namespace Zentor::Desktop
