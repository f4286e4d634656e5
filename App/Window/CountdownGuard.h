// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>

class QKeyEvent;
class QMouseEvent;
class QWidget;

namespace Zentor::Desktop {

/// Lets whoever sits at the machine cancel a countdown by any key or click in the application. What
/// cancels does nothing else.
class CountdownGuard final : public QObject {
    Q_OBJECT

public:
    /// The keyboard and the mouse can still press \a nowButton, which does not cancel.
    explicit CountdownGuard(QWidget* nowButton, QObject* parent = nullptr);
    ~CountdownGuard() override;

    /// Whether a key or click cancels. It does not from the start, nor after Cancelled().
    void SetArmed(bool isArmed);
    bool IsArmed() const { return m_isArmed; }

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// A key or a mouse button was pressed. The guard is not armed any longer.
    void Cancelled();

private:
    bool IsForButton(const QObject& watched, const QKeyEvent& event) const;
    bool IsForButton(const QMouseEvent& event) const;
    /// Whether \a event belongs to the press that has cancelled.
    bool IsRestOfPress(const QEvent& event) const;
    /// The key that has cancelled may be released.
    void ForgetKeyAfter(const QEvent& event);
    bool Cancels(const QObject& watched, const QEvent& event) const;

    const QPointer<QWidget> m_nowButton;
    bool m_isArmed = false;
    /// Since Cancelled().
    QElapsedTimer m_sinceCancelled;
    /// The key that has cancelled, until it is released; 0 for none.
    int m_key = 0;
};

} // namespace Zentor::Desktop
