// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "LabelEvents.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLabel>
#include <QPointer>

#include "ElidedText.h"

namespace Zentor {
namespace {

Qt::Alignment AlignmentIn(Qt::LayoutDirection direction)
{
    const auto edge = direction == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft;
    return edge | Qt::AlignAbsolute | Qt::AlignVCenter;
}

ElidedText* FindElidedText(const QLabel& label)
{
    return label.findChild<ElidedText*>({}, Qt::FindDirectChildrenOnly);
}

/// The direction of \a label has changed.
void AlignAnew(QLabel& label)
{
    const auto before = label.isRightToLeft() ? Qt::LeftToRight : Qt::RightToLeft;
    if (label.alignment() == AlignmentIn(before)) {
        label.setAlignment(AlignmentIn(label.layoutDirection()));
    }
}

} // namespace

void LabelEvents::Follow(QLabel& label)
{
    static QPointer<LabelEvents> ofAll;
    if (ofAll.isNull()) {
        ofAll = new LabelEvents(QCoreApplication::instance());
    }
    label.setAlignment(AlignmentIn(label.layoutDirection()));
    label.installEventFilter(ofAll);
}

void LabelEvents::OnTextSet(QLabel& label)
{
    // A label that has not been given its size yet hears of it by an event.
    if (!label.testAttribute(Qt::WA_Resized) && !label.isVisible()) {
        return;
    }
    if (auto* elided = FindElidedText(label)) {
        elided->UpdateToolTip();
    } else if (IsTextTooWide(label)) {
        (new ElidedText(&label))->UpdateToolTip();
    }
}

bool LabelEvents::eventFilter(QObject* watched, QEvent* event)
{
    auto& label = static_cast<QLabel&>(*watched);
    if (event->type() == QEvent::LayoutDirectionChange) {
        AlignAnew(label);
    } else if ((event->type() == QEvent::Resize || event->type() == QEvent::Paint)
               && IsTextTooWide(label) && FindElidedText(label) == nullptr) {
        return (new ElidedText(&label))->eventFilter(watched, event);
    }
    return QObject::eventFilter(watched, event);
}

} // namespace Zentor
