#include "HostInterfaces.h"

namespace Zentor {

ZFrame::ZFrame(QWidget* parent, Qt::WindowFlags flags)
    : QFrame(parent, flags)
{
}

} // namespace Zentor
