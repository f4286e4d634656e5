// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFrame>

class QLabel;
class QPushButton;

namespace Zentor::Desktop {

/// A bar across the window with something that the user should know and can do nothing about. It
/// stays until the user closes it. Hidden while there is no text.
class NoticeBar : public QFrame {
    Q_OBJECT

public:
    explicit NoticeBar(QWidget* parent = nullptr);

    /// Shows \a text, plain and of one or more paragraphs, and has screen readers say it. An empty
    /// text hides the bar.
    void SetText(const QString& text);

Q_SIGNALS:
    /// The user has read the text and wants it gone. The bar stays until its text is taken away.
    void CloseRequested();

protected:
    void changeEvent(QEvent* event) override;

private:
    void Retranslate();

    QLabel* m_text = nullptr;
    QPushButton* m_closeButton = nullptr;
};

} // namespace Zentor::Desktop
