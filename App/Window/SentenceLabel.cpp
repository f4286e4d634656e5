// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "SentenceLabel.h"

#include <algorithm>

#include <QEvent>

#include "CoreInt/Printable.h"
#include "SizeText.h"

namespace Zentor::Desktop {

void SentenceLabel::SetSentence(const QString& sentence, const QString& title)
{
    const QString printable = Util::PrintableText(title);
    if (sentence == m_sentence && printable == m_title) {
        return;
    }
    m_sentence = sentence;
    m_title = printable;
    updateGeometry();
    Fit();
}

QString SentenceLabel::SpokenText() const
{
    return With(m_title);
}

QString SentenceLabel::With(const QString& title) const
{
    return m_sentence.isEmpty() ? QString()
                                : Isolated(QString(m_sentence).replace(TitleMark(), title));
}

int SentenceLabel::WidthOf(const QString& text) const
{
    return fontMetrics().size(Qt::TextSingleLine, text).width();
}

QSize SentenceLabel::sizeHint() const
{
    ensurePolished();
    const int frame = QLabel::sizeHint().width() - WidthOf(text());
    return {WidthOf(With(m_title)) + frame, QLabel::sizeHint().height()};
}

QSize SentenceLabel::minimumSizeHint() const
{
    return {0, sizeHint().height()};
}

void SentenceLabel::Fit()
{
    const QString whole = With(m_title);
    const int room = contentsRect().width();
    if (!testAttribute(Qt::WA_Resized) || WidthOf(whole) <= room) {
        setText(whole);
        setToolTip({});
        return;
    }
    const QString ellipsis(QChar(0x2026));
    const int roomOfTitle = std::max(WidthOf(ellipsis), room - WidthOf(With({})));
    setText(With(fontMetrics().elidedText(m_title, Qt::ElideRight, roomOfTitle)));
    setToolTip(whole.toHtmlEscaped());
}

void SentenceLabel::changeEvent(QEvent* event)
{
    QuietLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        Fit();
    }
}

void SentenceLabel::resizeEvent(QResizeEvent* event)
{
    Fit();
    QuietLabel::resizeEvent(event);
}

} // namespace Zentor::Desktop
