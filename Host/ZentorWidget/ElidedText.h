// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>

class QLabel;

namespace Zentor {

/// Whether \a label shows plain text that does not fit into it, and should be elided.
bool IsTextTooWide(const QLabel& label);

/// Event filter that elides the plain text of a label where it does not fit, with the whole text in
/// the label's tool tip meanwhile. A tool tip that was set by others is left alone.
class ElidedText final : public QObject {
    Q_OBJECT

public:
    /// Filters the events of \a label, which becomes the owner.
    explicit ElidedText(QLabel* label);

    /// Sets or clears the tool tip, as the text fits or not. Also runs when the label is resized or
    /// painted.
    void UpdateToolTip();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QString ElidedLines() const;
    void Paint() const;

    QLabel* m_label;
    QString m_ownToolTip;
};

} // namespace Zentor
