// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "ModalQuestion.h"

#include <QPointer>

namespace Zentor::PX::Scheduler::UI {

QMessageBox::StandardButton AskModally(std::unique_ptr<Zentor::Util::AlertBox> box, QWidget* asker)
{
    // The box belongs to its window too, so only these pointers know what has been destroyed.
    const QPointer<Zentor::Util::AlertBox> guardedBox(box.release());
    const QPointer<QWidget> guardedAsker(asker);
    QObject::connect(asker, &QObject::destroyed, guardedBox, &QDialog::reject);

    const auto answer = guardedBox->Exec();
    const bool isAnswered = !guardedBox.isNull() && !guardedAsker.isNull();
    delete guardedBox;
    return isAnswered ? answer : QMessageBox::Cancel;
}

} // namespace Zentor::PX::Scheduler::UI
