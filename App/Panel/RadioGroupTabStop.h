// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QButtonGroup;

namespace Zentor::Desktop {

/// Keeps the tab stop of a group of radio buttons at the checked one.
///
/// Qt moves the stop only when a button is clicked, not when one is checked by program. A button
/// that was chosen and is unchecked again, because the choice was refused, gives the focus back to
/// the checked one.
class RadioGroupTabStop final : public QObject {
    Q_OBJECT

public:
    /// Belongs to \a group.
    explicit RadioGroupTabStop(QButtonGroup* group);
    ~RadioGroupTabStop() override;

private:
    void MoveToChecked();
    void ReturnFocusFromRefused();

    QButtonGroup* m_group;
};

} // namespace Zentor::Desktop
