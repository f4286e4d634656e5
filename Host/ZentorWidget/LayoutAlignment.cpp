#include "LayoutAlignment.h"

#include <QEvent>
#include <QLabel>

namespace Zentor {

LayoutAlignment::LayoutAlignment(QLabel* label)
    : QObject(label)
    , m_label(label)
    , m_ownAlignment(label->alignment())
{
    label->installEventFilter(this);
    Align();
}

void LayoutAlignment::Align()
{
    if (m_label->alignment() != m_ownAlignment) {
        return;
    }
    const auto edge = m_label->isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft;
    m_ownAlignment = edge | Qt::AlignAbsolute | Qt::AlignVCenter;
    m_label->setAlignment(m_ownAlignment);
}

bool LayoutAlignment::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::LayoutDirectionChange) {
        Align();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace Zentor
