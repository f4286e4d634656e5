// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "QuietLabel.h"

namespace Zentor::Desktop {

/// One line with a sentence about a task. Where the sentence does not fit, the title in it is
/// elided, not what the sentence says about the task; the whole is in the tool tip then.
class SentenceLabel final : public QuietLabel {
    Q_OBJECT

public:
    using QuietLabel::QuietLabel;

    /// Stands for the title in the text of a sentence.
    static QString TitleMark() { return QString(QChar(QChar::ObjectReplacementCharacter)); }

    /// Shows \a sentence with \a title, which may be anybody's, in the place of its TitleMark().
    void SetSentence(const QString& sentence, const QString& title = {});

    QString SpokenText() const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QString With(const QString& title) const;
    int WidthOf(const QString& text) const;
    /// Elides the title as much as it must be.
    void Fit();

    QString m_sentence;
    QString m_title;
};

} // namespace Zentor::Desktop
