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

} // namespace

ElidedText::ElidedText(QLabel* label)
    : QObject(label)
    , m_label(label)
{
    label->installEventFilter(this);
}

bool ElidedText::HasMnemonic() const
{
    return m_label->buddy() != nullptr && m_label->text().contains(QLatin1Char('&'));
}

/// Text rectangle of the label: within its padding, margin and indent.
QRect ElidedText::TextRect() const
{
    const int margin = m_label->margin();
    QRect rect = m_label->contentsRect().adjusted(margin, margin, -margin, -margin);
    int indent = m_label->indent();
    if (indent < 0 && m_label->frameWidth() > 0) {
        indent = m_label->fontMetrics().horizontalAdvance(QLatin1Char('x')) / 2 - margin;
    }
    if (indent > 0) {
        const auto alignment =
            QStyle::visualAlignment(DirectionOf(m_label->text()), m_label->alignment());
        rect.adjust(alignment.testFlag(Qt::AlignLeft) ? indent : 0,
                    alignment.testFlag(Qt::AlignTop) ? indent : 0,
                    alignment.testFlag(Qt::AlignRight) ? -indent : 0,
                    alignment.testFlag(Qt::AlignBottom) ? -indent : 0);
    }
    return rect;
}

bool ElidedText::IsTextTooWide() const
{
    constexpr Qt::TextInteractionFlags selectable =
        Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard;
    if (m_label->textFormat() != Qt::PlainText || m_label->text().isEmpty() || m_label->wordWrap()
        || (m_label->textInteractionFlags() & selectable)) {
        return false;
    }
    const int flags = HasMnemonic() ? Qt::TextShowMnemonic : 0;
    return m_label->fontMetrics().size(flags, m_label->text()).width() > TextRect().width();
}

QString ElidedText::ElidedLines() const
{
    const int flags = HasMnemonic() ? Qt::TextShowMnemonic : 0;
    const int width = TextRect().width();
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
    if (HasMnemonic()) {
        const bool isShown =
            m_label->style()->styleHint(QStyle::SH_UnderlineShortcut, &frame, m_label) != 0;
        flags |= isShown ? Qt::TextShowMnemonic : Qt::TextHideMnemonic;
    }
    m_label->style()->drawItemText(&painter, TextRect(), flags, m_label->palette(),
                                   m_label->isEnabled(), ElidedLines(), m_label->foregroundRole());
}

void ElidedText::UpdateToolTip()
{
    const QString toolTip = IsTextTooWide() ? ToolTipShowing(m_label->text()) : QString();
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
        if (IsTextTooWide()) {
            Paint();
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace Zentor
