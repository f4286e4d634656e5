// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStatusBar>

namespace Zentor::Desktop {

/// A status bar that shortens a message that does not fit, and shows the whole of it in its tip.
class StatusLine : public QStatusBar {
    Q_OBJECT

public:
    explicit StatusLine(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QRect MessageRect() const;
    QString ShortenedMessage() const;
    void UpdateToolTip();
};

} // namespace Zentor::Desktop
