// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RadioGroupTabStop.h"

#include <QAbstractButton>
#include <QButtonGroup>

namespace Zentor::Desktop {

RadioGroupTabStop::RadioGroupTabStop(QButtonGroup* group)
    : QObject(group)
    , m_group(group)
{
    MoveToChecked();
    connect(group, qOverload<QAbstractButton*, bool>(&QButtonGroup::buttonToggled), this,
            &RadioGroupTabStop::MoveToChecked);
    // Queued: an arrow key moves the focus only after the click.
    connect(group, qOverload<QAbstractButton*>(&QButtonGroup::buttonClicked), this,
            &RadioGroupTabStop::ReturnFocusFromRefused, Qt::QueuedConnection);
}

RadioGroupTabStop::~RadioGroupTabStop() = default;

void RadioGroupTabStop::MoveToChecked()
{
    const auto buttons = m_group->buttons();
    for (QAbstractButton* button : buttons) {
        button->setFocusPolicy(button->isChecked()
                                   ? Qt::StrongFocus
                                   : Qt::FocusPolicy(Qt::StrongFocus & ~Qt::TabFocus));
    }
}

void RadioGroupTabStop::ReturnFocusFromRefused()
{
    QAbstractButton* checked = m_group->checkedButton();
    if (checked == nullptr) {
        return;
    }
    const auto* focused = qobject_cast<QAbstractButton*>(checked->window()->focusWidget());
    if (focused != nullptr && focused->group() == m_group && focused != checked) {
        checked->setFocus(Qt::OtherFocusReason);
    }
}

} // namespace Zentor::Desktop
