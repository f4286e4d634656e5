#include "Caption.h"
#include "ElidedText.h"
#include "HostInterfaces.h"
#include "LayoutAlignment.h"

namespace Zentor {

ZLabel::ZLabel(QWidget* parent, Qt::WindowFlags flags)
    : QLabel(parent, flags)
{
    setTextFormat(Qt::PlainText);
    new ElidedText(this);
    new LayoutAlignment(this);
}

void ZLabel::setOriginalText(const QString& text)
{
    // A buddy that was given another name than the caption keeps it.
    const bool namesBuddy =
        buddy() != nullptr && buddy()->accessibleName() == AccessibleNameFrom(*this);
    setText(text);
    findChild<ElidedText*>({}, Qt::FindDirectChildrenOnly)->UpdateToolTip();
    if (namesBuddy) {
        buddy()->setAccessibleName(AccessibleNameFrom(*this));
    }
}

QString ZLabel::originalText() const
{
    return text();
}

} // namespace Zentor
