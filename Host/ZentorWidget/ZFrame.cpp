#include "HostInterfaces.h"

namespace Zentor {

ZFrame::ZFrame(QWidget* parent, Qt::WindowFlags flags)
    : QFrame(parent, flags)
{
}

namespace Util {

QFrame* createSpacer(QWidget* parent, const QString& objectName)
{
    auto* spacer = new QFrame(parent);
    spacer->setObjectName(objectName);
    return spacer;
}

} // namespace Util

} // namespace Zentor
