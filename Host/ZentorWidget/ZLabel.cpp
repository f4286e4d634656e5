// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "Caption.h"
#include "HostInterfaces.h"
#include "LabelEvents.h"

namespace Zentor {

ZLabel::ZLabel(QWidget* parent, Qt::WindowFlags flags)
    : QLabel(parent, flags)
{
    setTextFormat(Qt::PlainText);
    LabelEvents::Follow(*this);
}

void ZLabel::setOriginalText(const QString& text)
{
    // A buddy that was given another name than the caption keeps it.
    const bool namesBuddy =
        buddy() != nullptr && buddy()->accessibleName() == AccessibleNameFrom(*this);
    setText(text);
    LabelEvents::OnTextSet(*this);
    if (namesBuddy) {
        buddy()->setAccessibleName(AccessibleNameFrom(*this));
    }
}

QString ZLabel::originalText() const
{
    return text();
}

} // namespace Zentor
