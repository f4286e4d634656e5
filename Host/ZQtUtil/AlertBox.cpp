// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QAbstractButton>

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
    // Not clickedButton(): when the box is closed, that is the button of the previous Exec().
    StandardButton answer = Cancel;
    const QObject duringExec;
    connect(this, &QMessageBox::buttonClicked, &duringExec,
            [&](QAbstractButton* clicked) { answer = standardButton(clicked); });
    exec();
    // The box may have been deleted.
    return answer;
}

} // namespace Zentor::Util
