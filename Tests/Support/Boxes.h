// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include <QMessageBox>
#include <QPointer>
#include <QTimer>

namespace Zentor::Tests {

/// Meets the next modal message box and acts on it.
///
/// Create it before the action that opens the box, and check with `QVERIFY(box.Came())` after the
/// action: a box that never came cannot pass for one that was answered.
class ExpectedBox {
public:
    using Action = std::function<void(QMessageBox& box)>;

    explicit ExpectedBox(Action action);
    /// Clicks \a button of the box.
    explicit ExpectedBox(QMessageBox::StandardButton button);

    bool Came() const { return m_came; }

private:
    void Look();

    Action m_action;
    QTimer m_timer;
    int m_looks = 0;
    bool m_came = false;
};

/// Presses Escape in the box.
void PressEscape(QMessageBox& box);

/// Whether a modal box is open now.
bool IsBoxOpen();

} // namespace Zentor::Tests
