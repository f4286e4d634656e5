// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "ElidedText.h"

#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QTextDocument>

namespace Zentor {
namespace {

Qt::LayoutDirection DirectionOf(const QString& text)
{
    return text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
}

/// Tool tip with \a text as plain text: unlike the label, a tool tip guesses whether it is markup.
QString ToolTipShowing(const QString& text)
{
    return Qt::mightBeRichText(text) ? QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped())
                                     : text;
}

QStyleOptionFrame FrameOf(const QLabel& label)
{
    QStyleOptionFrame frame;
    frame.initFrom(&label);
    frame.rect = label.frameRect();
    frame.frameShape = label.frameShape();
    switch (label.frameShape()) {
    case QFrame::NoFrame:
    case QFrame::WinPanel:
        frame.lineWidth = label.frameWidth();
        break;
    default:
        frame.lineWidth = label.lineWidth();
        frame.midLineWidth = label.midLineWidth();
    }
    frame.state.setFlag(QStyle::State_Sunken, label.frameShadow() == QFrame::Sunken);
    frame.state.setFlag(QStyle::State_Raised, label.frameShadow() == QFrame::Raised);
    return frame;
}

bool HasMnemonic(const QLabel& label)
{
    return label.buddy() != nullptr && label.text().contains(QLatin1Char('&'));
}

/// Text rectangle of \a label: within its padding, margin and indent.
QRect TextRect(const QLabel& label)
{
    const int margin = label.margin();
    QRect rect = label.contentsRect().adjusted(margin, margin, -margin, -margin);
    int indent = label.indent();
    if (indent < 0 && label.frameWidth() > 0) {
        indent = label.fontMetrics().horizontalAdvance(QLatin1Char('x')) / 2 - margin;
    }
    if (indent > 0) {
        const auto alignment =
            QStyle::visualAlignment(DirectionOf(label.text()), label.alignment());
        rect.adjust(alignment.testFlag(Qt::AlignLeft) ? indent : 0,
                    alignment.testFlag(Qt::AlignTop) ? indent : 0,
                    alignment.testFlag(Qt::AlignRight) ? -indent : 0,
                    alignment.testFlag(Qt::AlignBottom) ? -indent : 0);
    }
    return rect;
}

} // namespace

bool IsTextTooWide(const QLabel& label)
{
    if (label.size().isEmpty()) {
        return false;
    }
    // QLabel keeps its size hint, and measuring a text is dear. Asking for it polishes the label.
    if (label.testAttribute(Qt::WA_WState_Polished) && label.sizeHint().width() <= label.width()) {
        return false;
    }
    constexpr Qt::TextInteractionFlags selectable =
        Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard;
    if (label.textFormat() != Qt::PlainText || label.text().isEmpty() || label.wordWrap()
        || (label.textInteractionFlags() & selectable)) {
        return false;
    }
    const int flags = HasMnemonic(label) ? Qt::TextShowMnemonic : 0;
    return label.fontMetrics().size(flags, label.text()).width() > TextRect(label).width();
}

ElidedText::ElidedText(QLabel* label)
    : QObject(label)
    , m_label(label)
{
    label->installEventFilter(this);
}

QString ElidedText::ElidedLines() const
{
    const int flags = HasMnemonic(*m_label) ? Qt::TextShowMnemonic : 0;
    const int width = TextRect(*m_label).width();
    QStringList lines = m_label->text().split(QLatin1Char('\n'));
    for (QString& line : lines) {
        line = m_label->fontMetrics().elidedText(line, Qt::ElideRight, width, flags);
    }
    return lines.join(QLatin1Char('\n'));
}

/// Paints what the label itself would, but with the elided text.
void ElidedText::Paint() const
{
    QPainter painter(m_label);
    QStyleOptionFrame frame = FrameOf(*m_label);
    m_label->style()->drawControl(QStyle::CE_ShapedFrame, &frame, &painter, m_label);

    const Qt::LayoutDirection direction = DirectionOf(m_label->text());
    int flags = static_cast<int>(QStyle::visualAlignment(direction, m_label->alignment()));
    flags |= direction == Qt::RightToLeft ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight;
    if (HasMnemonic(*m_label)) {
        const bool isShown =
            m_label->style()->styleHint(QStyle::SH_UnderlineShortcut, &frame, m_label) != 0;
        flags |= isShown ? Qt::TextShowMnemonic : Qt::TextHideMnemonic;
    }
    m_label->style()->drawItemText(&painter, TextRect(*m_label), flags, m_label->palette(),
                                   m_label->isEnabled(), ElidedLines(), m_label->foregroundRole());
}

void ElidedText::UpdateToolTip()
{
    const QString toolTip = IsTextTooWide(*m_label) ? ToolTipShowing(m_label->text()) : QString();
    const bool isOwn = m_label->toolTip() == m_ownToolTip;
    if (isOwn && toolTip != m_ownToolTip) {
        m_ownToolTip = toolTip;
        m_label->setToolTip(toolTip);
    }
}

bool ElidedText::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize) {
        UpdateToolTip();
    } else if (event->type() == QEvent::Paint) {
        UpdateToolTip();
        if (IsTextTooWide(*m_label)) {
            Paint();
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace Zentor
