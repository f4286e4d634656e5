// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QAbstractButton>
#include <QCheckBox>
#include <QPointer>

#include "HostInterfaces.h"

namespace Zentor::App {
namespace {

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
    // Copies: the box may be deleted while it is open.
    const auto settingsManager = m_settingsManager;
    const QString confirmationId = m_confirmationId;
    const StandardButton accepting = AcceptingButton(*this);
    const bool canRemember =
        settingsManager != nullptr && !confirmationId.isEmpty() && accepting != NoButton;
    if (canRemember && settingsManager->IsConfirmed(confirmationId)) {
        return accepting;
    }
    const QPointer<ConfirmationAlertBox> self(this);
    const StandardButton answer = AlertBox::Exec();
    if (canRemember && answer == accepting && self != nullptr && checkBox() != nullptr
        && checkBox()->isChecked()) {
        settingsManager->SetConfirmed(confirmationId, true);
    }
    return answer;
}

} // namespace Zentor::App
