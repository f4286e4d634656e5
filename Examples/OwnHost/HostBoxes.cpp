// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

// The message boxes, on Qt's own.
#include <utility>

#include <QAbstractButton>
#include <QCheckBox>
#include <QKeyEvent>
#include <QPointer>

#include "HostInterfaces.h"

namespace Zentor {
namespace {

QMessageBox::Icon IconOf(Util::AlertBox::Level level)
{
    switch (level) {
    case Util::AlertBox::Information:
        return QMessageBox::Information;
    case Util::AlertBox::Warning:
        return QMessageBox::Warning;
    case Util::AlertBox::Question:
        return QMessageBox::Question;
    }
    return QMessageBox::NoIcon;
}

/// Escape and the window's close button refuse. Qt would press a button, or do nothing at all.
class RejectOnClose final : public QObject {
public:
    explicit RejectOnClose(QMessageBox* box)
        : QObject(box)
        , m_box(box)
    {
        box->installEventFilter(this);
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        const bool isEscape = event->type() == QEvent::KeyPress
            && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Cancel);
        const bool isClose = isEscape || event->type() == QEvent::Close;
        if (isClose) {
            m_box->reject();
        }
        return isClose;
    }

private:
    QMessageBox* const m_box;
};

/// The button that accepts, or none.
QMessageBox::StandardButton AcceptingButton(const QMessageBox& box)
{
    const auto buttons = box.buttons();
    for (auto* button : buttons) {
        const auto role = box.buttonRole(button);
        if (role == QMessageBox::AcceptRole || role == QMessageBox::YesRole) {
            return box.standardButton(button);
        }
    }
    return QMessageBox::NoButton;
}

} // namespace

namespace Util {

AlertBox::AlertBox(Level level, const QString& title, const QString& text,
                   QMessageBox::StandardButtons buttons, QWidget* parent, Qt::WindowFlags flags)
    : QMessageBox(IconOf(level), title, text, buttons, parent, flags)
{
    new RejectOnClose(this);
}

QMessageBox::StandardButton AlertBox::Exec()
{
    // Enter never destroys by accident.
    if (defaultButton() == nullptr && button(Cancel) != nullptr) {
        setDefaultButton(Cancel);
    }
    // The box may be deleted while it is open. After exec() only locals are touched, and an answer
    // that no button has given is Cancel.
    StandardButton answer = Cancel;
    const QObject duringExec;
    connect(this, &QMessageBox::buttonClicked, &duringExec,
            [&](QAbstractButton* clicked) { answer = standardButton(clicked); });
    exec();
    return answer;
}

} // namespace Util

namespace App {

ConfirmationAlertBox::ConfirmationAlertBox(std::shared_ptr<ISettingsManager> settingsManager,
                                           Level level, const QString& title, const QString& text,
                                           QMessageBox::StandardButtons buttons, QWidget* parent,
                                           Qt::WindowFlags flags)
    : AlertBox(level, title, text, buttons, parent, flags)
    , m_settingsManager(std::move(settingsManager))
{
}

void ConfirmationAlertBox::SetConfirmationId(const QString& confirmationId)
{
    m_confirmationId = confirmationId;
}

void ConfirmationAlertBox::SetConfirmationText(const QString& text)
{
    if (checkBox() == nullptr) {
        setCheckBox(new QCheckBox(this));
    }
    checkBox()->setText(text);
}

QMessageBox::StandardButton ConfirmationAlertBox::Exec()
{
    // Copies: see AlertBox::Exec().
    const auto settingsManager = m_settingsManager;
    const QString confirmationId = m_confirmationId;
    const StandardButton accepting = AcceptingButton(*this);
    const bool canRemember = !confirmationId.isEmpty() && accepting != NoButton;
    if (canRemember && settingsManager->IsConfirmed(confirmationId)) {
        return accepting;
    }
    const QPointer<QCheckBox> remember(checkBox());
    const StandardButton answer = AlertBox::Exec();
    if (canRemember && answer == accepting && !remember.isNull() && remember->isChecked()) {
        settingsManager->SetConfirmed(confirmationId, true);
    }
    return answer;
}

} // namespace App

} // namespace Zentor
