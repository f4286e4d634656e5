// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <array>

#include <QComboBox>
#include <QCoreApplication>

#include "HostInterfaces.h"

namespace Zentor::PX::UI {

void ClearAndFillPowerActionsComboBox(QComboBox* comboBox)
{
    // In the order of PowerAction: the index of an entry is its value.
    constexpr std::array names{
        QT_TRANSLATE_NOOP("PowerAction", "Do nothing"),
        QT_TRANSLATE_NOOP("PowerAction", "Quit the application"),
        QT_TRANSLATE_NOOP("PowerAction", "Sleep"),
        QT_TRANSLATE_NOOP("PowerAction", "Hibernate"),
        QT_TRANSLATE_NOOP("PowerAction", "Restart"),
        QT_TRANSLATE_NOOP("PowerAction", "Shut down"),
    };
    static_assert(names.size() == ShutDown + 1);

    comboBox->clear();
    for (const char* name : names) {
        comboBox->addItem(QCoreApplication::translate("PowerAction", name));
    }
}

} // namespace Zentor::PX::UI
