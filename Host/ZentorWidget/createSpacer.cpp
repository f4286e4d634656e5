#include "HostInterfaces.h"

namespace Zentor::Util {

QFrame* createSpacer(QWidget* parent, const QString& objectName)
{
    auto* spacer = new QFrame(parent);
    spacer->setObjectName(objectName);
    return spacer;
}

} // namespace Zentor::Util
