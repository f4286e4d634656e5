// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <QObject>
#include <QString>
#include <QStringList>

#include "PanelParts.h"

namespace Zentor::PX {
class SettingsStore;
}

namespace Zentor::Desktop {

/// Puts into words what changes in a scheduler panel, for a status line and for screen readers:
/// what is wrong in the task form, and which tasks come and go.
class PanelAnnouncer : public QObject {
    Q_OBJECT

public:
    /// Belongs to \a panel, which stores its schedule in \a store.
    PanelAnnouncer(QWidget* panel, std::shared_ptr<PX::SettingsStore> store);
    ~PanelAnnouncer() override;

    /// The form has refused what was entered last for \a reason, which comes before other
    /// problems; empty when it has not.
    void SetRefusal(const QString& reason);

    /// While it is quiet, tasks come and go without being announced. Not quiet by default.
    void SetQuiet(bool isQuiet) { m_isQuiet = isQuiet; }

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// Something has just happened; \a text says what.
    void Announced(const QString& text);
    /// The task form cannot be used as it is, and \a problem says why; it is empty when nothing is
    /// wrong any more or the form is no longer on screen. Not sent again for the same problem.
    void ProblemChanged(const QString& problem);

private:
    void CompareSchedule();
    void UpdateProblem();
    QString ShownProblem() const;

    std::shared_ptr<PX::SettingsStore> m_store;
    const PanelParts m_parts;
    QString m_refusal;
    QString m_problem;
    QStringList m_titles;
    bool m_isQuiet = false;
};

} // namespace Zentor::Desktop
