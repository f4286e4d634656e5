#include "ModalQuestion.h"

#include <QPointer>

namespace Zentor::PX::Scheduler::UI {

QMessageBox::StandardButton ModalQuestion::Ask(ModalQuestion& question,
                                               std::unique_ptr<Zentor::Util::AlertBox> box,
                                               QWidget* asker)
{
    if (question.IsOpen()) {
        return QMessageBox::Cancel;
    }
    // The box belongs to its window too, so only these pointers know what has been destroyed.
    const QPointer<Zentor::Util::AlertBox> guardedBox(box.release());
    const QPointer<QWidget> guardedAsker(asker);
    question.m_isOpen = true;
    QObject::connect(asker, &QObject::destroyed, guardedBox, &QDialog::reject);

    const auto answer = guardedBox->Exec();
    const bool isAnswered = !guardedBox.isNull() && !guardedAsker.isNull();
    delete guardedBox;
    if (!guardedAsker.isNull()) {
        question.m_isOpen = false;
    }
    return isAnswered ? answer : QMessageBox::Cancel;
}

} // namespace Zentor::PX::Scheduler::UI
