// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPointer>

class QAbstractButton;
class QLabel;

namespace Zentor {

/// Accessible name for the buddy of \a caption: the caption's text without its mnemonic mark.
QString AccessibleNameFrom(const QLabel& caption);

/// Event filter that clicks a button when its caption is clicked.
class CaptionClicks final : public QObject {
    Q_OBJECT

public:
    /// Filters the events of \a caption, which becomes the owner.
    CaptionClicks(QWidget* caption, QAbstractButton* button);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ClickButton();

    QWidget* m_caption;
    QPointer<QAbstractButton> m_button;
    bool m_isPressed = false;
};

} // namespace Zentor
