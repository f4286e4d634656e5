// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "QuietLabel.h"

namespace Zentor::Desktop {

/// A figure that changes while it is looked at. It takes as much room as the widest text of that
/// kind so far, so that what stands beside it does not move.
class FigureLabel final : public QuietLabel {
    Q_OBJECT

public:
    using QuietLabel::QuietLabel;

    /// Shows \a text. An empty one takes no room, and forgets how much there was.
    void SetFigure(const QString& text);

    QString SpokenText() const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void changeEvent(QEvent* event) override;

private:
    /// The width of the text with digits of the widest kind.
    int WidthWithAnyDigits() const;

    mutable int m_widest = 0;
};

} // namespace Zentor::Desktop
