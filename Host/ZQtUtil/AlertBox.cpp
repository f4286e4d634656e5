#include <QPointer>

#include "AlertBoxBehaviour.h"
#include "HostInterfaces.h"

namespace Zentor::Util {
namespace {

QMessageBox::Icon IconOf(AlertBox::Level level)
{
    switch (level) {
    case AlertBox::Information:
        return QMessageBox::Information;
    case AlertBox::Warning:
        return QMessageBox::Warning;
    case AlertBox::Question:
        return QMessageBox::Question;
    }
    return QMessageBox::NoIcon;
}

} // namespace

AlertBox::AlertBox(Level level, const QString& title, const QString& text,
                   QMessageBox::StandardButtons buttons, QWidget* parent, Qt::WindowFlags flags)
    : QMessageBox(IconOf(level), title, text, buttons, parent, flags)
{
    new RejectOnClose(this);
    if (auto* buttonBox = findChild<QDialogButtonBox*>()) {
        new KeptButtonLabels(buttonBox);
    }
}

QMessageBox::StandardButton AlertBox::Exec()
{
    if (defaultButton() == nullptr && button(Cancel) != nullptr) {
        setDefaultButton(Cancel);
    }
    const QPointer<AlertBox> self(this);
    exec();
    if (self == nullptr || clickedButton() == nullptr) {
        return Cancel;
    }
    return standardButton(clickedButton());
}

} // namespace Zentor::Util
