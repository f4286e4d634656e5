// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "FigureLabel.h"

#include <algorithm>

#include <QEvent>

#include "SizeText.h"

namespace Zentor::Desktop {

void FigureLabel::SetFigure(const QString& text)
{
    // All of them, so that they stand on one line: the characters may come from another font.
    const QString isolated = text.isEmpty() ? text : Isolated(text);
    if (isolated == this->text()) {
        return;
    }
    if (text.isEmpty()) {
        m_widest = 0;
    }
    const int before = sizeHint().width();
    setText(isolated);
    if (sizeHint().width() != before) {
        updateGeometry();
    }
}

QString FigureLabel::SpokenText() const
{
    return tr("%1: %2").arg(accessibleName(), text());
}

QSize FigureLabel::sizeHint() const
{
    const QSize hint = QLabel::sizeHint();
    if (text().isEmpty()) {
        return {0, hint.height()};
    }
    m_widest = std::max(m_widest, WidthWithAnyDigits());
    const int frame = hint.width() - fontMetrics().size(Qt::TextSingleLine, text()).width();
    return {m_widest + frame, hint.height()};
}

int FigureLabel::WidthWithAnyDigits() const
{
    int widest = 0;
    for (char digit = '0'; digit <= '9'; ++digit) {
        QString text = this->text();
        std::replace_if(
            text.begin(), text.end(), [](QChar character) { return character.isDigit(); },
            QLatin1Char(digit));
        widest = std::max(widest, fontMetrics().size(Qt::TextSingleLine, text).width());
    }
    return widest;
}

void FigureLabel::changeEvent(QEvent* event)
{
    QuietLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        m_widest = 0;
        updateGeometry();
    }
}

} // namespace Zentor::Desktop
